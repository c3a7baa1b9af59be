// Copyright Corvane. MIT License.
#include "Parser.h"

#include "Names.h"
#include "SourceError.h"
#include "Specifiers.h"

#include <cctype>
#include <set>

namespace
{
	/** The first word of a preprocessor line. */
	std::string GetDirectiveName(const std::string& Text)
	{
		const size_t Begin = Text.find_first_not_of("# \t");
		if (Begin == std::string::npos)
		{
			return "";
		}
		size_t End = Begin;
		while (End < Text.size() && std::isalpha(static_cast<unsigned char>(Text[End])))
		{
			++End;
		}
		return Text.substr(Begin, End - Begin);
	}

	/** What is included, without quotes or brackets. */
	std::string GetIncludedFile(const std::string& Text)
	{
		const size_t Begin = Text.find_first_of("\"<");
		const size_t End = Begin == std::string::npos ? Begin : Text.find_first_of("\">", Begin + 1);
		return End == std::string::npos ? "" : Text.substr(Begin + 1, End - Begin - 1);
	}
}

std::vector<FReflectedType> FParser::Run()
{
	int Depth = 0;
	while (Tokens.Peek().Kind != ETokenKind::End)
	{
		const FToken Token = Tokens.Peek();
		if (Token.Kind == ETokenKind::Directive)
		{
			TakeDirective();
			continue;
		}
		if (FNames::IsReflectionMacro(Token))
		{
			CheckReflectedPlace(Token);
			if (!Token.Is("UCLASS") && !Token.Is("USTRUCT"))
			{
				throw FSourceError(
					Token.Line, Token.Text + " outside of a class with UCLASS or a structure with USTRUCT");
			}
			if (Depth > 0)
			{
				throw FSourceError(Token.Line, Token.Text + " within a namespace or another type");
			}
			Tokens.Take();
			ParseType(Token.Is("UCLASS"));
			continue;
		}
		Depth += Token.Is("{") ? 1 : Token.Is("}") ? -1 : 0;
		Tokens.Take();
	}
	if (!ConditionalLines.empty())
	{
		throw FSourceError(ConditionalLines.back(), "preprocessor conditional is not closed");
	}
	CheckIncludes();
	return std::move(Types);
}

void FParser::TakeDirective()
{
	const FToken Token = Tokens.Take();
	const std::string Name = GetDirectiveName(Token.Text);
	if (Name == "if" || Name == "ifdef" || Name == "ifndef")
	{
		ConditionalLines.push_back(Token.Line);
	}
	else if (Name == "endif")
	{
		if (ConditionalLines.empty())
		{
			throw FSourceError(Token.Line, "#endif without #if");
		}
		ConditionalLines.pop_back();
	}
	else if (Name == "include")
	{
		Includes.push_back(Token);
	}
}

void FParser::CheckReflectedPlace(const FToken& Token) const
{
	if (FNames::IsUnsupportedMacro(Token.Text))
	{
		throw FSourceError(Token.Line, Token.Text + " is not supported");
	}
	if (!ConditionalLines.empty())
	{
		throw FSourceError(Token.Line, Token.Text + " within a preprocessor conditional");
	}
}

void FParser::CheckIncludes() const
{
	const std::string Wanted = Stem + ".generated.h";
	const FToken* Found = nullptr;
	for (const FToken& Include : Includes)
	{
		const std::string File = GetIncludedFile(Include.Text);
		if (Found)
		{
			throw FSourceError(Include.Line, "#include after that of \"" + Wanted + "\", which must be the last one");
		}
		if (File == Wanted)
		{
			Found = &Include;
		}
		else if (File.size() > 12 && File.compare(File.size() - 12, 12, ".generated.h") == 0)
		{
			throw FSourceError(Include.Line, "generated header of another file, expected \"" + Wanted + "\"");
		}
	}
	if (!Types.empty() && !Found)
	{
		throw FSourceError(Types.front().Line, "#include \"" + Wanted + "\" is missing");
	}
	if (Found && !Types.empty() && Found->Line > Types.front().Line)
	{
		throw FSourceError(Found->Line, "#include \"" + Wanted + "\" after a reflected type");
	}
}

