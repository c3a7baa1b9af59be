// Copyright Corvane. MIT License.
#include "PropertyWriter.h"

#include "ErrorText.h"
#include "StrictJson.h"

#include <cmath>

#include "EngineText.h"
#include "LevelProperties.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

using nlohmann::ordered_json;

FPropertyWriter::FPropertyWriter(const FReferenceTexts& InReferences, std::string& OutError)
	: References(InReferences), Error(OutError)
{}

ordered_json FPropertyWriter::Report(const UStruct* Struct, const void* Container, const FReferenceTexts& InReferences)
{
	std::string Ignored;
	FPropertyWriter Writer(InReferences, Ignored);
	Writer.bReport = true;
	ordered_json Json;
	verify(Writer.WriteMembers(Struct, Container, nullptr, Json, FPlace()));
	return Json;
}

bool FPropertyWriter::WriteMembers(
	const UStruct* Struct, const void* Container, const void* Defaults, ordered_json& OutJson, const FPlace& Place)
{
	OutJson = ordered_json::object();
	for (TFieldIterator<FProperty> It(Struct); It; ++It)
	{
		const FProperty* Property = *It;
		if (!FLevelProperties::IsStored(Struct, Property))
		{
			continue;
		}
		if (!WriteMember(Property, Property->ContainerPtrToValuePtr<void>(Container),
				Defaults ? Property->ContainerPtrToValuePtr<void>(Defaults) : nullptr, OutJson, Place))
		{
			return false;
		}
	}
	return true;
}

bool FPropertyWriter::WriteMember(
	const FProperty* Property, const void* Value, const void* Default, ordered_json& Members, const FPlace& Place)
{
	const std::string Name = FEngineText::ForDisplay(Property->GetFName());
	const FObjectProperty* Object = CastField<FObjectProperty>(Property);
	ordered_json Json;
	if (const UObject* Component = Object ? FLevelProperties::GetOwnComponent(Object, Value) : nullptr)
	{
		const UObject* Defaults = bReport ? nullptr : Component->GetArchetype();
		if (!WriteMembers(Component->GetClass(), Component, Defaults, Json, Place / Name))
		{
			return false;
		}
		if (bReport || !Json.empty())
		{
			Members[Name] = std::move(Json);
		}
		return true;
	}
	if (Default && Property->Identical(Value, Default))
	{
		return true;
	}
	if (!WriteValue(Property, Value, Default, Json, Place / Name))
	{
		return false;
	}
	Members[Name] = std::move(Json);
	return true;
}

bool FPropertyWriter::WriteValue(
	const FProperty* Property, const void* Value, const void* Default, ordered_json& OutJson, const FPlace& Place)
{
	if (const FBoolProperty* Bool = CastField<FBoolProperty>(Property))
	{
		OutJson = Bool->GetPropertyValue(Value);
		return true;
	}
	if (const FIntProperty* Int = CastField<FIntProperty>(Property))
	{
		OutJson = Int->GetPropertyValue(Value);
		return true;
	}
	if (const FFloatProperty* Float = CastField<FFloatProperty>(Property))
	{
		return WriteFloat(Float->GetPropertyValue(Value), OutJson, Place);
	}
	if (const FStrProperty* String = CastField<FStrProperty>(Property))
	{
		return WriteString(String->GetPropertyValue(Value), OutJson, Place);
	}
	if (const FNameProperty* Name = CastField<FNameProperty>(Property))
	{
		return WriteString(Name->GetPropertyValue(Value).ToString(), OutJson, Place);
	}
	if (const FStructProperty* Struct = CastField<FStructProperty>(Property))
	{
		return WriteMembers(Struct->Struct, Value, Default, OutJson, Place);
	}
	if (const FArrayProperty* Array = CastField<FArrayProperty>(Property))
	{
		return WriteArray(Array, Value, OutJson, Place);
	}
	if (const FObjectProperty* Object = CastField<FObjectProperty>(Property))
	{
		return WriteReference(Object->GetObjectPropertyValue(Value), OutJson, Place);
	}
	return Refuse(Place, "properties of this kind can't stand in a level file", OutJson, nullptr);
}

bool FPropertyWriter::WriteArray(
	const FArrayProperty* Property, const void* Value, ordered_json& OutJson, const FPlace& Place)
{
	OutJson = ordered_json::array();
	FScriptArrayHelper Elements(Property, Value);
	for (int32 Index = 0; Index < Elements.Num(); ++Index)
	{
		ordered_json Element;
		if (!WriteValue(
				Property->Inner, Elements.GetRawPtr(Index), nullptr, Element, Place / static_cast<size_t>(Index)))
		{
			return false;
		}
		OutJson.push_back(std::move(Element));
	}
	return true;
}

bool FPropertyWriter::WriteReference(const UObject* Object, ordered_json& OutJson, const FPlace& Place)
{
	if (!Object)
	{
		OutJson = nullptr;
		return true;
	}
	const auto Found = References.find(Object);
	if (Found == References.end())
	{
		const std::string Path = FEngineText::ForDisplay(Object->GetPathName());
		return Refuse(Place, "refers to " + FErrorText::Quote(Path) + ", which is no part of the level", OutJson, Path);
	}
	OutJson = Found->second;
	return true;
}

bool FPropertyWriter::WriteString(const FString& Text, ordered_json& OutJson, const FPlace& Place)
{
	std::string Bytes;
	if (!FEngineText::ToUtf8(Text, Bytes))
	{
		return Refuse(Place, "the text is not well-formed Unicode", OutJson, FEngineText::ForDisplay(Text));
	}
	if (Bytes.find('\0') != std::string::npos)
	{
		return Refuse(Place, "the text holds a null character", OutJson, Bytes);
	}
	OutJson = std::move(Bytes);
	return true;
}

bool FPropertyWriter::WriteFloat(float Number, ordered_json& OutJson, const FPlace& Place)
{
	if (!std::isfinite(Number))
	{
		return Refuse(Place, "the number is not finite", OutJson, nullptr);
	}
	OutJson = FStrictJson::Number(Number);
	return true;
}

bool FPropertyWriter::Refuse(
	const FPlace& Place, const std::string& Reason, ordered_json& OutJson, ordered_json Instead)
{
	if (bReport)
	{
		OutJson = std::move(Instead);
		return true;
	}
	Error = FErrorText::AtPlace(Place.to_string(), Reason);
	return false;
}
