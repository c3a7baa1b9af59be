// Copyright Corvane. MIT License.
#include "Specifiers.h"

#include "SourceError.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <set>

namespace
{
	enum class EValue
	{
		None,
		/** One word, number or string. */
		Single,
		/** One, or several in parentheses. */
		List,
		/** Keys with values in parentheses. */
		Meta
	};

	struct FRule
	{
		const char* Name;
		EValue Value;
		std::vector<std::string> Flags;
		/** Set to the value, or to "true" for a specifier without one; null for none. */
		const char* MetaKey;
		/** At most one specifier of a group can stand in a list; null for none. */
		const char* Group;
	};

	const std::vector<FRule>& GetRules(ESpecifierPlace Place)
	{
		static const std::map<ESpecifierPlace, std::vector<FRule>> Rules = {
			{ESpecifierPlace::Class,
				{{"BlueprintType", EValue::None, {}, "BlueprintType", nullptr},
					{"Blueprintable", EValue::None, {}, "IsBlueprintBase", nullptr},
					{"ClassGroup", EValue::List, {}, "ClassGroupNames", nullptr},
					{"HideCategories", EValue::List, {}, "HideCategories", nullptr},
					{"Abstract", EValue::None, {"CLASS_Abstract"}, nullptr, nullptr},
					{"DefaultToInstanced", EValue::None, {"CLASS_DefaultToInstanced"}, nullptr, nullptr},
					{"Placeable", EValue::None, {}, nullptr, nullptr}, {"meta", EValue::Meta, {}, nullptr, nullptr}}},
			{ESpecifierPlace::Struct,
				{{"BlueprintType", EValue::None, {}, "BlueprintType", nullptr},
					{"meta", EValue::Meta, {}, nullptr, nullptr}}},
			{ESpecifierPlace::Property,
				{{"EditAnywhere", EValue::None, {"CPF_Edit"}, nullptr, "edit"},
					{"VisibleAnywhere", EValue::None, {"CPF_Edit", "CPF_EditConst"}, nullptr, "edit"},
					{"BlueprintReadOnly", EValue::None, {"CPF_BlueprintVisible", "CPF_BlueprintReadOnly"}, nullptr,
						"blueprint"},
					{"BlueprintReadWrite", EValue::None, {"CPF_BlueprintVisible"}, nullptr, "blueprint"},
					{"Interp", EValue::None, {"CPF_Edit", "CPF_BlueprintVisible", "CPF_Interp"}, nullptr, nullptr},
					{"Instanced", EValue::None,
						{"CPF_PersistentInstance", "CPF_ExportObject", "CPF_InstancedReference"}, "EditInline",
						nullptr},
					{"Transient", EValue::None, {"CPF_Transient"}, nullptr, nullptr},
					{"AdvancedDisplay", EValue::None, {"CPF_AdvancedDisplay"}, nullptr, nullptr},
					{"Category", EValue::Single, {}, "Category", nullptr},
					{"meta", EValue::Meta, {}, nullptr, nullptr}}},
			{ESpecifierPlace::Function,
				{{"BlueprintCallable", EValue::None, {}, nullptr, nullptr},
					{"BlueprintPure", EValue::None, {}, nullptr, nullptr},
					{"Category", EValue::Single, {}, "Category", nullptr},
					{"meta", EValue::Meta, {}, nullptr, nullptr}}}};
		return Rules.at(Place);
	}

	/** The engine reads specifiers without regard to case. */
	std::string ToLower(std::string Text)
	{
		std::transform(Text.begin(), Text.end(), Text.begin(),
			[](unsigned char Char) { return static_cast<char>(std::tolower(Char)); });
		return Text;
	}

	const FRule& FindRule(const FToken& Name, ESpecifierPlace Place)
	{
		for (const FRule& Rule : GetRules(Place))
		{
			if (ToLower(Rule.Name) == ToLower(Name.Text))
			{
				return Rule;
			}
		}
		throw FSourceError(Name.Line, "unknown specifier '" + Name.Text + "'");
	}

