// Copyright Corvane. MIT License.
#pragma once

#include "Lexer.h"

#include <vector>

/** Walks through tokens with a word of look-ahead. */
class FTokenStream
{
public:
	explicit FTokenStream(std::vector<FToken> InTokens) : Tokens(std::move(InTokens)) {}

	/** The next token, or the one so many places later; at the end always the end. */
	const FToken& Peek(size_t Ahead = 0) const
	{
		return Tokens[Position + Ahead < Tokens.size() ? Position + Ahead : Tokens.size() - 1];
	}
	const FToken& Take();
	/** Takes the token if it reads so. */
	bool TakeIf(const char* Text);
	/** Takes the token, which must read so; What tells what it closes or follows. */
	void Expect(const char* Text, const std::string& What);
	/** Takes an identifier; What names it in the message. */
	const FToken& ExpectIdentifier(const std::string& What);

private:
	std::vector<FToken> Tokens;
	size_t Position = 0;
};
