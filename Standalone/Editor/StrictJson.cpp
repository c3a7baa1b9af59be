// Copyright Corvane. MIT License.
#include "StrictJson.h"

#include "ErrorText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <vector>

using nlohmann::json;
using nlohmann::ordered_json;

namespace
{
	/** The parser's own wording without its prefix and without a quotation of the file, which may be long or
	 * ill-formed. */
	std::string PlainReason(const std::string& What)
	{
		const std::string Mark = " - ";
		const size_t Start = What.find(Mark);
		std::string Reason = Start == std::string::npos ? What : What.substr(Start + Mark.size());
		if (Start == std::string::npos && Reason.find("number overflow") != std::string::npos)
		{
			Reason = "number too large";
		}
		return Reason.substr(0, Reason.find("; last read"));
	}

	std::string LineAndColumn(std::string_view Text, size_t BytesRead)
	{
		const size_t At = std::min(BytesRead == 0 ? 0 : BytesRead - 1, Text.size());
		const std::string_view Before = Text.substr(0, At);
		const size_t Line = 1 + static_cast<size_t>(std::count(Before.begin(), Before.end(), '\n'));
		const size_t LineStart = Before.rfind('\n') == std::string_view::npos ? 0 : Before.rfind('\n') + 1;
		return "line " + std::to_string(Line) + ", column " + std::to_string(At - LineStart + 1);
	}

	/** Builds the document value by value, so that depth and keys are checked before anything is stored. */
	class FDocumentBuilder final : public nlohmann::json_sax<json>
	{
	public:
		FDocumentBuilder(std::string_view InText, json& InRoot, std::string& InError)
			: Text(InText), Root(InRoot), Error(InError)
		{}

		bool null() override { return Store(nullptr); }
		bool boolean(bool Value) override { return Store(Value); }
		bool number_integer(number_integer_t Value) override { return Store(Value); }
		bool number_unsigned(number_unsigned_t Value) override { return Store(Value); }
		bool number_float(number_float_t Value, const string_t&) override { return Store(Value); }
		bool string(string_t& Value) override { return Store(std::move(Value)); }
		bool binary(binary_t& Value) override { return Store(json::binary(std::move(Value))); }
		bool start_object(std::size_t) override { return Open(json::object()); }
		bool start_array(std::size_t) override { return Open(json::array()); }
		bool end_object() override { return Close(); }
		bool end_array() override { return Close(); }
		bool key(string_t& Name) override;
		bool parse_error(std::size_t Position, const std::string& Token, const json::exception& Problem) override;

	private:
		template <typename ValueType>
		json* Add(ValueType&& Value);
		template <typename ValueType>
		bool Store(ValueType&& Value);
		bool Open(json Container);
		bool Close();
		bool Refuse(const std::string& Reason);
		json::json_pointer CurrentPlace() const;

		std::string_view Text;
		json& Root;
		std::string& Error;
		std::vector<json*> Stack;
		std::vector<std::string> Keys;
	};

	template <typename ValueType>
	json* FDocumentBuilder::Add(ValueType&& Value)
	{
		if (Stack.empty())
		{
			Root = std::forward<ValueType>(Value);
			return &Root;
		}
		json& Parent = *Stack.back();
		if (Parent.is_array())
		{
			Parent.push_back(std::forward<ValueType>(Value));
			return &Parent.back();
		}
		json& Member = Parent[Keys.back()];
		Member = std::forward<ValueType>(Value);
		return &Member;
	}

	template <typename ValueType>
	bool FDocumentBuilder::Store(ValueType&& Value)
	{
		Add(std::forward<ValueType>(Value));
		return true;
	}

	bool FDocumentBuilder::Open(json Container)
	{
		if (Stack.size() == FStrictJson::MaxDepth)
		{
			return Refuse("nested deeper than " + std::to_string(FStrictJson::MaxDepth) + " levels");
		}
		Stack.push_back(Add(std::move(Container)));
		Keys.emplace_back();
		return true;
	}

	bool FDocumentBuilder::Close()
	{
		Stack.pop_back();
		Keys.pop_back();
		return true;
	}

	bool FDocumentBuilder::key(string_t& Name)
	{
		Keys.back() = Name;
		return !Stack.back()->contains(Name) || Refuse("this key stands twice in its object");
	}

	bool FDocumentBuilder::parse_error(std::size_t Position, const std::string&, const json::exception& Problem)
	{
		Error = LineAndColumn(Text, Position) + ": " + PlainReason(Problem.what());
		return false;
	}

	bool FDocumentBuilder::Refuse(const std::string& Reason)
	{
		Error = FErrorText::AtPlace(CurrentPlace().to_string(), Reason);
		return false;
	}

	json::json_pointer FDocumentBuilder::CurrentPlace() const
	{
		json::json_pointer Place;
		for (size_t Level = 0; Level < Stack.size(); ++Level)
		{
			const json& Container = *Stack[Level];
			// A container that is still being filled names its last element; the innermost one is about to get another.
			const bool bInnermost = Level + 1 == Stack.size();
			Container.is_object() ? Place.push_back(Keys[Level])
								  : Place.push_back(std::to_string(Container.size() - (bInnermost ? 0 : 1)));
		}
		return Place;
	}

	bool IsPlain(const ordered_json& Value)
	{
		return !Value.is_structured();
	}

	void Append(std::string& Out, const ordered_json& Value, size_t Indent)
	{
		if (IsPlain(Value) || std::all_of(Value.begin(), Value.end(), IsPlain))
		{
			Out += Value.dump();
			return;
		}
		const std::string Inner = '\n' + std::string(Indent + 1, '\t');
		Out += Value.is_object() ? '{' : '[';
		bool bFirst = true;
		for (const auto& [Key, Element] : Value.items())
		{
			Out += bFirst ? Inner : ',' + Inner;
			Out += Value.is_object() ? ordered_json(Key).dump() + ": " : std::string();
			Append(Out, Element, Indent + 1);
			bFirst = false;
		}
		Out += '\n' + std::string(Indent, '\t');
		Out += Value.is_object() ? '}' : ']';
	}
}

bool FStrictJson::Parse(std::string_view Text, json& OutValue, std::string& OutError)
{
	// The parser takes it for the end and leaves the rest unread.
	const size_t Null = Text.find('\0');
	if (Null != std::string_view::npos)
	{
		OutError = LineAndColumn(Text, Null + 1) + ": a null character";
		return false;
	}
	FDocumentBuilder Builder(Text, OutValue, OutError);
	return json::sax_parse(Text.begin(), Text.end(), &Builder);
}

std::string FStrictJson::Format(const ordered_json& Value)
{
	std::string Out;
	Append(Out, Value, 0);
	return Out + '\n';
}

ordered_json FStrictJson::Number(float Value)
{
	// Whole numbers go without a fraction; minus zero keeps its sign only as a fraction.
	constexpr float LargestWhole = 1.0e9F;
	if (std::trunc(Value) == Value && std::fabs(Value) <= LargestWhole && !(Value == 0.0F && std::signbit(Value)))
	{
		return static_cast<int64_t>(Value);
	}
	std::array<char, 32> Digits{};
	const auto Written = std::to_chars(Digits.data(), Digits.data() + Digits.size(), Value);
	double Decimal = 0.0;
	std::from_chars(Digits.data(), Written.ptr, Decimal);
	return Decimal;
}
