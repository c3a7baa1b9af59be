// Copyright Corvane. MIT License.
#include "SaveGameFolder.h"

#include "ErrorText.h"
#include "FileAccess.h"
#include "SlotFile.h"
#include "StandardOutput.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "EngineText.h"

namespace
{
	const char* const Suffix = ".sav";
	const char* const AsideMark = ".damaged-";
	/** In bytes. A file's name has at most 255, and has to hold the number of one that is kept aside. */
	constexpr size_t MaxName = 200;

	bool IsSlotName(const std::string& Name)
	{
		const auto IsHarmless = [](char Byte)
		{
			const auto Code = static_cast<unsigned char>(Byte);
			return Code >= 0x20U && Code != 0x7FU && Byte != '/' && Byte != '\\';
		};
		return !Name.empty() && Name.size() <= MaxName && Name.front() != '.' &&
			Name.find(AsideMark) == std::string::npos && std::all_of(Name.begin(), Name.end(), IsHarmless);
	}

	/** @return whether there is nothing at Path. */
	bool IsFree(const std::string& Path)
	{
		struct stat Info
		{};
		return ::stat(Path.c_str(), &Info) != 0 && errno == ENOENT;
	}

	/** The name of the saved object's class, with which a payload begins: a length in characters, then those. */
	std::string_view GetClassName(const TArray<uint8>& Payload)
	{
		const std::string_view Bytes(
			reinterpret_cast<const char*>(Payload.GetData()), static_cast<size_t>(Payload.Num()));
		uint32 Length = 0;
		if (Bytes.size() < sizeof(Length))
		{
			return Bytes;
		}
		std::memcpy(&Length, Bytes.data(), sizeof(Length));
		return Bytes.substr(0, sizeof(Length) + size_t(Length) * sizeof(TCHAR));
	}

	/** @return whether Data may take the place of the slot's file, else why that has to be kept. */
	bool IsReplaceable(const std::string& Path, const TArray<uint8>& Data, std::string& OutReason)
	{
		std::string File;
		TArray<uint8> Old;
		// Asked first: another editor may save at any moment, so that there is a slot which was missing before.
		if (IsFree(Path))
		{
			return true;
		}
		if (!FFileAccess::Read(Path, FSlotFile::MaxSize, File, OutReason))
		{
			OutReason = "could not be read";
			return false;
		}
		if (!FSlotFile::Unpack(File, Old, OutReason))
		{
			return false;
		}
		OutReason = "a save game of another class";
		return GetClassName(Old) == GetClassName(Data);
	}

	/** Gives the file a second name, so that it outlives its replacement; no file has that name yet. */
	bool KeepAside(const std::string& Path, const std::string& Reason, std::string& OutError)
	{
		const std::string Stem = Path.substr(0, Path.size() - std::strlen(Suffix)) + AsideMark;
		std::string Aside;
		int Number = 0;
		do
		{
			Aside = Stem + std::to_string(++Number) + Suffix;
			// What a symbolic link leads to is kept, as that is what will be replaced.
			if (::linkat(AT_FDCWD, Path.c_str(), AT_FDCWD, Aside.c_str(), AT_SYMLINK_FOLLOW) == 0)
			{
				FStandardOutput::WriteError(FErrorText::ForFile(Path, Reason + "; kept as " + Aside));
				return true;
			}
		} while (errno == EEXIST);
		OutError = FErrorText::ForFile(Path, Reason + ", which can't be kept aside: " + std::strerror(errno));
		return false;
	}
}

FSaveGameFolder::FSaveGameFolder(const std::string& SavedDir)
	: Folder((std::filesystem::path(SavedDir) / "SaveGames" / "").string())
{}

bool FSaveGameFolder::Check(const std::string& SavedDir, std::string& OutError)
{
	struct stat Info
	{};
	if (::stat(SavedDir.c_str(), &Info) == 0)
	{
		errno = ENOTDIR;
		if (S_ISDIR(Info.st_mode))
		{
			return true;
		}
	}
	if (errno == ENOENT)
	{
		return true;
	}
	OutError = FErrorText::ForFile(SavedDir, std::strerror(errno));
	return false;
}

FSimpleMulticastDelegate& FSaveGameFolder::OnSaved()
{
	static FSimpleMulticastDelegate Saved;
	return Saved;
}

bool FSaveGameFolder::DoesSaveGameExist(const TCHAR* Name, const int32)
{
	std::string Path;
	std::string Ignored;
	struct stat Info
	{};
	return FindPath(Name, Path, Ignored) && ::stat(Path.c_str(), &Info) == 0 && S_ISREG(Info.st_mode);
}

bool FSaveGameFolder::SaveGame(bool, const TCHAR* Name, const int32, const TArray<uint8>& Data)
{
	std::string Error;
	if (!Save(Name, Data, Error))
	{
		FStandardOutput::WriteError(Error);
		return false;
	}
	OnSaved().Broadcast();
	return true;
}

bool FSaveGameFolder::LoadGame(bool, const TCHAR* Name, const int32, TArray<uint8>& Data)
{
	Data.Empty();
	std::string Error;
	const bool bLoaded = Load(Name, Data, Error);
	if (!Error.empty())
	{
		FStandardOutput::WriteError(Error);
	}
	return bLoaded;
}

bool FSaveGameFolder::FindPath(const TCHAR* Name, std::string& OutPath, std::string& OutError) const
{
	std::string Bytes;
	if (!FEngineText::ToUtf8(FString(Name), Bytes) || !IsSlotName(Bytes))
	{
		OutError = FErrorText::ForFile(
			Folder, FErrorText::Quote(FEngineText::ForDisplay(FString(Name))) + " can't be the name of a save slot");
		return false;
	}
	OutPath = Folder + Bytes + Suffix;
	return true;
}

bool FSaveGameFolder::Save(const TCHAR* Name, const TArray<uint8>& Data, std::string& OutError) const
{
	std::string Path;
	if (!FindPath(Name, Path, OutError))
	{
		return false;
	}
	const std::string File = FSlotFile::Pack(Data);
	if (File.size() > FSlotFile::MaxSize)
	{
		OutError = FErrorText::ForFile(Path, "the save game is larger than 16 MiB");
		return false;
	}
	std::error_code Error;
	if (IsFree(Folder))
	{
		std::filesystem::create_directories(Folder, Error);
	}
	if (Error)
	{
		OutError = FErrorText::ForFile(Folder, Error.message());
		return false;
	}
	std::string Reason;
	std::string NotKept;
	// As late as can be, so that a save that fails leaves nothing aside.
	const auto BeforeRename = [&]() { return IsReplaceable(Path, Data, Reason) || KeepAside(Path, Reason, NotKept); };
	const bool bSaved = FFileAccess::Replace(Path, File, OutError, BeforeRename);
	OutError += NotKept;
	return bSaved;
}

bool FSaveGameFolder::Load(const TCHAR* Name, TArray<uint8>& OutData, std::string& OutError) const
{
	std::string Path;
	std::string File;
	std::string Ignored;
	// No game was saved yet: that is no failure to tell of.
	if (!FindPath(Name, Path, Ignored) || IsFree(Path))
	{
		return false;
	}
	std::string Reason;
	if (!FFileAccess::Read(Path, FSlotFile::MaxSize, File, OutError))
	{
		return false;
	}
	if (!FSlotFile::Unpack(File, OutData, Reason))
	{
		OutError = FErrorText::ForFile(Path, Reason);
		return false;
	}
	return true;
}
