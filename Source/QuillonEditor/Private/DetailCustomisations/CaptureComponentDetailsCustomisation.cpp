// Copyright Corvane. MIT License.
#include "DetailCustomisations/CaptureComponentDetailsCustomisation.h"

#include "Components/SceneCaptureComponent.h"
#include "DetailCategoryBuilder.h"
#include "DetailLayoutBuilder.h"
#include "DetailWidgetRow.h"
#include "IDetailGroup.h"
#include "PropertyHandle.h"
#include "ShowFlags.h"
#include "Templates/Casts.h"
#include "UObject/UnrealType.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Text/STextBlock.h"

#include "ZAVCaptureComponent.h"

#define LOCTEXT_NAMESPACE "CaptureComponentDetailsCustomisation"

namespace
{
	/** The flags that are offered, by their index in the engine. A selection: the groups are sorted by name. */
	const uint32 OfferedFlags[] = {120, 114, 13, 110, 108, 68, 70, 107, 72, 87, 88, 62, 63, 66, 137, 123, 12, 67, 131,
		143, 5, 142, 60, 118, 0, 42, 47, 59, 3, 4, 29, 1, 6, 112, 38};

	/** A flag as a row shows it. */
	struct FOfferedFlag
	{
		explicit FOfferedFlag(const FString& InName) : Name(InName)
		{
			FEngineShowFlags::FindShowFlagDisplayName(Name, DisplayName);
		}

		FString Name;
		FText DisplayName;
	};

	typedef TArray<FOfferedFlag> FFlagGroup;

	/** The header of each group of the engine's, by EShowFlagGroup. */
	TArray<FText> GetGroupHeaders()
	{
		// Transient flags get the hidden ones' header, over a group of their own.
		return {
			LOCTEXT("CommonShowFlagHeader", "General Show Flags"),
			LOCTEXT("AdvancedShowFlagsMenu", "Advanced Show Flags"),
			LOCTEXT("PostProcessShowFlagsMenu", "Post Processing Show Flags"),
			LOCTEXT("CollisionModesShowFlagsMenu", "Collision Modes Show Flags"),
			LOCTEXT("DeveloperShowFlagsMenu", "Developer Show Flags"),
			LOCTEXT("VisualizeShowFlagsMenu", "Visualize Show Flags"),
			LOCTEXT("LightTypesShowFlagsMenu", "Light Types Show Flags"),
			LOCTEXT("LightingComponentsShowFlagsMenu", "Lighting Components Show Flags"),
			LOCTEXT("LightingFeaturesShowFlagsMenu", "Lighting Features Show Flags"),
			LOCTEXT("HiddenShowFlagsMenu", "Hidden Show Flags"),
			LOCTEXT("HiddenShowFlagsMenu", "Hidden Show Flags"),
			LOCTEXT("MiscFlagsMenu", "Misc Show Flags"),
		};
	}

	/** The offered flags of each of the groups, sorted by what users read. Fatal for a flag of another group. */
	TArray<FFlagGroup> MakeFlagGroups(int32 NumGroups)
	{
		TArray<FFlagGroup> Groups;
		Groups.SetNum(NumGroups);
		for (const uint32 Index : OfferedFlags)
		{
			const FString Name = FEngineShowFlags::FindNameByIndex(Index);
			if (!Name.IsEmpty())
			{
				Groups[static_cast<int32>(FEngineShowFlags::FindShowFlagGroup(*Name))].Add(FOfferedFlag(Name));
			}
		}
		for (FFlagGroup& Group : Groups)
		{
			// FString's < ignores letter case.
			Group.StableSort([](const FOfferedFlag& Lhs, const FOfferedFlag& Rhs)
				{ return Lhs.DisplayName.ToString() < Rhs.DisplayName.ToString(); });
		}
		return Groups;
	}

	/** The overrides of one flag in each edited component, and what holds without. */
	class FEditedShowFlag
	{
	public:
		/** The arrays are filled anew. */
		FEditedShowFlag(IPropertyHandle& InSettings, const FString& InFlagName, TArray<void*>& InRawSettings,
			TArray<UObject*>& InComponents)
			: Settings(InSettings), FlagName(InFlagName), RawSettings(InRawSettings), Components(InComponents)
		{
			RawSettings.Reset();
			Components.Reset();
			Settings.AccessRawData(RawSettings);
		}

		int32 Num() const { return RawSettings.Num(); }
		/** Null for a component that is gone. */
		TArray<FEngineShowFlagsSetting>* GetSettings(int32 Index) const
		{
			return static_cast<TArray<FEngineShowFlagsSetting>*>(RawSettings[Index]);
		}
		/** Names are compared without regard to letter case, as the engine applies the settings. */
		FEngineShowFlagsSetting* FindOverride(int32 Index) const
		{
			TArray<FEngineShowFlagsSetting>* Found = GetSettings(Index);
			return Found ? Found->FindByPredicate([this](const FEngineShowFlagsSetting& Setting)
							   { return Setting.ShowFlagName == FlagName; })
						 : nullptr;
		}
		/** What the flag is without an override: not the component's own flags, those of what it was made from. */
		bool IsOnByDefault(int32 Index)
		{
			// Components that all have an override are not asked for their archetypes.
			if (Components.Num() == 0)
			{
				Settings.GetOuterObjects(Components);
				FlagIndex = FEngineShowFlags::FindIndexByName(*FlagName);
			}
			const UObject* Component = Components.IsValidIndex(Index) ? Components[Index] : nullptr;
			const UZAVCaptureComponent* Archetype =
				Component ? Cast<UZAVCaptureComponent>(Component->GetArchetype()) : nullptr;
			return Archetype && FlagIndex != INDEX_NONE &&
				Archetype->ShowFlags.GetSingleFlag(static_cast<uint32>(FlagIndex));
		}

