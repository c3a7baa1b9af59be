// Copyright Corvane. MIT License.
#include "TemporaryFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace
{
	constexpr std::string_view Prefix = ".quillon-";
	/** What makes the name one that nobody else has. */
	constexpr std::string_view Pattern = "XXXXXX";

	constexpr std::chrono::hours LongestUse(1);

	bool HasSuchName(const std::filesystem::path& Path)
	{
		const std::string Name = Path.filename().string();
		return Name.size() == Prefix.size() + Pattern.size() && Name.compare(0, Prefix.size(), Prefix) == 0;
	}

	bool IsLeftOver(const std::filesystem::directory_entry& Entry)
	{
		std::error_code Error;
		if (!HasSuchName(Entry.path()) || Entry.symlink_status(Error).type() != std::filesystem::file_type::regular)
		{
			return false;
		}
		const auto Written = Entry.last_write_time(Error);
		return !Error && Written < std::filesystem::file_time_type::clock::now() - LongestUse;
	}
}

FTemporaryFile::FTemporaryFile(const std::string& Folder) : Name(Folder)
{
	Name.append(Prefix).append(Pattern);
	File = FDescriptor(::mkostemp(Name.data(), O_CLOEXEC));
	if (!File.IsOpen())
	{
		Name.clear();
	}
}

FTemporaryFile::~FTemporaryFile()
{
	if (!Name.empty())
	{
		::unlink(Name.c_str());
	}
}

bool FTemporaryFile::Finish(mode_t Mode)
{
	return ::fchmod(File.Get(), Mode) == 0 && ::fsync(File.Get()) == 0 && File.Close();
}

bool FTemporaryFile::Replace(const std::string& Path)
{
	if (std::rename(Name.c_str(), Path.c_str()) != 0)
	{
		return false;
	}
	Name.clear();
	return true;
}

bool FTemporaryFile::Place(const std::string& Path)
{
	if (::renameat2(AT_FDCWD, Name.c_str(), AT_FDCWD, Path.c_str(), RENAME_NOREPLACE) == 0)
	{
		Name.clear();
		return true;
	}
	// Not every file system can do that, nor an old kernel. If a file can't have two names either, there is no way.
	return (errno == EINVAL || errno == ENOSYS) && ::link(Name.c_str(), Path.c_str()) == 0;
}

void FTemporaryFile::RemoveLeftOver(const std::string& Folder)
{
	std::error_code Error;
	for (std::filesystem::directory_iterator It(Folder, Error); It != std::filesystem::directory_iterator();
		 It.increment(Error))
	{
		if (IsLeftOver(*It))
		{
			std::filesystem::remove(It->path(), Error);
		}
	}
}
