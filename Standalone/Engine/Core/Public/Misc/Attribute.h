// Copyright Corvane. MIT License.
#pragma once

#include "Delegates/Delegate.h"

/** A value, or a function that is asked for it at every Get, or unset. */
template <typename ObjectType>
class TAttribute
{
public:
	/** What a bound attribute asks. */
	typedef TDelegate<ObjectType()> FGetter;

	TAttribute() = default;
	template <typename OtherType,
		typename = typename std::enable_if<std::is_convertible<OtherType, ObjectType>::value &&
			!std::is_base_of<TAttribute, typename std::decay<OtherType>::type>::value>::type>
	TAttribute(const OtherType& InInitialValue) : Value(InInitialValue), bIsSet(true)
	{}
	template <typename SourceType, typename MethodType>
	TAttribute(const TSharedRef<SourceType>& InUserObject, MethodType InMethod)
		: bIsSet(true), Getter(FGetter::CreateSP(InUserObject, InMethod))
	{}

	static TAttribute Create(const FGetter& InGetter)
	{
		TAttribute Result;
		Result.Getter = InGetter;
		Result.bIsSet = true;
		return Result;
	}
	/** The value; a bound attribute asks its getter while that is alive and keeps the last answer after that. */
	const ObjectType& Get() const
	{
		if (Getter.IsBound())
		{
			Value = Getter.Execute();
		}
		return Value;
	}
	ObjectType Get(const ObjectType& DefaultValue) const { return bIsSet ? Get() : DefaultValue; }
	bool IsSet() const { return bIsSet; }
	bool IsBound() const { return Getter.IsBound(); }

private:
	mutable ObjectType Value = ObjectType();
	bool bIsSet = false;
	FGetter Getter;
};
