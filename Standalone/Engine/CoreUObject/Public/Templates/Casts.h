// Copyright Corvane. MIT License.
#pragma once

#include "UObject/Class.h"
#include "UObject/Object.h"

/** Whether CastChecked takes null. */
namespace ECastCheckedType
{
	enum Type
	{
		NullAllowed,
		NullChecked
	};
}

/** The object as a T, or null if it is null or no T. */
template <typename To, typename From>
To* Cast(From* Src)
{
	return Src && Src->IsA(To::StaticClass()) ? static_cast<To*>(Src) : nullptr;
}

template <typename To, typename From>
const To* Cast(const From* Src)
{
	return Cast<To>(const_cast<From*>(Src));
}

/** The object as a T; fatal if it is none. */
template <typename To, typename From>
To* CastChecked(From* Src, ECastCheckedType::Type CheckType = ECastCheckedType::NullChecked)
{
	To* Result = Cast<To>(Src);
	checkf(Result || (!Src && CheckType == ECastCheckedType::NullAllowed), TEXT("Cast of %s to %s failed"),
		Src ? *Src->GetPathName() : TEXT("nullptr"), *To::StaticClass()->GetName());
	return Result;
}
