// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Array.h"
#include "Delegates/DelegateInstances.h"

/** Names one binding of a multicast delegate. A default-made one names none. */
class CORE_API FDelegateHandle
{
public:
	FDelegateHandle() = default;
	/** A handle that no other binding of this process has. */
	static FDelegateHandle GenerateNewHandle();
	bool IsValid() const { return Id != 0; }
	void Reset() { Id = 0; }
	bool operator==(const FDelegateHandle& Other) const { return Id == Other.Id; }
	bool operator!=(const FDelegateHandle& Other) const { return !(*this == Other); }

private:
	uint64 Id = 0;
};

template <typename Signature>
class TDelegate;

/**
 * A function with a fixed signature that is bound at run time, or none. Further arguments given at binding time (the
 * payload) are copied then and handed over after the call's own.
 */
template <typename Ret, typename... ParamTypes>
class TDelegate<Ret(ParamTypes...)>
{
public:
	typedef DelegateInstances::TInstance<Ret, ParamTypes...> FInstance;

	TDelegate() = default;
	TDelegate(std::nullptr_t) {}

	/** The object must outlive the binding: nothing watches it. */
	template <typename UserClass, typename BaseClass, typename... Args, typename... VarTypes>
	static TDelegate CreateRaw(UserClass* Object, Ret (BaseClass::*Method)(ParamTypes..., Args...), VarTypes... Vars)
	{
		return Make(DelegateInstances::MakeRaw<Ret, ParamTypes...>(Object, Object, Method, Vars...));
	}
	template <typename UserClass, typename BaseClass, typename... Args, typename... VarTypes>
	static TDelegate CreateRaw(
		const UserClass* Object, Ret (BaseClass::*Method)(ParamTypes..., Args...) const, VarTypes... Vars)
	{
		return Make(DelegateInstances::MakeRaw<Ret, ParamTypes...>(Object, Object, Method, Vars...));
	}
	/** Held weakly: the binding is unbound once the object is gone. */
	template <typename UserClass, typename MethodType, typename... VarTypes>
	static TDelegate CreateSP(const TSharedRef<UserClass>& Object, MethodType Method, VarTypes... Vars)
	{
		return Make(DelegateInstances::MakeShared<Ret, ParamTypes...>(Object, Method, Vars...));
	}
	template <typename UserClass, typename MethodType, typename... VarTypes>
	static TDelegate CreateSP(UserClass* Object, MethodType Method, VarTypes... Vars)
	{
		return CreateSP(StaticCastSharedRef<UserClass>(Object->AsShared()), Method, Vars...);
	}
	template <typename... Args, typename... VarTypes>
	static TDelegate CreateStatic(Ret (*Function)(ParamTypes..., Args...), VarTypes... Vars)
	{
		return Make(DelegateInstances::MakeFunctor<Ret, ParamTypes...>(Function, Vars...));
	}
	template <typename FunctorType, typename... VarTypes>
	static TDelegate CreateLambda(FunctorType&& Functor, VarTypes... Vars)
	{
		return Make(DelegateInstances::MakeFunctor<Ret, ParamTypes...>(std::forward<FunctorType>(Functor), Vars...));
	}

	bool IsBound() const { return Instance.IsValid() && Instance->IsSafeToExecute(); }
	void Unbind() { Instance.Reset(); }
	/** Fatal when unbound. */
	Ret Execute(ParamTypes... Params) const
	{
		checkf(IsBound(), TEXT("Executed a delegate that is not bound"));
		// Kept alive here: the call may unbind or replace this very delegate.
		const TSharedPtr<FInstance> Running = Instance;
		return Running->Execute(std::forward<ParamTypes>(Params)...);
	}
	/** For delegates without result. @return whether anything was bound. */
	bool ExecuteIfBound(ParamTypes... Params) const
	{
		static_assert(std::is_void<Ret>::value, "A result would be lost: use Execute");
		if (!IsBound())
		{
			return false;
		}
		const TSharedPtr<FInstance> Running = Instance;
		Running->Execute(std::forward<ParamTypes>(Params)...);
		return true;
	}
	bool IsBoundToObject(const void* UserObject) const
	{
		return Instance.IsValid() && UserObject != nullptr && Instance->GetUserObject() == UserObject;
	}

private:
	static TDelegate Make(const TSharedPtr<FInstance>& InInstance)
	{
		TDelegate Result;
		Result.Instance = InInstance;
		return Result;
	}

	TSharedPtr<FInstance> Instance;
};

template <typename Signature>
class TMulticastDelegate;

/**
 * Any number of bindings of one signature. Broadcast calls the last added first; a binding that is removed meanwhile is
 * not called any more, one that is added meanwhile not yet.
 */
template <typename... ParamTypes>
class TMulticastDelegate<void(ParamTypes...)>
{
public:
	typedef TDelegate<void(ParamTypes...)> FDelegate;

	TMulticastDelegate() = default;

