// Copyright Corvane. MIT License.
#include "AsideFile.h"

#include "FileAccess.h"
#include "TemporaryFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace
{
	constexpr size_t BlockSize = size_t(64) * 1024;

	/** Tries one name after the other until one is not taken. */
	template <typename MakeType>
	bool MakeFirstFree(const std::string& Stem, const std::string& Ending, std::string& OutName, MakeType Make)
	{
		int Number = 0;
		do
		{
			OutName = Stem + std::to_string(++Number) + Ending;
			if (Make(OutName))
			{
				return true;
			}
		} while (errno == EEXIST);
		return false;
	}

	/** Whether the failure was not this file's, but that of the file system or its files' limits. */
	bool CanNotHaveTwoNames(int Failure)
	{
		return Failure == EPERM || Failure == EOPNOTSUPP || Failure == EXDEV || Failure == EMLINK;
	}

	bool CopyBytes(const FDescriptor& From, const FTemporaryFile& To)
	{
		std::string Block;
		for (;;)
		{
			Block.resize(BlockSize);
			const long Count = From.Read(Block.data(), Block.size());
			if (Count <= 0)
			{
				return Count == 0;
			}
			Block.resize(static_cast<size_t>(Count));
			if (!To.Write(Block))
			{
				return false;
			}
		}
	}

	bool KeepCopy(const std::string& Path, const std::string& Stem, const std::string& Ending, std::string& OutAside)
	{
		const FDescriptor File(::open(Path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
		struct stat Info
		{};
		if (!File.IsOpen() || ::fstat(File.Get(), &Info) != 0)
		{
			return false;
		}
		FTemporaryFile Copy(FFileAccess::GetFolder(Path));
		return Copy.IsOpen() && CopyBytes(File, Copy) && Copy.Finish(Info.st_mode & 07777U) &&
			MakeFirstFree(Stem, Ending, OutAside, [&Copy](const std::string& Aside) { return Copy.Place(Aside); });
	}
}

bool FAsideFile::Keep(
	const std::string& Path, const std::string& Stem, const std::string& Ending, std::string& OutAside)
{
	const auto Link = [&Path](const std::string& Aside)
	{ return ::linkat(AT_FDCWD, Path.c_str(), AT_FDCWD, Aside.c_str(), AT_SYMLINK_FOLLOW) == 0; };
	const bool bKept = MakeFirstFree(Stem, Ending, OutAside, Link) ||
		(CanNotHaveTwoNames(errno) && KeepCopy(Path, Stem, Ending, OutAside));
	if (bKept)
	{
		FFileAccess::FlushFolder(FFileAccess::GetFolder(Path));
	}
	return bKept;
}
