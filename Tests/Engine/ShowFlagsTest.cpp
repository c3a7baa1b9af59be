// Copyright Corvane. MIT License.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "AllocationCount.h"
#include "Internationalization/Internationalization.h"
#include "ShowFlags.h"
#include "Standalone/ShowFlagTable.h"

namespace
{
	/** A line of the table, read without the build's help. */
	struct FRow
	{
		FString Name;
		std::string Group;
		FString DisplayName;
		bool bDefault;
	};

	std::vector<FRow> ReadRows()
	{
		std::ifstream File(SHOW_FLAGS_CSV);
		std::vector<FRow> Rows;
		std::string Line;
		std::getline(File, Line);
		while (std::getline(File, Line))
		{
			std::istringstream Fields(Line);
			std::vector<std::string> Cells;
			for (std::string Cell; std::getline(Fields, Cell, ',');)
			{
				Cells.push_back(Cell);
			}
			EXPECT_EQ(Cells.at(0), std::to_string(Rows.size()));
			Rows.push_back({Cells.at(1).c_str(), Cells.at(2), Cells.at(3).c_str(), Cells.at(4) == "1"});
		}
		return Rows;
	}

	const std::map<std::string, EShowFlagGroup>& GetGroups()
	{
		static const std::map<std::string, EShowFlagGroup> Groups = {{"SFG_Normal", SFG_Normal},
			{"SFG_Advanced", SFG_Advanced}, {"SFG_PostProcess", SFG_PostProcess},
			{"SFG_CollisionModes", SFG_CollisionModes}, {"SFG_Developer", SFG_Developer},
			{"SFG_Visualize", SFG_Visualize}, {"SFG_LightTypes", SFG_LightTypes},
			{"SFG_LightingComponents", SFG_LightingComponents}, {"SFG_LightingFeatures", SFG_LightingFeatures},
			{"SFG_Hidden", SFG_Hidden}, {"SFG_Transient", SFG_Transient}};
		return Groups;
	}

	FText DisplayNameOf(const FString& Name)
	{
		FText Text = FText::FromString(TEXT("untouched"));
		FEngineShowFlags::FindShowFlagDisplayName(Name, Text);
		return Text;
	}

	uint32 IndexOf(FEngineShowFlags::ECustomShowFlag Flag)
	{
		return FEngineShowFlags::SF_FirstCustom + static_cast<uint32>(Flag);
	}

	/** The text with each letter's case chosen anew. */
	FString WithAnyCase(const FString& Text)
	{
		FString Result;
		for (int32 Index = 0; Index < Text.Len(); ++Index)
		{
			const TCHAR Lower = FChar::ToLower(Text[Index]);
			const bool bUp = Lower >= TEXT('a') && Lower <= TEXT('z') && *rc::gen::arbitrary<bool>();
			Result.AppendChar(bUp ? static_cast<TCHAR>(Lower - 32) : Lower);
		}
		return Result;
	}

	TArray<FShowFlagTable::FFlag> MakeTable()
	{
		return {{TEXT("Alpha"), SFG_Normal, FText::FromString(TEXT("The alpha")), true},
			{TEXT(""), SFG_Normal, FText::FromString(TEXT("Nobody")), true},
			{TEXT("Gamma"), static_cast<EShowFlagGroup>(12), FText::FromString(TEXT("The gamma")), false},
			{TEXT("Delta"), static_cast<EShowFlagGroup>(255), FText::FromString(TEXT("The delta")), true}};
	}
}

TEST(FEngineShowFlags, HasTheFlagsOfTheTable)
{
	const std::vector<FRow> Rows = ReadRows();
	ASSERT_EQ(Rows.size(), 171u);
	ASSERT_EQ(static_cast<uint32>(FEngineShowFlags::SF_FirstCustom), 171u);
	const FEngineShowFlags Game(ESFIM_Game);
	for (uint32 Index = 0; Index < Rows.size(); ++Index)
	{
		const FRow& Row = Rows[Index];
		SCOPED_TRACE(Index);
		EXPECT_EQ(FEngineShowFlags::FindIndexByName(*Row.Name), static_cast<int32>(Index));
		EXPECT_TRUE(FEngineShowFlags::FindNameByIndex(Index).Equals(Row.Name));
		EXPECT_EQ(FEngineShowFlags::FindShowFlagGroup(*Row.Name), GetGroups().at(Row.Group));
		EXPECT_EQ(Game.GetSingleFlag(Index), Row.bDefault);
		const FText Text = DisplayNameOf(Row.Name);
		EXPECT_TRUE(Text.ToString().Equals(Row.DisplayName));
		EXPECT_TRUE(FTextInspector::GetNamespace(Text).GetValue().Equals(TEXT("UnrealEd")));
		EXPECT_TRUE(FTextInspector::GetKey(Text).GetValue().Equals(Row.Name + TEXT("SF")));
	}
}

