// Copyright Corvane. MIT License.
#include "SaveGameArchive.h"

#include <cstring>

#include "UObject/UnrealType.h"

namespace
{
	/** A structure can hold an array of itself; bytes that nest without end shall not use up the stack. */
	constexpr int32 MaxDepth = 64;

	/** What a property's values are, for telling whether it has become another one; empty for what is left out. */
	FString GetType(const FProperty* Property)
	{
		if (const FStructProperty* Struct = CastField<FStructProperty>(Property))
		{
			return Struct->Struct->GetPathName();
		}
		if (const FArrayProperty* Array = CastField<FArrayProperty>(Property))
		{
			const FString Inner = GetType(Array->Inner);
			return Inner.IsEmpty() ? Inner : TEXT("TArray ") + Inner;
		}
		return CastField<FBoolProperty>(Property) ? TEXT("bool")
			: CastField<FIntProperty>(Property)   ? TEXT("int32")
			: CastField<FFloatProperty>(Property) ? TEXT("float")
			: CastField<FStrProperty>(Property)   ? TEXT("FString")
			: CastField<FNameProperty>(Property)  ? TEXT("FName")
			: CastField<FTextProperty>(Property)  ? TEXT("FText")
												  : TEXT("");
	}

	bool IsStored(const FProperty* Property)
	{
		return !Property->HasAnyPropertyFlags(CPF_Transient) && !GetType(Property).IsEmpty();
	}
}

bool FSaveGameArchive::SerializeMembers(const UStruct* Struct, void* Container)
{
	if (Depth == MaxDepth)
	{
		return false;
	}
	++Depth;
	bool bDone = true;
	if (bLoading)
	{
		int32 Num = 0;
		bDone = SerializeNumber(Num) && Num >= 0;
		for (int32 Index = 0; bDone && Index < Num; ++Index)
		{
			bDone = LoadMember(Struct, Container);
		}
	}
	else
	{
		bDone = SaveMembers(Struct, Container);
	}
	--Depth;
	return bDone;
}

bool FSaveGameArchive::LoadMember(const UStruct* Struct, void* Container)
{
	FString Name;
	FString Type;
	int32 Length = 0;
	if (!SerializeString(Name) || !SerializeString(Type) || !SerializeNumber(Length) || Length < 0 ||
		Length > Bytes.Num() - Position)
	{
		return false;
	}
	const int32 End = Position + Length;
	for (TFieldIterator<FProperty> It(Struct); It; ++It)
	{
		if (It->GetName() == Name && IsStored(*It) && GetType(*It) == Type)
		{
			return SerializeValue(*It, It->ContainerPtrToValuePtr<void>(Container)) && Position == End;
		}
	}
	Position = End;
	return true;
}

bool FSaveGameArchive::SaveMembers(const UStruct* Struct, void* Container)
{
	int32 Num = 0;
	const int32 NumPlace = Bytes.Num();
	SerializeNumber(Num);
	for (TFieldIterator<FProperty> It(Struct); It; ++It)
	{
		if (!IsStored(*It))
		{
			continue;
		}
		FString Name = It->GetName();
		FString Type = GetType(*It);
		int32 Length = 0;
		SerializeString(Name);
		SerializeString(Type);
		SerializeNumber(Length);
		const int32 Begin = Bytes.Num();
		if (!SerializeValue(*It, It->ContainerPtrToValuePtr<void>(Container)))
		{
			return false;
		}
		Length = Bytes.Num() - Begin;
		std::memcpy(&Bytes[Begin - static_cast<int32>(sizeof(Length))], &Length, sizeof(Length));
		++Num;
	}
	std::memcpy(&Bytes[NumPlace], &Num, sizeof(Num));
	return true;
}

