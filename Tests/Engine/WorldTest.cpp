// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "Engine/TextureRenderTarget2D.h"
#include "TestActors.h"
#include "TestWorld.h"
#include "UObject/Package.h"
#include "UObject/WeakObjectPtrTemplates.h"

namespace
{
	FString NameOf(const UObject* Object)
	{
		return Object ? Object->GetName() : FString("null");
	}
}

TEST(UWorld, BeginsWithoutActorsAndWithoutChangesToSave)
{
	const FTestWorld World;
	EXPECT_EQ(World->PersistentLevel->Actors.Num(), 0);
	EXPECT_FALSE(World->GetOutermost()->IsDirty());
	EXPECT_EQ(World->WorldType, EWorldType::Editor);
}

TEST(UWorld, LiesInAPackageOfItsOwn)
{
	const FTestWorld First;
	const FTestWorld Second;
	EXPECT_NE(First->GetOutermost(), Second->GetOutermost());
	EXPECT_NE(First->GetOutermost(), GetTransientPackage());
}

TEST(UWorld, SurvivesACollectionWithItsActors)
{
	const FTestWorld World;
	const TWeakObjectPtr<AActor> Actor = World->SpawnActor(AActor::StaticClass());
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_TRUE(Actor.IsValid());
}

TEST(UWorld, IsGoneOnceDestroyedWithAllThatIsInIt)
{
	UWorld* World = UWorld::CreateWorld(EWorldType::Editor, true);
	const TWeakObjectPtr<UWorld> WeakWorld = World;
	const TWeakObjectPtr<AActor> WeakActor = World->SpawnActor(ATestCaptureActor::StaticClass());
	World->DestroyWorld(true);
	EXPECT_FALSE(WeakWorld.IsValid());
	EXPECT_FALSE(WeakActor.IsValid());
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_EQ(WeakWorld.Get(true), nullptr);
	EXPECT_EQ(WeakActor.Get(true), nullptr);
}

TEST(UWorld, IsTheWorldOfWhatIsInIt)
{
	const FTestWorld World;
	const ATestCaptureActor* Actor = World->SpawnActor<ATestCaptureActor>();
	EXPECT_EQ(World->GetWorld(), World.Get());
	EXPECT_EQ(World->PersistentLevel->GetWorld(), World.Get());
	EXPECT_EQ(Actor->GetWorld(), World.Get());
	EXPECT_EQ(Actor->Capture->GetWorld(), World.Get());
}

TEST(UWorld, NamesActorsByClassAndNumber)
{
	const FTestWorld World;
	EXPECT_TRUE(NameOf(World->SpawnActor(ATestPlacedActor::StaticClass())).Equals(TEXT("TestPlacedActor_0")));
	EXPECT_TRUE(NameOf(World->SpawnActor(ATestCaptureActor::StaticClass())).Equals(TEXT("TestCaptureActor_0")));
	EXPECT_TRUE(NameOf(World->SpawnActor(ATestPlacedActor::StaticClass())).Equals(TEXT("TestPlacedActor_1")));
}

TEST(UWorld, SpawnsIntoTheLevelInOrder)
{
	const FTestWorld World;
	AActor* First = World->SpawnActor(AActor::StaticClass());
	AActor* Second = World->SpawnActor(ATestPlacedActor::StaticClass());
	EXPECT_EQ(World->PersistentLevel->Actors, (TArray<AActor*>{First, Second}));
	EXPECT_EQ(First->GetLevel(), World->PersistentLevel);
}

TEST(UWorld, SpawnsActorsThatCanBeUndone)
{
	const FTestWorld World;
	EXPECT_TRUE(World->SpawnActor(AActor::StaticClass())->HasAnyFlags(RF_Transactional));
}

TEST(UWorld, SpawnsAtTheGivenPlaceOrAtZero)
{
	const FTestWorld World;
	const FVector Location(1.0f, 2.0f, 3.0f);
	const FRotator Rotation(10.0f, 20.0f, 30.0f);
	const AActor* Placed = World->SpawnActor(ATestPlacedActor::StaticClass(), &Location, &Rotation);
	EXPECT_EQ(Placed->GetActorLocation(), Location);
	EXPECT_EQ(Placed->GetActorRotation(), Rotation);
	const AActor* AtZero = World->SpawnActor(ATestPlacedActor::StaticClass());
	EXPECT_EQ(AtZero->GetActorLocation(), FVector::ZeroVector);
	EXPECT_EQ(AtZero->GetActorRotation(), FRotator::ZeroRotator);
}

