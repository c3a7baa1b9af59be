// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

#include "IDetailCustomization.h"
#include "Styling/SlateTypes.h"

class IDetailCategoryBuilder;
class IPropertyHandle;
class UObject;

/**
 * Shows a capture component in details panels: in place of the raw list of show-flag overrides, a selection of flags to
 * tick, under headers. A box shows what holds for the component; an override is stored only where that differs from the
 * flags of the component's archetype.
 */
class FCaptureComponentDetailsCustomisation : public IDetailCustomization
{
public:
	static TSharedRef<IDetailCustomization> MakeInstance();

	/** Fatal if the component has no ShowFlagSettings. */
	virtual void CustomizeDetails(IDetailLayoutBuilder& DetailBuilder) override;

private:
	/** Moves everything else in the category to its advanced section: the headers come first. */
	void MoveOtherPropertiesToAdvanced(IDetailCategoryBuilder& Category) const;

	/** What the edited components have in common; undetermined where they differ. */
	ECheckBoxState GetShowFlagCheckState(FString FlagName) const;

	/** Gives all edited components the flag, by an override or by taking theirs back. */
	void OnShowFlagCheckStateChanged(ECheckBoxState NewState, FString FlagName);

	/** The overrides of the edited components. */
	TSharedPtr<IPropertyHandle> ShowFlagSettingsProperty;

	/**
	 * The overrides and the components themselves, only good within the call that filled them. Kept for their memory:
	 * windows ask all boxes for their states again and again.
	 */
	mutable TArray<void*> RawSettings;
	mutable TArray<UObject*> Components;
};
