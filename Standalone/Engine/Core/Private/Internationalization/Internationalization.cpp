// Copyright Corvane. MIT License.
#include <map>
#include <string>
#include <string_view>
#include <tuple>

#include "Internationalization/Internationalization.h"

#include "TextData.h"

namespace
{
	typedef std::tuple<std::u16string_view, std::u16string_view, std::u16string_view> FIdView;

	/** A literal's identity, which the cache owns. */
	struct FId
	{
		std::u16string Namespace;
		std::u16string Key;
		std::u16string Source;
	};

	FIdView ToView(const FId& Id)
	{
		return FIdView(Id.Namespace, Id.Key, Id.Source);
	}

	FIdView ToView(const FIdView& View)
	{
		return View;
	}

	/** Finds by view, so that asking for a text that is there costs no allocation. */
	struct FLess
	{
		typedef void is_transparent;

		template <typename TLeft, typename TRight>
		bool operator()(const TLeft& Left, const TRight& Right) const
		{
			return ToView(Left) < ToView(Right);
		}
	};
}

FText FInternationalization::ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(
	const TCHAR* InTextLiteral, const TCHAR* InNamespace, const TCHAR* InKey)
{
	// Never destroyed: literals are still used while other objects of the process end.
	static std::map<FId, FText, FLess>* const Cache = new std::map<FId, FText, FLess>;
	const auto Found = Cache->find(FIdView(InNamespace, InKey, InTextLiteral));
	if (Found != Cache->end())
	{
		return Found->second;
	}
	const FText Text(MakeShared<FTextData>(FString(InNamespace), FString(InKey), FString(InTextLiteral)));
	Cache->emplace(FId{InNamespace, InKey, InTextLiteral}, Text);
	return Text;
}
