// Copyright Corvane. MIT License.
#include "Driver/LineReader.h"

#include <poll.h>

#include <array>
#include <cerrno>

namespace
{
	constexpr size_t BufferSize = size_t(64) * 1024;

	/** @return false if something happened at Watched before there was something to read. */
	bool WaitFor(int Input, int Watched)
	{
		std::array<pollfd, 2> Polled{{{Input, POLLIN, 0}, {Watched, POLLIN, 0}}};
		while (::poll(Polled.data(), Polled.size(), -1) < 0 && errno == EINTR)
		{}
		return Polled[1].revents == 0;
	}
}

FLineReader::EResult FLineReader::Next(std::string& OutLine, int Watched)
{
	OutLine.clear();
	bool bTooLong = false;
	bool bBegun = false;
	for (;;)
	{
		if (Begin == Buffer.size())
		{
			const EResult Result = Fill(Watched);
			if (Result == EResult::End && bBegun)
			{
				break;
			}
			if (Result != EResult::Line)
			{
				return Result;
			}
		}
		bBegun = true;
		const size_t LineFeed = Buffer.find('\n', Begin);
		const bool bEnds = LineFeed != std::string::npos;
		const size_t Length = (bEnds ? LineFeed : Buffer.size()) - Begin;
		bTooLong = bTooLong || OutLine.size() + Length > MaxLength;
		bTooLong ? OutLine.clear() : static_cast<void>(OutLine.append(Buffer, Begin, Length));
		Begin += Length + (bEnds ? 1 : 0);
		if (bEnds)
		{
			break;
		}
	}
	return bTooLong ? EResult::TooLong : EResult::Line;
}

FLineReader::EResult FLineReader::Fill(int Watched)
{
	if (Watched >= 0 && !WaitFor(Input.Get(), Watched))
	{
		return EResult::Disturbed;
	}
	Buffer.resize(BufferSize);
	Begin = 0;
	const long Count = Input.Read(Buffer.data(), Buffer.size());
	Buffer.resize(Count > 0 ? static_cast<size_t>(Count) : 0);
	return Count > 0 ? EResult::Line : (Count == 0 ? EResult::End : EResult::Failed);
}
