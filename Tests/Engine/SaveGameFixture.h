// Copyright Corvane. MIT License.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "Kismet/GameplayStatics.h"
#include "SaveGameBytes.h"
#include "Templates/Casts.h"
#include "TestSaveGames.h"

/** Saved objects for one test, collected at its end. */
class FSaveGameFixture : public ::testing::Test
{
protected:
	/** Makes the classes known, as a program does for its modules. */
	FSaveGameFixture();
	virtual ~FSaveGameFixture() override;

	template <class T>
	static T* Make()
	{
		return static_cast<T*>(UGameplayStatics::CreateSaveGameObject(T::StaticClass()));
	}

	/** One value of each kind that differs from the default. */
	static UTestSaveGame1* MakeSample();

	static TArray<uint8> Save(USaveGame* Object);

	/** @return null for bytes that can't be read, and for an object of another class. */
	template <class T>
	static T* Load(const TArray<uint8>& Bytes)
	{
		return Cast<T>(UGameplayStatics::LoadGameFromMemory(Bytes));
	}
	static UTestSaveGame1* Load1(const FSaveGameBytes& Bytes) { return Load<UTestSaveGame1>(Bytes.Get()); }

	/** The first differing property of two objects of one class, or nothing. */
	static std::string FindDifference(const UObject* A, const UObject* B);
};
