// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

#include "AllocationCount.h"

#include "DetailCustomisations/ActiveSenderNameOptions.h"
#include "ZAVSpoutNames.h"

namespace
{
	const TCHAR* const FirstEntry = TEXT("Use first available sender");

	/** The options, each with "; " behind. */
	std::string Describe(const TArray<TSharedPtr<FString>>& Options)
	{
		std::string Description;
		for (const TSharedPtr<FString>& Option : Options)
		{
			Description += TCHAR_TO_UTF8(*Option);
			Description += "; ";
		}
		return Description;
	}
}

class FSenderOptions : public ::testing::Test
{
protected:
	FSenderOptions()
	{
		Options.OnLostStateChanged.AddLambda([this](bool bLost) { Told += bLost ? "lost " : "found "; });
	}
	~FSenderOptions() override { ZAVSpoutNames::SetActiveSenderNames({}); }

	/** @return what the list is then. */
	std::string Refresh(const TArray<FString>& Senders, const TCHAR* CurrentName, bool bUseFirstAvailable = false)
	{
		ZAVSpoutNames::SetActiveSenderNames(Senders);
		Told.clear();
		const TArray<TSharedPtr<FString>> Returned = Options.RefreshOptions(CurrentName, bUseFirstAvailable);
		EXPECT_EQ(Returned, Options.Options);
		return Describe(Returned);
	}
	/** Refreshes again with nothing changed. @return what the list is then. */
	std::string RefreshAgain(const TCHAR* CurrentName, bool bUseFirstAvailable = false)
	{
		return Refresh(ZAVSpoutNames::GetActiveSenderNames(), CurrentName, bUseFirstAvailable);
	}

	FActiveSenderNameOptions Options;
	std::string Told;
};

TEST_F(FSenderOptions, ListTheFirstEntryTheSendersAndTheStoredName)
{
	EXPECT_EQ(Options.Options.Num(), 0);
	EXPECT_EQ(Refresh({TEXT("A"), TEXT("B")}, TEXT("abc")), "Use first available sender; A; B; abc; ");
	EXPECT_EQ(Told, "lost ");
	EXPECT_EQ(RefreshAgain(TEXT("abc")), "Use first available sender; A; B; abc; ");
	EXPECT_EQ(Told, "lost ");
}

TEST_F(FSenderOptions, KeepALostNameInItsPlaceWhenItsSenderStarts)
{
	Refresh({TEXT("A"), TEXT("B")}, TEXT("abc"));
	EXPECT_EQ(Refresh({TEXT("A"), TEXT("abc"), TEXT("B"), TEXT("C")}, TEXT("abc")),
		"Use first available sender; A; B; abc; C; ");
	EXPECT_EQ(Told, "found ");
}

TEST_F(FSenderOptions, DropASenderThatStoppedUnlessItIsTheStoredName)
{
	Refresh({TEXT("A"), TEXT("B"), TEXT("C")}, TEXT("B"));
	EXPECT_EQ(Refresh({TEXT("C")}, TEXT("B")), "Use first available sender; B; C; ");
	EXPECT_EQ(Told, "lost ");
	EXPECT_EQ(Refresh({TEXT("C")}, TEXT("C")), "Use first available sender; C; ");
	EXPECT_EQ(Told, "found ");
}

TEST_F(FSenderOptions, ListALostNameWhetherTheFirstSenderIsTakenOrNot)
{
	EXPECT_EQ(Refresh({TEXT("A")}, TEXT("abc"), true), "Use first available sender; A; abc; ");
	EXPECT_EQ(Told, "found ") << "but nothing is lost";
	EXPECT_EQ(RefreshAgain(TEXT("abc"), true), "Use first available sender; A; abc; ");
	EXPECT_EQ(Told, "found ");
	EXPECT_EQ(RefreshAgain(TEXT("abc"), false), "Use first available sender; A; abc; ");
	EXPECT_EQ(Told, "lost ");
}

TEST_F(FSenderOptions, ListNoSecondEntryForTheFirstOnesText)
{
	EXPECT_EQ(Refresh({}, FirstEntry, true), "Use first available sender; ");
	EXPECT_EQ(Told, "found ");
	EXPECT_EQ(RefreshAgain(FirstEntry, false), "Use first available sender; ");
	EXPECT_EQ(Told, "lost ");
}