TEST(FEngineShowFlags, KnowsTheFlagsByNumber)
{
	EXPECT_EQ(static_cast<uint32>(FEngineShowFlags::SF_PostProcessing), 0u);
	EXPECT_EQ(static_cast<uint32>(FEngineShowFlags::SF_Bloom), 1u);
	EXPECT_EQ(static_cast<uint32>(FEngineShowFlags::SF_VisualizeVolumetricCloudEmptySpaceSkipping), 170u);
}

TEST(FEngineShowFlags, HasSoManyFlagsInEachGroup)
{
	std::map<EShowFlagGroup, int32> Counts;
	for (uint32 Index = 0; Index < FEngineShowFlags::SF_FirstCustom; ++Index)
	{
		++Counts[FEngineShowFlags::FindShowFlagGroup(*FEngineShowFlags::FindNameByIndex(Index))];
	}
	const std::map<EShowFlagGroup, int32> Expected = {{SFG_Normal, 16}, {SFG_Advanced, 42}, {SFG_PostProcess, 15},
		{SFG_Developer, 11}, {SFG_Visualize, 21}, {SFG_LightTypes, 5}, {SFG_LightingComponents, 6},
		{SFG_LightingFeatures, 14}, {SFG_Hidden, 39}, {SFG_Transient, 2}};
	EXPECT_EQ(Counts, Expected);
}

TEST(FEngineShowFlags, NumbersTheGroupsAsEditorsDo)
{
	EXPECT_EQ(SFG_Normal, 0);
	EXPECT_EQ(SFG_Advanced, 1);
	EXPECT_EQ(SFG_PostProcess, 2);
	EXPECT_EQ(SFG_CollisionModes, 3);
	EXPECT_EQ(SFG_Developer, 4);
	EXPECT_EQ(SFG_Visualize, 5);
	EXPECT_EQ(SFG_LightTypes, 6);
	EXPECT_EQ(SFG_LightingComponents, 7);
	EXPECT_EQ(SFG_LightingFeatures, 8);
	EXPECT_EQ(SFG_Hidden, 9);
	EXPECT_EQ(SFG_Transient, 10);
	EXPECT_EQ(SFG_Max, 11);
}

RC_GTEST_PROP(FEngineShowFlags, FindsNamesWithoutRegardToCase, ())
{
	const uint32 Index = *rc::gen::inRange<uint32>(0, FEngineShowFlags::SF_FirstCustom);
	const FString Name = FEngineShowFlags::FindNameByIndex(Index);
	const FString Spelling = WithAnyCase(Name);
	RC_ASSERT(FEngineShowFlags::FindIndexByName(*Spelling) == static_cast<int32>(Index));
	RC_ASSERT(FEngineShowFlags::FindShowFlagGroup(*Spelling) == FEngineShowFlags::FindShowFlagGroup(*Name));
	RC_ASSERT(DisplayNameOf(Spelling).IdenticalTo(DisplayNameOf(Name)));
}

TEST(FEngineShowFlags, DoesNotKnowOtherNames)
{
	for (const TCHAR* Name :
		{TEXT(""), TEXT("Bloo"), TEXT("Blooms"), TEXT(" Bloom"), TEXT("Bloom,Fog"), TEXT("ſkyLighting")})
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(Name));
		EXPECT_EQ(FEngineShowFlags::FindIndexByName(Name), INDEX_NONE);
		EXPECT_EQ(FEngineShowFlags::FindShowFlagGroup(Name), SFG_Normal);
		EXPECT_TRUE(DisplayNameOf(Name).ToString().Equals(TEXT("untouched")));
	}
}

TEST(FEngineShowFlags, HasNoNameForAnIndexThatIsNoFlags)
{
	EXPECT_TRUE(FEngineShowFlags::FindNameByIndex(FEngineShowFlags::SF_FirstCustom).IsEmpty());
	EXPECT_TRUE(FEngineShowFlags::FindNameByIndex(MAX_uint32).IsEmpty());
}

TEST(FEngineShowFlags, RefusesAnIndexThatIsNoFlags)
{
	FEngineShowFlags Flags(ESFIM_Game);
	EXPECT_EXIT(Flags.GetSingleFlag(171), ::testing::ExitedWithCode(3), "There is no show flag 171");
	EXPECT_EXIT(Flags.SetSingleFlag(MAX_uint32, true), ::testing::ExitedWithCode(3), "There is no show flag");
}

