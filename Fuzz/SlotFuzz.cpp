// Copyright Corvane. MIT License.
// Reads whatever bytes as a slot's file and as a saved object. What is read must be saved and read again as the same.
#include "SlotFile.h"
#include "SlotSample.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "GameFramework/SaveGame.h"
#include "Kismet/GameplayStatics.h"

extern "C" int LLVMFuzzerInitialize(int* ArgumentCount, char*** Arguments);
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* Data, size_t Size);

namespace
{
	void Require(bool bTrue, const char* What)
	{
		if (!bTrue)
		{
			std::fprintf(stderr, "%s\n", What);
			std::abort();
		}
	}

	TArray<uint8> Save(USaveGame* Object)
	{
		TArray<uint8> Bytes;
		Require(UGameplayStatics::SaveGameToMemory(Object, Bytes), "what was read can't be saved");
		return Bytes;
	}

	void ReadObject(const TArray<uint8>& Bytes)
	{
		if (USaveGame* const Object = UGameplayStatics::LoadGameFromMemory(Bytes))
		{
			const TArray<uint8> Saved = Save(Object);
			USaveGame* const Again = UGameplayStatics::LoadGameFromMemory(Saved);
			Require(Again != nullptr, "what was saved can't be read");
			Require(Save(Again) == Saved, "an object changes when it is saved and read");
		}
	}

	void ReadFile(const std::string& File)
	{
		TArray<uint8> Payload;
		std::string Reason;
		const bool bSound = FSlotFile::Unpack(File, Payload, Reason);
		Require(bSound == Reason.empty(), "a refused file without a reason");
		Require(!bSound || FSlotFile::Pack(Payload) == File, "two files hold the same");
		if (bSound)
		{
			ReadObject(Payload);
		}
	}

	/** Puts what the fuzzer begins with into a folder. */
	void WriteSeeds(const std::string& Folder)
	{
		const TArray<uint8> Payload = Save(FSlotSample::Make());
		std::ofstream Object(Folder + "/object", std::ios::binary);
		Object.write(reinterpret_cast<const char*>(Payload.GetData()), Payload.Num());
		std::ofstream File(Folder + "/file", std::ios::binary);
		File << FSlotFile::Pack(Payload);
		Require(Object.flush().good() && File.flush().good(), "the seeds can't be written");
	}
}

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
	FSlotSample::Make();
	if (const char* Folder = std::getenv("QUILLON_FUZZ_SEEDS"))
	{
		WriteSeeds(Folder);
	}
	return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* Data, size_t Size)
{
	ReadFile(std::string(reinterpret_cast<const char*>(Data), Size));
	ReadObject(TArray<uint8>(Data, static_cast<int32>(Size)));
	static int NumRuns = 0;
	if (++NumRuns % 100 == 0)
	{
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	}
	return 0;
}