TEST_F(FSenderOptions, ListASenderThatIsCalledLikeTheFirstEntry)
{
	EXPECT_EQ(Refresh({FirstEntry}, FirstEntry), "Use first available sender; Use first available sender; ");
	EXPECT_EQ(Told, "found ");
	EXPECT_EQ(RefreshAgain(FirstEntry), "Use first available sender; Use first available sender; ");
	EXPECT_EQ(Told, "found ");
	EXPECT_EQ(Refresh({}, FirstEntry), "Use first available sender; Use first available sender; ")
		<< "it is the stored name now";
	EXPECT_EQ(Told, "lost ");
	EXPECT_EQ(Refresh({}, TEXT("A")), "Use first available sender; A; ");
}

TEST_F(FSenderOptions, TellNamesApartByLetterCase)
{
	EXPECT_EQ(Refresh({TEXT("Cam"), TEXT("cam")}, TEXT("CAM")), "Use first available sender; Cam; cam; CAM; ");
	EXPECT_EQ(Told, "lost ");
	EXPECT_EQ(Refresh({TEXT("cam")}, TEXT("cam")), "Use first available sender; cam; ");
}

TEST_F(FSenderOptions, SeeThatOneSenderWasReplacedByAnother)
{
	Refresh({TEXT("A")}, TEXT("A"));
	EXPECT_EQ(Refresh({TEXT("B")}, TEXT("A")), "Use first available sender; A; B; ");
	EXPECT_EQ(Told, "lost ");
	EXPECT_EQ(Refresh({TEXT("C")}, TEXT("A")), "Use first available sender; A; C; ");
	EXPECT_EQ(Refresh({TEXT("A")}, TEXT("A")), "Use first available sender; A; ");
	EXPECT_EQ(Told, "found ");
}

TEST_F(FSenderOptions, ListASenderAgainWhoseOptionWasMadeAnotherOne)
{
	Refresh({TEXT("A"), TEXT("B")}, TEXT("A"));
	*Options.Options[2] = TEXT("A");
	EXPECT_EQ(RefreshAgain(TEXT("A")), "Use first available sender; A; A; B; ") << "both are called like a sender";
	Options.Options.RemoveAt(1);
	*Options.Options[1] = TEXT("C");
	EXPECT_EQ(RefreshAgain(TEXT("A")), "Use first available sender; B; A; ");
}

TEST_F(FSenderOptions, ListANameOnceThoughTwoSendersHaveIt)
{
	EXPECT_EQ(Refresh({TEXT("A"), TEXT("A"), TEXT("B"), TEXT("A")}, TEXT("B")), "Use first available sender; A; B; ");
	EXPECT_EQ(RefreshAgain(TEXT("A")), "Use first available sender; A; B; ");
}

TEST_F(FSenderOptions, TakeAnyNameAsItIs)
{
	const FString Long(UTF8_TO_TCHAR(std::string(10000, 'x').c_str()));
	const TArray<FString> Senders = {TEXT(""), TEXT("Error"), TEXT("abc [lost]"), TEXT("two\nlines"),
		TEXT("\u202Eright to left"), TEXT("\u05D0\u05D1"), Long, TEXT("{0}")};
	ZAVSpoutNames::SetActiveSenderNames(Senders);
	for (int32 Round = 0; Round < 3; ++Round)
	{
		for (int32 Index = 0; Index < Senders.Num(); ++Index)
		{
			Told.clear();
			const TArray<TSharedPtr<FString>> Listed = Options.RefreshOptions(Senders[Index], false);
			ASSERT_EQ(Listed.Num(), Senders.Num() + 1);
			EXPECT_TRUE(Listed[Index + 1]->Equals(Senders[Index]));
			EXPECT_EQ(*Options.GetCurrentOption(), Listed[Index + 1]);
			EXPECT_EQ(Told, "found ");
		}
	}
}

TEST_F(FSenderOptions, ListAnEmptyStoredName)
{
	EXPECT_EQ(Refresh({TEXT("A")}, TEXT("")), "Use first available sender; A; ; ");
	EXPECT_EQ(Told, "lost ");
}