TEST(FEngineShowFlags, CanBeginWithAllOff)
{
	const FEngineShowFlags Flags(ESFIM_All0);
	for (uint32 Index = 0; Index < FEngineShowFlags::SF_FirstCustom; ++Index)
	{
		EXPECT_FALSE(Flags.GetSingleFlag(Index)) << Index;
	}
}

RC_GTEST_PROP(FEngineShowFlags, ChangesOneFlagAtATime, (bool bGame))
{
	FEngineShowFlags Flags(bGame ? ESFIM_Game : ESFIM_All0);
	std::vector<bool> Model;
	for (uint32 Index = 0; Index < FEngineShowFlags::SF_FirstCustom; ++Index)
	{
		Model.push_back(Flags.GetSingleFlag(Index));
	}
	const auto Changes = *rc::gen::container<std::vector<std::pair<uint32, bool>>>(
		rc::gen::pair(rc::gen::inRange<uint32>(0, FEngineShowFlags::SF_FirstCustom), rc::gen::arbitrary<bool>()));
	for (const auto& [Index, bSet] : Changes)
	{
		Flags.SetSingleFlag(Index, bSet);
		Model[Index] = bSet;
	}
	const FEngineShowFlags Copy = Flags;
	for (uint32 Index = 0; Index < Model.size(); ++Index)
	{
		RC_ASSERT(Copy.GetSingleFlag(Index) == Model[Index]);
	}
}

#ifndef __SANITIZE_ADDRESS__
TEST(FEngineShowFlags, FindsWithoutTakingMemory)
{
	FEngineShowFlags Flags(ESFIM_Game);
	Flags.SetSingleFlag(0, false);
	const int64 Before = FAllocationCount::Get();
	const int32 Index = FEngineShowFlags::FindIndexByName(TEXT("visualizevolumetriccloudemptyspaceskipping"));
	const EShowFlagGroup Group =
		FEngineShowFlags::FindShowFlagGroup(TEXT("VisualizeVolumetricCloudEmptySpaceSkipping"));
	const bool bSet = Flags.GetSingleFlag(static_cast<uint32>(Index));
	EXPECT_EQ(FAllocationCount::Get(), Before);
	EXPECT_EQ(Index, 170);
	EXPECT_EQ(Group, SFG_Transient);
	EXPECT_FALSE(bSet);
}
#endif

TEST(FEngineShowFlags, AddsCustomFlagsBehindTheBuiltInOnes)
{
	const FShowFlagTable Table(FShowFlagTable::GetEngineFlags());
	const FText Text = NSLOCTEXT("Test", "Mine", "My flag");
	const auto First = FEngineShowFlags::RegisterCustomShowFlag(TEXT("Mine"), true, SFG_Developer, Text);
	const auto Second = FEngineShowFlags::RegisterCustomShowFlag(TEXT("Yours"), false, SFG_Hidden, FText());
	EXPECT_EQ(First, FEngineShowFlags::ECustomShowFlag::First);
	EXPECT_EQ(FEngineShowFlags::FindIndexByName(TEXT("MINE")), 171);
	EXPECT_EQ(FEngineShowFlags::FindIndexByName(TEXT("yours")), 172);
	EXPECT_EQ(IndexOf(Second), 172u);
	EXPECT_TRUE(FEngineShowFlags::FindNameByIndex(171).Equals(TEXT("Mine")));
	EXPECT_EQ(FEngineShowFlags::FindShowFlagGroup(TEXT("Mine")), SFG_Developer);
	EXPECT_EQ(FEngineShowFlags::FindShowFlagGroup(TEXT("Yours")), SFG_Hidden);
	EXPECT_TRUE(DisplayNameOf(TEXT("mine")).IdenticalTo(Text));
	EXPECT_TRUE(DisplayNameOf(TEXT("Yours")).IsEmpty());
	EXPECT_EQ(FEngineShowFlags::FindIndexByName(TEXT("Bloom")), 1);
}

TEST(FEngineShowFlags, GivesACustomFlagItsDefaultInSetsOfAnyAge)
{
	const FShowFlagTable Table(FShowFlagTable::GetEngineFlags());
	FEngineShowFlags Untouched(ESFIM_Game);
	FEngineShowFlags Changed(ESFIM_Game);
	FEngineShowFlags Off(ESFIM_All0);
	Changed.SetSingleFlag(3, false);
	const uint32 On = IndexOf(FEngineShowFlags::RegisterCustomShowFlag(TEXT("On"), true, SFG_Normal, FText()));
	const uint32 Other = IndexOf(FEngineShowFlags::RegisterCustomShowFlag(TEXT("Other"), false, SFG_Normal, FText()));
	for (const FEngineShowFlags& Flags : {Untouched, Changed, FEngineShowFlags(ESFIM_Game)})
	{
		EXPECT_TRUE(Flags.GetSingleFlag(On));
		EXPECT_FALSE(Flags.GetSingleFlag(Other));
	}
	EXPECT_FALSE(Off.GetSingleFlag(On));
	Changed.SetSingleFlag(Other, true);
	EXPECT_TRUE(Changed.GetSingleFlag(On));
	EXPECT_TRUE(Changed.GetSingleFlag(Other));
	EXPECT_FALSE(Changed.GetSingleFlag(3));
	Changed.SetSingleFlag(On, false);
	EXPECT_FALSE(Changed.GetSingleFlag(On));
	EXPECT_FALSE(Untouched.GetSingleFlag(Other));
}

