// Copyright Corvane. MIT License.
#include "Components/SceneCaptureComponent.h"

#include <gtest/gtest.h>

#include "Components/SceneCaptureComponent2D.h"
#include "Standalone/ShowFlagTable.h"
#include "TestActors.h"
#include "TestWorld.h"
#include "UObject/UnrealType.h"

namespace
{
	/** An actor with a capture component, in a world of its own. */
	class FSceneCaptureComponentTest : public ::testing::Test
	{
	protected:
		FSceneCaptureComponentTest()
			: Component(*World->SpawnActor<ATestCaptureActor>()->Capture),
			  Template(*GetDefault<ATestCaptureActor>()->Capture),
			  FlagsOfTemplate(Template.ShowFlags)
		{}
		~FSceneCaptureComponentTest() override
		{
			Template.ShowFlags = FlagsOfTemplate;
			Template.ShowFlagSettings.Empty();
		}

		static void Add(USceneCaptureComponent& To, const TCHAR* Name, bool bEnabled)
		{
			FEngineShowFlagsSetting Setting;
			Setting.ShowFlagName = Name;
			Setting.Enabled = bEnabled;
			To.ShowFlagSettings.Add(Setting);
		}
		static void TellOfChange(USceneCaptureComponent& Changed)
		{
			FPropertyChangedEvent Event(nullptr);
			Changed.PostEditChangeProperty(Event);
		}
		static bool IsOn(const USceneCaptureComponent& Asked, const TCHAR* Name)
		{
			return Asked.ShowFlags.GetSingleFlag(static_cast<uint32>(FEngineShowFlags::FindIndexByName(Name)));
		}

		FTestWorld World;
		USceneCaptureComponent2D& Component;
		USceneCaptureComponent2D& Template;
		const FEngineShowFlags FlagsOfTemplate;
	};
}

TEST_F(FSceneCaptureComponentTest, BeginsAsAGameButForWhatCapturesHaveNot)
{
	const FEngineShowFlags Game(ESFIM_Game);
	for (uint32 Index = 0; Index < FEngineShowFlags::SF_FirstCustom; ++Index)
	{
		const bool bOff =
			Index == FEngineShowFlags::SF_MotionBlur || Index == FEngineShowFlags::SF_SeparateTranslucency;
		const bool bExpected = !bOff && Game.GetSingleFlag(Index);
		EXPECT_EQ(Component.ShowFlags.GetSingleFlag(Index), bExpected) << Index;
		EXPECT_EQ(Template.ShowFlags.GetSingleFlag(Index), bExpected) << Index;
		EXPECT_EQ(GetDefault<USceneCaptureComponent2D>()->ShowFlags.GetSingleFlag(Index), bExpected) << Index;
	}
	EXPECT_TRUE(Game.GetSingleFlag(FEngineShowFlags::SF_MotionBlur));
	EXPECT_TRUE(Game.GetSingleFlag(FEngineShowFlags::SF_SeparateTranslucency));
}

TEST_F(FSceneCaptureComponentTest, AppliesItsSettingsWhenItHearsOfAChange)
{
	Add(Component, TEXT("fOG"), false);
	Add(Component, TEXT("NoSuchFlag"), false);
	Add(Component, TEXT("MotionBlur"), true);
	EXPECT_TRUE(IsOn(Component, TEXT("Fog")));
	TellOfChange(Component);
	EXPECT_FALSE(IsOn(Component, TEXT("Fog")));
	EXPECT_TRUE(IsOn(Component, TEXT("MotionBlur")));
	EXPECT_TRUE(IsOn(Component, TEXT("Bloom")));
	EXPECT_FALSE(IsOn(Component, TEXT("SeparateTranslucency")));
}

TEST_F(FSceneCaptureComponentTest, LetsOthersHearOfAChange)
{
	const UObject* Changed = nullptr;
	const FDelegateHandle Handle = FCoreUObjectDelegates::OnObjectPropertyChanged.AddLambda(
		[&Changed](UObject* Object, FPropertyChangedEvent&) { Changed = Object; });
	TellOfChange(Component);
	FCoreUObjectDelegates::OnObjectPropertyChanged.Remove(Handle);
	EXPECT_EQ(Changed, &Component);
}

TEST_F(FSceneCaptureComponentTest, ForgetsASettingThatIsGone)
{
	Add(Component, TEXT("Fog"), false);
	TellOfChange(Component);
	Component.ShowFlagSettings.Empty();
	TellOfChange(Component);
	EXPECT_TRUE(IsOn(Component, TEXT("Fog")));
}

