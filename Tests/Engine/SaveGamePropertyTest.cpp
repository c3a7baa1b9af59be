// Copyright Corvane. MIT License.
// Saved objects with random values, and random bytes in their place.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cstring>
#include <vector>

#include "Kismet/GameplayStatics.h"
#include "SaveGameFixture.h"

namespace
{
	FString MakeString(const std::vector<char16_t>& Units)
	{
		return FString(static_cast<int32>(Units.size()), Units.data());
	}

	/** Any units: zeros and surrogates without partner, too. */
	FString AnyString()
	{
		return MakeString(*rc::gen::container<std::vector<char16_t>>(rc::gen::arbitrary<char16_t>()));
	}

	FName AnyName()
	{
		const auto Unit = rc::gen::element<char16_t>(u'A', u'a', u'_', u'0', u'1', u'9', u' ', u'Ж');
		return FName(*MakeString(*rc::gen::container<std::vector<char16_t>>(Unit)));
	}

	/** Any bits: infinities, what is no number, and both zeros. */
	float AnyFloat()
	{
		const auto Bits = *rc::gen::arbitrary<uint32>();
		float Number = 0.0f;
		std::memcpy(&Number, &Bits, sizeof(Number));
		return Number;
	}

	FTestSaveStruct AnyStruct()
	{
		FTestSaveStruct Struct;
		Struct.Label = AnyString();
		Struct.Count = *rc::gen::arbitrary<int32>();
		Struct.Offset = FVector(AnyFloat(), AnyFloat(), AnyFloat());
		return Struct;
	}

	FTestSaveNode AnyNode(int32 Depth)
	{
		FTestSaveNode Node;
		Node.Number = *rc::gen::arbitrary<int32>();
		for (int32 Index = *rc::gen::inRange(0, Depth); Index > 0; --Index)
		{
			Node.Children.Add(AnyNode(Depth - 1));
		}
		return Node;
	}
}

class FSaveGameProperty : public FSaveGameFixture
{};

RC_GTEST_FIXTURE_PROP(FSaveGameProperty, IsWhatItWasWhateverItHeld, ())
{
	UTestSaveGame1* const Object = Make<UTestSaveGame1>();
	Object->bFlag = *rc::gen::arbitrary<bool>();
	Object->Number = *rc::gen::arbitrary<int32>();
	Object->Fraction = AnyFloat();
	Object->Text = AnyString();
	Object->Name = AnyName();
	Object->Shown = FText::FromString(AnyString());
	Object->Inner = AnyStruct();
	Object->Node = AnyNode(4);
	Object->Numbers.Empty();
	for (const int32 Number : *rc::gen::arbitrary<std::vector<int32>>())
	{
		Object->Numbers.Add(Number);
		Object->Texts.Add(AnyString());
		Object->Structs.Add(AnyStruct());
	}
	const TArray<uint8> Bytes = Save(Object);
	UTestSaveGame1* const Loaded = Load<UTestSaveGame1>(Bytes);
	RC_ASSERT(Loaded != nullptr);
	RC_ASSERT(FindDifference(Loaded, Object) == "");
	RC_ASSERT(Save(Loaded) == Bytes);
}

RC_GTEST_FIXTURE_PROP(FSaveGameProperty, IsReadOrNullWhateverTheBytes, ())
{
	TArray<uint8> Bytes = Save(MakeSample());
	for (int Change = *rc::gen::inRange(1, 5); Change > 0; --Change)
	{
		Bytes[*rc::gen::inRange(0, Bytes.Num())] = *rc::gen::arbitrary<uint8>();
	}
	Bytes.SetNum(*rc::gen::inRange(Bytes.Num() / 2, Bytes.Num() * 2));
	USaveGame* const Loaded = UGameplayStatics::LoadGameFromMemory(Bytes);
	TArray<uint8> Again;
	RC_ASSERT(!Loaded || UGameplayStatics::SaveGameToMemory(Loaded, Again));
}
