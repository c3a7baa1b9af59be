// Copyright Corvane. MIT License.
#include "SaveGameFolder.h"

#include "AsideFile.h"
#include "ErrorText.h"
#include "FileAccess.h"
#include "SlotFile.h"
#include "StandardOutput.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "EngineText.h"
#include "Kismet/GameplayStatics.h"

namespace
{
	const char* const SaveGames = "SaveGames";
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

	/** The name of the saved object's class, with which a payload begins: a length in characters, then those. */
	std::string_view GetClassName(const TArray<uint8>& Payload)
	{
		const std::string_view Bytes(
			reinterpret_cast<const char*>(Payload.GetData()), static_cast<size_t>(Payload.Num()));
		uint32 Length = 0;
		if (Bytes.size() < sizeof(Length))
		{
			return std::string_view();
		}
		std::memcpy(&Length, Bytes.data(), sizeof(Length));
		return Bytes.substr(sizeof(Length), size_t(Length) * sizeof(TCHAR));
	}

	/** Whether two payloads are of one class, as classes are looked up: in whatever letter case. */
	bool HaveOneClass(const TArray<uint8>& A, const TArray<uint8>& B)
	{
		const std::string_view NameA = GetClassName(A);
		const std::string_view NameB = GetClassName(B);
		if (NameA == NameB || NameA.size() != NameB.size())
		{
			return NameA == NameB;
		}
		std::u16string UnitsA(NameA.size() / sizeof(TCHAR), u'\0');
		std::u16string UnitsB = UnitsA;
		std::memcpy(UnitsA.data(), NameA.data(), UnitsA.size() * sizeof(TCHAR));
		std::memcpy(UnitsB.data(), NameB.data(), UnitsB.size() * sizeof(TCHAR));
		return FString(static_cast<int32>(UnitsA.size()), UnitsA.data()) ==
			FString(static_cast<int32>(UnitsB.size()), UnitsB.data());
	}

	/** @return whether Data may take the place of the slot's file, else why that has to be kept. */
	bool IsReplaceable(const std::string& File, const TArray<uint8>& Data, std::string& OutReason)
	{
		TArray<uint8> Old;
		if (!FSlotFile::Unpack(File, Old, OutReason))
		{
			return false;
		}
		if (!HaveOneClass(Old, Data))
		{
			OutReason = "a save game of another class";
			return false;
		}
		OutReason = "a save game with values that can't be read";
		return UGameplayStatics::LoadGameFromMemory(Old) != nullptr;
	}

	/** Gives the file a second name, so that it outlives its replacement. */
	bool KeepAside(const std::string& Path, const std::string& Reason, std::string& OutError)
	{
		const std::string Stem = Path.substr(0, Path.size() - std::strlen(Suffix)) + AsideMark;
		std::string Aside;
		if (!FAsideFile::Keep(Path, Stem, Suffix, Aside))
		{
			if (errno == ENOENT)
			{
				// Somebody else has taken it away.
				return true;
			}
			OutError = FErrorText::ForFile(Path, Reason + ", which can't be kept aside: " + std::strerror(errno));
			return false;
		}
		FStandardOutput::WriteError(FErrorText::ForFile(Path, Reason + "; kept as " + Aside));
		return true;
	}

	/** @return false, with one line, if what is in the slot's place must stay. */
	bool MakeRoom(const std::string& Path, const TArray<uint8>& Data, std::string& OutError)
	{
		std::string File;
		std::string Reason;
		std::string Failure;
		int Code = 0;
		if (FFileAccess::Read(Path, FSlotFile::MaxSize, File, Failure, &Code))
		{
			return IsReplaceable(File, Data, Reason) || KeepAside(Path, Reason, OutError);
		}
		if (Code == EMFILE || Code == ENFILE || Code == ENOMEM)
		{
			// That tells nothing of the slot, which may be a good one.
			OutError = Failure;
			return false;
		}
		return Code == ENOENT || KeepAside(Path, "could not be read", OutError);
	}

