// Copyright Corvane. MIT License.
#include "FileSystemFault.h"

#include <cerrno>
#include <cstdarg>
#include <dlfcn.h>
#include <filesystem>
#include <map>
#include <sys/types.h>

namespace
{
	/** The number of what fails, by function. */
	std::map<std::string, int>& GetFaults()
	{
		static std::map<std::string, int> Faults;
		return Faults;
	}

	std::vector<std::string>& GetFlushed()
	{
		static std::vector<std::string> Flushed;
		return Flushed;
	}

	bool Fails(const char* Name)
	{
		const auto Found = GetFaults().find(Name);
		if (Found == GetFaults().end())
		{
			return false;
		}
		errno = Found->second;
		return true;
	}

	/** The C library's own function of that name. */
	template <typename FunctionType>
	FunctionType Real(const char* Name)
	{
		return reinterpret_cast<FunctionType>(dlsym(RTLD_NEXT, Name));
	}

	using FOpen = int (*)(const char*, int, ...);
	using FRead = ssize_t (*)(int, void*, size_t);
	using FLinkAt = int (*)(int, const char*, int, const char*, int);
	using FRenameAt = int (*)(int, const char*, int, const char*, unsigned);
	using FFlush = int (*)(int);
}

FFileSystemFault::FFileSystemFault(const char* InFunction, int Code) : Function(InFunction)
{
	GetFaults()[Function] = Code;
}

FFileSystemFault::~FFileSystemFault()
{
	GetFaults().erase(Function);
}

std::vector<std::string> FFileSystemFault::TakeFlushed()
{
	std::vector<std::string> Flushed;
	Flushed.swap(GetFlushed());
	return Flushed;
}

// The headers are left out: their declarations carry attributes that these definitions would have to repeat.
// NOLINTBEGIN(cert-dcl50-cpp): the C library's signatures.
extern "C" __attribute__((visibility("default"))) int open(const char* Path, int Flags, ...)
{
	va_list Arguments;
	va_start(Arguments, Flags);
	const mode_t Mode = va_arg(Arguments, mode_t);
	va_end(Arguments);
	return Fails("open") ? -1 : Real<FOpen>("open")(Path, Flags, Mode);
}

extern "C" __attribute__((visibility("default"))) ssize_t read(int File, void* Buffer, size_t Size)
{
	const bool bFails = Fails("read");
	const bool bOneByte = bFails && errno == FFileSystemFault::OneByte;
	return bFails && !bOneByte ? -1 : Real<FRead>("read")(File, Buffer, bOneByte && Size > 0 ? 1 : Size);
}

extern "C" __attribute__((visibility("default"))) int linkat(
	int FromFolder, const char* From, int ToFolder, const char* To, int Flags)
{
	return Fails("linkat") ? -1 : Real<FLinkAt>("linkat")(FromFolder, From, ToFolder, To, Flags);
}

extern "C" __attribute__((visibility("default"))) int renameat2(
	int FromFolder, const char* From, int ToFolder, const char* To, unsigned Flags)
{
	return Fails("renameat2") ? -1 : Real<FRenameAt>("renameat2")(FromFolder, From, ToFolder, To, Flags);
}

extern "C" __attribute__((visibility("default"))) int fsync(int File)
{
	std::error_code Ignored;
	GetFlushed().push_back(std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(File), Ignored).string());
	return Fails("fsync") ? -1 : Real<FFlush>("fsync")(File);
}
// NOLINTEND(cert-dcl50-cpp)
