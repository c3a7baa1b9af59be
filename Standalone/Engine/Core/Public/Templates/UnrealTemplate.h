// Copyright Corvane. MIT License.
#pragma once

#include "CoreTypes.h"

#include <type_traits>
#include <utility>

/** The engine's spelling of std::move: refuses what cannot be moved from. */
template <typename T>
constexpr typename std::remove_reference<T>::type&& MoveTemp(T&& Object)
{
	static_assert(std::is_lvalue_reference<T>::value, "MoveTemp called on an rvalue");
	static_assert(!std::is_const<typename std::remove_reference<T>::type>::value, "MoveTemp called on a const object");
	return static_cast<typename std::remove_reference<T>::type&&>(Object);
}

/** Sets a variable for a scope and puts its old value back at the end. */
template <typename T>
class TGuardValue
{
public:
	TGuardValue(T& InVariable, const T& NewValue) : Variable(InVariable), OldValue(InVariable) { Variable = NewValue; }
	~TGuardValue() { Variable = OldValue; }
	TGuardValue(const TGuardValue&) = delete;
	TGuardValue& operator=(const TGuardValue&) = delete;

private:
	T& Variable;
	T OldValue;
};
