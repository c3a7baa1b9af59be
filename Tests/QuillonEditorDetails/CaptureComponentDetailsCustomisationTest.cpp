// Copyright Corvane. MIT License.
#include "DetailsFixture.h"

#include "AllocationCount.h"

#include "DetailCustomisations/CaptureComponentDetailsCustomisation.h"
#include "Editor.h"
#include "Editor/Transactor.h"
#include "ExtendedCaptureComponent.h"
#include "IPropertyRowGenerator.h"
#include "PropertyEditorModule.h"
#include "PropertyHandle.h"
#include "Standalone/ShowFlagTable.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Text/STextBlock.h"
#include "ZAVSpoutReceiverManager.h"

// What a real editor can't stage with the capture component's rows: other show flags than its own, further properties,
// objects that are no capture components.

class FCaptureRows : public FDetailsFixture
{
protected:
	/** An extended component: its rows show more. */
	static UExtendedCaptureComponent& MakeExtended()
	{
		return *NewObject<UExtendedCaptureComponent>(GetTransientPackage());
	}
	/** The category's part of the rows. */
	static std::string DescribeCategory(const FDetailsRows& Rows)
	{
		const std::string All = Rows.Describe();
		const size_t Begin = All.find("Corvane Capture Settings");
		size_t End = Begin;
		// Up to where as many brackets are closed as are open.
		for (int Open = 0; End < All.size(); ++End)
		{
			Open += All[End] == '(' && All[End + 1] == ' ' ? 1 : 0;
			if (All[End] == ')' && All[End - 1] == ' ' && --Open == 0)
			{
				break;
			}
		}
		return All.substr(Begin, End + 1 - Begin);
	}
	static uint32 IndexOf(const TCHAR* Flag) { return static_cast<uint32>(FEngineShowFlags::FindIndexByName(Flag)); }
	static void AddOverride(UZAVCaptureComponent& Component, const TCHAR* Flag, bool bOn)
	{
		FEngineShowFlagsSetting& Setting = Component.ShowFlagSettings.AddDefaulted_GetRef();
		Setting.ShowFlagName = Flag;
		Setting.Enabled = bOn;
	}
	/** The engine's table with one flag replaced. */
	static TArray<FShowFlagTable::FFlag> TableWith(
		int32 Index, const TCHAR* Name, int32 Group, const FText& DisplayName)
	{
		TArray<FShowFlagTable::FFlag> Flags = FShowFlagTable::GetEngineFlags();
		Flags[Index].Name = Name;
		Flags[Index].Group = static_cast<EShowFlagGroup>(Group);
		Flags[Index].DisplayName = DisplayName;
		return Flags;
	}
};

TEST_F(FCaptureRows, StandFirstWithOtherPropertiesOfTheCategoryInItsAdvancedSection)
{
	const FDetailsRows Rows({&MakeExtended()});
	const std::string Category = DescribeCategory(Rows);
	EXPECT_EQ(Category.find("Show Flag Settings"), std::string::npos) << Category;
	for (const char* Name : {"Exposure*", "Dither*", "Note*"})
	{
		EXPECT_NE(Category.find(Name), std::string::npos) << Name << " in " << Category;
	}
	for (const FDetailsRows::FRow& Row : Rows.GetAll())
	{
		if (Row.Node->IsGroup())
		{
			EXPECT_TRUE(Row.Node->IsAdvanced()) << Row.Name;
			EXPECT_TRUE(Row.Node->GetInitiallyCollapsed()) << Row.Name;
		}
	}
	EXPECT_FALSE(Rows.Get("Other").Node->IsAdvanced());
	EXPECT_EQ(Rows.Describe().find("Exposure"), Rows.Describe().rfind("Exposure")) << "no property stands there twice";
}

TEST_F(FCaptureRows, MoveTheOtherPropertiesInTheirOrderBeforeTheHeaders)
{
	const std::string Category = DescribeCategory(FDetailsRows({&MakeExtended()}));
	EXPECT_EQ(Category.substr(0, Category.find("General")), "Corvane Capture Settings( Exposure* Dither* Note* ");
}

