// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

#include "TestTypes.generated.h"

class UTestNode;

/** A structure with references, by itself and as an element. */
USTRUCT(BlueprintType, meta = (DisplayName = "A point"))
struct FTestPoint
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = Place)
	int32 X = 7;

	UPROPERTY(EditAnywhere, Category = Place)
	FString Label = TEXT("origin");

	UPROPERTY()
	class UTestNode* Target = nullptr;

	/** Copied with the structure, though nothing knows of it. */
	int32 Hidden = 0;
};

USTRUCT()
struct FTestLabelledPoint : public FTestPoint
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = Place)
	FName Colour = TEXT("Red");
};

/** One property of every kind. */
UCLASS(BlueprintType, ClassGroup = (Testing), meta = (DisplayName = "Everything", ShortTooltip = "All kinds"))
class UTestEverything : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Simple|Flags")
	bool bSwitch = true;
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = Simple)
	int32 Count = 3;
	UPROPERTY(EditAnywhere, Interp, Category = Simple, meta = (ClampMin = -1.5, UIMax = "4"))
	float Ratio = 0.5f;
	UPROPERTY(EditAnywhere, AdvancedDisplay, Category = Simple)
	FString Text = TEXT("text");
	UPROPERTY(EditAnywhere, Category = Simple)
	FName Name = TEXT("Name");
	UPROPERTY(EditAnywhere, Category = Simple)
	FText Shown;
	UPROPERTY(Transient)
	FVector Place = FVector(1.0f, 2.0f, 3.0f);
	UPROPERTY()
	FRotator Turn;
	UPROPERTY()
	FLinearColor Tint;
	UPROPERTY()
	FTestPoint Point;
	UPROPERTY()
	UTestNode* Node;
	UPROPERTY()
	TArray<int32> Numbers;
	UPROPERTY()
	TArray<FString> Strings;
	UPROPERTY()
	TArray<FTestPoint> Points;
	UPROPERTY()
	TArray<class UTestNode*> Nodes;
};

/** Nodes of graphs for the collector, which tell of their end. */
UCLASS()
class UTestNode : public UObject
{
	GENERATED_BODY()

public:
	virtual ~UTestNode();
	virtual void BeginDestroy() override;

	UPROPERTY()
	UTestNode* Next = nullptr;
	UPROPERTY()
	TArray<UTestNode*> Links;
	UPROPERTY()
	FTestPoint Held;
	UPROPERTY()
	TArray<FTestPoint> HeldMany;

	/** Not reflected: no reference in the collector's eyes. */
	UTestNode* Unseen = nullptr;

	static int32 NumDestroyed;
	/** How many could still be reached by a weak pointer when they were told of their end. */
	static int32 NumDyingButHeld;
	static TArray<FString> DestroyedNames;
};

/** Holds references that only AddReferencedObjects knows. */
UCLASS()
class UTestNativeHolder : public UObject
{
	GENERATED_BODY()

public:
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

	TArray<UTestNode*> Held;
};

/** A part that has a part. */
UCLASS(DefaultToInstanced)
class UTestPart : public UObject
{
	GENERATED_BODY()

public:
	UTestPart();
	virtual void PostInitProperties() override;

	UPROPERTY(EditAnywhere, Category = Part)
	int32 Size = 1;
	UPROPERTY()
	class UTestInnerPart* Inner;
	/** Size as PostInitProperties found it. */
	int32 SizeWhenReady = 0;
};

UCLASS()
class UTestDerivedPart : public UTestPart
{
	GENERATED_BODY()
};

UCLASS()
class UTestInnerPart : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY()
	UObject* Whole = nullptr;
	UPROPERTY()
	int32 Depth = 0;
};

/** Made of parts, one of them known by two names. */
UCLASS()
class UTestOwner : public UObject
{
	GENERATED_BODY()

public:
	UTestOwner();

	UPROPERTY(VisibleAnywhere, Instanced, Category = Parts)
	UTestPart* Part;
	UPROPERTY()
	UTestPart* SamePart;
	UPROPERTY()
	TArray<UTestPart*> AllParts;
	UPROPERTY()
	UTestPart* Spare = nullptr;
	UPROPERTY()
	UObject* Shared = nullptr;

	UTestPart* GetSecret() const { return Secret; }

private:
	UPROPERTY()
	UTestPart* Secret;
};

UCLASS()
class UTestDerivedOwner : public UTestOwner
{
	GENERATED_BODY()

public:
	UTestDerivedOwner();

	UPROPERTY()
	int32 Extra = 11;
};

UCLASS(Abstract)
class UTestAbstract : public UObject
{
	GENERATED_BODY()
};

/** Breaks the rule against objects without a name within constructors. */
UCLASS()
class UTestHasty : public UObject
{
	GENERATED_BODY()

public:
	UTestHasty();
	static bool bMisbehave;
};

/** Written by HeaderTool. */
extern "C" void RegisterReflection_CoreUObjectTests();
