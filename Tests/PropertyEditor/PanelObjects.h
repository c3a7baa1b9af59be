// Copyright Corvane. MIT License.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "CoreMinimal.h"
#include "UObject/UnrealType.h"

#include "PanelObjects.generated.h"

USTRUCT()
struct FPanelPoint
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = Point)
	int32 X = 7;

	UPROPERTY(EditAnywhere, Category = Point)
	FString Label;

	/** Not for panels. */
	UPROPERTY()
	int32 Secret = 0;
};

/** Structures in a structure, by themselves and as elements. */
USTRUCT()
struct FPanelLine
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = Line)
	FPanelPoint From;

	UPROPERTY(EditAnywhere, Category = Line)
	TArray<FPanelPoint> Between;

	UPROPERTY(EditAnywhere, AdvancedDisplay, Category = Line)
	float Width = 1.5f;
};

/** Belongs to its owner. */
UCLASS(DefaultToInstanced)
class UPanelPart : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = Part)
	float Strength = 0.5f;
};

/** Tells what it hears of edits. */
UCLASS()
class UPanelObject : public UObject
{
	GENERATED_BODY()

public:
	virtual void PreEditChange(FProperty* PropertyAboutToChange) override;
	virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;

	/** What all objects heard, in order, since a test began. */
	static std::vector<std::string> Heard;
	/** Called, unless empty, whenever an object hears something. */
	static std::function<void(UPanelObject&)> OnHeard;

	UPROPERTY(EditAnywhere, Category = Simple)
	bool bShown = true;

	UPROPERTY(EditAnywhere, Category = Simple)
	int32 Count = 3;

	UPROPERTY(EditAnywhere, Category = Simple)
	float Ratio = 0.25f;

	UPROPERTY(EditAnywhere, AdvancedDisplay, Category = Simple)
	int32 Depth = 0;

	UPROPERTY(EditAnywhere, Category = Simple)
	FString Text;

	UPROPERTY(EditAnywhere, Category = Simple)
	FName Word;

	UPROPERTY(EditAnywhere, Category = Simple)
	FText Title;

	UPROPERTY(EditAnywhere, Category = Simple)
	UPanelObject* Partner = nullptr;

	UPROPERTY(EditAnywhere, Category = "More lists", meta = (DisplayName = "How many?"))
	TArray<int32> Numbers;

	UPROPERTY(EditAnywhere, Category = "More lists")
	TArray<FPanelPoint> Points;

	UPROPERTY(EditAnywhere, Category = Shapes)
	FPanelLine Line;

	UPROPERTY(VisibleAnywhere, Category = Shapes)
	FPanelPoint Fixed;

	UPROPERTY(VisibleAnywhere, Category = Shapes)
	bool bFixed = false;

	UPROPERTY(EditAnywhere, Category = Shapes)
	UPanelPart* Part = nullptr;

	/** Not for panels. */
	UPROPERTY()
	int32 Secret = 0;
};

UCLASS()
class UPanelChild : public UPanelObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = Own)
	int32 OwnCount = 1;

	UPROPERTY(EditAnywhere, Category = Simple)
	int32 Extra = 2;
};

UCLASS()
class UPanelSibling : public UPanelObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = Own)
	int32 SiblingCount = 1;
};
