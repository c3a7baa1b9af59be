// Copyright Corvane. MIT License.
#include <string>

#include "GameFramework/Actor.h"
#include "Kismet/GameplayStatics.h"
#include "SaveGameFixture.h"
#include "UObject/Package.h"

namespace
{
	const FString ClassName1 = TEXT("/Script/EngineTests.TestSaveGame1");
	const FString StructName = TEXT("/Script/EngineTests.TestSaveStruct");
	const FString NodeName = TEXT("/Script/EngineTests.TestSaveNode");

	/** Nodes in each other, Depth of them. */
	FTestSaveNode MakeNodes(int32 Depth)
	{
		FTestSaveNode Node;
		Node.Number = Depth;
		if (Depth > 1)
		{
			Node.Children.Add(MakeNodes(Depth - 1));
		}
		return Node;
	}
}

class FSaveGame : public FSaveGameFixture
{};

TEST_F(FSaveGame, IsMadeWithItsClasssDefaults)
{
	const UTestSaveGame1* const Object = Make<UTestSaveGame1>();
	ASSERT_NE(Object, nullptr);
	EXPECT_EQ(Object->GetClass(), UTestSaveGame1::StaticClass());
	EXPECT_EQ(Object->GetOuter(), GetTransientPackage());
	EXPECT_EQ(FindDifference(Object, GetDefault<UTestSaveGame1>()), "");
}

TEST_F(FSaveGame, IsNotMadeOfWhatIsNoClassForIt)
{
	EXPECT_EQ(UGameplayStatics::CreateSaveGameObject(nullptr), nullptr);
	EXPECT_EQ(UGameplayStatics::CreateSaveGameObject(USaveGame::StaticClass()), nullptr);
	EXPECT_EQ(UGameplayStatics::CreateSaveGameObject(UTestSaveGameBase::StaticClass()), nullptr);
	EXPECT_EQ(UGameplayStatics::CreateSaveGameObject(AActor::StaticClass()), nullptr);
}

TEST_F(FSaveGame, KeepsEveryKindOfProperty)
{
	UTestSaveGame1* const Object = MakeSample();
	const UTestSaveGame1* const Loaded = Load<UTestSaveGame1>(Save(Object));
	ASSERT_NE(Loaded, nullptr);
	EXPECT_NE(Loaded, Object);
	EXPECT_EQ(FindDifference(Loaded, Object), "");
	EXPECT_EQ(Loaded->Structs[1].Count, 9);
}

TEST_F(FSaveGame, LeavesTheSavedObjectAsItWas)
{
	UTestSaveGame1* const Object = MakeSample();
	Save(Object);
	EXPECT_EQ(FindDifference(Object, MakeSample()), "");
	// Reads like a name with a number, but has none.
	Object->Name = FName(FName("A_5_6"), 0);
	Save(Object);
	EXPECT_EQ(Object->Name, FName(FName("A_5_6"), 0));
}

TEST_F(FSaveGame, ReplacesWhatTheArrayOfBytesHeld)
{
	TArray<uint8> Bytes = {1, 2, 3};
	ASSERT_TRUE(UGameplayStatics::SaveGameToMemory(MakeSample(), Bytes));
	EXPECT_EQ(Bytes, Save(MakeSample()));
}

TEST_F(FSaveGame, LeavesOutReferencesAndWhatIsTransient)
{
	UTestSaveGame1* const Object = Make<UTestSaveGame1>();
	Object->Reference = Object;
	Object->References.Add(Object);
	Object->Inner.Target = Object;
	Object->Inner.Passing = 9;
	Object->Passing = 9;
	Object->PassingNumbers.Add(9);
	Object->Hidden = 9;
	EXPECT_EQ(Save(Object), Save(Make<UTestSaveGame1>()));
	const UTestSaveGame1* const Loaded = Load<UTestSaveGame1>(Save(Object));
	ASSERT_NE(Loaded, nullptr);
	EXPECT_EQ(FindDifference(Loaded, GetDefault<UTestSaveGame1>()), "");
	EXPECT_EQ(Loaded->Hidden, 6);
}

TEST_F(FSaveGame, KeepsOfATextItsSource)
{
	UTestSaveGame1* const Object = Make<UTestSaveGame1>();
	Object->Shown = NSLOCTEXT("Space", "Key", "Source");
	const UTestSaveGame1* const Loaded = Load<UTestSaveGame1>(Save(Object));
	ASSERT_NE(Loaded, nullptr);
	EXPECT_TRUE(Loaded->Shown.ToString().Equals(TEXT("Source")));
	EXPECT_FALSE(FTextInspector::GetKey(Loaded->Shown).IsSet());
}