TEST_F(FCaptureRows, AreInACategoryOfItsPlainName)
{
	const FDetailsRows Rows({&SpawnCaptureComponent()});
	EXPECT_EQ(Rows.Get("Corvane Capture Settings").Node->GetNodeType(), EDetailNodeType::Category);
	EXPECT_FALSE(FTextInspector::GetKey(
		FDetailsRows::GetTextBlock(Rows.Get("Corvane Capture Settings").Widgets.NameWidget).GetText())
					 .IsSet());
}

TEST_F(FCaptureRows, LeaveAFlagOutThatTheEngineDoesNotHave)
{
	const FShowFlagTable Table(TableWith(1, TEXT(""), SFG_PostProcess, FText()));
	const FDetailsRows Rows({&SpawnCaptureComponent()});
	EXPECT_FALSE(Rows.Has("Bloom"));
	EXPECT_TRUE(Rows.Has("Eye Adaptation"));
	EXPECT_TRUE(Rows.Has("Post Processing Show Flags"));
}

TEST_F(FCaptureRows, LeaveAHeaderOutThatHasNoFlag)
{
	const FShowFlagTable Table(TableWith(131, TEXT("SkyLighting"), SFG_Normal, INVTEXT("Sky Lighting")));
	const FDetailsRows Rows({&SpawnCaptureComponent()});
	EXPECT_FALSE(Rows.Has("Light Types Show Flags"));
	EXPECT_NE(Rows.Describe().find("Skeletal Meshes* Sky Lighting* Static Meshes*"), std::string::npos);
}

TEST_F(FCaptureRows, HaveASecondHiddenHeaderForTransientFlags)
{
	const FShowFlagTable Table(TableWith(112, TEXT("Game"), SFG_Transient, INVTEXT("Game")));
	const std::string Category = DescribeCategory(FDetailsRows({&SpawnCaptureComponent()}));
	EXPECT_NE(Category.find("Hidden Show Flags*( Lighting* Post-processing* ) Hidden Show Flags*( Game* )"),
		std::string::npos)
		<< Category;
}

TEST_F(FCaptureRows, HaveAHeaderForEachGroup)
{
	const std::pair<int32, std::string> Headers[] = {
		{3, "Collision Modes"}, {4, "Developer"}, {5, "Visualize"}, {11, "Misc"}};
	const char* const Keys[] = {
		"CollisionModesShowFlagsMenu", "DeveloperShowFlagsMenu", "VisualizeShowFlagsMenu", "MiscFlagsMenu"};
	for (size_t Index = 0; Index < 4; ++Index)
	{
		const FShowFlagTable Table(TableWith(112, TEXT("Game"), Headers[Index].first, INVTEXT("Game")));
		const std::string Name = Headers[Index].second + " Show Flags";
		const FDetailsRows Rows({&SpawnCaptureComponent()});
		const FText Header = FDetailsRows::GetTextBlock(Rows.Get(Name).Widgets.NameWidget).GetText();
		EXPECT_EQ(TCHAR_TO_UTF8(FTextInspector::GetKey(Header).GetValue()), std::string(Keys[Index]));
		EXPECT_EQ(TCHAR_TO_UTF8(FTextInspector::GetNamespace(Header).GetValue()),
			std::string("CaptureComponentDetailsCustomisation"));
		EXPECT_NE(Rows.Describe().find(Name + "*( Game* )"), std::string::npos) << Rows.Describe();
	}
}

