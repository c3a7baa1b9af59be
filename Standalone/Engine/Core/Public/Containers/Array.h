// Copyright Corvane. MIT License.
#pragma once

#include "Misc/AssertionMacros.h"

#include <algorithm>
#include <initializer_list>
#include <vector>

/**
 * The engine's dynamic array over a standard vector. An index out of range is fatal. Elements are compared with their
 * own operator==, so an array of FString finds without regard to ASCII case.
 */
template <typename InElementType>
class TArray
{
	// A vector of bool has no addressable elements, which reflection needs.
	static_assert(!std::is_same<InElementType, bool>::value, "Use TArray<uint8> for flags");

public:
	typedef InElementType ElementType;
	typedef typename std::vector<ElementType>::iterator RangedForIteratorType;
	typedef typename std::vector<ElementType>::const_iterator RangedForConstIteratorType;

	TArray() = default;
	TArray(std::initializer_list<ElementType> InitList) : Elements(InitList) {}
	TArray(const ElementType* Ptr, int32 Count) : Elements(Ptr, Ptr + Count) {}

	int32 Num() const { return static_cast<int32>(Elements.size()); }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Num(); }
	ElementType* GetData() { return Elements.data(); }
	const ElementType* GetData() const { return Elements.data(); }
	ElementType& operator[](int32 Index)
	{
		RangeCheck(Index);
		return Elements[static_cast<SIZE_T>(Index)];
	}
	const ElementType& operator[](int32 Index) const
	{
		RangeCheck(Index);
		return Elements[static_cast<SIZE_T>(Index)];
	}
	/** The element that is IndexFromTheEnd places before the last one. */
	const ElementType& Last(int32 IndexFromTheEnd = 0) const { return (*this)[Num() - IndexFromTheEnd - 1]; }
	ElementType& Last(int32 IndexFromTheEnd = 0) { return (*this)[Num() - IndexFromTheEnd - 1]; }
	int32 Add(const ElementType& Item)
	{
		Elements.push_back(Item);
		return Num() - 1;
	}
	int32 Add(ElementType&& Item)
	{
		Elements.push_back(std::move(Item));
		return Num() - 1;
	}
	template <typename... ArgTypes>
	int32 Emplace(ArgTypes&&... Args)
	{
		Elements.emplace_back(std::forward<ArgTypes>(Args)...);
		return Num() - 1;
	}
	/** Appends a default-constructed element. */
	ElementType& AddDefaulted_GetRef()
	{
		Elements.emplace_back();
		return Elements.back();
	}
	int32 AddUnique(const ElementType& Item)
	{
		const int32 Found = Find(Item);
		return Found == INDEX_NONE ? Add(Item) : Found;
	}
	void Append(const TArray& Source)
	{
		Elements.insert(Elements.end(), Source.Elements.begin(), Source.Elements.end());
	}
	void RemoveAt(int32 Index, int32 Count = 1)
	{
		check(Index >= 0 && Count >= 0 && Index + Count <= Num());
		Elements.erase(Elements.begin() + Index, Elements.begin() + Index + Count);
	}
	/** Removes every equal element, keeping the order of the others. @return how many were removed. */
	int32 Remove(const ElementType& Item)
	{
		// A copy: the item may be an element of this very array.
		const ElementType Wanted(Item);
		return RemoveAll([&Wanted](const ElementType& Element) { return Element == Wanted; });
	}
	template <typename Predicate>
	int32 RemoveAll(Predicate ShouldRemove)
	{
		const int32 OldNum = Num();
		Elements.erase(std::remove_if(Elements.begin(), Elements.end(), ShouldRemove), Elements.end());
		return OldNum - Num();
	}
	int32 Find(const ElementType& Item) const
	{
		return IndexOfByPredicate([&Item](const ElementType& Element) { return Element == Item; });
	}
	template <typename Predicate>
	int32 IndexOfByPredicate(Predicate Matches) const
	{
		const auto Found = std::find_if(Elements.begin(), Elements.end(), Matches);
		return Found == Elements.end() ? static_cast<int32>(INDEX_NONE) : static_cast<int32>(Found - Elements.begin());
	}
	template <typename Predicate>
	ElementType* FindByPredicate(Predicate Matches)
	{
		const int32 Index = IndexOfByPredicate(Matches);
		return Index == INDEX_NONE ? nullptr : &Elements[static_cast<SIZE_T>(Index)];
	}
	template <typename Predicate>
	const ElementType* FindByPredicate(Predicate Matches) const
	{
		return const_cast<TArray*>(this)->FindByPredicate(Matches);
	}
	bool Contains(const ElementType& Item) const { return Find(Item) != INDEX_NONE; }
	template <typename Predicate>
	bool ContainsByPredicate(Predicate Matches) const
	{
		return IndexOfByPredicate(Matches) != INDEX_NONE;
	}
	void Empty() { std::vector<ElementType>().swap(Elements); }
	/** Removes all elements and keeps the memory. */
	void Reset() { Elements.clear(); }
	void Reserve(int32 Number) { Elements.reserve(static_cast<SIZE_T>(Number)); }
	/** Grows with default-constructed elements, or drops the last ones. */
	void SetNum(int32 NewNum)
	{
		check(NewNum >= 0);
		Elements.resize(static_cast<SIZE_T>(NewNum));
	}
	template <typename Predicate>
	void StableSort(Predicate Less)
	{
		std::stable_sort(Elements.begin(), Elements.end(), Less);
	}
	bool operator==(const TArray& Other) const { return Elements == Other.Elements; }
	bool operator!=(const TArray& Other) const { return !(*this == Other); }
	RangedForIteratorType begin() { return Elements.begin(); }
	RangedForIteratorType end() { return Elements.end(); }
	RangedForConstIteratorType begin() const { return Elements.begin(); }
	RangedForConstIteratorType end() const { return Elements.end(); }

private:
	void RangeCheck(int32 Index) const
	{
		checkf(IsValidIndex(Index), TEXT("Array index out of bounds: %i from an array of size %i"), Index, Num());
	}

	std::vector<ElementType> Elements;
};
