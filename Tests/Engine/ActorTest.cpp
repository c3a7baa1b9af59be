// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "TestActors.h"
#include "TestWorld.h"
#include "UObject/Class.h"
#include "UObject/WeakObjectPtrTemplates.h"

TEST(AActor, KeepsItsAnglesAsTheyAreSet)
{
	const FTestWorld World;
	AActor* Actor = World->SpawnActor<ATestPlacedActor>();
	EXPECT_TRUE(Actor->SetActorRotation(FRotator(450.0f, -720.5f, 180.0f)));
	EXPECT_EQ(Actor->GetActorRotation(), FRotator(450.0f, -720.5f, 180.0f));
}

TEST(AActor, MovesWithItsRoot)
{
	const FTestWorld World;
	AActor* Actor = World->SpawnActor<ATestPlacedActor>();
	EXPECT_TRUE(Actor->SetActorLocation(FVector(1.0f, 2.0f, 3.0f)));
	EXPECT_EQ(Actor->GetActorLocation(), FVector(1.0f, 2.0f, 3.0f));
	EXPECT_EQ(Actor->GetRootComponent()->GetRelativeLocation(), FVector(1.0f, 2.0f, 3.0f));
}

TEST(AActor, StaysAtZeroWithoutRoot)
{
	const FTestWorld World;
	AActor* Actor = World->SpawnActor<AActor>();
	EXPECT_FALSE(Actor->SetActorLocation(FVector(1.0f, 2.0f, 3.0f)));
	EXPECT_FALSE(Actor->SetActorRotation(FRotator(1.0f, 2.0f, 3.0f)));
	EXPECT_EQ(Actor->GetActorLocation(), FVector::ZeroVector);
	EXPECT_EQ(Actor->GetActorRotation(), FRotator::ZeroRotator);
}

TEST(AActor, HasARootOfItsOwn)
{
	const FTestWorld World;
	AActor* First = World->SpawnActor<ATestPlacedActor>();
	AActor* Second = World->SpawnActor<ATestPlacedActor>();
	First->SetActorLocation(FVector(1.0f, 0.0f, 0.0f));
	EXPECT_EQ(Second->GetActorLocation(), FVector::ZeroVector);
	EXPECT_EQ(GetDefault<ATestPlacedActor>()->GetActorLocation(), FVector::ZeroVector);
}

TEST(AActor, ListsItsComponentsInTheOrderOfTheirMaking)
{
	const FTestWorld World;
	const ATestCaptureActor* Actor = World->SpawnActor<ATestCaptureActor>();
	TArray<UActorComponent*> Components;
	Actor->GetComponents(Components);
	ASSERT_EQ(Components.Num(), 3);
	EXPECT_EQ(Components[0], Actor->GetRootComponent());
	EXPECT_TRUE(Components[1]->GetName().Equals(TEXT("Loose")));
	EXPECT_EQ(Components[2], Actor->Capture);
	EXPECT_EQ(Components[1]->GetOwner(), Actor);
}

TEST(AActor, KeepsTheComponentsThatNobodyElseRefersTo)
{
	const FTestWorld World;
	const ATestCaptureActor* Actor = World->SpawnActor<ATestCaptureActor>();
	TArray<UActorComponent*> Components;
	Actor->GetComponents(Components);
	ASSERT_EQ(Components.Num(), 3);
	const TWeakObjectPtr<UActorComponent> Loose = Components[1];
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_TRUE(Loose.IsValid());
}

TEST(AActor, LeavesDestroyedComponentsOut)
{
	const FTestWorld World;
	const ATestCaptureActor* Actor = World->SpawnActor<ATestCaptureActor>();
	Actor->Capture->MarkPendingKill();
	TArray<UActorComponent*> Components;
	Actor->GetComponents(Components);
	EXPECT_EQ(Components.Num(), 2);
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	Actor->GetComponents(Components);
	EXPECT_EQ(Components.Num(), 2);
}

TEST(AActor, IsInNoWorldAsTemplate)
{
	EXPECT_EQ(GetDefault<ATestPlacedActor>()->GetWorld(), nullptr);
	EXPECT_EQ(GetDefault<ATestPlacedActor>()->GetLevel(), nullptr);
	EXPECT_EQ(GetDefault<ATestCaptureActor>()->Capture->GetWorld(), nullptr);
}