TEST(FEngineShowFlags, RefusesANameThatIsTaken)
{
	EXPECT_EXIT(FEngineShowFlags::RegisterCustomShowFlag(TEXT("bloom"), true, SFG_Normal, FText()),
		::testing::ExitedWithCode(3), "There is already a show flag bloom");
}

TEST(FShowFlagTable, ReplacesTheBuiltInFlags)
{
	const FShowFlagTable Table(MakeTable());
	EXPECT_EQ(FEngineShowFlags::FindIndexByName(TEXT("Bloom")), INDEX_NONE);
	EXPECT_EQ(FEngineShowFlags::FindIndexByName(TEXT("GAMMA")), 2);
	EXPECT_TRUE(FEngineShowFlags::FindNameByIndex(0).Equals(TEXT("Alpha")));
	EXPECT_TRUE(DisplayNameOf(TEXT("Alpha")).ToString().Equals(TEXT("The alpha")));
	const FEngineShowFlags Flags(ESFIM_Game);
	EXPECT_TRUE(Flags.GetSingleFlag(0));
	EXPECT_FALSE(Flags.GetSingleFlag(2));
	EXPECT_TRUE(Flags.GetSingleFlag(3));
}

TEST(FShowFlagTable, MayHoldGroupsThatNobodyKnows)
{
	const FShowFlagTable Table(MakeTable());
	EXPECT_EQ(FEngineShowFlags::FindShowFlagGroup(TEXT("Gamma")), 12);
	EXPECT_EQ(FEngineShowFlags::FindShowFlagGroup(TEXT("Delta")), 255);
}

TEST(FShowFlagTable, MayLeaveIndicesWithoutAFlag)
{
	const FShowFlagTable Table(MakeTable());
	EXPECT_EQ(FEngineShowFlags::FindIndexByName(TEXT("")), INDEX_NONE);
	for (const uint32 Index : {1u, 4u, 170u})
	{
		EXPECT_TRUE(FEngineShowFlags::FindNameByIndex(Index).IsEmpty());
		EXPECT_EXIT(FEngineShowFlags(ESFIM_Game).GetSingleFlag(Index), ::testing::ExitedWithCode(3), "no show flag");
	}
	FEngineShowFlags Flags(ESFIM_Game);
	Flags.SetSingleFlag(2, true);
	EXPECT_TRUE(Flags.GetSingleFlag(2));
	EXPECT_TRUE(Flags.GetSingleFlag(3));
	FEngineShowFlags::RegisterCustomShowFlag(TEXT("Mine"), true, SFG_Normal, FText());
	EXPECT_EQ(FEngineShowFlags::FindIndexByName(TEXT("Mine")), 171);
}

TEST(FShowFlagTable, PutsTheFormerFlagsBack)
{
	const FShowFlagTable Outer(FShowFlagTable::GetEngineFlags());
	FEngineShowFlags::RegisterCustomShowFlag(TEXT("Kept"), true, SFG_Advanced, FText());
	{
		const FShowFlagTable Inner(MakeTable());
		EXPECT_EQ(FEngineShowFlags::FindIndexByName(TEXT("Kept")), INDEX_NONE);
		FEngineShowFlags::RegisterCustomShowFlag(TEXT("Dropped"), true, SFG_Advanced, FText());
	}
	EXPECT_EQ(FEngineShowFlags::FindIndexByName(TEXT("Kept")), 171);
	EXPECT_EQ(FEngineShowFlags::FindIndexByName(TEXT("Dropped")), INDEX_NONE);
	EXPECT_EQ(FEngineShowFlags::FindIndexByName(TEXT("Bloom")), 1);
}

TEST(FShowFlagTable, HoldsNoMoreThanTheEngineHas)
{
	TArray<FShowFlagTable::FFlag> Flags = FShowFlagTable::GetEngineFlags();
	EXPECT_EQ(Flags.Num(), 171);
	Flags.Add({TEXT("OneMore"), SFG_Normal, FText::FromString(TEXT("One more")), true});
	EXPECT_EXIT(FShowFlagTable Table(Flags), ::testing::ExitedWithCode(3), "SF_FirstCustom");
}