	/** A word, a number with or without sign, or strings side by side. */
	std::string ReadValue(FTokenStream& Tokens, const std::string& Name)
	{
		std::string Value;
		if (Tokens.Peek().Kind == ETokenKind::String)
		{
			while (Tokens.Peek().Kind == ETokenKind::String)
			{
				Value += Tokens.Take().Text;
			}
			return Value;
		}
		if (Tokens.TakeIf("-"))
		{
			Value = "-";
		}
		const FToken& Token = Tokens.Peek();
		if (Token.Kind != ETokenKind::Number && (Token.Kind != ETokenKind::Identifier || !Value.empty()))
		{
			throw FSourceError(Token.Line, "expected a value for '" + Name + "' but found " + Token.Describe());
		}
		return Value + Tokens.Take().Text;
	}

	std::string ReadList(FTokenStream& Tokens, const std::string& Name)
	{
		if (!Tokens.TakeIf("("))
		{
			return ReadValue(Tokens, Name);
		}
		std::string Values = ReadValue(Tokens, Name);
		while (Tokens.TakeIf(","))
		{
			Values += " " + ReadValue(Tokens, Name);
		}
		Tokens.Expect(")", "after the values of '" + Name + "'");
		return Values;
	}

	void AddMetaData(FSpecifiers& Specifiers, const std::string& Key, const std::string& Value, int Line)
	{
		if (Specifiers.HasMetaData(Key))
		{
			throw FSourceError(Line, "metadata '" + Key + "' is given twice");
		}
		Specifiers.MetaData.push_back({Key, Value});
	}

	void ReadMeta(FTokenStream& Tokens, FSpecifiers& Specifiers)
	{
		Tokens.Expect("(", "after 'meta='");
		do
		{
			const FToken Key = Tokens.ExpectIdentifier("a metadata key");
			AddMetaData(Specifiers, Key.Text, Tokens.TakeIf("=") ? ReadValue(Tokens, Key.Text) : "", Key.Line);
		} while (Tokens.TakeIf(","));
		Tokens.Expect(")", "after metadata");
	}

	void ReadOne(FTokenStream& Tokens, const FRule& Rule, FSpecifiers& Specifiers, int Line)
	{
		Specifiers.Flags.insert(Specifiers.Flags.end(), Rule.Flags.begin(), Rule.Flags.end());
		if (Rule.Value == EValue::None)
		{
			if (Tokens.Peek().Is("="))
			{
				throw FSourceError(Line, "specifier '" + std::string(Rule.Name) + "' takes no value");
			}
			if (Rule.MetaKey)
			{
				AddMetaData(Specifiers, Rule.MetaKey, "true", Line);
			}
			return;
		}
		Tokens.Expect("=", "after '" + std::string(Rule.Name) + "'");
		if (Rule.Value == EValue::Meta)
		{
			ReadMeta(Tokens, Specifiers);
			return;
		}
		const std::string Value =
			Rule.Value == EValue::List ? ReadList(Tokens, Rule.Name) : ReadValue(Tokens, Rule.Name);
		AddMetaData(Specifiers, Rule.MetaKey, Value, Line);
	}
}

bool FSpecifiers::HasMetaData(const std::string& Key) const
{
	return std::any_of(MetaData.begin(), MetaData.end(),
		[&Key](const FMetaData& Entry) { return ToLower(Entry.Key) == ToLower(Key); });
}

bool FSpecifiers::HasFlag(const std::string& Flag) const
{
	return std::find(Flags.begin(), Flags.end(), Flag) != Flags.end();
}

FSpecifiers ReadSpecifiers(FTokenStream& Tokens, ESpecifierPlace Place)
{
	FSpecifiers Specifiers;
	std::set<std::string> Groups;
	std::set<std::string> Names;
	Tokens.Expect("(", "after the macro's name");
	if (Tokens.TakeIf(")"))
	{
		return Specifiers;
	}
	do
	{
		const FToken Name = Tokens.ExpectIdentifier("a specifier");
		const FRule& Rule = FindRule(Name, Place);
		if (!Names.insert(Rule.Name).second)
		{
			throw FSourceError(Name.Line, "specifier '" + Name.Text + "' is given twice");
		}
		if (Rule.Group && !Groups.insert(Rule.Group).second)
		{
			throw FSourceError(
				Name.Line, "specifier '" + Name.Text + "' contradicts another " + Rule.Group + " specifier");
		}
		ReadOne(Tokens, Rule, Specifiers, Name.Line);
	} while (Tokens.TakeIf(","));
	Tokens.Expect(")", "after the specifiers");
	return Specifiers;
}