TEST_F(FSaveGame, ReadsNothingIntoMembersThatAreLeftOut)
{
	for (const TCHAR* Name : {TEXT("Reference"), TEXT("References"), TEXT("Passing"), TEXT("PassingNumbers")})
	{
		for (const TCHAR* Type : {TEXT(""), TEXT("int32"), TEXT("TArray int32"), TEXT("TArray ")})
		{
			const UTestSaveGame1* const Loaded =
				Load1(FSaveGameBytes().Text(ClassName1).Member(Name, Type, FSaveGameBytes().Number(1).Number(2)).End());
			EXPECT_EQ(Loaded == nullptr, *Type == 0) << TCHAR_TO_UTF8(Name) << TCHAR_TO_UTF8(Type);
			EXPECT_TRUE(!Loaded || FindDifference(Loaded, GetDefault<UTestSaveGame1>()).empty());
		}
	}
}

TEST_F(FSaveGame, ReadsWhatALaterClassStillKnows)
{
	UTestSaveGame1* const Object = MakeSample();
	FSaveGameBytes Bytes(Save(Object));
	Bytes.ReplaceText(TEXT("TestSaveGame1"), TEXT("TestSaveGame2"));
	const UTestSaveGame2* const Loaded = Load<UTestSaveGame2>(Bytes.Get());
	ASSERT_NE(Loaded, nullptr);
	EXPECT_EQ(Loaded->Number, -7);
	EXPECT_EQ(Loaded->Structs.Num(), 2);
	EXPECT_EQ(Loaded->bFlag, 42);
	EXPECT_EQ(Loaded->Fraction, 42.0f);
	EXPECT_EQ(Loaded->Text, FName("Default"));
	EXPECT_EQ(Loaded->Inner.Number, 0);
	EXPECT_EQ(Loaded->Numbers, (TArray<FString>{TEXT("a"), TEXT("b")}));
	EXPECT_EQ(Loaded->Added, 42);
}

TEST_F(FSaveGame, ReadsWhatAnEarlierClassDidNotHave)
{
	FSaveGameBytes Bytes(Save(Make<UTestSaveGame2>()));
	Bytes.ReplaceText(TEXT("TestSaveGame2"), TEXT("TestSaveGame1"));
	const UTestSaveGame1* const Loaded = Load<UTestSaveGame1>(Bytes.Get());
	ASSERT_NE(Loaded, nullptr);
	EXPECT_EQ(Loaded->Number, 42);
	EXPECT_TRUE(Loaded->Text.Equals(TEXT("text")));
	EXPECT_EQ(Loaded->Numbers, (TArray<int32>{1, 2}));
}

TEST_F(FSaveGame, PassesOverUnknownMembersWhateverTheyHold)
{
	FSaveGameBytes Bytes;
	Bytes.Text(ClassName1);
	Bytes.Member(TEXT("Unknown"), TEXT("int32"), FSaveGameBytes().Number(1));
	Bytes.Member(TEXT("Number"), TEXT("nothing known"), FSaveGameBytes().Byte(255).Byte(255));
	Bytes.Member(TEXT("Number"), TEXT("int32"), FSaveGameBytes().Number(11)).End();
	const UTestSaveGame1* const Loaded = Load1(Bytes);
	ASSERT_NE(Loaded, nullptr);
	EXPECT_EQ(Loaded->Number, 11);
}

TEST_F(FSaveGame, FindsMembersInWhateverOrderAndTakesTheLastOfTwo)
{
	FSaveGameBytes Bytes;
	Bytes.Text(ClassName1);
	Bytes.Member(TEXT("Fraction"), TEXT("float"), FSaveGameBytes().Number(0));
	Bytes.Member(TEXT("Number"), TEXT("int32"), FSaveGameBytes().Number(11));
	Bytes.Member(TEXT("Number"), TEXT("int32"), FSaveGameBytes().Number(12));
	Bytes.Member(TEXT("bFlag"), TEXT("bool"), FSaveGameBytes().Byte(0)).End();
	const UTestSaveGame1* const Loaded = Load1(Bytes);
	ASSERT_NE(Loaded, nullptr);
	EXPECT_EQ(Loaded->Fraction, 0.0f);
	EXPECT_EQ(Loaded->Number, 12);
	EXPECT_FALSE(Loaded->bFlag);
}

