// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "GameFramework/SaveGame.h"

#include "TestSaveGames.generated.h"

/** A structure with another one in it, and with members that are not saved. */
USTRUCT()
struct FTestSaveStruct
{
	GENERATED_BODY()

	UPROPERTY()
	FString Label = TEXT("none");

	UPROPERTY()
	int32 Count = 7;

	UPROPERTY()
	FVector Offset;

	UPROPERTY()
	USaveGame* Target = nullptr;

	UPROPERTY(Transient)
	int32 Passing = 1;
};

/** A structure that can hold itself. */
USTRUCT()
struct FTestSaveNode
{
	GENERATED_BODY()

	UPROPERTY()
	int32 Number = 0;

	UPROPERTY()
	TArray<FTestSaveNode> Children;
};

/** Saved properties of every kind. */
UCLASS()
class UTestSaveGame1 : public USaveGame
{
	GENERATED_BODY()

public:
	UPROPERTY()
	bool bFlag = true;

	UPROPERTY()
	int32 Number = 3;

	UPROPERTY()
	float Fraction = 0.25f;

	UPROPERTY()
	FString Text = TEXT("text");

	UPROPERTY()
	FName Name = TEXT("Name");

	UPROPERTY()
	FText Shown;

	UPROPERTY()
	FTestSaveStruct Inner;

	UPROPERTY()
	TArray<int32> Numbers = {1, 2};

	UPROPERTY()
	TArray<FString> Texts;

	UPROPERTY()
	TArray<FTestSaveStruct> Structs;

	UPROPERTY()
	FTestSaveNode Node;

	UPROPERTY()
	USaveGame* Reference = nullptr;

	UPROPERTY()
	TArray<USaveGame*> References;

	UPROPERTY(Transient)
	int32 Passing = 5;

	UPROPERTY(Transient)
	TArray<int32> PassingNumbers;

	int32 Hidden = 6;
};

/** What the above may become in a later version: members gone, new, and of other types. */
UCLASS()
class UTestSaveGame2 : public USaveGame
{
	GENERATED_BODY()

public:
	UPROPERTY()
	int32 bFlag = 42;

	UPROPERTY()
	int32 Number = 42;

	UPROPERTY(Transient)
	float Fraction = 42.0f;

	UPROPERTY()
	FName Text = TEXT("Default");

	UPROPERTY()
	FTestSaveNode Inner;

	UPROPERTY()
	TArray<FString> Numbers = {TEXT("a"), TEXT("b")};

	UPROPERTY()
	TArray<FTestSaveStruct> Structs;

	UPROPERTY()
	int32 Added = 42;
};

/** One that only others derive from. */
UCLASS(Abstract)
class UTestSaveGameBase : public USaveGame
{
	GENERATED_BODY()

public:
	UPROPERTY()
	int32 Number = 0;
};