TEST(UWorld, SpawnsInTheTypeThatIsAskedFor)
{
	const FTestWorld World;
	const ATestPlacedActor* Actor = World->SpawnActor<ATestPlacedActor>(FVector(1.0f, 0.0f, 0.0f), FRotator());
	ASSERT_NE(Actor, nullptr);
	EXPECT_EQ(Actor->GetClass(), ATestPlacedActor::StaticClass());
	EXPECT_EQ(Actor->GetActorLocation(), FVector(1.0f, 0.0f, 0.0f));
}

TEST(UWorld, LeavesItToTheSpawnerToFlagThePackage)
{
	const FTestWorld World;
	World->SpawnActor(AActor::StaticClass());
	EXPECT_FALSE(World->GetOutermost()->IsDirty());
	World->MarkPackageDirty();
	EXPECT_TRUE(World->GetOutermost()->IsDirty());
}

TEST(UWorld, SpawnsNothingOfNoAnAbstractOrAForeignClass)
{
	const FTestWorld World;
	EXPECT_EQ(World->SpawnActor(static_cast<UClass*>(nullptr)), nullptr);
	EXPECT_EQ(World->SpawnActor(ATestAbstractActor::StaticClass()), nullptr);
	EXPECT_EQ(World->SpawnActor(UTextureRenderTarget2D::StaticClass()), nullptr);
	EXPECT_EQ(World->PersistentLevel->Actors.Num(), 0);
}

TEST(UWorld, SpawnsUnderAGivenName)
{
	const FTestWorld World;
	FActorSpawnParameters Parameters;
	Parameters.Name = FName("Camera");
	EXPECT_TRUE(NameOf(World->SpawnActor<AActor>(Parameters)).Equals(TEXT("Camera")));
}

TEST(UWorld, SpawnsNothingUnderATakenNameWhereThatIsAllowed)
{
	const FTestWorld World;
	FActorSpawnParameters Parameters;
	Parameters.Name = FName("Camera");
	Parameters.NameMode = FActorSpawnParameters::ESpawnActorNameMode::Required_ReturnNull;
	ASSERT_NE(World->SpawnActor<AActor>(Parameters), nullptr);
	Parameters.Name = FName("camera");
	EXPECT_EQ(World->SpawnActor<ATestPlacedActor>(Parameters), nullptr);
	EXPECT_EQ(World->PersistentLevel->Actors.Num(), 1);
}

TEST(UWorldDeathTest, EndsTheProgramOverATakenNameByDefault)
{
	const FTestWorld World;
	FActorSpawnParameters Parameters;
	Parameters.Name = FName("Camera");
	World->SpawnActor<AActor>(Parameters);
	EXPECT_EXIT(World->SpawnActor<AActor>(Parameters), ::testing::ExitedWithCode(3), "name 'Camera': it is taken");
}

TEST(UWorld, DestroysAnActorOnce)
{
	const FTestWorld World;
	AActor* Actor = World->SpawnActor(AActor::StaticClass());
	EXPECT_TRUE(World->DestroyActor(Actor));
	EXPECT_TRUE(Actor->IsPendingKill());
	EXPECT_FALSE(World->DestroyActor(Actor));
}

TEST(UWorld, KeepsTheOthersInPlaceWhenOneIsDestroyed)
{
	const FTestWorld World;
	AActor* First = World->SpawnActor(AActor::StaticClass());
	AActor* Second = World->SpawnActor(AActor::StaticClass());
	World->DestroyActor(First);
	EXPECT_EQ(World->PersistentLevel->Actors, (TArray<AActor*>{nullptr, Second}));
}

TEST(UWorld, LeavesTheActorsOfOtherWorldsAlone)
{
	const FTestWorld World;
	const FTestWorld Other;
	AActor* Foreign = Other->SpawnActor(AActor::StaticClass());
	EXPECT_FALSE(World->DestroyActor(Foreign));
	EXPECT_FALSE(World->DestroyActor(nullptr));
	EXPECT_FALSE(Foreign->IsPendingKill());
}

TEST(UWorld, GivesADestroyedActorToTheCollector)
{
	const FTestWorld World;
	const TWeakObjectPtr<AActor> Actor = World->SpawnActor(ATestCaptureActor::StaticClass());
	World->DestroyActor(Actor.Get());
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_EQ(Actor.Get(true), nullptr);
}

TEST(ULevel, TellsThatItWasChanged)
{
	int32 Calls = 0;
	const FDelegateHandle Handle = ULevel::LevelDirtiedEvent.AddLambda([&Calls] { ++Calls; });
	ULevel::LevelDirtiedEvent.Broadcast();
	ULevel::LevelDirtiedEvent.Remove(Handle);
	ULevel::LevelDirtiedEvent.Broadcast();
	EXPECT_EQ(Calls, 1);
}