TEST_F(FCaptureRows, SortByTheShownNamesWithoutRegardToLetterCase)
{
	TArray<FShowFlagTable::FFlag> Flags = FShowFlagTable::GetEngineFlags();
	Flags[29].DisplayName = INVTEXT("eye Adaptation X");
	Flags[38].DisplayName = INVTEXT("EYE A");
	Flags[1].DisplayName = INVTEXT("zoom");
	const FShowFlagTable Table(Flags);
	const std::string Category = DescribeCategory(FDetailsRows({&SpawnCaptureComponent()}));
	EXPECT_NE(Category.find("( EYE A* Eye Adaptation* eye Adaptation X* zoom* )"), std::string::npos) << Category;
}

TEST_F(FCaptureRows, KeepTheOfferedOrderOfFlagsThatAreShownAlike)
{
	TArray<FShowFlagTable::FFlag> Flags = FShowFlagTable::GetEngineFlags();
	for (const int32 Index : {29, 1, 6, 38})
	{
		Flags[Index].DisplayName = INVTEXT("Alike");
	}
	const FShowFlagTable Table(Flags);
	UZAVCaptureComponent& Component = SpawnCaptureComponent();
	AddOverride(Component, TEXT("MotionBlur"), true);
	AddOverride(Component, TEXT("Bloom"), false);
	AddOverride(Component, TEXT("EyeAdaptation"), true);
	AddOverride(Component, TEXT("ToneCurve"), false);
	std::string States;
	const FDetailsRows Rows({&Component});
	for (const FDetailsRows::FRow& Row : Rows.GetAll())
	{
		if (Row.Name == "Alike")
		{
			States += static_cast<SCheckBox&>(*FDetailsRows::Find(Row.Widgets.ValueWidget, "SCheckBox")).IsChecked()
				? '1'
				: '0';
		}
	}
	EXPECT_EQ(States, "1010");
}

TEST_F(FCaptureRows, OfferACustomFlagThatHasAnOfferedNumber)
{
	TArray<FShowFlagTable::FFlag> Flags = FShowFlagTable::GetEngineFlags();
	const FString Moved = Flags[1].Name;
	Flags[1].Name = TEXT("");
	const FShowFlagTable Table(Flags);
	FEngineShowFlags::RegisterCustomShowFlag(*Moved, true, SFG_Developer, INVTEXT("Own Bloom"));
	EXPECT_EQ(IndexOf(*Moved), static_cast<uint32>(FEngineShowFlags::SF_FirstCustom));
	const FDetailsRows Rows({&SpawnCaptureComponent()});
	EXPECT_FALSE(Rows.Has("Own Bloom")) << "its number is not offered";
	EXPECT_FALSE(Rows.Has("Bloom"));
}

TEST_F(FCaptureRows, ShowATranslatedNameAndFindTheRowByIt)
{
	const FDetailsRows Rows({&SpawnCaptureComponent()});
	TArray<FString> Filters;
	Rows.Get("Paper 2D Sprites").Node->GetFilterStrings(Filters);
	ASSERT_EQ(Filters.Num(), 1);
	EXPECT_TRUE(Filters[0].Equals(TEXT("Paper 2D Sprites")));
	EXPECT_EQ(Rows.Get("Paper 2D Sprites").Widgets.NameWidget->GetType(), FName("STextBlock"));
	EXPECT_EQ(Rows.Get("Paper 2D Sprites").Widgets.ValueWidget->GetType(), FName("SCheckBox"));
}

TEST_F(FCaptureRows, OpenNoStepToUndo)
{
	const FDetailsRows Rows({&SpawnCaptureComponent()});
	Rows.Click("Bloom");
	EXPECT_FALSE(GEditor->Trans->CanUndo());
}

