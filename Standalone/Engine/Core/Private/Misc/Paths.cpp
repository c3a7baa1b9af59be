// Copyright Corvane. MIT License.
#include <sys/stat.h>

#include "Misc/Paths.h"

namespace
{
	int32 FindLastSlash(const FString& Path)
	{
		int32 Slash = INDEX_NONE;
		int32 BackSlash = INDEX_NONE;
		Path.FindLastChar(TEXT('/'), Slash);
		Path.FindLastChar(TEXT('\\'), BackSlash);
		return Slash > BackSlash ? Slash : BackSlash;
	}

	/** The kind of file behind a path, links followed; 0 if there is none. */
	mode_t GetKind(const FString& Path)
	{
		struct stat Status;
		return stat(TCHAR_TO_UTF8(*Path), &Status) == 0 ? Status.st_mode & S_IFMT : 0;
	}
}

FString FPaths::GetPath(const FString& InPath)
{
	const int32 Slash = FindLastSlash(InPath);
	return Slash == INDEX_NONE ? FString() : InPath.Left(Slash);
}

bool FPaths::FileExists(const FString& InPath)
{
	const mode_t Kind = GetKind(InPath);
	return Kind != 0 && Kind != S_IFDIR;
}

bool FPaths::DirectoryExists(const FString& InPath)
{
	return GetKind(InPath) == S_IFDIR;
}