TEST_F(FSenderOptions, KeepTheStringsOfWhatStays)
{
	Refresh({TEXT("A"), TEXT("B"), TEXT("C")}, TEXT("C"));
	const TArray<TSharedPtr<FString>> Before = Options.Options;
	Refresh({TEXT("C"), TEXT("D"), TEXT("A")}, TEXT("C"));
	ASSERT_EQ(Describe(Options.Options), "Use first available sender; A; C; D; ");
	EXPECT_EQ(Options.Options[0], Before[0]);
	EXPECT_EQ(Options.Options[1], Before[1]);
	EXPECT_EQ(Options.Options[2], Before[3]);
}

TEST_F(FSenderOptions, AreNotTheCopyThatARefreshGives)
{
	TArray<TSharedPtr<FString>> Copy = Options.RefreshOptions(TEXT("A"), false);
	EXPECT_EQ(Copy, Options.Options);
	Copy.RemoveAt(0);
	EXPECT_EQ(Describe(Options.Options), "Use first available sender; A; ");
}

TEST_F(FSenderOptions, TellBeforeTheyDropAndAfterTheyAdd)
{
	Refresh({TEXT("A")}, TEXT("A"));
	std::string Seen;
	Options.OnLostStateChanged.AddLambda([&](bool) { Seen = Describe(Options.Options); });
	Refresh({TEXT("B")}, TEXT("C"));
	EXPECT_EQ(Seen, "Use first available sender; A; B; ");
	EXPECT_EQ(Describe(Options.Options), "Use first available sender; B; C; ");
}

TEST_F(FSenderOptions, TellOfEachRefreshOnce)
{
	Refresh({TEXT("A")}, TEXT("A"));
	for (int Round = 0; Round < 3; ++Round)
	{
		EXPECT_EQ(Told, "found ");
		RefreshAgain(TEXT("A"));
	}
}

TEST_F(FSenderOptions, AreRightAgainThoughASubscriberChangedThem)
{
	Refresh({TEXT("A"), TEXT("B")}, TEXT("A"));
	const FDelegateHandle Handle =
		Options.OnLostStateChanged.AddLambda([this](bool) { Options.Options.Add(MakeShared<FString>(TEXT("X"))); });
	EXPECT_EQ(RefreshAgain(TEXT("A")), "Use first available sender; A; B; ");
	Options.OnLostStateChanged.Remove(Handle);
	const FDelegateHandle Emptying = Options.OnLostStateChanged.AddLambda([this](bool) { Options.Options.Empty(); });
	EXPECT_EQ(RefreshAgain(TEXT("A")), "A; ");
	Options.OnLostStateChanged.Remove(Emptying);
}

TEST_F(FSenderOptions, AreRightThoughASubscriberRefreshesThem)
{
	Refresh({TEXT("A"), TEXT("B")}, TEXT("A"));
	bool bInside = false;
	Options.OnLostStateChanged.AddLambda(
		[&](bool)
		{
			if (!bInside)
			{
				bInside = true;
				Options.RefreshOptions(TEXT("inner"), false);
			}
		});
	EXPECT_EQ(RefreshAgain(TEXT("A")), "Use first available sender; A; B; ");
	EXPECT_EQ(Told, "lost found ") << "the list of those who are told is gone through from its end";
	bInside = false;
	EXPECT_EQ(Refresh({TEXT("B")}, TEXT("C")), "Use first available sender; B; C; ");
}

TEST_F(FSenderOptions, FindTheCurrentNameThoughASubscriberAskedForAnother)
{
	Refresh({TEXT("A"), TEXT("B")}, TEXT("A"));
	bool bInside = false;
	Options.OnLostStateChanged.AddLambda(
		[&](bool)
		{
			if (!bInside)
			{
				bInside = true;
				Options.RefreshOptions(TEXT("B"), false);
			}
		});
	RefreshAgain(TEXT("A"));
	EXPECT_EQ(Options.GetCurrentOption(), &Options.Options[1]);
}

TEST_F(FSenderOptions, FindTheFirstOptionOfTheCurrentName)
{
	EXPECT_EQ(Options.GetCurrentOption(), nullptr) << "before the first refresh";
	Refresh({TEXT("A"), FirstEntry}, TEXT("A"));
	EXPECT_EQ(Options.GetCurrentOption(), &Options.Options[1]);
	RefreshAgain(FirstEntry);
	EXPECT_EQ(Options.GetCurrentOption(), &Options.Options[0]);
	Options.Options[0] = MakeShared<FString>(TEXT("other"));
	Refresh({}, FirstEntry, true);
	EXPECT_EQ(Options.GetCurrentOption(), &Options.Options[1]);
	Options.Options.Empty();
	EXPECT_EQ(Options.GetCurrentOption(), nullptr);
}

