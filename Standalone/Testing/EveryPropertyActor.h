// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"

#include "EveryPropertyActor.generated.h"

class UTextureRenderTarget2D;

/** A structure with another one in it. */
USTRUCT()
struct FEveryPropertyStruct
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = Test)
	FString Label;

	UPROPERTY(EditAnywhere, Category = Test)
	int32 Count = 7;

	UPROPERTY(EditAnywhere, Category = Test)
	FVector Offset;

	UPROPERTY(EditAnywhere, Category = Test)
	AActor* Target = nullptr;
};

/** A component that its owner holds besides its root. */
UCLASS()
class UEveryPropertyComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = Test)
	float Strength = 0.5f;

	UPROPERTY(EditAnywhere, Category = Test)
	TArray<FString> Notes;
};

/** An actor with a property of every kind that a level file knows, and of some that it does not hold. */
UCLASS()
class AEveryPropertyActor : public AActor
{
	GENERATED_BODY()

public:
	AEveryPropertyActor();

	UPROPERTY(EditAnywhere, Category = Test)
	bool bFlag = true;

	UPROPERTY(EditAnywhere, Category = Test)
	int32 Number = 3;

	UPROPERTY(EditAnywhere, Category = Test)
	float Fraction = 0.25f;

	UPROPERTY(EditAnywhere, Category = Test)
	FString Text;

	UPROPERTY(EditAnywhere, Category = Test)
	FName Label;

	UPROPERTY(EditAnywhere, Category = Test)
	FEveryPropertyStruct Inner;

	UPROPERTY(EditAnywhere, Category = Test)
	TArray<int32> Numbers;

	UPROPERTY(EditAnywhere, Category = Test)
	TArray<FEveryPropertyStruct> Structs;

	UPROPERTY(EditAnywhere, Category = Test)
	TArray<AActor*> Actors;

	UPROPERTY(EditAnywhere, Category = Test)
	UTextureRenderTarget2D* Texture = nullptr;

	UPROPERTY(VisibleAnywhere, Instanced, Category = Test)
	UEveryPropertyComponent* Component;

	/** A translatable text has more to it than a file could keep. */
	UPROPERTY(EditAnywhere, Category = Test)
	FText Translated;

	/** Not shown to users, so no part of a level. */
	UPROPERTY()
	int32 Hidden = 0;

	UPROPERTY(EditAnywhere, Transient, Category = Test)
	int32 Passing = 0;
};