TEST_F(FSaveGame, IsNullWhereverItsBytesAreCutOff)
{
	const TArray<uint8> Bytes = Save(MakeSample());
	for (int32 Num = 0; Num < Bytes.Num(); ++Num)
	{
		EXPECT_EQ(UGameplayStatics::LoadGameFromMemory(TArray<uint8>(Bytes.GetData(), Num)), nullptr) << Num;
	}
}

TEST_F(FSaveGame, IsNullWithBytesLeftOver)
{
	FSaveGameBytes Bytes(Save(MakeSample()));
	EXPECT_NE(Load1(Bytes), nullptr);
	EXPECT_EQ(Load1(Bytes.Byte(0)), nullptr);
}

// Most flips change a value or a name, which only a checksum could see; none may be fatal, and what was read can be
// saved.
TEST_F(FSaveGame, SurvivesEveryFlippedBit)
{
	const TArray<uint8> Bytes = Save(MakeSample());
	int32 NumNull = 0;
	for (int32 Bit = 0; Bit < Bytes.Num() * 8; ++Bit)
	{
		TArray<uint8> Flipped = Bytes;
		Flipped[Bit / 8] = static_cast<uint8>(Flipped[Bit / 8] ^ (1 << (Bit % 8)));
		USaveGame* const Loaded = UGameplayStatics::LoadGameFromMemory(Flipped);
		NumNull += Loaded ? 0 : 1;
		TArray<uint8> Again;
		EXPECT_TRUE(!Loaded || UGameplayStatics::SaveGameToMemory(Loaded, Again)) << Bit;
	}
	// The class's name alone has more bits than that.
	EXPECT_GT(NumNull, ClassName1.Len() * 8);
}

TEST_F(FSaveGame, IsNullForAClassThatCanNotBeSaved)
{
	const FString Longest(FString(std::string(NAME_SIZE - 1, 'x').c_str()));
	for (const FString& Name : {FString(), FString(TEXT("TestSaveGame1")), FString(TEXT("/Script/EngineTests.Other")),
			 FString(TEXT("/Script/Engine.Actor")), FString(TEXT("/Script/Engine.SaveGame")),
			 FString(TEXT("/Script/EngineTests.TestSaveGameBase")), FString(TEXT("/Script/EngineTests")),
			 FString(TEXT("/Script/EngineTests.Default__TestSaveGame1")), Longest, Longest + TEXT("y")})
	{
		EXPECT_EQ(UGameplayStatics::LoadGameFromMemory(FSaveGameBytes().Text(Name).End().Get()), nullptr)
			<< TCHAR_TO_UTF8(Name);
	}
	EXPECT_NE(Load1(FSaveGameBytes().Text(ClassName1).End()), nullptr);
	FSaveGameBytes Abstract;
	Abstract.Text(TEXT("/Script/EngineTests.TestSaveGameBase"));
	Abstract.Member(TEXT("Number"), TEXT("int32"), FSaveGameBytes().Number(1)).End();
	EXPECT_EQ(UGameplayStatics::LoadGameFromMemory(Abstract.Get()), nullptr);
}

TEST_F(FSaveGame, BelievesNoNumberThatItReads)
{
	for (const int32 Wrong : {-1, 1, 2, 0x3FFFFFFF, 0x40000000, 0x7FFFFFFF, -0x7FFFFFFF})
	{
		const FSaveGameBytes Number = FSaveGameBytes().Number(Wrong);
		EXPECT_EQ(Load1(Number), nullptr) << Wrong;
		EXPECT_EQ(Load1(FSaveGameBytes().Text(ClassName1).Number(Wrong)), nullptr) << Wrong;
		for (const TCHAR* Kind : {TEXT("Text FString"), TEXT("Numbers TArray int32"), TEXT("Name FName")})
		{
			const FString Both(Kind);
			const int32 Blank = Both.Find(TEXT(" "));
			const FSaveGameBytes Bytes =
				FSaveGameBytes().Text(ClassName1).Member(Both.Left(Blank), Both.RightChop(Blank + 1), Number).End();
			EXPECT_EQ(Load1(Bytes), nullptr) << TCHAR_TO_UTF8(Kind) << Wrong;
		}
	}
}

