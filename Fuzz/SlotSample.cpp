// Copyright Corvane. MIT License.
#include "SlotSample.h"

#include "Kismet/GameplayStatics.h"
#include "TestSaveGames.h"

USaveGame* FSlotSample::Make()
{
	// Makes the other one known as well.
	UTestSaveGame2::StaticClass();
	auto* Object = static_cast<UTestSaveGame1*>(UGameplayStatics::CreateSaveGameObject(UTestSaveGame1::StaticClass()));
	Object->Name = TEXT("Stream_12");
	Object->Shown = NSLOCTEXT("Space", "Key", "Source");
	Object->Inner.Offset = FVector(1.0f, -2.0f, 3.5f);
	Object->Texts = {TEXT("one"), TEXT("Ж")};
	Object->Structs.Add(FTestSaveStruct());
	Object->Node.Children.Add(FTestSaveNode());
	return Object;
}