TEST_F(FCaptureRows, TellOfTheChangeBeforeItIsMade)
{
	UZAVCaptureComponent& Component = SpawnCaptureComponent();
	const FDetailsRows Rows({&Component});
	std::string Seen;
	const FDelegateHandle Before = FCoreUObjectDelegates::OnObjectModified.AddLambda([&](UObject* Object)
		{ Seen += Object == &Component ? std::to_string(Component.ShowFlagSettings.Num()) : "?"; });
	const FDelegateHandle After = FCoreUObjectDelegates::OnObjectPropertyChanged.AddLambda(
		[&](UObject*, FPropertyChangedEvent&) { Seen += " then " + std::to_string(Component.ShowFlagSettings.Num()); });
	const FDelegateHandle Finished = Rows.GetGenerator().OnFinishedChangingProperties().AddLambda(
		[&](const FPropertyChangedEvent&) { Seen += ", finished"; });
	Rows.Click("Bloom");
	FCoreUObjectDelegates::OnObjectModified.Remove(Before);
	FCoreUObjectDelegates::OnObjectPropertyChanged.Remove(After);
	Rows.GetGenerator().OnFinishedChangingProperties().Remove(Finished);
	EXPECT_EQ(Seen, "0 then 1, finished");
}

TEST_F(FCaptureRows, TakeAFlagForOffThatTheTemplateOfAnotherClassHas)
{
	// The class default object's own template is that of the class above, which is no capture component of ours.
	UZAVCaptureComponent* Default = GetMutableDefault<UZAVCaptureComponent>();
	EXPECT_TRUE(Default->ShowFlags.GetSingleFlag(IndexOf(TEXT("Bloom"))));
	const FDetailsRows Rows({Default});
	EXPECT_EQ(Rows.GetBox("Bloom").GetCheckedState(), ECheckBoxState::Unchecked);
	Rows.Click("Bloom");
	ASSERT_EQ(Default->ShowFlagSettings.Num(), 1);
	EXPECT_TRUE(Default->ShowFlagSettings[0].Enabled);
	Rows.Click("Bloom");
	EXPECT_EQ(Default->ShowFlagSettings.Num(), 0);
}

TEST_F(FCaptureRows, TakeTheTemplateOfADerivedClass)
{
	UExtendedCaptureComponent* Default = GetMutableDefault<UExtendedCaptureComponent>();
	const bool bFormer = Default->ShowFlags.GetSingleFlag(IndexOf(TEXT("Bloom")));
	Default->ShowFlags.SetSingleFlag(IndexOf(TEXT("Bloom")), false);
	EXPECT_EQ(FDetailsRows({&MakeExtended()}).GetBox("Bloom").GetCheckedState(), ECheckBoxState::Unchecked);
	Default->ShowFlags.SetSingleFlag(IndexOf(TEXT("Bloom")), true);
	EXPECT_EQ(FDetailsRows({&MakeExtended()}).GetBox("Bloom").GetCheckedState(), ECheckBoxState::Checked);
	Default->ShowFlags.SetSingleFlag(IndexOf(TEXT("Bloom")), bFormer);
}

TEST_F(FCaptureRows, TakeAFlagForOffThatIsNoneAnyMore)
{
	UZAVCaptureComponent& Component = SpawnCaptureComponent();
	const FDetailsRows Rows({&Component});
	EXPECT_TRUE(Rows.GetBox("Bloom").IsChecked());
	const FShowFlagTable Table(TableWith(1, TEXT("Glow"), SFG_PostProcess, INVTEXT("Glow")));
	EXPECT_EQ(Rows.GetBox("Bloom").GetCheckedState(), ECheckBoxState::Unchecked);
	Rows.Click("Bloom");
	ASSERT_EQ(Component.ShowFlagSettings.Num(), 1);
	EXPECT_TRUE(Component.ShowFlagSettings[0].Enabled);
	EXPECT_TRUE(Component.ShowFlagSettings[0].ShowFlagName.Equals(TEXT("Bloom")));
}

TEST_F(FCaptureRows, ShowAnUncheckedBoxOnceTheComponentsAreGone)
{
	UZAVCaptureComponent& Component = SpawnCaptureComponent();
	const FDetailsRows Rows({&Component});
	const TSharedRef<SWidget> Box = Rows.GetBox("Bloom").AsShared();
	EXPECT_EQ(Rows.GetBox("Bloom").GetCheckedState(), ECheckBoxState::Checked);
	Component.MarkPendingKill();
	EXPECT_EQ(Rows.GetBox("Bloom").GetCheckedState(), ECheckBoxState::Unchecked);
	Rows.Click("Bloom");
	EXPECT_EQ(Component.ShowFlagSettings.Num(), 0);
}