TEST_F(FSaveGame, IsNullWhereAMemberHasNotItsLength)
{
	for (const int32 Length : {-1, 0, 3, 5, 8, 0x7FFFFFFF})
	{
		FSaveGameBytes Bytes;
		Bytes.Text(ClassName1).Text(TEXT("Number")).Text(TEXT("int32")).Number(Length).Number(1).End();
		EXPECT_EQ(Load1(Bytes), nullptr) << Length;
		EXPECT_EQ(Load1(Bytes.End()), nullptr) << Length;
	}
}

TEST_F(FSaveGame, IsNullWhereAnUnknownMemberEndsNowhere)
{
	for (const int32 Length : {-1, 5, 0x7FFFFFFF})
	{
		FSaveGameBytes Bytes;
		Bytes.Text(ClassName1).Text(TEXT("Unknown")).Text(TEXT("int32")).Number(Length).End();
		EXPECT_EQ(Load1(Bytes), nullptr) << Length;
	}
}

TEST_F(FSaveGame, IsNullForATruthValueOfNeitherKind)
{
	const auto LoadFlag = [](uint8 Byte)
	{
		return Load1(
			FSaveGameBytes().Text(ClassName1).Member(TEXT("bFlag"), TEXT("bool"), FSaveGameBytes().Byte(Byte)).End());
	};
	ASSERT_NE(LoadFlag(0), nullptr);
	EXPECT_FALSE(LoadFlag(0)->bFlag);
	EXPECT_TRUE(LoadFlag(1)->bFlag);
	EXPECT_EQ(LoadFlag(2), nullptr);
	EXPECT_EQ(Load1(FSaveGameBytes().Text(ClassName1).Text(TEXT("bFlag")).Text(TEXT("bool")).Number(0)), nullptr);
}

TEST_F(FSaveGame, IsNullForANameThatIsTooLong)
{
	const auto LoadName = [](int32 Length)
	{
		const FString Name(std::string(static_cast<size_t>(Length), 'x').c_str());
		return Load1(
			FSaveGameBytes().Text(ClassName1).Member(TEXT("Name"), TEXT("FName"), FSaveGameBytes().Text(Name)).End());
	};
	ASSERT_NE(LoadName(NAME_SIZE - 1), nullptr);
	EXPECT_EQ(LoadName(NAME_SIZE - 1)->Name.ToString().Len(), NAME_SIZE - 1);
	EXPECT_EQ(LoadName(NAME_SIZE), nullptr);
}

TEST_F(FSaveGame, IsNotSavedWithANameThatCouldNotBeRead)
{
	UTestSaveGame1* const Object = Make<UTestSaveGame1>();
	TArray<uint8> Bytes;
	Object->Name = FName(FName(std::string(NAME_SIZE - 1, 'x').c_str()), 2);
	EXPECT_FALSE(UGameplayStatics::SaveGameToMemory(Object, Bytes));
}

TEST_F(FSaveGame, HoldsStructuresInEachOtherToALimit)
{
	// The object itself is the outermost of 64.
	UTestSaveGame1* const Object = Make<UTestSaveGame1>();
	Object->Node = MakeNodes(63);
	const UTestSaveGame1* const Loaded = Load<UTestSaveGame1>(Save(Object));
	ASSERT_NE(Loaded, nullptr);
	EXPECT_EQ(FindDifference(Loaded, Object), "");
	TArray<uint8> Bytes;
	Object->Node = MakeNodes(64);
	EXPECT_FALSE(UGameplayStatics::SaveGameToMemory(Object, Bytes));
}

TEST_F(FSaveGame, IsNullForStructuresThatNestWithoutEnd)
{
	const auto LoadNested = [](int32 Depth)
	{
		FSaveGameBytes Node;
		Node.End();
		for (int32 Level = 1; Level < Depth; ++Level)
		{
			FSaveGameBytes Children;
			Children.Number(1).Append(Node);
			Node = FSaveGameBytes().Member(TEXT("Children"), TEXT("TArray ") + NodeName, Children).End();
		}
		return Load1(FSaveGameBytes().Text(ClassName1).Member(TEXT("Node"), NodeName, Node).End());
	};
	EXPECT_NE(LoadNested(63), nullptr);
	EXPECT_EQ(LoadNested(64), nullptr);
	EXPECT_EQ(LoadNested(1000), nullptr);
}

TEST_F(FSaveGame, IsNotSavedWithoutAnObject)
{
	TArray<uint8> Bytes;
	EXPECT_FALSE(UGameplayStatics::SaveGameToMemory(nullptr, Bytes));
}
