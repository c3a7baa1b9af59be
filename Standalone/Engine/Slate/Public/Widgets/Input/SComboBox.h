// Copyright Corvane. MIT License.
#pragma once

#include "Framework/SlateDelegates.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Input/SComboButton.h"

DECLARE_DELEGATE(FOnComboBoxOpening)

/**
 * Offers options of one type, of which one or none is selected. What the closed box shows is its content, which
 * somebody else keeps up to date. OptionType is a kind of pointer; an empty one is no option and stands for no
 * selection.
 */
template <typename OptionType>
class SComboBox : public SComboButton
{
public:
	typedef OptionType NullableOptionType;
	typedef typename TSlateDelegates<OptionType>::FOnGenerateWidget FOnGenerateWidget;
	typedef typename TSlateDelegates<NullableOptionType>::FOnSelectionChanged FOnSelectionChanged;

	SLATE_BEGIN_ARGS(SComboBox) : _ContentPadding(FMargin(4.0f, 2.0f)), _OptionsSource(nullptr) {}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_ATTRIBUTE(FMargin, ContentPadding)
	/** Must outlive the box; only the pointer is kept. */
	SLATE_ARGUMENT(const TArray<OptionType>*, OptionsSource)
	SLATE_EVENT(FOnSelectionChanged, OnSelectionChanged)
	SLATE_EVENT(FOnGenerateWidget, OnGenerateWidget)
	/** Is selected without anybody being told. */
	SLATE_ARGUMENT(OptionType, InitiallySelectedItem)
	SLATE_EVENT(FOnComboBoxOpening, OnComboBoxOpening)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs)
	{
		OptionsSource = InArgs._OptionsSource;
		OnSelectionChanged = InArgs._OnSelectionChanged;
		OnGenerateWidget = InArgs._OnGenerateWidget;
		SelectedItem = InArgs._InitiallySelectedItem;
		ConstructButton(InArgs._Content.Widget, InArgs._ContentPadding, InArgs._OnComboBoxOpening);
	}

	NullableOptionType GetSelectedItem() { return SelectedItem; }
	/** Tells of it if it is another one, which need not be among the options. */
	void SetSelectedItem(NullableOptionType InSelectedItem) { Select(InSelectedItem, ESelectInfo::Direct); }
	void ClearSelection() { SetSelectedItem(NullableOptionType()); }
	/** To be called after the options have changed. Here an open list reads them at each look, so nothing is to do. */
	void RefreshOptions() {}

	virtual int32 GetNumOptions() const override { return OptionsSource ? OptionsSource->Num() : 0; }
	virtual TSharedRef<SWidget> GenerateOption(int32 Index) override
	{
		const OptionType Option = GetOption(Index);
		const bool bNothing = Option == OptionType() || !OnGenerateWidget.IsBound();
		return bNothing ? SNullWidget::NullWidget : OnGenerateWidget.Execute(Option);
	}
	virtual bool ChooseOption(int32 Index, ESelectInfo::Type SelectInfo) override
	{
		const OptionType Option = GetOption(Index);
		if (Option == OptionType())
		{
			return false;
		}
		Select(Option, SelectInfo);
		return true;
	}
	virtual int32 GetSelectedOption() const override
	{
		const bool bNone = !OptionsSource || SelectedItem == OptionType();
		return bNone ? static_cast<int32>(INDEX_NONE) : OptionsSource->Find(SelectedItem);
	}

private:
	OptionType GetOption(int32 Index) const
	{
		return OptionsSource && OptionsSource->IsValidIndex(Index) ? (*OptionsSource)[Index] : OptionType();
	}
	void Select(const OptionType& Option, ESelectInfo::Type SelectInfo)
	{
		// Whoever is told may let go of the box.
		const TSharedRef<SWidget> KeepAlive = AsShared();
		if (!(Option == SelectedItem))
		{
			SelectedItem = Option;
			OnSelectionChanged.ExecuteIfBound(Option, SelectInfo);
		}
		if (SelectInfo != ESelectInfo::OnNavigation)
		{
			SetIsOpen(false);
		}
	}

	const TArray<OptionType>* OptionsSource = nullptr;
	OptionType SelectedItem;
	FOnSelectionChanged OnSelectionChanged;
	FOnGenerateWidget OnGenerateWidget;
};
