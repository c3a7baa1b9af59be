// Copyright Corvane. MIT License.
#pragma once

#include "Standalone/BindingCounts.h"
#include "Templates/SharedPointer.h"

#include <tuple>

/** The kinds of bindings behind TDelegate: implementation, not for direct use. */
namespace DelegateInstances
{
	/** One binding. */
	template <typename Ret, typename... ParamTypes>
	class TInstance
	{
	public:
		virtual ~TInstance() = default;
		virtual Ret Execute(ParamTypes... Params) = 0;
		virtual bool IsSafeToExecute() const { return true; }
		/** The object that RemoveAll and IsBoundToObject look for; null for functions. */
		virtual const void* GetUserObject() const { return nullptr; }
	};

	/** The call's own arguments first, then the payload. */
	template <typename Ret, typename CalleeType, typename Tuple, SIZE_T... Indices, typename... ParamTypes>
	Ret CallWithPayload(CalleeType& Callee, Tuple& Payload, std::index_sequence<Indices...>, ParamTypes&&... Params)
	{
		return Callee(std::forward<ParamTypes>(Params)..., std::get<Indices>(Payload)...);
	}

	/** A method and its object, as one callable. */
	template <typename UserClass, typename MethodType>
	struct TMethodCall
	{
		UserClass* Object;
		MethodType Method;

		template <typename... ArgTypes>
		decltype(auto) operator()(ArgTypes&&... Args) const
		{
			return (Object->*Method)(std::forward<ArgTypes>(Args)...);
		}
	};

	template <typename CalleeType, typename Tuple, typename Ret, typename... ParamTypes>
	class TCallableInstance : public TInstance<Ret, ParamTypes...>, private TCountedBinding<CalleeType>
	{
	public:
		TCallableInstance(const void* InUserObject, CalleeType InCallee, Tuple InPayload)
			: UserObject(InUserObject), Callee(std::move(InCallee)), Payload(std::move(InPayload))
		{}
		virtual Ret Execute(ParamTypes... Params) override
		{
			return CallWithPayload<Ret>(Callee, Payload, std::make_index_sequence<std::tuple_size<Tuple>::value>(),
				std::forward<ParamTypes>(Params)...);
		}
		virtual const void* GetUserObject() const override { return UserObject; }

	private:
		const void* UserObject;
		CalleeType Callee;
		Tuple Payload;
	};

	template <typename UserClass, typename CalleeType, typename Tuple, typename Ret, typename... ParamTypes>
	class TWeakInstance : public TCallableInstance<CalleeType, Tuple, Ret, ParamTypes...>
	{
	public:
		TWeakInstance(const TSharedRef<UserClass>& InObject, CalleeType InCallee, Tuple InPayload)
			: TCallableInstance<CalleeType, Tuple, Ret, ParamTypes...>(
				  &InObject.Get(), std::move(InCallee), std::move(InPayload)),
			  Object(InObject)
		{}
		virtual Ret Execute(ParamTypes... Params) override
		{
			// The object stays alive for the length of its own call.
			const TSharedPtr<UserClass> Pinned = Object.Pin();
			return TCallableInstance<CalleeType, Tuple, Ret, ParamTypes...>::Execute(
				std::forward<ParamTypes>(Params)...);
		}
		virtual bool IsSafeToExecute() const override { return Object.IsValid(); }

	private:
		TWeakPtr<UserClass> Object;
	};

	template <typename Ret, typename... ParamTypes, typename FunctorType, typename... VarTypes>
	TSharedPtr<TInstance<Ret, ParamTypes...>> MakeFunctor(FunctorType&& Functor, VarTypes... Vars)
	{
		typedef typename std::decay<FunctorType>::type FCallee;
		return MakeShareable(new TCallableInstance<FCallee, std::tuple<VarTypes...>, Ret, ParamTypes...>(
			nullptr, std::forward<FunctorType>(Functor), std::tuple<VarTypes...>(Vars...)));
	}

	template <typename Ret, typename... ParamTypes, typename UserClass, typename MethodType, typename... VarTypes>
	TSharedPtr<TInstance<Ret, ParamTypes...>> MakeRaw(
		const void* UserObject, UserClass* Object, MethodType Method, VarTypes... Vars)
	{
		typedef TMethodCall<UserClass, MethodType> FCallee;
		return MakeShareable(new TCallableInstance<FCallee, std::tuple<VarTypes...>, Ret, ParamTypes...>(
			UserObject, FCallee{Object, Method}, std::tuple<VarTypes...>(Vars...)));
	}

	template <typename Ret, typename... ParamTypes, typename UserClass, typename MethodType, typename... VarTypes>
	TSharedPtr<TInstance<Ret, ParamTypes...>> MakeShared(
		const TSharedRef<UserClass>& Object, MethodType Method, VarTypes... Vars)
	{
		typedef TMethodCall<UserClass, MethodType> FCallee;
		return MakeShareable(new TWeakInstance<UserClass, FCallee, std::tuple<VarTypes...>, Ret, ParamTypes...>(
			Object, FCallee{&Object.Get(), Method}, std::tuple<VarTypes...>(Vars...)));
	}
}
