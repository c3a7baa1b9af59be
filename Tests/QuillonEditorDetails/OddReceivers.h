// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

#include "OddReceivers.generated.h"

/** Receivers as a careless change of the runtime module would make them. */
USTRUCT()
struct FReceiverWithoutName
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = Test)
	bool UseFirstAvailableSender = true;

	UPROPERTY(EditAnywhere, Category = Test)
	bool Active = true;

	UPROPERTY(EditAnywhere, Category = Test)
	UObject* RenderTarget = nullptr;
};

USTRUCT()
struct FReceiverWithoutActive
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = Test)
	FString Name;

	UPROPERTY(EditAnywhere, Category = Test)
	bool UseFirstAvailableSender = true;

	UPROPERTY(EditAnywhere, Category = Test)
	UObject* RenderTarget = nullptr;
};

USTRUCT()
struct FReceiverWithoutTarget
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = Test)
	FString Name;

	UPROPERTY(EditAnywhere, Category = Test)
	bool UseFirstAvailableSender = true;

	UPROPERTY(EditAnywhere, Category = Test)
	bool Active = true;
};

UCLASS()
class UOddReceivers : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = Test)
	FReceiverWithoutName WithoutName;

	UPROPERTY(EditAnywhere, Category = Test)
	FReceiverWithoutActive WithoutActive;

	UPROPERTY(EditAnywhere, Category = Test)
	FReceiverWithoutTarget WithoutTarget;
};