	private:
		IPropertyHandle& Settings;
		const FString& FlagName;
		TArray<void*>& RawSettings;
		TArray<UObject*>& Components;
		int32 FlagIndex = INDEX_NONE;
	};
}

TSharedRef<IDetailCustomization> FCaptureComponentDetailsCustomisation::MakeInstance()
{
	return MakeShared<FCaptureComponentDetailsCustomisation>();
}

// clang-format off
void FCaptureComponentDetailsCustomisation::CustomizeDetails(IDetailLayoutBuilder& DetailBuilder)
{
	IDetailCategoryBuilder& Category = DetailBuilder.EditCategory(
		"Corvane Capture Settings", FText::GetEmpty(), ECategoryPriority::Default);
	ShowFlagSettingsProperty =
		DetailBuilder.GetProperty("ShowFlagSettings", UZAVCaptureComponent::StaticClass());
	// The report carries this expression's text: keep it as it is.
	check(ShowFlagSettingsProperty->IsValidHandle());
	ShowFlagSettingsProperty->MarkHiddenByCustomization();
	MoveOtherPropertiesToAdvanced(Category);

	const TArray<FText> Headers = GetGroupHeaders();
	const TArray<FFlagGroup> FlagGroups = MakeFlagGroups(Headers.Num());
	for (int32 Index = 0; Index < FlagGroups.Num(); ++Index)
	{
		if (FlagGroups[Index].Num() == 0)
		{
			continue;
		}
		IDetailGroup& Group = Category.AddGroup(FName(*Headers[Index].ToString()), Headers[Index], true, false);
		for (const FOfferedFlag& Flag : FlagGroups[Index])
		{
			// By plain pointer: the boxes go with the panel that keeps this object.
			Group.AddWidgetRow()
			.FilterString(Flag.DisplayName)
			.NameContent()
			[
				SNew(STextBlock)
				.Text(Flag.DisplayName)
			]
			.ValueContent()
			[
				SNew(SCheckBox)
				.IsChecked(TAttribute<ECheckBoxState>::Create(TAttribute<ECheckBoxState>::FGetter::CreateRaw(
					this, &FCaptureComponentDetailsCustomisation::GetShowFlagCheckState, Flag.Name)))
				.OnCheckStateChanged(FOnCheckStateChanged::CreateRaw(
					this, &FCaptureComponentDetailsCustomisation::OnShowFlagCheckStateChanged, Flag.Name))
			];
		}
	}
}
// clang-format on

void FCaptureComponentDetailsCustomisation::MoveOtherPropertiesToAdvanced(IDetailCategoryBuilder& Category) const
{
	TArray<TSharedRef<IPropertyHandle>> Properties;
	Category.GetDefaultProperties(Properties, true, true);
	for (const TSharedRef<IPropertyHandle>& Property : Properties)
	{
		if (Property->GetProperty() != ShowFlagSettingsProperty->GetProperty())
		{
			Category.AddProperty(Property, EPropertyLocation::Advanced);
		}
	}
}

ECheckBoxState FCaptureComponentDetailsCustomisation::GetShowFlagCheckState(FString FlagName) const
{
	FEditedShowFlag Edited(*ShowFlagSettingsProperty, FlagName, RawSettings, Components);
	bool bCommon = false;
	for (int32 Index = 0; Index < Edited.Num(); ++Index)
	{
		const FEngineShowFlagsSetting* Override = Edited.FindOverride(Index);
		const bool bOn = Override ? Override->Enabled : Edited.IsOnByDefault(Index);
		if (Index > 0 && bOn != bCommon)
		{
			return ECheckBoxState::Undetermined;
		}
		bCommon = bOn;
	}
	return bCommon ? ECheckBoxState::Checked : ECheckBoxState::Unchecked;
}

void FCaptureComponentDetailsCustomisation::OnShowFlagCheckStateChanged(ECheckBoxState NewState, FString FlagName)
{
	if (NewState == ECheckBoxState::Undetermined)
	{
		return;
	}
	const bool bEnable = NewState == ECheckBoxState::Checked;
	ShowFlagSettingsProperty->NotifyPreChange();
	FEditedShowFlag Edited(*ShowFlagSettingsProperty, FlagName, RawSettings, Components);
	for (int32 Index = 0; Index < Edited.Num(); ++Index)
	{
		TArray<FEngineShowFlagsSetting>* Settings = Edited.GetSettings(Index);
		if (!Settings)
		{
			continue;
		}
		if (bEnable == Edited.IsOnByDefault(Index))
		{
			// An override would only repeat the default.
			Settings->RemoveAll(
				[&FlagName](const FEngineShowFlagsSetting& Setting) { return Setting.ShowFlagName == FlagName; });
			continue;
		}
		FEngineShowFlagsSetting* Override = Edited.FindOverride(Index);
		if (!Override)
		{
			Override = &Settings->AddDefaulted_GetRef();
			Override->ShowFlagName = FlagName;
		}
		Override->Enabled = bEnable;
	}
	ShowFlagSettingsProperty->NotifyPostChange(EPropertyChangeType::ValueSet);
	ShowFlagSettingsProperty->NotifyFinishedChangingProperties();
}

#undef LOCTEXT_NAMESPACE
