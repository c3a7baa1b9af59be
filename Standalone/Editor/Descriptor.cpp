// Copyright Corvane. MIT License.
#include "Descriptor.h"

#include <unistd.h>

#include <cerrno>
#include <utility>

FDescriptor& FDescriptor::operator=(FDescriptor&& Other) noexcept
{
	std::swap(Handle, Other.Handle);
	return *this;
}

bool FDescriptor::WriteAll(const std::string& Bytes) const
{
	size_t Done = 0;
	while (Done < Bytes.size())
	{
		const ssize_t Count = ::write(Handle, Bytes.data() + Done, Bytes.size() - Done);
		if (Count < 0 && errno != EINTR)
		{
			return false;
		}
		Done += Count > 0 ? static_cast<size_t>(Count) : 0;
	}
	return true;
}

long FDescriptor::Read(char* Buffer, size_t Size) const
{
	for (;;)
	{
		const ssize_t Count = ::read(Handle, Buffer, Size);
		if (Count >= 0 || errno != EINTR)
		{
			return Count;
		}
	}
}

bool FDescriptor::Close()
{
	const int Closing = std::exchange(Handle, -1);
	return Closing < 0 || ::close(Closing) == 0;
}
