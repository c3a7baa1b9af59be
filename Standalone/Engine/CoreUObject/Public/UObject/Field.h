// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "Internationalization/Text.h"
#include "UObject/NameTypes.h"
#include "UObject/ObjectMacros.h"

class UStruct;

/** A member of a reflected structure or class, with the metadata of its declaration. */
class COREUOBJECT_API FField
{
public:
	FField(FName InName, EClassCastFlags InCastFlags) : NamePrivate(InName), CastFlags(InCastFlags) {}
	virtual ~FField() = default;
	FField(const FField&) = delete;
	FField& operator=(const FField&) = delete;

	FName GetFName() const { return NamePrivate; }
	FString GetName() const { return NamePrivate.ToString(); }
	bool HasAnyCastFlags(EClassCastFlags InCastFlags) const { return (CastFlags & InCastFlags) != 0; }

	bool HasMetaData(const TCHAR* Key) const { return HasMetaData(FName(Key)); }
	bool HasMetaData(const FName& Key) const { return MetaData.Contains(Key); }
	/** The value of the key, empty if there is none. */
	const FString& GetMetaData(const TCHAR* Key) const { return GetMetaData(FName(Key)); }
	const FString& GetMetaData(const FName& Key) const;
	void SetMetaData(const FName& Key, const FString& Value) { MetaData.Add(Key, Value); }

	/** The next member of the same structure, in the order of declaration. */
	FField* Next = nullptr;

private:
	FName NamePrivate;
	EClassCastFlags CastFlags;
	TMap<FName, FString> MetaData;
};

/** The member as one of that kind, or null. */
template <typename FieldType>
FieldType* CastField(FField* Src)
{
	return Src && Src->HasAnyCastFlags(static_cast<EClassCastFlags>(FieldType::StaticClassCastFlags))
		? static_cast<FieldType*>(Src)
		: nullptr;
}

template <typename FieldType>
const FieldType* CastField(const FField* Src)
{
	return CastField<FieldType>(const_cast<FField*>(Src));
}