	FDelegateHandle Add(const FDelegate& Delegate)
	{
		Compact();
		const FDelegateHandle Handle = FDelegateHandle::GenerateNewHandle();
		Bindings.Add(FBinding{Handle, Delegate});
		return Handle;
	}
	template <typename UserClass, typename MethodType, typename... VarTypes>
	FDelegateHandle AddRaw(UserClass* Object, MethodType Method, VarTypes... Vars)
	{
		return Add(FDelegate::CreateRaw(Object, Method, Vars...));
	}
	template <typename UserClass, typename MethodType, typename... VarTypes>
	FDelegateHandle AddSP(const UserClass& Object, MethodType Method, VarTypes... Vars)
	{
		return Add(FDelegate::CreateSP(Object, Method, Vars...));
	}
	template <typename FunctorType>
	FDelegateHandle AddLambda(FunctorType&& Functor)
	{
		return Add(FDelegate::CreateLambda(std::forward<FunctorType>(Functor)));
	}

	/** @return whether the handle named a binding of this delegate. */
	bool Remove(FDelegateHandle Handle)
	{
		for (FBinding& Binding : Bindings)
		{
			if (Handle.IsValid() && Binding.Handle == Handle)
			{
				Drop(Binding);
				Compact();
				return true;
			}
		}
		return false;
	}
	/** Removes every binding to that object. @return how many. */
	int32 RemoveAll(const void* UserObject)
	{
		int32 Removed = 0;
		for (FBinding& Binding : Bindings)
		{
			if (Binding.Delegate.IsBoundToObject(UserObject))
			{
				Drop(Binding);
				++Removed;
			}
		}
		Compact();
		return Removed;
	}
	void Clear()
	{
		for (FBinding& Binding : Bindings)
		{
			Drop(Binding);
		}
		Compact();
	}
	bool IsBound() const
	{
		return Bindings.ContainsByPredicate([](const FBinding& Binding) { return Binding.Delegate.IsBound(); });
	}
	bool IsBoundToObject(const void* UserObject) const
	{
		return Bindings.ContainsByPredicate(
			[UserObject](const FBinding& Binding) { return Binding.Delegate.IsBoundToObject(UserObject); });
	}
	/** How many bindings would be called. The real engine has no such count. */
	int32 GetBindingCount() const
	{
		int32 Count = 0;
		for (const FBinding& Binding : Bindings)
		{
			Count += Binding.Delegate.IsBound() ? 1 : 0;
		}
		return Count;
	}
	void Broadcast(ParamTypes... Params) const
	{
		++BroadcastDepth;
		for (int32 Index = Bindings.Num() - 1; Index >= 0; --Index)
		{
			// A copy: the call may add bindings and so move the list.
			const FDelegate Delegate = Bindings[Index].Delegate;
			Delegate.ExecuteIfBound(Params...);
		}
		--BroadcastDepth;
		Compact();
	}

private:
	struct FBinding
	{
		FDelegateHandle Handle;
		FDelegate Delegate;
	};

	static void Drop(FBinding& Binding)
	{
		Binding.Handle.Reset();
		Binding.Delegate.Unbind();
	}
	/** Forgets dropped and expired bindings, but never under a running broadcast's feet. */
	void Compact() const
	{
		if (BroadcastDepth == 0)
		{
			Bindings.RemoveAll([](const FBinding& Binding) { return !Binding.Delegate.IsBound(); });
		}
	}

	mutable TArray<FBinding> Bindings;
	mutable int32 BroadcastDepth = 0;
};

typedef TDelegate<void()> FSimpleDelegate;
typedef TMulticastDelegate<void()> FSimpleMulticastDelegate;

#define DECLARE_DELEGATE(DelegateName) typedef TDelegate<void()> DelegateName;
#define DECLARE_DELEGATE_OneParam(DelegateName, Param1Type) typedef TDelegate<void(Param1Type)> DelegateName;
#define DECLARE_DELEGATE_TwoParams(DelegateName, Param1Type, Param2Type) \
	typedef TDelegate<void(Param1Type, Param2Type)> DelegateName;
#define DECLARE_DELEGATE_RetVal(RetValType, DelegateName) typedef TDelegate<RetValType()> DelegateName;
#define DECLARE_DELEGATE_RetVal_OneParam(RetValType, DelegateName, Param1Type) \
	typedef TDelegate<RetValType(Param1Type)> DelegateName;
#define DECLARE_MULTICAST_DELEGATE(DelegateName) typedef TMulticastDelegate<void()> DelegateName;
#define DECLARE_MULTICAST_DELEGATE_OneParam(DelegateName, Param1Type) \
	typedef TMulticastDelegate<void(Param1Type)> DelegateName;
#define DECLARE_MULTICAST_DELEGATE_TwoParams(DelegateName, Param1Type, Param2Type) \
	typedef TMulticastDelegate<void(Param1Type, Param2Type)> DelegateName;
