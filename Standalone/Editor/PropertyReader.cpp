// Copyright Corvane. MIT License.
#include "PropertyReader.h"

#include "ErrorText.h"

#include "EngineText.h"
#include "JsonScalars.h"
#include "LevelProperties.h"
#include "LevelReferences.h"
#include "UObject/UnrealType.h"

using nlohmann::json;

FPropertyReader::FPropertyReader(EPass InPass, const FLevelReferences& InReferences, std::string& OutError)
	: Pass(InPass), References(InReferences), Error(OutError)
{}

bool FPropertyReader::ReadMembers(const UStruct* Struct, void* Container, const json& Json, const FPlace& Place)
{
	if (!Json.is_object())
	{
		return Refuse(Place, "an object is wanted");
	}
	for (const auto& [Key, Member] : Json.items())
	{
		FProperty* Property = FLevelProperties::Find(Struct, FEngineText::FromUtf8(Key));
		if (!Property)
		{
			return Refuse(Place / Key, "unknown property of " + FEngineText::ForDisplay(Struct->GetFName()));
		}
		void* Value = Container ? Property->ContainerPtrToValuePtr<void>(Container) : nullptr;
		if (!ReadValue(Property, Value, Member, Place / Key))
		{
			return false;
		}
	}
	return true;
}

bool FPropertyReader::ReadValue(FProperty* Property, void* Value, const json& Json, const FPlace& Place)
{
	if (FBoolProperty* Bool = CastField<FBoolProperty>(Property))
	{
		return ReadScalar(Bool, Value, Json, Place, &FJsonScalars::ReadBool);
	}
	if (FIntProperty* Int = CastField<FIntProperty>(Property))
	{
		return ReadScalar(Int, Value, Json, Place, &FJsonScalars::ReadInt);
	}
	if (FFloatProperty* Float = CastField<FFloatProperty>(Property))
	{
		return ReadScalar(Float, Value, Json, Place, &FJsonScalars::ReadFloat);
	}
	if (FStrProperty* String = CastField<FStrProperty>(Property))
	{
		return ReadScalar(String, Value, Json, Place, &FJsonScalars::ReadString);
	}
	if (FNameProperty* Name = CastField<FNameProperty>(Property))
	{
		return ReadScalar(Name, Value, Json, Place, &FJsonScalars::ReadName);
	}
	if (FStructProperty* Struct = CastField<FStructProperty>(Property))
	{
		return ReadMembers(Struct->Struct, Value, Json, Place);
	}
	if (FArrayProperty* Array = CastField<FArrayProperty>(Property))
	{
		return ReadArray(Array, Value, Json, Place);
	}
	if (FObjectProperty* Object = CastField<FObjectProperty>(Property))
	{
		UObject* Component = Value ? FLevelProperties::GetOwnComponent(Object, Value) : nullptr;
		return Component ? ReadMembers(Component->GetClass(), Component, Json, Place)
						 : ReadReference(Object, Value, Json, Place);
	}
	return Refuse(Place, "properties of this kind can't stand in a level file");
}

template <typename PropertyType, typename ValueType>
bool FPropertyReader::ReadScalar(PropertyType* Property, void* Value, const json& Json, const FPlace& Place,
	const char* (*Read)(const json&, ValueType&))
{
	ValueType Parsed{};
	if (const char* Reason = Read(Json, Parsed))
	{
		return Refuse(Place, Reason);
	}
	if (Pass == EPass::Write)
	{
		Property->SetPropertyValue(Value, Parsed);
	}
	return true;
}

bool FPropertyReader::ReadArray(FArrayProperty* Property, void* Value, const json& Json, const FPlace& Place)
{
	if (!Json.is_array())
	{
		return Refuse(Place, "an array is wanted");
	}
	if (Pass == EPass::Check)
	{
		for (size_t Index = 0; Index < Json.size(); ++Index)
		{
			if (!ReadValue(Property->Inner, nullptr, Json[Index], Place / Index))
			{
				return false;
			}
		}
		return true;
	}
	FScriptArrayHelper Elements(Property, Value);
	Elements.EmptyAndAddValues(static_cast<int32>(Json.size()));
	for (size_t Index = 0; Index < Json.size(); ++Index)
	{
		if (!ReadValue(Property->Inner, Elements.GetRawPtr(static_cast<int32>(Index)), Json[Index], Place / Index))
		{
			return false;
		}
	}
	return true;
}

bool FPropertyReader::ReadReference(FObjectProperty* Property, void* Value, const json& Json, const FPlace& Place)
{
	FName Key;
	if (!Json.is_null())
	{
		if (!Json.is_string() || FJsonScalars::ReadName(Json, Key) != nullptr)
		{
			return Refuse(Place, "an asset's path, an actor's name or null is wanted");
		}
		const FLevelReferences::FTarget* Target = References.Find(Key);
		if (!Target)
		{
			return Refuse(Place, "no asset or actor " + FErrorText::Quote(Json.get<std::string>()) + " in this level");
		}
		if (!Target->Class->IsChildOf(Property->PropertyClass))
		{
			return Refuse(Place,
				FErrorText::Quote(Json.get<std::string>()) + " is no " +
					FEngineText::ForDisplay(Property->PropertyClass->GetFName()));
		}
	}
	if (Pass == EPass::Write)
	{
		Property->SetObjectPropertyValue(Value, Json.is_null() ? nullptr : References.Find(Key)->Object);
	}
	return true;
}

bool FPropertyReader::Refuse(const FPlace& Place, const std::string& Reason)
{
	Error = FErrorText::AtPlace(Place.to_string(), Reason);
	return false;
}
