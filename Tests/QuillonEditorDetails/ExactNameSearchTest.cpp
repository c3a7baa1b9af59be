// Copyright Corvane. MIT License.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "DetailCustomisations/ExactNameSearch.h"

namespace
{
	/** Looks every name up in the list, which grows by those that are not there, and compares with a plain search. */
	void CompareWithPlainSearch(TArray<FString> List, const TArray<FString>& Names, int32 First)
	{
		List.Reserve(List.Num() + Names.Num());
		const auto GetName = [&List](int32 Index) -> const FString& { return List[Index]; };
		TExactNameSearch<decltype(GetName)> Search(GetName, First);
		for (const FString& Name : Names)
		{
			bool bThere = false;
			for (int32 Index = First; Index < List.Num(); ++Index)
			{
				bThere = bThere || List[Index].Equals(Name, ESearchCase::CaseSensitive);
			}
			const int32 Found = Search.Find(Name, List.Num());
			RC_ASSERT((Found != INDEX_NONE) == bThere);
			RC_ASSERT(!bThere || (Found >= First && List[Found].Equals(Name, ESearchCase::CaseSensitive)));
			if (!bThere)
			{
				List.Add(Name);
			}
		}
	}

	TArray<FString> MakeNames(const std::vector<int>& Numbers)
	{
		TArray<FString> Names;
		for (const int Number : Numbers)
		{
			Names.Add(FString::Printf(Number % 2 == 0 ? TEXT("Cam%d") : TEXT("cam%d"), Number / 2));
		}
		return Names;
	}
}

RC_GTEST_PROP(
	TExactNameSearch, FindsWhatAPlainSearchFinds, (const std::vector<int>& List, const std::vector<int>& Names))
{
	const TArray<FString> All = MakeNames(List);
	CompareWithPlainSearch(All, MakeNames(Names), std::min(All.Num(), *rc::gen::inRange(0, 3)));
}

RC_GTEST_PROP(TExactNameSearch, FindsWhatAPlainSearchFindsInLongLists, ())
{
	const auto Numbers = *rc::gen::container<std::vector<int>>(60, rc::gen::inRange(0, 80));
	const auto Wanted = *rc::gen::container<std::vector<int>>(60, rc::gen::inRange(0, 80));
	CompareWithPlainSearch(MakeNames(Numbers), MakeNames(Wanted), *rc::gen::inRange(0, 3));
}

TEST(TExactNameSearch, GivesTheIndex)
{
	const TArray<FString> List = {TEXT("A"), TEXT("B"), TEXT("C"), TEXT("D")};
	const auto GetName = [&List](int32 Index) -> const FString& { return List[Index]; };
	TExactNameSearch<decltype(GetName)> Search(GetName, 1);
	for (int32 Round = 0; Round < 5; ++Round)
	{
		EXPECT_EQ(Search.Find(TEXT("C"), 4), 2);
		EXPECT_EQ(Search.Find(TEXT("A"), 4), INDEX_NONE);
		EXPECT_EQ(Search.Find(TEXT("b"), 4), INDEX_NONE);
		EXPECT_EQ(Search.Find(TEXT("B"), 4), 1);
	}
}
