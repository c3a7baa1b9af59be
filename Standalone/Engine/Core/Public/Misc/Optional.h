// Copyright Corvane. MIT License.
#pragma once

#include "Misc/AssertionMacros.h"

#include <new>
#include <utility>

/** A value that may be unset. Reading an unset one is fatal. */
template <typename OptionalType>
class TOptional
{
public:
	TOptional() {}
	TOptional(const OptionalType& InValue)
	{
		new (&Storage) OptionalType(InValue);
		bIsSet = true;
	}
	TOptional(const TOptional& Other)
	{
		if (Other.bIsSet)
		{
			Emplace(Other.GetValue());
		}
	}
	~TOptional() { Reset(); }
	TOptional& operator=(const TOptional& Other)
	{
		if (this != &Other)
		{
			Reset();
			if (Other.bIsSet)
			{
				Emplace(Other.GetValue());
			}
		}
		return *this;
	}
	TOptional& operator=(const OptionalType& InValue) { return *this = TOptional(InValue); }
	template <typename... ArgTypes>
	void Emplace(ArgTypes&&... Args)
	{
		Reset();
		new (&Storage) OptionalType(std::forward<ArgTypes>(Args)...);
		bIsSet = true;
	}
	void Reset()
	{
		if (bIsSet)
		{
			bIsSet = false;
			reinterpret_cast<OptionalType*>(&Storage)->~OptionalType();
		}
	}
	bool IsSet() const { return bIsSet; }
	const OptionalType& GetValue() const
	{
		checkf(bIsSet, TEXT("An unset optional value was read"));
		return *reinterpret_cast<const OptionalType*>(&Storage);
	}
	OptionalType& GetValue() { return const_cast<OptionalType&>(static_cast<const TOptional*>(this)->GetValue()); }
	const OptionalType& Get(const OptionalType& DefaultValue) const { return bIsSet ? GetValue() : DefaultValue; }

private:
	alignas(OptionalType) unsigned char Storage[sizeof(OptionalType)];
	bool bIsSet = false;
};
