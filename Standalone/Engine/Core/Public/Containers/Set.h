// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Map.h"

#include <initializer_list>

/** Elements that are there once each. */
template <typename InElementType>
class TSet
{
public:
	TSet() = default;
	TSet(std::initializer_list<InElementType> InitList)
	{
		for (const InElementType& Element : InitList)
		{
			Add(Element);
		}
	}
	void Add(const InElementType& Element) { Elements.Add(Element, true); }
	bool Contains(const InElementType& Element) const { return Elements.Contains(Element); }

private:
	TMap<InElementType, bool> Elements;
};
