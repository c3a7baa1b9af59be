// Copyright Corvane. MIT License.
#include "Driver/LineReader.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <unistd.h>

#include <algorithm>
#include <array>
#include <vector>

using EResult = FLineReader::EResult;

namespace
{
	struct FPipe
	{
		FPipe()
		{
			std::array<int, 2> Handles{};
			EXPECT_EQ(::pipe(Handles.data()), 0);
			Read = FDescriptor(Handles[0]);
			Write = FDescriptor(Handles[1]);
		}

		FDescriptor Read;
		FDescriptor Write;
	};

	/** What a reader makes of these bytes: each line, or "!" for one that is too long. */
	std::vector<std::string> ReadAll(const std::string& Bytes, size_t MaxLength)
	{
		FPipe Pipe;
		EXPECT_TRUE(Pipe.Write.WriteAll(Bytes));
		Pipe.Write.Close();
		FLineReader Reader(std::move(Pipe.Read), MaxLength);
		std::vector<std::string> Lines;
		std::string Line;
		for (;;)
		{
			const EResult Result = Reader.Next(Line);
			if (Result == EResult::End)
			{
				return Lines;
			}
			EXPECT_TRUE(Result == EResult::Line || Result == EResult::TooLong);
			Lines.push_back(Result == EResult::Line ? Line : "!");
		}
	}

	/** The same by hand. */
	std::vector<std::string> Split(const std::string& Bytes, size_t MaxLength)
	{
		std::vector<std::string> Lines;
		size_t Begin = 0;
		while (Begin < Bytes.size())
		{
			const size_t End = std::min(Bytes.find('\n', Begin), Bytes.size());
			Lines.push_back(End - Begin > MaxLength ? "!" : Bytes.substr(Begin, End - Begin));
			Begin = End + 1;
		}
		return Lines;
	}
}

TEST(FLineReader, GivesLinesWithoutTheirLineFeeds)
{
	EXPECT_EQ(ReadAll("", 3), (std::vector<std::string>{}));
	EXPECT_EQ(ReadAll("\n", 3), (std::vector<std::string>{""}));
	EXPECT_EQ(ReadAll("a\n\nbc\r\nd", 3), (std::vector<std::string>{"a", "", "bc\r", "d"}));
	EXPECT_EQ(ReadAll(std::string("a\0b\n", 4), 3), (std::vector<std::string>{std::string("a\0b", 3)}));
}

TEST(FLineReader, SkipsLinesThatAreTooLong)
{
	EXPECT_EQ(ReadAll("abc\nabcd\nab\n", 3), (std::vector<std::string>{"abc", "!", "ab"}));
	EXPECT_EQ(ReadAll("abcd", 3), (std::vector<std::string>{"!"}));
}

RC_GTEST_PROP(FLineReader, AgreesWithASplitByHand, ())
{
	// Many line feeds, and a limit that many lines reach.
	const auto Bytes = *rc::gen::container<std::string>(rc::gen::element('\n', 'a', 'b'));
	const auto MaxLength = *rc::gen::inRange<size_t>(0, 6);
	RC_ASSERT(ReadAll(Bytes, MaxLength) == Split(Bytes, MaxLength));
}

TEST(FLineReader, PutsLinesTogetherAcrossReads)
{
	// More than one buffer, less than what a pipe holds.
	const std::string Long(65000, 'x');
	FPipe Pipe;
	FLineReader Reader(std::move(Pipe.Read), 130001);
	std::string Line;
	ASSERT_TRUE(Pipe.Write.WriteAll("first\n" + Long.substr(0, 60000)));
	EXPECT_EQ(Reader.Next(Line), EResult::Line);
	EXPECT_EQ(Line, "first");
	ASSERT_TRUE(Pipe.Write.WriteAll("y\nlast"));
	EXPECT_EQ(Reader.Next(Line), EResult::Line);
	EXPECT_EQ(Line, Long.substr(0, 60000) + "y");
	Pipe.Write.Close();
	EXPECT_EQ(Reader.Next(Line), EResult::Line);
	EXPECT_EQ(Line, "last");
	EXPECT_EQ(Reader.Next(Line), EResult::End);
	EXPECT_EQ(Reader.Next(Line), EResult::End);
}

TEST(FLineReader, IsDisturbedByTheOtherDescriptor)
{
	FPipe Pipe;
	FPipe Other;
	FLineReader Reader(std::move(Pipe.Read), 10);
	std::string Line;
	ASSERT_TRUE(Pipe.Write.WriteAll("a\n"));
	EXPECT_EQ(Reader.Next(Line, Other.Read.Get()), EResult::Line);
	Other.Write.Close();
	EXPECT_EQ(Reader.Next(Line, Other.Read.Get()), EResult::Disturbed);
}

TEST(FLineReader, FailsOnWhatCannotBeRead)
{
	FLineReader Reader(FDescriptor(-1), 10);
	std::string Line;
	EXPECT_EQ(Reader.Next(Line), EResult::Failed);
}