void FParser::ParseType(bool bIsClass)
{
	FReflectedType Type;
	Type.bIsClass = bIsClass;
	Type.Line = Tokens.Peek().Line;
	Type.Specifiers = ReadSpecifiers(Tokens, bIsClass ? ESpecifierPlace::Class : ESpecifierPlace::Struct);
	ParseHead(Type);
	ParseBody(Type);
	if (Type.BodyLine == 0)
	{
		throw FSourceError(Type.Line, Type.Name + " has no GENERATED_BODY()");
	}
	for (const FReflectedType& Other : Types)
	{
		if (Other.BodyLine == Type.BodyLine)
		{
			throw FSourceError(Type.BodyLine, "two GENERATED_BODY() on one line");
		}
	}
	Types.push_back(std::move(Type));
}

void FParser::ParseHead(FReflectedType& Type)
{
	Tokens.Expect(Type.bIsClass ? "class" : "struct", Type.bIsClass ? "after UCLASS" : "after USTRUCT");
	FToken Name = Tokens.ExpectIdentifier("a name");
	if (Name.Text.size() > 4 && Name.Text.compare(Name.Text.size() - 4, 4, "_API") == 0)
	{
		Type.Api = Name.Text;
		Name = Tokens.ExpectIdentifier("a name");
	}
	Type.Name = Name.Text;
	Type.Line = Name.Line;
	if (!FNames::HasPrefix(Type.Name, Type.bIsClass ? "UA" : "F"))
	{
		throw FSourceError(Name.Line,
			"the name " + Type.Name + " must begin with " + (Type.bIsClass ? "U or A" : "F") + " and a capital");
	}
	Tokens.TakeIf("final");
	if (Tokens.TakeIf(":"))
	{
		if (!Tokens.TakeIf("public") && Type.bIsClass)
		{
			throw FSourceError(Tokens.Peek().Line, "the base of " + Type.Name + " must be public");
		}
		Type.Super = Tokens.ExpectIdentifier("a base").Text;
		while (Tokens.TakeIf(","))
		{
			Tokens.Expect("public", "before another base");
			Tokens.ExpectIdentifier("a base");
		}
	}
	else if (Type.bIsClass)
	{
		throw FSourceError(Name.Line, Type.Name + " must derive from UObject or one of its classes");
	}
	Tokens.Expect("{", "after the head of " + Type.Name);
}

void FParser::ParseBody(FReflectedType& Type)
{
	Access = Type.bIsClass ? EAccess::Private : EAccess::Public;
	int Depth = 1;
	while (!ParseMember(Type, Depth))
	{}
	Tokens.Expect(";", "after " + Type.Name);
}

bool FParser::ParseMember(FReflectedType& Type, int& Depth)
{
	const FToken Token = Tokens.Peek();
	if (Token.Kind == ETokenKind::End)
	{
		throw FSourceError(Type.Line, Type.Name + " is not closed");
	}
	if (Token.Kind == ETokenKind::Directive)
	{
		TakeDirective();
		return false;
	}
	if (FNames::IsReflectionMacro(Token))
	{
		CheckReflectedPlace(Token);
		if (Depth > 1 || Token.Is("UCLASS") || Token.Is("USTRUCT"))
		{
			throw FSourceError(Token.Line, Token.Text + " within another type or a function of " + Type.Name);
		}
		Tokens.Take();
		Token.Is("GENERATED_BODY")  ? ParseGeneratedBody(Type)
			: Token.Is("UPROPERTY") ? ParseProperty(Type)
									: ParseFunction(Type);
		return false;
	}
	if (Depth == 1 && ParseAccess())
	{
		return false;
	}
	Depth += Token.Is("{") ? 1 : Token.Is("}") ? -1 : 0;
	Tokens.Take();
	return Depth == 0;
}

