// Copyright Corvane. MIT License.
#include "FileAccess.h"

#include "Descriptor.h"
#include "ErrorText.h"
#include "TemporaryFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>

namespace
{
	bool Fail(const std::string& Path, const std::string& Reason, std::string& OutError)
	{
		OutError = FErrorText::ForFile(Path, Reason);
		return false;
	}

	bool FailWithErrno(const std::string& Path, std::string& OutError)
	{
		return Fail(Path, std::strerror(errno), OutError);
	}

	bool ReadAll(const FDescriptor& File, size_t Size, size_t MaxSize, std::string& OutBytes)
	{
		// A small file in one piece, and its end with it.
		std::string Buffer(std::min(Size + 1, size_t(64) * 1024), '\0');
		bool bMore = true;
		// One byte more than allowed tells a file that grew since it was measured.
		while (bMore && OutBytes.size() <= MaxSize)
		{
			const long Count = File.Read(Buffer.data(), Buffer.size());
			if (Count < 0)
			{
				return false;
			}
			OutBytes.append(Buffer, 0, static_cast<size_t>(Count));
			bMore = Count > 0 && (OutBytes.size() < Size || static_cast<size_t>(Count) == Buffer.size());
		}
		errno = EFBIG;
		return OutBytes.size() <= MaxSize;
	}

	/** The access rights that a newly created file gets. */
	mode_t GetUsualMode()
	{
		const mode_t Mask = ::umask(0);
		::umask(Mask);
		return 0666U & ~Mask;
	}

	/** Where a symbolic link leads that leads to nothing, over other links. */
	std::string FollowToNothing(const std::string& Link)
	{
		// As many as the system itself follows, in case that they change meanwhile.
		constexpr int MaxLinks = 40;
		std::filesystem::path Target = Link;
		std::error_code Error;
		for (int Links = 0; Links < MaxLinks && std::filesystem::is_symlink(Target, Error); ++Links)
		{
			Target = Target.parent_path() / std::filesystem::read_symlink(Target, Error);
		}
		return Target.string();
	}

	/**
	 * Finds the file that is meant: behind symbolic links, so that a link stays a link.
	 * @param OutInfo all zero for a file that is still to be made.
	 * @return false, with errno, if none can be.
	 */
	bool FindTarget(const std::string& Path, std::string& OutTarget, struct stat& OutInfo)
	{
		OutTarget = Path;
		OutInfo = {};
		if (::lstat(Path.c_str(), &OutInfo) != 0)
		{
			// Anything else (a file where a folder should be, no right to look) is not a missing file.
			return errno == ENOENT;
		}
		if (!S_ISLNK(OutInfo.st_mode))
		{
			// Links above it lead the temporary file to the same folder.
			return true;
		}
		OutInfo = {};
		if (::stat(Path.c_str(), &OutInfo) != 0)
		{
			if (errno != ENOENT)
			{
				return false;
			}
			OutTarget = FollowToNothing(Path);
			return true;
		}
		std::error_code Error;
		const std::filesystem::path Real = std::filesystem::canonical(Path, Error);
		OutTarget = Error ? Path : Real.string();
		return true;
	}

	/**
	 * @param Info of the file at Path, as FindTarget gives it.
	 * @param OutMode the access rights of the file that is replaced, or of a new one.
	 * @return false if something stands at Path that must not be replaced.
	 */
	bool MayReplace(const std::string& Path, const struct stat& Info, mode_t& OutMode, std::string& OutError)
	{
		if (Info.st_mode == 0)
		{
			OutMode = GetUsualMode();
			return true;
		}
		if (!S_ISREG(Info.st_mode))
		{
			return Fail(Path, S_ISDIR(Info.st_mode) ? std::strerror(EISDIR) : "not a regular file", OutError);
		}
		OutMode = Info.st_mode & 07777U;
		// Mostly the file is the user's own, and its rights tell at once.
		if (Info.st_uid == ::geteuid() && (Info.st_mode & S_IWUSR) != 0)
		{
			return true;
		}
		return ::access(Path.c_str(), W_OK) == 0 || FailWithErrno(Path, OutError);
	}
}

bool FFileAccess::Read(
	const std::string& Path, size_t MaxSize, std::string& OutBytes, std::string& OutError, int* OutCode)
{
	OutBytes.clear();
	const auto FailFor = [&Path, &OutError, OutCode](int Code, const std::string& Reason)
	{
		if (OutCode)
		{
			*OutCode = Code;
		}
		return Fail(Path, Reason, OutError);
	};
	// Without O_NONBLOCK a named pipe would wait for a writer before it can be refused.
	const FDescriptor File(::open(Path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
	struct stat Info
	{};
	if (!File.IsOpen() || ::fstat(File.Get(), &Info) != 0)
	{
		return FailFor(errno, std::strerror(errno));
	}
	if (!S_ISREG(Info.st_mode))
	{
		return FailFor(0, S_ISDIR(Info.st_mode) ? std::strerror(EISDIR) : "not a regular file");
	}
	if (static_cast<size_t>(Info.st_size) > MaxSize)
	{
		return FailFor(0, "larger than " + std::to_string(MaxSize >> 20U) + " MiB");
	}
	OutBytes.reserve(static_cast<size_t>(Info.st_size));
	return ReadAll(File, static_cast<size_t>(Info.st_size), MaxSize, OutBytes) || FailFor(errno, std::strerror(errno));
}

bool FFileAccess::Replace(
	const std::string& Path, const std::string& Bytes, std::string& OutError, const std::function<bool()>& BeforeRename)
{
	std::string Target;
	struct stat Info
	{};
	mode_t Mode = 0;
	if (!FindTarget(Path, Target, Info))
	{
		return FailWithErrno(Path, OutError);
	}
	if (!MayReplace(Path, Info, Mode, OutError))
	{
		return false;
	}
	const std::string Folder = GetFolder(Target);
	FTemporaryFile File(Folder);
	if (!File.IsOpen())
	{
		// Of a link to nothing it is the target's folder that is missing.
		return FailWithErrno(Target, OutError);
	}
	if (!File.Write(Bytes) || !File.Finish(Mode))
	{
		return FailWithErrno(Path, OutError);
	}
	if (BeforeRename && !BeforeRename())
	{
		return false;
	}
	if (!File.Replace(Target))
	{
		return FailWithErrno(Path, OutError);
	}
	FlushFolder(Folder);
	return true;
}

void FFileAccess::RemoveLeftOver(const std::string& Path)
{
	std::string Target;
	struct stat Info
	{};
	FTemporaryFile::RemoveLeftOver(GetFolder(Path));
	if (FindTarget(Path, Target, Info) && GetFolder(Target) != GetFolder(Path))
	{
		FTemporaryFile::RemoveLeftOver(GetFolder(Target));
	}
}

std::string FFileAccess::GetFolder(const std::string& Path)
{
	const size_t Slash = Path.rfind('/');
	return Slash == std::string::npos ? "./" : Path.substr(0, Slash + 1);
}

void FFileAccess::FlushFolder(const std::string& Folder)
{
	const FDescriptor Handle(::open(Folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
	if (Handle.IsOpen())
	{
		::fsync(Handle.Get());
	}
}
