// Copyright Corvane. MIT License.
#include "Parser.h"

#include "Names.h"
#include "SourceError.h"
#include "Specifiers.h"

#include <set>

namespace
{
	bool IsValueType(const std::string& Name)
	{
		static const std::set<std::string> ValueTypes = {"bool", "int32", "float", "FString", "FName", "FText"};
		return ValueTypes.count(Name) != 0;
	}
}

void FParser::ParseProperty(FReflectedType& Type)
{
	const int Line = Tokens.Peek().Line;
	if (Type.BodyLine == 0)
	{
		throw FSourceError(Line, "UPROPERTY before GENERATED_BODY()");
	}
	FReflectedProperty Property;
	Property.Specifiers = ReadSpecifiers(Tokens, ESpecifierPlace::Property);
	CheckDeclarationFollows("UPROPERTY");
	ParsePropertyType(Property, false);
	Property.Name = Tokens.ExpectIdentifier("a property's name").Text;
	ParsePropertyEnd(Property);
	CheckProperty(Property, Line);
	Type.Properties.push_back(std::move(Property));
}

void FParser::ParsePropertyType(FReflectedProperty& Property, bool bInArray)
{
	const bool bElaborated = Tokens.TakeIf("class") || Tokens.TakeIf("struct");
	const FToken Name = Tokens.ExpectIdentifier("a property's type");
	if (Tokens.Peek(1).Is(":"))
	{
		throw FSourceError(Name.Line, "bit fields are not supported, use bool");
	}
	if (Name.Is("TArray") && !bElaborated)
	{
		if (bInArray)
		{
			throw FSourceError(Name.Line, "an array of arrays is not supported");
		}
		Tokens.Expect("<", "after TArray");
		ParsePropertyType(Property, true);
		Tokens.Expect(">", "after the type of TArray's elements");
		if (Tokens.Peek().Is("*"))
		{
			throw FSourceError(Name.Line, "a pointer to an array is not supported");
		}
		return;
	}
	const bool bPointer = Tokens.TakeIf("*");
	if (Tokens.Peek().Is("*") || Tokens.Peek().Is("&") || Tokens.Peek().Is("::") || Tokens.Peek().Is("const"))
	{
		throw FSourceError(Name.Line, "unsupported " + Tokens.Peek().Describe() + " in a property's type");
	}
	if (Tokens.Peek().Is("<"))
	{
		throw FSourceError(Name.Line, "template '" + Name.Text + "' is not supported as a property's type");
	}
	const bool bObject = FNames::HasPrefix(Name.Text, "UA");
	if (bPointer && !bObject)
	{
		throw FSourceError(
			Name.Line, "a pointer to '" + Name.Text + "', which is no class of objects, is not supported");
	}
	if (!bPointer && bObject)
	{
		throw FSourceError(Name.Line, "objects are held by pointer: '" + Name.Text + "*'");
	}
	if (!bObject && !IsValueType(Name.Text) && !FNames::HasPrefix(Name.Text, "F"))
	{
		throw FSourceError(Name.Line, "unknown property type '" + Name.Text + "'");
	}
	if (bInArray && Name.Is("bool"))
	{
		throw FSourceError(Name.Line, "an array of bool is not supported");
	}
	Property.PointerClass = bPointer ? Name.Text : "";
}

void FParser::ParsePropertyEnd(const FReflectedProperty& Property)
{
	const FToken After = Tokens.Peek();
	if (After.Is(";"))
	{
		Tokens.Take();
		return;
	}
	if (After.Is("{"))
	{
		SkipBalanced("{", "}", "initial values of " + Property.Name);
		Tokens.Expect(";", "after property " + Property.Name);
		return;
	}
	if (!After.Is("="))
	{
		const std::string Reason = After.Is("[") ? "arrays of fixed size are not supported, use TArray"
			: After.Is(",")                      ? "one declaration can't make several properties"
			: After.Is(":")                      ? "bit fields are not supported, use bool"
							: "expected ';' after property " + Property.Name + " but found " + After.Describe();
		throw FSourceError(After.Line, Reason);
	}
	while (!Tokens.Peek().Is(";"))
	{
		const FToken& Token = Tokens.Peek();
		if (Token.Is("{") || Token.Is("("))
		{
			const bool bBrace = Token.Is("{");
			SkipBalanced(bBrace ? "{" : "(", bBrace ? "}" : ")", "initial values of " + Property.Name);
			continue;
		}
		if (Token.Kind == ETokenKind::End || Token.Kind == ETokenKind::Directive || Token.Is("}"))
		{
			throw FSourceError(After.Line, "expected ';' after property " + Property.Name);
		}
		Tokens.Take();
	}
	Tokens.Take();
}

void FParser::CheckProperty(const FReflectedProperty& Property, int Line) const
{
	const FSpecifiers& Specifiers = Property.Specifiers;
	if (Specifiers.HasFlag("CPF_InstancedReference") && Property.PointerClass.empty())
	{
		throw FSourceError(Line, "Instanced needs a pointer to an object, or an array of them");
	}
	// The engine's own tool refuses these, so a plugin that has them would not build there.
	if (Access == EAccess::Private && Specifiers.HasFlag("CPF_BlueprintVisible") &&
		!Specifiers.HasMetaData("AllowPrivateAccess"))
	{
		throw FSourceError(
			Line, "BlueprintReadOnly or BlueprintReadWrite on a private member needs meta=(AllowPrivateAccess=true)");
	}
}