TEST_F(FSceneCaptureComponentTest, AppliesItsSettingsInTheirOrder)
{
	Add(Component, TEXT("Fog"), false);
	Add(Component, TEXT("FOG"), true);
	Add(Component, TEXT("Bloom"), true);
	Add(Component, TEXT("Bloom"), false);
	TellOfChange(Component);
	EXPECT_TRUE(IsOn(Component, TEXT("Fog")));
	EXPECT_FALSE(IsOn(Component, TEXT("Bloom")));
}

TEST_F(FSceneCaptureComponentTest, AppliesItsSettingsWhenTheyWereUndoneOrLoaded)
{
	Add(Component, TEXT("Fog"), false);
	Component.PostEditUndo();
	EXPECT_FALSE(IsOn(Component, TEXT("Fog")));
	Component.ShowFlagSettings[0].ShowFlagName = TEXT("Bloom");
	Component.PostLoad();
	EXPECT_TRUE(IsOn(Component, TEXT("Fog")));
	EXPECT_FALSE(IsOn(Component, TEXT("Bloom")));
}

TEST_F(FSceneCaptureComponentTest, FollowsTheFlagsOfItsArchetype)
{
	Template.ShowFlags.SetSingleFlag(FEngineShowFlags::SF_Fog, false);
	Template.ShowFlags.SetSingleFlag(FEngineShowFlags::SF_Bloom, false);
	Add(Component, TEXT("Bloom"), true);
	EXPECT_TRUE(IsOn(Component, TEXT("Fog")));
	TellOfChange(Component);
	EXPECT_FALSE(IsOn(Component, TEXT("Fog")));
	EXPECT_TRUE(IsOn(Component, TEXT("Bloom")));
	const USceneCaptureComponent2D& Younger = *World->SpawnActor<ATestCaptureActor>()->Capture;
	EXPECT_FALSE(IsOn(Younger, TEXT("Fog")));
	EXPECT_FALSE(IsOn(Younger, TEXT("Bloom")));
}

TEST_F(FSceneCaptureComponentTest, BeginsWithTheSettingsOfItsArchetypeApplied)
{
	Add(Template, TEXT("Fog"), false);
	TellOfChange(Template);
	EXPECT_TRUE(IsOn(Template, TEXT("Fog")));
	const USceneCaptureComponent2D& Younger = *World->SpawnActor<ATestCaptureActor>()->Capture;
	ASSERT_EQ(Younger.ShowFlagSettings.Num(), 1);
	EXPECT_FALSE(IsOn(Younger, TEXT("Fog")));
}

TEST_F(FSceneCaptureComponentTest, LeavesTheFlagsOfTemplatesAlone)
{
	USceneCaptureComponent2D& Default = *GetMutableDefault<USceneCaptureComponent2D>();
	const FEngineShowFlags Former = Default.ShowFlags;
	Default.ShowFlags.SetSingleFlag(FEngineShowFlags::SF_Fog, false);
	Template.ShowFlags.SetSingleFlag(FEngineShowFlags::SF_Bloom, false);
	TellOfChange(Default);
	TellOfChange(Template);
	Default.PostLoad();
	EXPECT_FALSE(IsOn(Default, TEXT("Fog")));
	EXPECT_FALSE(IsOn(Template, TEXT("Bloom")));
	EXPECT_TRUE(IsOn(Template, TEXT("Fog")));
	Default.ShowFlags = Former;
}

TEST_F(FSceneCaptureComponentTest, HasTheSettingsOfCustomFlags)
{
	const FShowFlagTable Table(FShowFlagTable::GetEngineFlags());
	FEngineShowFlags::RegisterCustomShowFlag(TEXT("Mine"), true, SFG_Normal, FText());
	EXPECT_TRUE(IsOn(Component, TEXT("Mine")));
	Add(Component, TEXT("mine"), false);
	TellOfChange(Component);
	EXPECT_FALSE(IsOn(Component, TEXT("Mine")));
	EXPECT_TRUE(IsOn(Template, TEXT("Mine")));
}

TEST_F(FSceneCaptureComponentTest, CanBeMadeWithoutTheFlagsThatItSwitchesOff)
{
	const FShowFlagTable Table({{TEXT("Only"), SFG_Normal, FText(), true}});
	const USceneCaptureComponent2D* Other = NewObject<USceneCaptureComponent2D>();
	EXPECT_TRUE(IsOn(*Other, TEXT("Only")));
}
