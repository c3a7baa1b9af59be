// Copyright Corvane. MIT License.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <vector>

#include "Kismet/GameplayStatics.h"
#include "TestActors.h"
#include "TestWorld.h"

namespace
{
	TArray<AActor*> Find(const UObject* Context, UClass* Class)
	{
		TArray<AActor*> Actors;
		UGameplayStatics::GetAllActorsOfClass(Context, Class, Actors);
		return Actors;
	}
}

TEST(UGameplayStatics, EmptiesTheListFirst)
{
	const FTestWorld World;
	TArray<AActor*> Actors{World->SpawnActor<AActor>()};
	UGameplayStatics::GetAllActorsOfClass(World.Get(), ATestPlacedActor::StaticClass(), Actors);
	EXPECT_EQ(Actors.Num(), 0);
}

TEST(UGameplayStatics, FindsActorsOfDerivedClassesInTheOrderOfSpawning)
{
	const FTestWorld World;
	AActor* First = World->SpawnActor<ATestCaptureActor>();
	World->SpawnActor<AActor>();
	AActor* Second = World->SpawnActor<ATestPlacedActor>();
	EXPECT_EQ(Find(World.Get(), ATestPlacedActor::StaticClass()), (TArray<AActor*>{First, Second}));
}

TEST(UGameplayStatics, TakesAnyObjectOfTheWorld)
{
	const FTestWorld World;
	ATestCaptureActor* Actor = World->SpawnActor<ATestCaptureActor>();
	EXPECT_EQ(Find(Actor->Capture, AActor::StaticClass()), TArray<AActor*>{Actor});
}

TEST(UGameplayStatics, StaysWithinOneWorld)
{
	const FTestWorld World;
	const FTestWorld Other;
	Other->SpawnActor<AActor>();
	EXPECT_EQ(Find(World.Get(), AActor::StaticClass()).Num(), 0);
}

TEST(UGameplayStatics, FindsNothingWithoutWorldOrClass)
{
	const FTestWorld World;
	TArray<AActor*> Actors{World->SpawnActor<AActor>()};
	UGameplayStatics::GetAllActorsOfClass(nullptr, AActor::StaticClass(), Actors);
	EXPECT_EQ(Actors.Num(), 0);
	EXPECT_EQ(Find(World.Get(), nullptr).Num(), 0);
	EXPECT_EQ(Find(GetDefault<AActor>(), AActor::StaticClass()).Num(), 0);
}

// The world against a plain list: whatever is spawned, destroyed and collected, the same actors are found in the same
// order.
RC_GTEST_PROP(UGameplayStatics, FindsWhatIsLeftOfWhatWasSpawned, ())
{
	const FTestWorld World;
	UClass* const Classes[] = {
		AActor::StaticClass(), ATestPlacedActor::StaticClass(), ATestCaptureActor::StaticClass()};
	std::vector<std::pair<AActor*, int>> Model;
	for (const int Step : *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 6)))
	{
		if (Step < 3)
		{
			Model.emplace_back(World->SpawnActor(Classes[Step]), Step);
		}
		else if (Step == 3)
		{
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		}
		else if (!Model.empty())
		{
			const auto Victim = Model.begin() + *rc::gen::inRange<int>(0, static_cast<int>(Model.size()));
			RC_ASSERT(World->DestroyActor(Victim->first));
			Model.erase(Victim);
		}
	}
	for (int Class = 0; Class < 3; ++Class)
	{
		TArray<AActor*> Expected;
		for (const auto& Entry : Model)
		{
			if (Entry.second >= Class)
			{
				Expected.Add(Entry.first);
			}
		}
		RC_ASSERT(Find(World.Get(), Classes[Class]) == Expected);
	}
}
