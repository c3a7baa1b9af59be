// Copyright Corvane. MIT License.
#pragma once

#include "Header.h"
#include "TokenStream.h"

#include <string>

/**
 * Finds the reflected classes, structures, properties and functions of a header. Everything else is passed over, as
 * long as no reflected thing hides in it. Throws FSourceError.
 */
class FParser
{
public:
	/** InStem is the header's name without extension, which its generated header must have. */
	FParser(std::vector<FToken> InTokens, std::string InStem) : Tokens(std::move(InTokens)), Stem(std::move(InStem)) {}

	std::vector<FReflectedType> Run();

private:
	/** What stands in front of the members that are being read. */
	enum class EAccess
	{
		Public,
		Protected,
		Private
	};

	void ParseType(bool bIsClass);
	void ParseHead(FReflectedType& Type);
	void ParseBody(FReflectedType& Type);
	/** One token or macro within a type; true at its closing brace. */
	bool ParseMember(FReflectedType& Type, int& Depth);
	bool ParseAccess();
	void ParseGeneratedBody(FReflectedType& Type);
	void ParseProperty(FReflectedType& Type);
	void ParsePropertyType(FReflectedProperty& Property, bool bInArray);
	void ParsePropertyEnd(const FReflectedProperty& Property);
	void CheckProperty(const FReflectedProperty& Property, int Line) const;
	void ParseFunction(const FReflectedType& Type);
	/** Throws if another macro stands where a macro's declaration should be. */
	void CheckDeclarationFollows(const std::string& Macro) const;
	void SkipBalanced(const char* Open, const char* Close, const std::string& What);

	/** Takes a preprocessor line: follows conditionals and notes includes. */
	void TakeDirective();
	/** Throws unless a reflected thing may stand here. */
	void CheckReflectedPlace(const FToken& Token) const;
	void CheckIncludes() const;

	FTokenStream Tokens;
	std::string Stem;
	std::vector<FReflectedType> Types;
	std::vector<int> ConditionalLines;
	std::vector<FToken> Includes;
	EAccess Access = EAccess::Public;
};