TEST_F(FCaptureRows, AreUndeterminedWhateverComesFirst)
{
	UZAVCaptureComponent& First = SpawnCaptureComponent();
	UZAVCaptureComponent& Second = SpawnCaptureComponent();
	UZAVCaptureComponent& Third = SpawnCaptureComponent();
	const FDetailsRows Rows({&First, &Second, &Third});
	for (UZAVCaptureComponent* Other : {&First, &Second, &Third})
	{
		AddOverride(*Other, TEXT("Bloom"), false);
		EXPECT_EQ(Rows.GetBox("Bloom").GetCheckedState(), ECheckBoxState::Undetermined);
		Other->ShowFlagSettings.Empty();
		EXPECT_EQ(Rows.GetBox("Bloom").GetCheckedState(), ECheckBoxState::Checked);
	}
}

TEST_F(FCaptureRows, AreMadeAnewWhenLayoutsAreRegistered)
{
	const FDetailsRows Rows({&SpawnCaptureComponent()});
	int32 Refreshed = 0;
	Rows.GetGenerator().OnRowsRefreshed().AddLambda([&] { ++Refreshed; });
	GetPropertyEditor().NotifyCustomizationModuleChanged();
	EXPECT_EQ(Refreshed, 1);
}

typedef FCaptureRows FCaptureRowsDeathTest;

TEST_F(FCaptureRowsDeathTest, EndTheEditorForAFlagOfNoGroup)
{
	for (const int32 Group : {12, 200})
	{
		const FShowFlagTable Table(TableWith(1, TEXT("Bloom"), Group, INVTEXT("Bloom")));
		UZAVCaptureComponent& Component = SpawnCaptureComponent();
		EXPECT_EXIT(FDetailsRows({&Component}), ::testing::ExitedWithCode(3),
			"Array index out of bounds: " + std::to_string(Group) + " from an array of size 12");
	}
}

TEST_F(FCaptureRowsDeathTest, EndTheEditorForObjectsWithoutShowFlagSettings)
{
	GetPropertyEditor().RegisterCustomClassLayout("ZAVSpoutReceiverManager",
		FOnGetDetailCustomizationInstance::CreateStatic(&FCaptureComponentDetailsCustomisation::MakeInstance));
	AZAVSpoutReceiverManager& Manager = SpawnReceiver(false, TEXT(""));
	EXPECT_EXIT(FDetailsRows({&Manager}), ::testing::ExitedWithCode(3),
		"ShowFlagSettingsProperty->IsValidHandle\\(\\).*Source/QuillonEditor/Private/DetailCustomisations/CaptureComponentDetailsCustomisation.cpp");
}

#ifndef __SANITIZE_ADDRESS__
TEST_F(FCaptureRows, AskForAStateWithFourBlocksOfMemoryAtMost)
{
	TArray<UObject*> Components;
	for (const int32 Num : {1, 10, 100})
	{
		while (Components.Num() < Num)
		{
			UZAVCaptureComponent& Component = SpawnCaptureComponent();
			for (int32 Index = 0; Index < Components.Num() % 36; ++Index)
			{
				AddOverride(Component, TEXT("A name too long to be kept in place"), true);
			}
			Components.Add(&Component);
		}
		const FDetailsRows Rows(Components);
		const SCheckBox& Box = Rows.GetBox("Screen Space Reflections");
		const int64 Before = FAllocationCount::Get();
		EXPECT_EQ(Box.GetCheckedState(), ECheckBoxState::Checked);
		EXPECT_LE(FAllocationCount::Get() - Before, 4) << Num;
		EXPECT_GT(FAllocationCount::Get() - Before, 0) << "allocations are counted";
	}
}
#endif