bool FSaveGameArchive::SerializeValue(const FProperty* Property, void* Value)
{
	if (const FStructProperty* Struct = CastField<FStructProperty>(Property))
	{
		return SerializeMembers(Struct->Struct, Value);
	}
	if (const FArrayProperty* Array = CastField<FArrayProperty>(Property))
	{
		return SerializeArray(Array, Value);
	}
	if (CastField<FBoolProperty>(Property))
	{
		return SerializeBool(*static_cast<bool*>(Value));
	}
	if (CastField<FStrProperty>(Property))
	{
		return SerializeString(*static_cast<FString*>(Value));
	}
	if (CastField<FNameProperty>(Property))
	{
		return SerializeName(*static_cast<FName*>(Value));
	}
	if (CastField<FTextProperty>(Property))
	{
		return SerializeText(*static_cast<FText*>(Value));
	}
	return SerializeBytes(Value, static_cast<SIZE_T>(Property->ElementSize));
}

bool FSaveGameArchive::SerializeArray(const FArrayProperty* Property, void* Array)
{
	FScriptArrayHelper Elements(Property, Array);
	int32 Num = Elements.Num();
	if (!SerializeNumber(Num) || Num < 0)
	{
		return false;
	}
	if (bLoading)
	{
		Elements.EmptyValues();
	}
	for (int32 Index = 0; Index < Num; ++Index)
	{
		// One by one: each takes up bytes, so that a wrong number soon comes to their end.
		if (!SerializeValue(Property->Inner, Elements.GetRawPtr(bLoading ? Elements.AddValue() : Index)))
		{
			return false;
		}
	}
	return true;
}

bool FSaveGameArchive::SerializeBool(bool& bValue)
{
	uint8 Byte = bValue ? 1 : 0;
	if (!SerializeBytes(&Byte, 1) || Byte > 1)
	{
		return false;
	}
	bValue = Byte == 1;
	return true;
}

bool FSaveGameArchive::SerializeName(FName& Value)
{
	FString Name = Value.ToString();
	if (!SerializeString(Name) || Name.Len() >= NAME_SIZE)
	{
		return false;
	}
	if (bLoading)
	{
		Value = FName(*Name);
	}
	return true;
}

bool FSaveGameArchive::SerializeText(FText& Value)
{
	FString Key = FTextInspector::GetKey(Value).Get(FString());
	FString Namespace = FTextInspector::GetNamespace(Value).Get(FString());
	FString Source = *FTextInspector::GetSourceString(Value);
	if (!SerializeString(Key) || !SerializeString(Namespace) || !SerializeString(Source))
	{
		return false;
	}
	if (bLoading)
	{
		Value = Key.IsEmpty()
			? FText::FromString(Source)
			: FInternationalization::ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(*Source, *Namespace, *Key);
	}
	return true;
}

bool FSaveGameArchive::SerializeString(FString& Value)
{
	int32 Num = Value.Len();
	if (!SerializeNumber(Num) || Num < 0)
	{
		return false;
	}
	if (!bLoading)
	{
		return SerializeBytes(const_cast<TCHAR*>(*Value), static_cast<SIZE_T>(Num) * sizeof(TCHAR));
	}
	if (Num > (Bytes.Num() - Position) / static_cast<int32>(sizeof(TCHAR)))
	{
		return false;
	}
	TArray<TCHAR> Units;
	// One more for the pointer to be valid.
	Units.SetNum(Num + 1);
	SerializeBytes(Units.GetData(), static_cast<SIZE_T>(Num) * sizeof(TCHAR));
	Value = FString(Num, Units.GetData());
	return true;
}

bool FSaveGameArchive::SerializeBytes(void* Data, SIZE_T Count)
{
	const int32 Num = static_cast<int32>(Count);
	if (!bLoading)
	{
		Bytes.SetNum(Bytes.Num() + Num);
		std::memcpy(Bytes.GetData() + Bytes.Num() - Num, Data, Count);
		return true;
	}
	if (Num > Bytes.Num() - Position)
	{
		return false;
	}
	std::memcpy(Data, Bytes.GetData() + Position, Count);
	Position += Num;
	return true;
}