TEST_F(FSenderOptions, MakeALabelOfEachText)
{
	for (const TCHAR* Text : {TEXT("A"), TEXT("A"), TEXT("a"), TEXT(""), TEXT("A")})
	{
		EXPECT_TRUE(Options.GetLabel(Text).ToString().Equals(Text));
		EXPECT_FALSE(FTextInspector::GetKey(Options.GetLabel(Text)).IsSet());
	}
}

TEST_F(FSenderOptions, DropThousandsAtOnceAndTakeThousandsInInAnyOrder)
{
	TArray<FString> Many;
	for (int32 Index = 0; Index < 20000; ++Index)
	{
		Many.Add(FString::Printf(TEXT("Sender %d"), (Index * 7919) % 20000));
	}
	ZAVSpoutNames::SetActiveSenderNames(Many);
	EXPECT_EQ(Options.RefreshOptions(TEXT("Sender 7"), false).Num(), 20001);
	EXPECT_TRUE(Options.Options[20000]->Equals(Many[19999]));
	EXPECT_EQ(
		Refresh({TEXT("Sender 9"), TEXT("Sender 3")}, TEXT("Sender 7")).substr(0, 28), "Use first available sender; ");
	EXPECT_EQ(Options.Options.Num(), 4);
}

TEST(FActiveSenderNameOptionsDeathTest, AreOneForAllThreadsThatComeFirstTogether)
{
	// In a process where nobody has asked for them yet.
	GTEST_FLAG_SET(death_test_style, "threadsafe");
	EXPECT_EXIT(
		{
			std::vector<const FActiveSenderNameOptions*> Seen(8);
			std::vector<std::thread> Threads;
			for (const FActiveSenderNameOptions*& Each : Seen)
			{
				Threads.emplace_back([&Each] { Each = &FActiveSenderNameOptions::Get(); });
			}
			for (std::thread& Thread : Threads)
			{
				Thread.join();
			}
			const std::vector<const FActiveSenderNameOptions*> Same(8, &FActiveSenderNameOptions::Get());
			std::_Exit(Seen == Same ? 0 : 1);
		},
		::testing::ExitedWithCode(0), "");
}

#ifndef __SANITIZE_ADDRESS__
TEST_F(FSenderOptions, TakeNoMemoryForEachSenderBeyondItsReportedName)
{
	// Apart from the names that Spout reports, a copy of the list and of the current name is all.
	TArray<FString> Senders;
	for (int32 Index = 0; Index < 500; ++Index)
	{
		Senders.Add(FString::Printf(TEXT("A name too long to be kept in place %d"), Index));
	}
	const auto Count = [](const auto& Work)
	{
		const int64 Before = FAllocationCount::Get();
		Work();
		return FAllocationCount::Get() - Before;
	};
	ZAVSpoutNames::SetActiveSenderNames(Senders);
	const FString Current = Senders[250];
	Options.RefreshOptions(Current, false);
	const int64 OfNames = Count([] { ZAVSpoutNames::GetActiveSenderNames(); });
	EXPECT_GT(OfNames, 500) << "allocations are counted";
	EXPECT_EQ(Count([&] { Options.RefreshOptions(Current, false); }), OfNames + 2);
	std::reverse(Senders.begin(), Senders.end());
	ZAVSpoutNames::SetActiveSenderNames(Senders);
	Told.clear();
	EXPECT_EQ(Count([&] { Options.RefreshOptions(Current, false); }), OfNames + 2) << "reversed";
}
#endif

TEST_F(FSenderOptions, TakeTheFirstOfTwoEqualEntriesForTheCurrentOneWhenSomebodyRenamesTheFirstEntry)
{
	Refresh({}, TEXT("lost"));
	EXPECT_EQ(Options.GetCurrentOption(), &Options.Options[1]);
	*Options.Options[0] = TEXT("lost");
	EXPECT_EQ(RefreshAgain(TEXT("lost")), "lost; lost; ");
	EXPECT_EQ(Options.GetCurrentOption(), &Options.Options[0]);
}
