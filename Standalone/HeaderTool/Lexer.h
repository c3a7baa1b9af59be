// Copyright Corvane. MIT License.
#pragma once

#include <string>
#include <vector>

enum class ETokenKind
{
	Identifier,
	Number,
	/** Text is what stands between the quotes, escapes as written. */
	String,
	Character,
	/** One character, or "::". */
	Punctuation,
	/** A whole preprocessor line, continuations included, comments left out. */
	Directive,
	End
};

struct FToken
{
	ETokenKind Kind = ETokenKind::End;
	std::string Text;
	int Line = 0;

	bool Is(const char* Wanted) const
	{
		return (Kind == ETokenKind::Identifier || Kind == ETokenKind::Punctuation) && Text == Wanted;
	}
	/** For messages. */
	std::string Describe() const;
};

/** Cuts C++ source into tokens; comments vanish. The last token is the end. Throws FSourceError for what is not closed.
 */
class FLexer
{
public:
	explicit FLexer(const std::string& InSource) : Source(InSource) {}

	std::vector<FToken> Run();

private:
	char Peek(size_t Ahead = 0) const;
	bool StartsWith(const char* Text) const;
	/** Passes one character and counts lines. */
	char Take();
	void SkipLineComment();
	void SkipBlockComment();
	void LexDirective();
	void LexWord();
	void LexNumber();
	void LexQuoted(char Quote);
	void LexRawString();
	void Add(ETokenKind Kind, std::string Text, int Line);

	const std::string& Source;
	size_t Position = 0;
	int CurrentLine = 1;
	bool bLineHasTokens = false;
	std::vector<FToken> Tokens;
};