	/** @return whether the folder was missing and has been made; else, where it can't be made, one line. */
	bool MakeFolder(const std::string& Path, std::string& OutError)
	{
		struct stat Info
		{};
		if (::stat(Path.c_str(), &Info) == 0 || errno != ENOENT)
		{
			return false;
		}
		std::error_code Error;
		std::filesystem::create_directories(Path, Error);
		if (Error)
		{
			OutError = FErrorText::ForFile(Path, Error.message());
		}
		return !Error;
	}

	/** @return false, with one line, for a link that leads to nothing: no folder can be made in its place. */
	bool CheckLink(const std::string& Path, std::string& OutError)
	{
		struct stat Info
		{};
		if (::lstat(Path.c_str(), &Info) != 0 || !S_ISLNK(Info.st_mode) || ::stat(Path.c_str(), &Info) == 0)
		{
			return true;
		}
		OutError =
			FErrorText::ForFile(Path, errno == ENOENT ? "a symbolic link that leads to nothing" : std::strerror(errno));
		return false;
	}
}

FSaveGameFolder::FSaveGameFolder(const std::string& SavedDir)
	: Folder((std::filesystem::path(SavedDir) / SaveGames / "").string())
{}

bool FSaveGameFolder::Check(const std::string& SavedDir, std::string& OutError)
{
	const std::filesystem::path Whole = SavedDir;
	// Up to the first one that there is, in which the others will be made.
	for (std::filesystem::path Path = Whole; !Path.empty(); Path = Path.parent_path())
	{
		struct stat Info
		{};
		if (::stat(Path.c_str(), &Info) == 0)
		{
			if (!S_ISDIR(Info.st_mode))
			{
				OutError = FErrorText::ForFile(SavedDir, std::strerror(ENOTDIR));
				return false;
			}
			break;
		}
		if (errno != ENOENT)
		{
			OutError = FErrorText::ForFile(SavedDir, std::strerror(errno));
			return false;
		}
		if (!CheckLink(Path.string(), OutError))
		{
			return false;
		}
	}
	return CheckLink((Whole / SaveGames).string(), OutError);
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

bool FSaveGameFolder::Save(const TCHAR* Name, const TArray<uint8>& Data, std::string& OutError)
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
	RemoveLeftOver(Path);
	std::string NoRoom;
	const auto Write = [&]()
	{
		// As late as can be, so that a save that fails leaves nothing aside.
		return FFileAccess::Replace(Path, File, OutError, [&]() { return MakeRoom(Path, Data, NoRoom); });
	};
	// Mostly the folder is there.
	const bool bSaved = Write() || (MakeFolder(Folder, OutError) && Write());
	OutError += NoRoom;
	return bSaved;
}

void FSaveGameFolder::RemoveLeftOver(const std::string& Path)
{
	// Looking through a folder takes time, and processes are killed seldom.
	constexpr std::chrono::hours Pause(1);
	const auto Now = std::chrono::steady_clock::now();
	if (Now >= NextRemoval)
	{
		FFileAccess::RemoveLeftOver(Path);
		NextRemoval = Now + Pause;
	}
}

bool FSaveGameFolder::Load(const TCHAR* Name, TArray<uint8>& OutData, std::string& OutError) const
{
	std::string Path;
	std::string File;
	std::string Reason;
	int Code = 0;
	if (!FindPath(Name, Path, Reason))
	{
		return false;
	}
	if (!FFileAccess::Read(Path, FSlotFile::MaxSize, File, Reason, &Code))
	{
		// That no game was saved yet is no failure to tell of.
		OutError = Code == ENOENT ? std::string() : Reason;
		return false;
	}
	if (!FSlotFile::Unpack(File, OutData, Reason))
	{
		OutError = FErrorText::ForFile(Path, Reason);
		return false;
	}
	return true;
}