bool FParser::ParseAccess()
{
	if (!Tokens.Peek(1).Is(":"))
	{
		return false;
	}
	const FToken& Token = Tokens.Peek();
	if (!Token.Is("public") && !Token.Is("protected") && !Token.Is("private"))
	{
		return false;
	}
	Access = Token.Is("public") ? EAccess::Public : Token.Is("protected") ? EAccess::Protected : EAccess::Private;
	Tokens.Take();
	Tokens.Take();
	return true;
}

void FParser::ParseGeneratedBody(FReflectedType& Type)
{
	const int Line = Tokens.Peek().Line;
	Tokens.Expect("(", "after GENERATED_BODY");
	Tokens.Expect(")", "after GENERATED_BODY(");
	Tokens.TakeIf(";");
	if (Type.BodyLine != 0)
	{
		throw FSourceError(Line, "second GENERATED_BODY() of " + Type.Name);
	}
	Type.BodyLine = Line;
	// The generated body of a class ends with private members.
	Access = Type.bIsClass ? EAccess::Private : Access;
}

void FParser::ParseFunction(const FReflectedType& Type)
{
	const int Line = Tokens.Peek().Line;
	if (!Type.bIsClass)
	{
		throw FSourceError(Line, "UFUNCTION in a structure");
	}
	ReadSpecifiers(Tokens, ESpecifierPlace::Function);
	CheckDeclarationFollows("UFUNCTION");
	static const std::set<std::string> Modifiers = {
		"virtual", "static", "inline", "FORCEINLINE", "class", "struct", "const"};
	int TypeWords = 0;
	while (!Tokens.Peek(1).Is("("))
	{
		const FToken Token = Tokens.Take();
		const bool bPart = Token.Kind == ETokenKind::Identifier
			? !FNames::IsReflectionMacro(Token)
			: Token.Is("*") || Token.Is("&") || Token.Is("<") || Token.Is(">") || Token.Is(",") || Token.Is("::");
		if (!bPart || Token.Is("operator"))
		{
			throw FSourceError(Line, "UFUNCTION must be followed by a function, found " + Token.Describe());
		}
		TypeWords += Token.Kind == ETokenKind::Identifier && !Modifiers.count(Token.Text) ? 1 : 0;
	}
	const FToken Name = Tokens.ExpectIdentifier("a function's name");
	if (TypeWords == 0)
	{
		throw FSourceError(Name.Line, "function " + Name.Text + " has no result type");
	}
	SkipBalanced("(", ")", "parameters of " + Name.Text);
	while (Tokens.TakeIf("const") || Tokens.TakeIf("override") || Tokens.TakeIf("final"))
	{}
	if (Tokens.Peek().Is("{"))
	{
		SkipBalanced("{", "}", "body of " + Name.Text);
		return;
	}
	Tokens.Expect(";", "after function " + Name.Text);
}

void FParser::CheckDeclarationFollows(const std::string& Macro) const
{
	if (FNames::IsReflectionMacro(Tokens.Peek()))
	{
		throw FSourceError(
			Tokens.Peek().Line, Macro + " must be followed by a declaration, found " + Tokens.Peek().Describe());
	}
}

void FParser::SkipBalanced(const char* Open, const char* Close, const std::string& What)
{
	const int Line = Tokens.Peek().Line;
	Tokens.Expect(Open, "before the " + What);
	for (int Depth = 1; Depth > 0;)
	{
		const FToken& Token = Tokens.Peek();
		if (Token.Kind == ETokenKind::End)
		{
			throw FSourceError(Line, "the " + What + " are not closed");
		}
		if (Token.Kind == ETokenKind::Directive)
		{
			TakeDirective();
			continue;
		}
		if (FNames::IsReflectionMacro(Token))
		{
			throw FSourceError(Token.Line, Token.Text + " within the " + What);
		}
		Depth += Token.Is(Open) ? 1 : Token.Is(Close) ? -1 : 0;
		Tokens.Take();
	}
}
