// Copyright Corvane. MIT License.
#include "Names.h"

#include <cctype>
#include <set>

bool FNames::IsUnsupportedMacro(const std::string& Text)
{
	static const std::set<std::string> Unsupported = {"UENUM", "UINTERFACE", "UDELEGATE", "UMETA", "UPARAM",
		"GENERATED_UCLASS_BODY", "GENERATED_USTRUCT_BODY", "GENERATED_UINTERFACE_BODY", "GENERATED_IINTERFACE_BODY"};
	return Unsupported.count(Text) != 0 || Text.rfind("DECLARE_DYNAMIC_", 0) == 0;
}

bool FNames::IsReflectionMacro(const FToken& Token)
{
	static const std::set<std::string> Macros = {"UCLASS", "USTRUCT", "UPROPERTY", "UFUNCTION", "GENERATED_BODY"};
	return Token.Kind == ETokenKind::Identifier &&
		(Macros.count(Token.Text) != 0 || FNames::IsUnsupportedMacro(Token.Text));
}

bool FNames::HasPrefix(const std::string& Name, const char* Letters)
{
	return Name.size() > 1 && std::string(Letters).find(Name[0]) != std::string::npos &&
		std::isupper(static_cast<unsigned char>(Name[1]));
}
