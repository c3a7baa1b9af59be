// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Array.h"
#include "Framework/Commands/UICommandList.h"
#include "Misc/Attribute.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class FExtender;
class ISlateStyle;
class SMultiBoxWidget;

/**
 * One entry of a menu. What it shows is worked out anew at each question. Of its functions the real engine has only
 * GetAction: the others let tests, driver and window read and choose an entry without its widgets.
 */
class SLATE_API FMultiBlock
{
public:
	/** Overrides that are not set give way to what the command says. Without a list nothing can be executed. */
	FMultiBlock(const TSharedRef<const FUICommandInfo>& InCommand, const TSharedPtr<const FUICommandList>& InActionList,
		const TAttribute<FText>& LabelOverride, const TAttribute<FText>& ToolTipOverride,
		const FSlateIcon& IconOverride);

	TSharedPtr<const FUICommandInfo> GetAction() const { return Command; }
	/** As shown; a text keeps its identity. */
	const FText& GetLabel() const { return Label.Get(); }
	const FText& GetToolTip() const { return ToolTip.Get(); }
	/** Not set where there is none. */
	const FSlateIcon& GetIcon() const { return Icon; }
	/** Whether it shows a check state: it is a toggle button, a radio button or a check. */
	bool IsCheckable() const;
	bool CanExecute() const;
	ECheckBoxState GetCheckState() const;
	/** Chooses the entry. @return false, with nothing done, if it can't be executed or does nothing. */
	bool Execute() const;

private:
	TSharedRef<const FUICommandInfo> Command;
	TSharedPtr<const FUICommandList> ActionList;
	TAttribute<FText> Label;
	TAttribute<FText> ToolTip;
	FSlateIcon Icon;
};

/** A part of a menu, under a heading. The real engine keeps hooks and headings among the blocks. */
struct FMultiBoxSection
{
	/** NAME_None where there is none, also for entries outside of all sections. */
	FName ExtensionHook;
	/** Empty where there is none. */
	TAttribute<FText> Heading;
	TArray<TSharedRef<const FMultiBlock>> Blocks;
};

/** What a menu consists of. The real engine keeps all of it to itself. */
class FMultiBox
{
public:
	typedef TDelegate<void(const TSharedRef<FMultiBox>&, const TSharedRef<SMultiBoxWidget>&)>
		FOnMakeMultiBoxBuilderOverride;

	bool bShouldCloseWindowAfterMenuSelection = true;
	bool bIsSearchable = true;
	/** In slate units; what does not fit is scrolled to. */
	uint32 MaxHeight = 0;
	const ISlateStyle* StyleSet = nullptr;
	/** Whether a choice closes only this menu, and not those that it hangs from. */
	bool bCloseSelfOnly = false;
	/** By which others may extend the menu. */
	FName MenuName;
	TSharedPtr<FExtender> Extender;
	/** In order; none of them is empty. */
	TArray<FMultiBoxSection> Sections;
};

/**
 * A menu's widget: the sections' headings and entries one below the other. An entry is an SButton around an SImage (if
 * it has an icon), an SCheckBox (if it is checkable) and its label.
 */
class SLATE_API SMultiBoxWidget : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SMultiBoxWidget) {}
	SLATE_ARGUMENT(TSharedPtr<const FMultiBox>, MultiBox)
	SLATE_END_ARGS()

	/** Fatal without MultiBox. */
	void Construct(const FArguments& InArgs);

	TSharedRef<const FMultiBox> GetMultiBox() const { return MultiBox.ToSharedRef(); }

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	TSharedPtr<const FMultiBox> MultiBox;
};
