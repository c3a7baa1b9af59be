// Copyright Corvane. MIT License.
#pragma once

#include "Misc/AssertionMacros.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

#include <memory>

/**
 * @file The engine's shared pointers over the standard ones. TSharedRef is never null, TSharedPtr may be, TWeakPtr does
 * not keep alive. Following a null pointer is fatal.
 */

/** How reference counts are kept. Both are thread-safe here; the engine's default is not. */
enum class ESPMode
{
	Fast,
	ThreadSafe,
};

template <typename ObjectType, ESPMode Mode = ESPMode::Fast>
class TSharedRef;
template <typename ObjectType, ESPMode Mode = ESPMode::Fast>
class TSharedPtr;
template <typename ObjectType, ESPMode Mode = ESPMode::Fast>
class TWeakPtr;

/** A raw pointer on its way into its first shared pointer: what MakeShareable returns. */
template <typename ObjectType>
struct FRawPtrProxy
{
	ObjectType* Object;
};

template <typename ObjectType>
FRawPtrProxy<ObjectType> MakeShareable(ObjectType* InObject)
{
	return FRawPtrProxy<ObjectType>{InObject};
}

template <typename ObjectType, ESPMode Mode>
class TSharedPtr
{
public:
	typedef std::shared_ptr<ObjectType> FInner;

	TSharedPtr() = default;
	TSharedPtr(std::nullptr_t) {}
	explicit TSharedPtr(const FInner& InPointer) : Pointer(InPointer) {}
	template <typename OtherType>
	explicit TSharedPtr(OtherType* InObject) : Pointer(InObject)
	{}
	template <typename OtherType>
	TSharedPtr(const FRawPtrProxy<OtherType>& Proxy) : Pointer(Proxy.Object)
	{}
	template <typename OtherType,
		typename = typename std::enable_if<std::is_convertible<OtherType*, ObjectType*>::value>::type>
	TSharedPtr(const TSharedPtr<OtherType, Mode>& Other) : Pointer(Other.GetInner())
	{}
	template <typename OtherType,
		typename = typename std::enable_if<std::is_convertible<OtherType*, ObjectType*>::value>::type>
	TSharedPtr(const TSharedRef<OtherType, Mode>& Other) : Pointer(Other.GetInner())
	{}

	ObjectType* Get() const { return Pointer.get(); }
	bool IsValid() const { return Pointer != nullptr; }
	explicit operator bool() const { return IsValid(); }
	ObjectType* operator->() const
	{
		check(IsValid());
		return Pointer.get();
	}
	typename std::add_lvalue_reference<ObjectType>::type operator*() const
	{
		check(IsValid());
		return *Pointer;
	}
	void Reset() { Pointer.reset(); }
	/** The same object as a reference that cannot be null; fatal when null. */
	TSharedRef<ObjectType, Mode> ToSharedRef() const
	{
		check(IsValid());
		return TSharedRef<ObjectType, Mode>(Pointer);
	}
	/** True while exactly one shared pointer or reference holds the object. */
	bool IsUnique() const { return Pointer.use_count() == 1; }
	int32 GetSharedReferenceCount() const { return static_cast<int32>(Pointer.use_count()); }
	const FInner& GetInner() const { return Pointer; }

private:
	FInner Pointer;
};

template <typename ObjectType, ESPMode Mode>
class TSharedRef
{
public:
	typedef std::shared_ptr<ObjectType> FInner;

	explicit TSharedRef(const FInner& InPointer) : Pointer(InPointer) { check(Pointer != nullptr); }
	template <typename OtherType>
	explicit TSharedRef(OtherType* InObject) : TSharedRef(FInner(InObject))
	{}
	template <typename OtherType>
	TSharedRef(const FRawPtrProxy<OtherType>& Proxy) : TSharedRef(FInner(Proxy.Object))
	{}
	template <typename OtherType,
		typename = typename std::enable_if<std::is_convertible<OtherType*, ObjectType*>::value>::type>
	TSharedRef(const TSharedRef<OtherType, Mode>& Other) : Pointer(Other.GetInner())
	{}
	// A moved-from reference would be null: moving copies.
	TSharedRef(const TSharedRef& Other) = default;
	TSharedRef& operator=(const TSharedRef& Other) = default;

	ObjectType& Get() const { return *Pointer; }
	ObjectType* operator->() const { return Pointer.get(); }
	ObjectType& operator*() const { return *Pointer; }
	bool IsUnique() const { return Pointer.use_count() == 1; }
	int32 GetSharedReferenceCount() const { return static_cast<int32>(Pointer.use_count()); }
	const FInner& GetInner() const { return Pointer; }

private:
	FInner Pointer;
};

