// Copyright Corvane. MIT License.
#include "SaveGameFixture.h"

#include "UObject/UnrealType.h"

FSaveGameFixture::FSaveGameFixture()
{
	UTestSaveGame1::StaticClass();
	UTestSaveGame2::StaticClass();
	UTestSaveGameBase::StaticClass();
}

FSaveGameFixture::~FSaveGameFixture()
{
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
}

UTestSaveGame1* FSaveGameFixture::MakeSample()
{
	UTestSaveGame1* const Object = Make<UTestSaveGame1>();
	Object->bFlag = false;
	Object->Number = -7;
	Object->Fraction = 1.5f;
	Object->Text = TEXT("Ж\"\n");
	Object->Name = TEXT("Stream_12");
	Object->Shown = FText::FromString(TEXT("shown"));
	Object->Inner.Label = TEXT("inner");
	Object->Inner.Offset = FVector(1.0f, -2.0f, 3.5f);
	Object->Numbers = {4, 5, 6};
	Object->Texts = {TEXT("one"), TEXT("")};
	Object->Structs = {FTestSaveStruct(), FTestSaveStruct()};
	Object->Structs[1].Count = 9;
	Object->Node.Children = {FTestSaveNode()};
	return Object;
}

TArray<uint8> FSaveGameFixture::Save(USaveGame* Object)
{
	TArray<uint8> Bytes;
	EXPECT_TRUE(UGameplayStatics::SaveGameToMemory(Object, Bytes));
	return Bytes;
}

std::string FSaveGameFixture::FindDifference(const UObject* A, const UObject* B)
{
	for (TFieldIterator<FProperty> It(A->GetClass()); It; ++It)
	{
		if (!It->Identical_InContainer(A, B))
		{
			return TCHAR_TO_UTF8(It->GetName());
		}
	}
	return std::string();
}
