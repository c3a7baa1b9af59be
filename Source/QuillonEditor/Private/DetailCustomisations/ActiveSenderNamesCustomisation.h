// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

#include "IPropertyTypeCustomization.h"
#include "Types/SlateEnums.h"

class IDetailChildrenBuilder;
class IPropertyHandle;
class SWidget;
template <typename OptionType>
class SComboBox;

/**
 * Shows a Spout receiver in details panels: the name of its sender is chosen from the senders that are active, or the
 * first available one is taken. A stored name that no active sender has stays selectable and is marked as lost.
 *
 * The list is brought up to date when the rows are built and each time that the closed drop-down's text is asked for.
 */
class FActiveSenderNamesCustomisation : public IPropertyTypeCustomization
{
public:
	static TSharedRef<IPropertyTypeCustomization> MakeInstance();

	FActiveSenderNamesCustomisation();
	FActiveSenderNamesCustomisation(const FActiveSenderNamesCustomisation&) = delete;
	FActiveSenderNamesCustomisation& operator=(const FActiveSenderNamesCustomisation&) = delete;
	virtual ~FActiveSenderNamesCustomisation();

	virtual void CustomizeHeader(TSharedRef<IPropertyHandle> StructPropertyHandle, FDetailWidgetRow& HeaderRow,
		IPropertyTypeCustomizationUtils& Utils) override;
	/** Also writes the present choice back, so that flag and name agree. Fatal if the structure lacks a member. */
	virtual void CustomizeChildren(TSharedRef<IPropertyHandle> StructPropertyHandle,
		IDetailChildrenBuilder& ChildBuilder, IPropertyTypeCustomizationUtils& Utils) override;

private:
	/** Of all receivers that are shown, the one that refreshed last decides for all. */
	void HandleLostStateChanged(bool bLost);

	/** The drop-down's row. */
	void AddNameRow(IDetailChildrenBuilder& ChildBuilder, const TSharedPtr<FString>& InitialItem);

	/** The list's entry for what is stored now. Refreshes the list. */
	TSharedPtr<FString> GetCurrentItem() const;
	/** The closed drop-down's text. */
	FText GetCurrentItemLabel() const;

	/** Stores an entry: its name, or that the first available sender is taken. */
	void SetSelection(FString NewValue);

	TSharedRef<SWidget> OnGenerateOptionWidget(TSharedPtr<FString> Item);
	/** Lets go of a selection that is no longer what is stored, so that it can be chosen again. */
	void HandleComboBoxOpening();
	void OnOptionSelectionChanged(TSharedPtr<FString> NewItem, ESelectInfo::Type SelectInfo);

	TSharedPtr<IPropertyHandle> NameHandle;
	TSharedPtr<IPropertyHandle> UseFirstAvailableSenderHandle;
	TSharedPtr<SComboBox<TSharedPtr<FString>>> SenderComboBox;
	/** What the last refresh said. */
	bool bSelectedSenderLost;
};
