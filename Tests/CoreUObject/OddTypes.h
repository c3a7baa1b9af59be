// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"
#include "TestTypes.h"
#include "UObject/Object.h"
// #include "Nothing.h"
#include "OddTypes.generated.h" // the last one

/* UCLASS() class UNobody : public UObject { GENERATED_BODY() }; */

/** A text that looks like reflection is none. */
static const char* const OddRawText = R"odd(
UCLASS()
class UGhost : public UObject { // " ' {
)odd";

#define ODD_MACRO(Name) \
	int32 Name; /* UPROPERTY() */ \
	int32 Name##Twice

struct FOddPlain
{
	enum EKind
	{
		First
	};
	int32 Value{1};
};

// clang-format off
USTRUCT( ) struct FOddTight { GENERATED_BODY() UPROPERTY() int32 A{ 1 }; private: UPROPERTY()int32 B=2; };
// clang-format on

// clang-format off
/** Every spelling that the tool accepts, as people write them. */
UCLASS(
	blueprinttype, // in any case
	HideCategories = (Object, "Two Words"),
	Placeable)
class AOddActor final
	: public UObject
{
	GENERATED_BODY()

public:
	AOddActor() : First({1, 2}), OddQuote('"') {}

	// UPROPERTY() int32 Commented;
	/* UPROPERTY()
	   int32 CommentedToo; */
	UPROPERTY(editanywhere, Category = "Quotes \"and\" \\ {braces}; // no comment", meta = (Tip = "a" " b", Bare))
	struct FTestPoint Elaborated;

	UPROPERTY()
	TArray<int32> First;

	UPROPERTY()
	TArray<struct FTestPoint> Braced = {FTestPoint(), FTestPoint{}};

	UPROPERTY() class UTestNode* Pointer = nullptr; UPROPERTY()float Ratio=1.0e-3f;

	UPROPERTY()
	FString Tricky = FString(TEXT("; } { UPROPERTY() \" ")) + (true ? TEXT(":") : TEXT(","));

	UFUNCTION(BlueprintCallable, Category = Odd)
	static int32 Twice(int32 Value = 2, const TArray<FString>& Names = {});

	UFUNCTION(BlueprintPure, Category = Odd)
	FORCEINLINE int32 Inlined() const { if (First.Num() > 1) { return 2; } return 1; }

	virtual void Unreflected() { struct { int32 X; } Local = {1}; (void)Local; }

	char OddQuote;
	int32 Separated = 1'000;
	ODD_MACRO(Made);

#if 1
	int32 Conditional = 1;
#endif

	int32 GetHidden() const { return Hidden; }

protected:
	UPROPERTY(BlueprintReadOnly)
	int32 Protected = 5;

private:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Odd, meta = (AllowPrivateAccess = "true"))
	int32 Hidden = 6;
};
// clang-format on
