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
		if (Property->HasAnyPropertyFlags(CPF_Transient))
		{
			return FString();
		}
		if (const FArrayProperty* Array = CastField<FArrayProperty>(Property))
		{
			const FString Inner = GetType(Array->Inner);
			return Inner.IsEmpty() ? Inner : TEXT("TArray ") + Inner;
		}
		const FStructProperty* Struct = CastField<FStructProperty>(Property);
		return Struct                             ? Struct->Struct->GetPathName()
			: CastField<FBoolProperty>(Property)  ? TEXT("bool")
			: CastField<FIntProperty>(Property)   ? TEXT("int32")
			: CastField<FFloatProperty>(Property) ? TEXT("float")
			: CastField<FStrProperty>(Property)   ? TEXT("FString")
			: CastField<FNameProperty>(Property)  ? TEXT("FName")
			: CastField<FTextProperty>(Property)  ? TEXT("FText")
												  : TEXT("");
	}

	bool IsMember(const FProperty* Property, const FString& Name, const FString& Type)
	{
		return Property->GetName() == Name && GetType(Property) == Type;
	}
}

bool FSaveGameArchive::SerializeMembers(const UStruct* Struct, void* Container)
{
	++Depth;
	const bool bDone =
		Depth <= MaxDepth && (bLoading ? LoadMembers(Struct, Container) : SaveMembers(Struct, Container));
	--Depth;
	return bDone;
}

bool FSaveGameArchive::LoadMembers(const UStruct* Struct, void* Container)
{
	FString Name;
	FString Type;
	int32 Length = 0;
	TFieldIterator<FProperty> It(Struct);
	while (SerializeString(Name))
	{
		if (Name.IsEmpty())
		{
			return true;
		}
		// No type is that of members which are left out: those must not be found.
		if (!SerializeString(Type) || Type.IsEmpty() || !SerializeBytes(&Length, sizeof(Length)) || Length < 0 ||
			Length > Bytes.Num() - Position)
		{
			return false;
		}
		const int32 End = Position + Length;
		// Mostly it is the one that follows the last, as they are saved in order.
		if (!It || !IsMember(*It, Name, Type))
		{
			It = TFieldIterator<FProperty>(Struct);
			while (It && !IsMember(*It, Name, Type))
			{
				++It;
			}
		}
		if (It && !(SerializeValue(*It, It->ContainerPtrToValuePtr<void>(Container)) && Position == End))
		{
			return false;
		}
		Position = End;
		if (It)
		{
			++It;
		}
	}
	return false;
}

bool FSaveGameArchive::SaveMembers(const UStruct* Struct, void* Container)
{
	FString Name;
	for (TFieldIterator<FProperty> It(Struct); It; ++It)
	{
		FString Type = GetType(*It);
		if (Type.IsEmpty())
		{
			continue;
		}
		Name = It->GetName();
		SerializeString(Name);
		SerializeString(Type);
		int32 Length = 0;
		SerializeBytes(&Length, sizeof(Length));
		const int32 Begin = Position;
		if (!SerializeValue(*It, It->ContainerPtrToValuePtr<void>(Container)))
		{
			return false;
		}
		Length = Position - Begin;
		std::memcpy(Bytes.GetData() + Begin - sizeof(Length), &Length, sizeof(Length));
	}
	Name.Reset();
	return SerializeString(Name);
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
	if (CastField<FStrProperty>(Property))
	{
		return SerializeString(*static_cast<FString*>(Value));
	}
	FName* const Name = CastField<FNameProperty>(Property) ? static_cast<FName*>(Value) : nullptr;
	FText* const Text = CastField<FTextProperty>(Property) ? static_cast<FText*>(Value) : nullptr;
	if (!Name && !Text)
	{
		// No bool ever gets another byte.
		const bool bChecked = bLoading && !IsAtEnd() && CastField<FBoolProperty>(Property);
		return !(bChecked && Bytes[Position] > 1) && SerializeBytes(Value, Property->ElementSize);
	}
	FString String = Name ? Name->ToString() : *FTextInspector::GetSourceString(*Text);
	if (!SerializeString(String) || (Name && String.Len() >= NAME_SIZE))
	{
		return false;
	}
	if (bLoading && Name)
	{
		*Name = FName(*String);
	}
	else if (bLoading)
	{
		*Text = FText::FromString(String);
	}
	return true;
}

bool FSaveGameArchive::SerializeArray(const FArrayProperty* Property, void* Array)
{
	FScriptArrayHelper Elements(Property, Array);
	int32 Num = Elements.Num();
	if (!SerializeBytes(&Num, sizeof(Num)) || Num < 0)
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

bool FSaveGameArchive::SerializeString(FString& Value)
{
	int32 Num = Value.Len();
	if (!SerializeBytes(&Num, sizeof(Num)) || Num < 0)
	{
		return false;
	}
	if (!bLoading)
	{
		return SerializeBytes(const_cast<TCHAR*>(*Value), Num * 2);
	}
	if (Num > (Bytes.Num() - Position) / 2)
	{
		return false;
	}
	// The closing zero keeps the pointer valid.
	Units.SetNum(Num + 1);
	SerializeBytes(Units.GetData(), Num * 2);
	Value = FString(Num, Units.GetData());
	return true;
}

bool FSaveGameArchive::SerializeBytes(void* Data, int32 Num)
{
	if (!bLoading)
	{
		Bytes.SetNum(Position + Num);
	}
	else if (Num > Bytes.Num() - Position)
	{
		return false;
	}
	uint8* const Here = Bytes.GetData() + Position;
	std::memcpy(bLoading ? Data : Here, bLoading ? Here : Data, static_cast<SIZE_T>(Num));
	Position += Num;
	return true;
}
