// Copyright Corvane. MIT License.
#include "FileAccess.h"

#include "Descriptor.h"
#include "ErrorText.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
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
		// One byte more than allowed tells a file that grew since it was measured.
		while (OutBytes.size() <= MaxSize)
		{
			const long Count = File.Read(Buffer.data(), Buffer.size());
			if (Count <= 0)
			{
				return Count == 0;
			}
			OutBytes.append(Buffer, 0, static_cast<size_t>(Count));
		}
		errno = EFBIG;
		return false;
	}

	/** The access rights that a newly created file gets. */
	mode_t GetUsualMode()
	{
		const mode_t Mask = ::umask(0);
		::umask(Mask);
		return 0666U & ~Mask;
	}

	/** The file that is meant: behind symbolic links, so that a link stays a link. */
	std::string ResolveLinks(const std::string& Path)
	{
		struct stat Info
		{};
		if (::lstat(Path.c_str(), &Info) != 0 || !S_ISLNK(Info.st_mode))
		{
			// Links above it lead the temporary file to the same folder.
			return Path;
		}
		std::error_code Error;
		const std::filesystem::path Real = std::filesystem::canonical(Path, Error);
		return Error ? Path : Real.string();
	}

	/**
	 * @param OutMode the access rights of the file that is replaced, or of a new one.
	 * @return false if something stands at Path that must not be replaced.
	 */
	bool MayReplace(const std::string& Path, mode_t& OutMode, std::string& OutError)
	{
		struct stat Info
		{};
		if (::stat(Path.c_str(), &Info) != 0)
		{
			// A missing file is fine; anything else (a file where a folder should be, no right to look) is not.
			if (errno != ENOENT)
			{
				return FailWithErrno(Path, OutError);
			}
			OutMode = GetUsualMode();
			return true;
		}
		if (!S_ISREG(Info.st_mode))
		{
			return Fail(Path, S_ISDIR(Info.st_mode) ? std::strerror(EISDIR) : "not a regular file", OutError);
		}
		OutMode = Info.st_mode & 07777U;
		return ::access(Path.c_str(), W_OK) == 0 || FailWithErrno(Path, OutError);
	}

	bool FillTemporary(FDescriptor& File, mode_t Mode, const std::string& Bytes)
	{
		return File.WriteAll(Bytes) && ::fchmod(File.Get(), Mode) == 0 && ::fsync(File.Get()) == 0 && File.Close();
	}

	/** Makes the rename itself durable. A file system that cannot do this has still replaced the file, so no error. */
	void FlushFolder(const std::string& Folder)
	{
		const FDescriptor Handle(::open(Folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
		if (Handle.IsOpen())
		{
			::fsync(Handle.Get());
		}
	}
}

bool FFileAccess::Read(const std::string& Path, size_t MaxSize, std::string& OutBytes, std::string& OutError)
{
	OutBytes.clear();
	// Without O_NONBLOCK a named pipe would wait for a writer before it can be refused.
	const FDescriptor File(::open(Path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
	struct stat Info
	{};
	if (!File.IsOpen() || ::fstat(File.Get(), &Info) != 0)
	{
		return FailWithErrno(Path, OutError);
	}
	if (!S_ISREG(Info.st_mode))
	{
		return Fail(Path, S_ISDIR(Info.st_mode) ? std::strerror(EISDIR) : "not a regular file", OutError);
	}
	if (static_cast<size_t>(Info.st_size) > MaxSize)
	{
		return Fail(Path, "larger than " + std::to_string(MaxSize >> 20U) + " MiB", OutError);
	}
	OutBytes.reserve(static_cast<size_t>(Info.st_size));
	return ReadAll(File, static_cast<size_t>(Info.st_size), MaxSize, OutBytes) || FailWithErrno(Path, OutError);
}

bool FFileAccess::Replace(
	const std::string& Path, const std::string& Bytes, std::string& OutError, const std::function<bool()>& BeforeRename)
{
	mode_t Mode = 0;
	if (!MayReplace(Path, Mode, OutError))
	{
		return false;
	}
	const std::string Target = ResolveLinks(Path);
	const size_t Slash = Target.rfind('/');
	const std::string Folder = Slash == std::string::npos ? "./" : Target.substr(0, Slash + 1);
	std::string Temporary = Folder + ".quillon-XXXXXX";
	FDescriptor File(::mkostemp(Temporary.data(), O_CLOEXEC));
	if (!File.IsOpen())
	{
		return FailWithErrno(Path, OutError);
	}
	const bool bFilled = FillTemporary(File, Mode, Bytes);
	if (bFilled && BeforeRename && !BeforeRename())
	{
		::unlink(Temporary.c_str());
		return false;
	}
	if (!bFilled || std::rename(Temporary.c_str(), Target.c_str()) != 0)
	{
		FailWithErrno(Path, OutError);
		::unlink(Temporary.c_str());
		return false;
	}
	FlushFolder(Folder);
	return true;
}
