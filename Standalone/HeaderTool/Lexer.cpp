// Copyright Corvane. MIT License.
#include "Lexer.h"

#include "SourceError.h"

#include <cctype>
#include <cstring>

namespace
{
	bool IsWordStart(char Char)
	{
		return std::isalpha(static_cast<unsigned char>(Char)) || Char == '_' || (Char & 0x80) != 0;
	}

	bool IsWordPart(char Char)
	{
		return IsWordStart(Char) || std::isdigit(static_cast<unsigned char>(Char));
	}

	bool IsRawPrefix(const std::string& Word)
	{
		return Word == "R" || Word == "LR" || Word == "uR" || Word == "UR" || Word == "u8R";
	}

	/** Writes a raw string's text as an ordinary literal's. */
	std::string Escape(const std::string& Text)
	{
		std::string Result;
		for (const char Char : Text)
		{
			if (Char == '\\' || Char == '"')
			{
				Result += '\\';
			}
			Result += Char == '\n' ? "\\n" : std::string(1, Char);
		}
		return Result;
	}

	bool IsPlainPrefix(const std::string& Word)
	{
		return Word == "L" || Word == "u" || Word == "U" || Word == "u8";
	}
}

std::string FToken::Describe() const
{
	if (Kind == ETokenKind::End)
	{
		return "the end of the file";
	}
	return Kind == ETokenKind::Directive ? "a preprocessor line" : "'" + Text + "'";
}

char FLexer::Peek(size_t Ahead) const
{
	return Position + Ahead < Source.size() ? Source[Position + Ahead] : '\0';
}

bool FLexer::StartsWith(const char* Text) const
{
	return Source.compare(Position, std::strlen(Text), Text) == 0;
}

char FLexer::Take()
{
	const char Char = Source[Position++];
	if (Char == '\n')
	{
		++CurrentLine;
		bLineHasTokens = false;
	}
	return Char;
}

void FLexer::Add(ETokenKind Kind, std::string Text, int Line)
{
	FToken Token;
	Token.Kind = Kind;
	Token.Text = std::move(Text);
	Token.Line = Line;
	Tokens.push_back(std::move(Token));
	bLineHasTokens = true;
}

std::vector<FToken> FLexer::Run()
{
	if (StartsWith("\xEF\xBB\xBF"))
	{
		Position += 3;
	}
	while (Position < Source.size())
	{
		const char Char = Peek();
		if (std::isspace(static_cast<unsigned char>(Char)) || (Char == '\\' && (Peek(1) == '\n' || Peek(1) == '\r')))
		{
			Take();
		}
		else if (StartsWith("//"))
		{
			SkipLineComment();
		}
		else if (StartsWith("/*"))
		{
			SkipBlockComment();
		}
		else if (Char == '#' && !bLineHasTokens)
		{
			LexDirective();
		}
		else if (IsWordStart(Char))
		{
			LexWord();
		}
		else if (std::isdigit(static_cast<unsigned char>(Char)) ||
			(Char == '.' && std::isdigit(static_cast<unsigned char>(Peek(1)))))
		{
			LexNumber();
		}
		else if (Char == '"' || Char == '\'')
		{
			LexQuoted(Char);
		}
		else
		{
			const std::string Text = StartsWith("::") ? "::" : std::string(1, Char);
			Add(ETokenKind::Punctuation, Text, CurrentLine);
			Position += Text.size();
		}
	}
	Add(ETokenKind::End, "", CurrentLine);
	return std::move(Tokens);
}

void FLexer::SkipLineComment()
{
	while (Position < Source.size() && Peek() != '\n')
	{
		// A backslash at the end of the line takes the next line into the comment.
		if (Peek() == '\\' && (Peek(1) == '\n' || (Peek(1) == '\r' && Peek(2) == '\n')))
		{
			while (Take() != '\n')
			{}
			continue;
		}
		Take();
	}
}

void FLexer::SkipBlockComment()
{
	const int Line = CurrentLine;
	const bool bHadTokens = bLineHasTokens;
	Position += 2;
	while (!StartsWith("*/"))
	{
		if (Position >= Source.size())
		{
			throw FSourceError(Line, "comment is not closed");
		}
		Take();
	}
	Position += 2;
	bLineHasTokens = bHadTokens;
}

void FLexer::LexDirective()
{
	const int Line = CurrentLine;
	std::string Text;
	char Quote = '\0';
	while (Position < Source.size() && Peek() != '\n')
	{
		if (Peek() == '\\' && (Peek(1) == '\n' || (Peek(1) == '\r' && Peek(2) == '\n')))
		{
			while (Take() != '\n')
			{}
			Text += ' ';
		}
		else if (!Quote && StartsWith("//"))
		{
			SkipLineComment();
		}
		else if (!Quote && StartsWith("/*"))
		{
			SkipBlockComment();
			Text += ' ';
		}
		else
		{
			const char Char = Take();
			if (Char == '"')
			{
				Quote = Quote ? '\0' : '"';
			}
			Text += Char;
			if (Char == '\\' && Quote && Position < Source.size() && Peek() != '\n')
			{
				Text += Take();
			}
		}
	}
	Add(ETokenKind::Directive, Text, Line);
}

void FLexer::LexWord()
{
	const size_t Begin = Position;
	while (IsWordPart(Peek()))
	{
		++Position;
	}
	const std::string Word = Source.substr(Begin, Position - Begin);
	if (Peek() == '"' && IsRawPrefix(Word))
	{
		LexRawString();
	}
	else if ((Peek() == '"' || Peek() == '\'') && IsPlainPrefix(Word))
	{
		LexQuoted(Peek());
	}
	else
	{
		Add(ETokenKind::Identifier, Word, CurrentLine);
	}
}

void FLexer::LexNumber()
{
	const size_t Begin = Position;
	while (IsWordPart(Peek()) || Peek() == '.' || (Peek() == '\'' && IsWordPart(Peek(1))) ||
		((Peek() == '+' || Peek() == '-') && std::strchr("eEpP", Source[Position - 1]) && Source[Begin + 1] != 'x'))
	{
		++Position;
	}
	Add(ETokenKind::Number, Source.substr(Begin, Position - Begin), CurrentLine);
}

void FLexer::LexQuoted(char Quote)
{
	const int Line = CurrentLine;
	const size_t Begin = ++Position;
	while (Peek() != Quote)
	{
		if (Position >= Source.size() || Peek() == '\n')
		{
			throw FSourceError(Line, Quote == '"' ? "string is not closed" : "character is not closed");
		}
		if (Peek() == '\\' && Position + 1 < Source.size())
		{
			Take();
		}
		Take();
	}
	Add(Quote == '"' ? ETokenKind::String : ETokenKind::Character, Source.substr(Begin, Position - Begin), Line);
	++Position;
}

void FLexer::LexRawString()
{
	const int Line = CurrentLine;
	const size_t Open = Source.find('(', Position);
	if (Open == std::string::npos)
	{
		throw FSourceError(Line, "raw string is not closed");
	}
	const std::string Closing = ")" + Source.substr(Position + 1, Open - Position - 1) + "\"";
	const size_t Close = Source.find(Closing, Open);
	if (Close == std::string::npos)
	{
		throw FSourceError(Line, "raw string is not closed");
	}
	while (Position < Close + Closing.size())
	{
		Take();
	}
	Add(ETokenKind::String, Escape(Source.substr(Open + 1, Close - Open - 1)), Line);
}
