// Copyright Corvane. MIT License.
#include "FileAccessRecorder.h"

#include <cstdarg>
#include <cstdio>
#include <dlfcn.h>
#include <sys/types.h>

namespace
{
	bool bRecording = false;

	std::vector<std::string>& GetPaths()
	{
		static std::vector<std::string> Paths;
		return Paths;
	}

	void Note(const char* Path)
	{
		if (bRecording)
		{
			GetPaths().emplace_back(Path);
		}
	}

	/** The C library's own function of that name. */
	template <typename FunctionType>
	FunctionType Real(const char* Name)
	{
		return reinterpret_cast<FunctionType>(dlsym(RTLD_NEXT, Name));
	}

	using FOpen = int (*)(const char*, int, ...);
	using FOpenAt = int (*)(int, const char*, int, ...);
	using FFileOpen = FILE* (*)(const char*, const char*);
}

void FFileAccessRecorder::Start()
{
	GetPaths().clear();
	bRecording = true;
}

std::vector<std::string> FFileAccessRecorder::Stop()
{
	bRecording = false;
	return GetPaths();
}

// <fcntl.h> is left out: its declarations carry attributes that these definitions would have to repeat.
// NOLINTBEGIN(cert-dcl50-cpp): the C library's signatures.
#define NOTE_OPEN(Name) \
	extern "C" __attribute__((visibility("default"))) int Name(const char* Path, int Flags, ...) \
	{ \
		va_list Arguments; \
		va_start(Arguments, Flags); \
		const mode_t Mode = va_arg(Arguments, mode_t); \
		va_end(Arguments); \
		Note(Path); \
		return Real<FOpen>(#Name)(Path, Flags, Mode); \
	}
#define NOTE_OPENAT(Name) \
	extern "C" __attribute__((visibility("default"))) int Name(int Folder, const char* Path, int Flags, ...) \
	{ \
		va_list Arguments; \
		va_start(Arguments, Flags); \
		const mode_t Mode = va_arg(Arguments, mode_t); \
		va_end(Arguments); \
		Note(Path); \
		return Real<FOpenAt>(#Name)(Folder, Path, Flags, Mode); \
	}
#define NOTE_FOPEN(Name) \
	extern "C" __attribute__((visibility("default"))) FILE* Name(const char* Path, const char* Mode) \
	{ \
		Note(Path); \
		return Real<FFileOpen>(#Name)(Path, Mode); \
	}

NOTE_OPEN(open)
NOTE_OPEN(open64)
NOTE_OPENAT(openat)
NOTE_OPENAT(openat64)
NOTE_FOPEN(fopen)
NOTE_FOPEN(fopen64)
// NOLINTEND(cert-dcl50-cpp)
