// Copyright Corvane. MIT License.
#pragma once

#include <string>

/** A file descriptor of the system, closed at the end of its scope. */
class FDescriptor
{
public:
	/** A negative handle is that of nothing. */
	explicit FDescriptor(int InHandle = -1) : Handle(InHandle) {}
	FDescriptor(FDescriptor&& Other) noexcept : Handle(Other.Handle) { Other.Handle = -1; }
	FDescriptor& operator=(FDescriptor&& Other) noexcept;
	~FDescriptor() { Close(); }

	int Get() const { return Handle; }
	bool IsOpen() const { return Handle >= 0; }

	/** Waits until all is written. @return false, with errno, if it can't be. */
	bool WriteAll(const std::string& Bytes) const;

	/** Waits for at most Size bytes. @return how many came; 0 at the end; negative, with errno, on failure. */
	long Read(char* Buffer, size_t Size) const;

	/** @return false if the system reports a failure only now, as network file systems may. */
	bool Close();

private:
	int Handle;
};
