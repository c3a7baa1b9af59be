// Copyright Corvane. MIT License.
#include <string>
#include <vector>

#include "Kismet/GameplayStatics.h"
#include "PlatformFeatures.h"
#include "SaveGameFixture.h"
#include "SaveGameSystem.h"

namespace
{
	/** Keeps what it is given, as a platform does. */
	class FMemorySaveGames : public ISaveGameSystem
	{
	public:
		FMemorySaveGames() { IPlatformFeaturesModule::Get().SetSaveGameSystem(this); }
		virtual ~FMemorySaveGames() override { IPlatformFeaturesModule::Get().SetSaveGameSystem(nullptr); }

		virtual bool DoesSaveGameExist(const TCHAR*, const int32) override { return Saved.Num() > 0; }
		virtual bool SaveGame(
			bool bAttemptToUseUI, const TCHAR* Name, const int32 UserIndex, const TArray<uint8>& Data) override
		{
			Note(TEXT("save"), bAttemptToUseUI, Name, UserIndex);
			Saved = Data;
			return bWorks;
		}
		virtual bool LoadGame(
			bool bAttemptToUseUI, const TCHAR* Name, const int32 UserIndex, TArray<uint8>& Data) override
		{
			Note(TEXT("load"), bAttemptToUseUI, Name, UserIndex);
			Data = Saved;
			return bWorks;
		}

		bool bWorks = true;
		TArray<uint8> Saved;
		std::vector<std::string> Calls;

	private:
		void Note(const TCHAR* What, bool bUI, const TCHAR* Name, int32 UserIndex)
		{
			Calls.emplace_back(TCHAR_TO_UTF8(
				FString::Printf(TEXT("%s %s %d%s"), What, Name, UserIndex, bUI ? TEXT(" UI") : TEXT(""))));
		}
	};
}

class FSaveGameSlot : public FSaveGameFixture
{};

TEST_F(FSaveGameSlot, GoesNowhereWithoutAPlatformThatKeepsIt)
{
	EXPECT_EQ(IPlatformFeaturesModule::Get().GetSaveGameSystem(), nullptr);
	EXPECT_FALSE(UGameplayStatics::SaveGameToSlot(MakeSample(), TEXT("Slot"), 0));
	EXPECT_EQ(UGameplayStatics::LoadGameFromSlot(TEXT("Slot"), 0), nullptr);
}

TEST_F(FSaveGameSlot, GoesToTheInstalledPlatformAndComesBack)
{
	FMemorySaveGames Platform;
	EXPECT_EQ(IPlatformFeaturesModule::Get().GetSaveGameSystem(), &Platform);
	UTestSaveGame1* const Object = MakeSample();
	EXPECT_TRUE(UGameplayStatics::SaveGameToSlot(Object, TEXT("Slot"), 3));
	const USaveGame* const Loaded = UGameplayStatics::LoadGameFromSlot(TEXT("Other"), 4);
	ASSERT_NE(Loaded, nullptr);
	EXPECT_EQ(FindDifference(Loaded, Object), "");
	EXPECT_EQ(Platform.Calls, (std::vector<std::string>{"save Slot 3", "load Other 4"}));
}

TEST_F(FSaveGameSlot, TellsWhenThePlatformFails)
{
	FMemorySaveGames Platform;
	ASSERT_TRUE(UGameplayStatics::SaveGameToSlot(MakeSample(), TEXT("Slot"), 0));
	Platform.bWorks = false;
	EXPECT_FALSE(UGameplayStatics::SaveGameToSlot(MakeSample(), TEXT("Slot"), 0));
	EXPECT_EQ(UGameplayStatics::LoadGameFromSlot(TEXT("Slot"), 0), nullptr);
	Platform.bWorks = true;
	Platform.Saved.Empty();
	EXPECT_EQ(UGameplayStatics::LoadGameFromSlot(TEXT("Slot"), 0), nullptr);
}

TEST_F(FSaveGameSlot, AsksThePlatformForNothingThatCanNotBe)
{
	FMemorySaveGames Platform;
	EXPECT_FALSE(UGameplayStatics::SaveGameToSlot(MakeSample(), FString(), 0));
	EXPECT_FALSE(UGameplayStatics::SaveGameToSlot(nullptr, TEXT("Slot"), 0));
	EXPECT_EQ(UGameplayStatics::LoadGameFromSlot(FString(), 0), nullptr);
	EXPECT_TRUE(Platform.Calls.empty());
}
