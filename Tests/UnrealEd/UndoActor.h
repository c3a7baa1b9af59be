// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"

#include "UndoActor.generated.h"

/** A structure of which reflection does not know all. */
USTRUCT()
struct FUndoEntry
{
	GENERATED_BODY()

	UPROPERTY()
	int32 Count = 7;
	UPROPERTY()
	FString Label;
	UPROPERTY()
	FVector Offset;

	int32 Hidden = 0;
};

/** A structure with another one and an array in it. */
USTRUCT()
struct FUndoGroup
{
	GENERATED_BODY()

	UPROPERTY()
	FUndoEntry Entry;
	UPROPERTY()
	TArray<FUndoEntry> Entries;
};

UCLASS()
class UUndoComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	void PostEditUndo() override
	{
		++TimesTold;
		Super::PostEditUndo();
	}

	UPROPERTY()
	float Strength = 0.5f;
	/** The actor itself, so that the two hold each other. */
	UPROPERTY()
	AActor* Whole = nullptr;

	int32 TimesTold = 0;
};

/** An actor with a value of every kind, which counts how often undo and redo told it. */
UCLASS()
class AUndoActor : public AActor
{
	GENERATED_BODY()

public:
	AUndoActor()
	{
		Component = CreateDefaultSubobject<UUndoComponent>(FName("Component"));
		RootComponent = Component;
		Component->Whole = this;
	}
	void PostEditUndo() override
	{
		++TimesTold;
		Super::PostEditUndo();
	}

	UPROPERTY()
	bool bFlag = true;
	UPROPERTY()
	int32 Number = 3;
	UPROPERTY()
	float Fraction = 0.25f;
	UPROPERTY()
	FString Text;
	UPROPERTY()
	FName Label;
	UPROPERTY()
	FText Shown;
	UPROPERTY(Transient)
	int32 Passing = 0;
	UPROPERTY()
	AActor* Target = nullptr;
	UPROPERTY()
	FUndoGroup Group;
	UPROPERTY()
	TArray<int32> Numbers;
	UPROPERTY()
	TArray<FUndoEntry> Entries;
	UPROPERTY()
	TArray<AActor*> Actors;
	UPROPERTY()
	UUndoComponent* Component;

	int32 TimesTold = 0;
};
