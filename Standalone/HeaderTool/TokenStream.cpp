// Copyright Corvane. MIT License.
#include "TokenStream.h"

#include "SourceError.h"

const FToken& FTokenStream::Take()
{
	const FToken& Token = Peek();
	if (Token.Kind != ETokenKind::End)
	{
		++Position;
	}
	return Token;
}

bool FTokenStream::TakeIf(const char* Text)
{
	if (!Peek().Is(Text))
	{
		return false;
	}
	Take();
	return true;
}

void FTokenStream::Expect(const char* Text, const std::string& What)
{
	if (!TakeIf(Text))
	{
		throw FSourceError(
			Peek().Line, "expected '" + std::string(Text) + "' " + What + " but found " + Peek().Describe());
	}
}

const FToken& FTokenStream::ExpectIdentifier(const std::string& What)
{
	if (Peek().Kind != ETokenKind::Identifier)
	{
		throw FSourceError(Peek().Line, "expected " + What + " but found " + Peek().Describe());
	}
	return Take();
}
