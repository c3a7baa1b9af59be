// Copyright Corvane. MIT License.
#pragma once

#include "Misc/AssertionMacros.h"
#include "Templates/TypeHash.h"

#include <list>
#include <unordered_map>

/** A key and its value. */
template <typename KeyType, typename ValueType>
struct TPair
{
	KeyType Key;
	ValueType Value;
};

/** Keys to values, one value a key, iterated in the order of insertion so that nothing depends on hashes. */
template <typename KeyType, typename ValueType>
class TMap
{
public:
	typedef TPair<KeyType, ValueType> ElementType;

	TMap() = default;
	TMap(const TMap& Other) { *this = Other; }
	TMap& operator=(const TMap& Other)
	{
		if (this != &Other)
		{
			Empty();
			for (const ElementType& Pair : Other)
			{
				Add(Pair.Key, Pair.Value);
			}
		}
		return *this;
	}
	int32 Num() const { return static_cast<int32>(Pairs.size()); }
	/** Sets the key's value, replacing an earlier one in its place. */
	ValueType& Add(const KeyType& Key, const ValueType& Value)
	{
		ValueType& Slot = FindOrAdd(Key);
		Slot = Value;
		return Slot;
	}
	ValueType& FindOrAdd(const KeyType& Key)
	{
		if (ValueType* Found = Find(Key))
		{
			return *Found;
		}
		Pairs.push_back(ElementType{Key, ValueType()});
		Index.emplace(Key, std::prev(Pairs.end()));
		return Pairs.back().Value;
	}
	ValueType* Find(const KeyType& Key)
	{
		const auto Found = Index.find(Key);
		return Found == Index.end() ? nullptr : &Found->second->Value;
	}
	const ValueType* Find(const KeyType& Key) const { return const_cast<TMap*>(this)->Find(Key); }
	/** The key's value, or a default-constructed one. */
	ValueType FindRef(const KeyType& Key) const
	{
		const ValueType* Found = Find(Key);
		return Found ? *Found : ValueType();
	}
	bool Contains(const KeyType& Key) const { return Find(Key) != nullptr; }
	ValueType& operator[](const KeyType& Key)
	{
		ValueType* Found = Find(Key);
		check(Found != nullptr);
		return *Found;
	}
	/** @return how many were removed: 0 or 1. */
	int32 Remove(const KeyType& Key)
	{
		const auto Found = Index.find(Key);
		if (Found == Index.end())
		{
			return 0;
		}
		Pairs.erase(Found->second);
		Index.erase(Found);
		return 1;
	}
	void Empty()
	{
		Index.clear();
		Pairs.clear();
	}
	typename std::list<ElementType>::iterator begin() { return Pairs.begin(); }
	typename std::list<ElementType>::iterator end() { return Pairs.end(); }
	typename std::list<ElementType>::const_iterator begin() const { return Pairs.begin(); }
	typename std::list<ElementType>::const_iterator end() const { return Pairs.end(); }

private:
	struct FKeyHash
	{
		SIZE_T operator()(const KeyType& Key) const { return GetTypeHash(Key); }
	};

	std::list<ElementType> Pairs;
	std::unordered_map<KeyType, typename std::list<ElementType>::iterator, FKeyHash> Index;
};
