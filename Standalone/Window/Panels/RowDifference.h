// Copyright Corvane. MIT License.
#pragma once

#include <algorithm>
#include <iterator>
#include <vector>

/** Where two lists differ, as one piece: what stands above and below of it is the same in both. */
struct FRowDifference
{
	template <typename RowType, typename PredicateType>
	FRowDifference(const std::vector<RowType>& Old, const std::vector<RowType>& New, PredicateType IsSame)
	{
		const auto Above = std::mismatch(Old.begin(), Old.end(), New.begin(), New.end(), IsSame);
		const auto Below = std::mismatch(Old.rbegin(), std::make_reverse_iterator(Above.first), New.rbegin(),
			std::make_reverse_iterator(Above.second), IsSame);
		First = static_cast<int>(Above.first - Old.begin());
		NumOld = static_cast<int>(Below.first.base() - Above.first);
		NumNew = static_cast<int>(Below.second.base() - Above.second);
	}

	int First;
	/** How many rows of the old list make place for how many of the new one. */
	int NumOld;
	int NumNew;
};
