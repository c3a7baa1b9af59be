// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "Components/SceneCaptureComponent2D.h"
#include "Engine/TextureRenderTarget2D.h"
#include "GameFramework/SaveGame.h"
#include "Kismet/GameplayStatics.h"
#include "UObject/UnrealType.h"

TEST(FEngineShowFlagsSetting, EqualsAnotherWithTheNameInOtherLetterCase)
{
	FEngineShowFlagsSetting A;
	A.ShowFlagName = TEXT("Fog");
	A.Enabled = true;
	FEngineShowFlagsSetting B;
	B.ShowFlagName = TEXT("FOG");
	B.Enabled = true;
	EXPECT_TRUE(A == B);
}

TEST(FEngineShowFlagsSetting, DiffersByNameAndByState)
{
	FEngineShowFlagsSetting A;
	A.ShowFlagName = TEXT("Fog");
	FEngineShowFlagsSetting B = A;
	B.Enabled = true;
	EXPECT_FALSE(A == B);
	B = A;
	B.ShowFlagName = TEXT("Bloom");
	EXPECT_FALSE(A == B);
}

TEST(FEngineShowFlagsSetting, IsSwitchedOffFirst)
{
	EXPECT_FALSE(FEngineShowFlagsSetting().Enabled);
}

TEST(USceneCaptureComponent, ReflectsItsShowFlagsAsEditableArray)
{
	const FProperty* Property = USceneCaptureComponent2D::StaticClass()->FindPropertyByName(FName("ShowFlagSettings"));
	ASSERT_NE(CastField<FArrayProperty>(Property), nullptr);
	EXPECT_TRUE(Property->HasAnyPropertyFlags(CPF_Edit));
	EXPECT_TRUE(Property->GetMetaData(TEXT("Category")).Equals(TEXT("SceneCapture")));
}

TEST(USceneCaptureComponent2D, ReflectsItsTarget)
{
	const FProperty* Property = USceneCaptureComponent2D::StaticClass()->FindPropertyByName(FName("TextureTarget"));
	const FObjectProperty* ObjectProperty = CastField<FObjectProperty>(Property);
	ASSERT_NE(ObjectProperty, nullptr);
	EXPECT_EQ(ObjectProperty->PropertyClass, UTextureRenderTarget2D::StaticClass());
	EXPECT_TRUE(Property->HasAnyPropertyFlags(CPF_Edit));
}

TEST(USceneCaptureComponent2D, KeepsItsTargetFromTheCollector)
{
	USceneCaptureComponent2D* Component = NewObject<USceneCaptureComponent2D>();
	Component->AddToRoot();
	Component->TextureTarget = NewObject<UTextureRenderTarget2D>();
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_TRUE(IsValid(Component->TextureTarget));
	EXPECT_EQ(Component->TextureTarget->SizeX, 500);
	Component->RemoveFromRoot();
}

TEST(UTextureRenderTarget2D, HasTheDefaultsOfItsClass)
{
	const UTextureRenderTarget2D* Target = NewObject<UTextureRenderTarget2D>();
	EXPECT_EQ(Target->SizeX, 500);
	EXPECT_EQ(Target->SizeY, 500);
	EXPECT_EQ(Target->ClearColor, FLinearColor(0.0f, 0.0f, 0.0f, 1.0f));
}

TEST(UTextureRenderTarget2D, IsATexture)
{
	EXPECT_TRUE(UTextureRenderTarget2D::StaticClass()->IsChildOf(UTexture::StaticClass()));
	EXPECT_TRUE(UTexture::StaticClass()->HasAnyClassFlags(CLASS_Abstract));
	EXPECT_TRUE(UTextureRenderTarget::StaticClass()->HasAnyClassFlags(CLASS_Abstract));
}

TEST(USaveGame, IsForDerivedClassesOnly)
{
	EXPECT_TRUE(USaveGame::StaticClass()->HasAnyClassFlags(CLASS_Abstract));
}
