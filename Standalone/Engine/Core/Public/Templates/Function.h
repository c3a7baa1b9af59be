// Copyright Corvane. MIT License.
#pragma once

#include "CoreTypes.h"

#include <functional>

/** An owned callable, or none (then it tests false). Calling an empty one ends the process. */
template <typename Signature>
class TFunction : public std::function<Signature>
{
public:
	using std::function<Signature>::function;
	TFunction() = default;
};

template <typename Signature>
class TFunctionRef;

/** A callable that somebody else keeps alive for the duration of the call. Never empty. */
template <typename Ret, typename... ParamTypes>
class TFunctionRef<Ret(ParamTypes...)>
{
public:
	// Not for another reference: that is copied, so that it does not refer to the reference.
	template <typename FunctorType,
		typename =
			typename std::enable_if<!std::is_same<typename std::decay<FunctorType>::type, TFunctionRef>::value>::type>
	TFunctionRef(FunctorType&& Functor)
		: Object(const_cast<void*>(static_cast<const void*>(&Functor))),
		  Caller(
			  [](void* Callee, ParamTypes... Params) -> Ret
			  {
				  return (*static_cast<typename std::remove_reference<FunctorType>::type*>(Callee))(
					  static_cast<ParamTypes&&>(Params)...);
			  })
	{}
	Ret operator()(ParamTypes... Params) const { return Caller(Object, static_cast<ParamTypes&&>(Params)...); }

private:
	void* Object;
	Ret (*Caller)(void*, ParamTypes...);
};