template <typename ObjectType, ESPMode Mode>
class TWeakPtr
{
public:
	TWeakPtr() = default;
	TWeakPtr(std::nullptr_t) {}
	template <typename OtherType>
	TWeakPtr(const TSharedPtr<OtherType, Mode>& Other) : Pointer(Other.GetInner())
	{}
	template <typename OtherType>
	TWeakPtr(const TSharedRef<OtherType, Mode>& Other) : Pointer(Other.GetInner())
	{}
	template <typename OtherType>
	TWeakPtr(const TWeakPtr<OtherType, Mode>& Other) : Pointer(Other.GetInner())
	{}
	/** The object while somebody keeps it alive, else null. */
	TSharedPtr<ObjectType, Mode> Pin() const { return TSharedPtr<ObjectType, Mode>(Pointer.lock()); }
	bool IsValid() const { return !Pointer.expired(); }
	void Reset() { Pointer.reset(); }
	const std::weak_ptr<ObjectType>& GetInner() const { return Pointer; }

private:
	std::weak_ptr<ObjectType> Pointer;
};

/** Pointers are equal when they point at the same object. */
template <typename A, typename B, ESPMode Mode>
bool operator==(const TSharedPtr<A, Mode>& Lhs, const TSharedPtr<B, Mode>& Rhs)
{
	return Lhs.Get() == Rhs.Get();
}
template <typename A, typename B, ESPMode Mode>
bool operator!=(const TSharedPtr<A, Mode>& Lhs, const TSharedPtr<B, Mode>& Rhs)
{
	return !(Lhs == Rhs);
}
template <typename A, typename B, ESPMode Mode>
bool operator==(const TSharedRef<A, Mode>& Lhs, const TSharedRef<B, Mode>& Rhs)
{
	return &Lhs.Get() == &Rhs.Get();
}
template <typename A, typename B, ESPMode Mode>
bool operator!=(const TSharedRef<A, Mode>& Lhs, const TSharedRef<B, Mode>& Rhs)
{
	return !(Lhs == Rhs);
}
template <typename A, typename B, ESPMode Mode>
bool operator==(const TSharedRef<A, Mode>& Lhs, const TSharedPtr<B, Mode>& Rhs)
{
	return &Lhs.Get() == Rhs.Get();
}
template <typename A, typename B, ESPMode Mode>
bool operator==(const TSharedPtr<A, Mode>& Lhs, const TSharedRef<B, Mode>& Rhs)
{
	return Rhs == Lhs;
}
template <typename A, ESPMode Mode>
bool operator==(const TSharedPtr<A, Mode>& Lhs, std::nullptr_t)
{
	return !Lhs.IsValid();
}
template <typename A, ESPMode Mode>
bool operator!=(const TSharedPtr<A, Mode>& Lhs, std::nullptr_t)
{
	return Lhs.IsValid();
}

/** Lets an object hand out shared references to itself. Not usable in a constructor: the object is not shared yet. */
template <typename ObjectType, ESPMode Mode = ESPMode::Fast>
class TSharedFromThis : public std::enable_shared_from_this<ObjectType>
{
public:
	TSharedRef<ObjectType, Mode> AsShared() { return TSharedRef<ObjectType, Mode>(this->shared_from_this()); }
	TSharedRef<const ObjectType, Mode> AsShared() const
	{
		return TSharedRef<const ObjectType, Mode>(this->shared_from_this());
	}

protected:
	/** AsShared in the type of a derived class: SharedThis(this). */
	template <typename OtherType>
	static TSharedRef<OtherType, Mode> SharedThis(OtherType* ThisPtr)
	{
		return TSharedRef<OtherType, Mode>(
			std::static_pointer_cast<OtherType>(static_cast<ObjectType*>(ThisPtr)->shared_from_this()));
	}
	template <typename OtherType>
	static TSharedRef<const OtherType, Mode> SharedThis(const OtherType* ThisPtr)
	{
		return TSharedRef<const OtherType, Mode>(
			std::static_pointer_cast<const OtherType>(static_cast<const ObjectType*>(ThisPtr)->shared_from_this()));
	}
};

template <typename ObjectType, ESPMode Mode = ESPMode::Fast, typename... ArgTypes>
TSharedRef<ObjectType, Mode> MakeShared(ArgTypes&&... Args)
{
	return TSharedRef<ObjectType, Mode>(std::make_shared<ObjectType>(std::forward<ArgTypes>(Args)...));
}

template <typename CastToType, typename CastFromType, ESPMode Mode>
TSharedRef<CastToType, Mode> StaticCastSharedRef(const TSharedRef<CastFromType, Mode>& InSharedRef)
{
	return TSharedRef<CastToType, Mode>(std::static_pointer_cast<CastToType>(InSharedRef.GetInner()));
}

template <typename CastToType, typename CastFromType, ESPMode Mode>
TSharedPtr<CastToType, Mode> StaticCastSharedPtr(const TSharedPtr<CastFromType, Mode>& InSharedPtr)
{
	return TSharedPtr<CastToType, Mode>(std::static_pointer_cast<CastToType>(InSharedPtr.GetInner()));
}

template <typename ObjectType, ESPMode Mode>
uint32 GetTypeHash(const TSharedPtr<ObjectType, Mode>& Pointer)
{
	return GetTypeHash(static_cast<const void*>(Pointer.Get()));
}
