// Copyright Corvane. MIT License.
#include "DetailsReset.h"

#include <cstddef>
#include <memory>

#include "WindowText.h"

#include "CoreMinimal.h"
#include "Editor.h"
#include "PropertyHandle.h"
#include "UObject/Class.h"

namespace
{
	/** The value that a property has in what an object was made from. */
	class FDefaultValue
	{
	public:
		FDefaultValue(const UObject& Template, const QString& Path)
		{
			const UStruct* Struct = Template.GetClass();
			Value = &Template;
			for (const QString& Step : Path.split(QLatin1Char('.')))
			{
				Property = Struct ? Struct->FindPropertyByName(FName(*FWindowText::FromQt(Step.section(u'[', 0, 0))))
								  : nullptr;
				if (!Property)
				{
					return;
				}
				Value = Property->ContainerPtrToValuePtr<void>(Value);
				if (Step.endsWith(u']'))
				{
					EnterElement(Step.section(u'[', 1).chopped(1).toInt());
				}
				const FStructProperty* Member = CastField<FStructProperty>(Property);
				Struct = Member ? Member->Struct : nullptr;
			}
		}
		FDefaultValue(const FDefaultValue&) = delete;
		FDefaultValue& operator=(const FDefaultValue&) = delete;
		~FDefaultValue()
		{
			if (Element)
			{
				ElementProperty->DestroyValue(Element.get());
			}
		}

		/** Null if the template has no such property. */
		const void* Get(const FProperty* Wanted) const { return Property == Wanted ? Value : nullptr; }

	private:
		void EnterElement(int Index)
		{
			const FArrayProperty* Array = CastField<FArrayProperty>(Property);
			Property = Array ? Array->Inner : nullptr;
			if (!Array)
			{
				return;
			}
			FScriptArrayHelper Elements(Array, Value);
			if (Elements.IsValidIndex(Index))
			{
				Value = Elements.GetRawPtr(Index);
				return;
			}
			// What lies in a new element is never an array's element again: one is enough.
			const size_t Size = static_cast<size_t>(Property->ElementSize) / sizeof(std::max_align_t) + 1;
			Element = std::make_unique<std::max_align_t[]>(Size);
			ElementProperty = Property;
			Property->InitializeValue(Element.get());
			Value = Element.get();
		}

		const FProperty* Property = nullptr;
		const void* Value = nullptr;
		const FProperty* ElementProperty = nullptr;
		std::unique_ptr<std::max_align_t[]> Element;
	};

	bool IsSingleValue(const FProperty* Property)
	{
		return Property && !CastField<FStructProperty>(Property) && !CastField<FArrayProperty>(Property);
	}

	/** A part of a template is no value for anything else. */
	bool IsPartOfTemplate(const FProperty* Property, const void* Value)
	{
		const FObjectProperty* ObjectProperty = CastField<FObjectProperty>(Property);
		const UObject* Object = ObjectProperty ? ObjectProperty->GetObjectPropertyValue(Value) : nullptr;
		return Object && Object->IsTemplate();
	}

	template <typename PropertyType>
	bool SetAs(IPropertyHandle& Handle, const void* Value)
	{
		return CastField<PropertyType>(Handle.GetProperty()) &&
			Handle.SetValue(PropertyType::GetPropertyValue(Value)) == FPropertyAccess::Success;
	}

	bool SetObject(IPropertyHandle& Handle, const void* Value)
	{
		const FObjectProperty* Property = CastField<FObjectProperty>(Handle.GetProperty());
		UObject* const Object = Property ? Property->GetObjectPropertyValue(Value) : nullptr;
		return Property && Handle.SetValue(Object) == FPropertyAccess::Success;
	}
}

bool FDetailsReset::CanReset(const IPropertyHandle& Handle)
{
	const FProperty* Property = Handle.GetProperty();
	if (!IsSingleValue(Property) || Handle.IsEditConst())
	{
		return false;
	}
	TArray<UObject*> Objects;
	TArray<const void*> Values;
	Handle.GetOuterObjects(Objects);
	Handle.AccessRawData(Values);
	const QString Path = FWindowText::ToQt(Handle.GeneratePathToProperty());
	for (int32 Index = 0; Index < Objects.Num(); ++Index)
	{
		const FDefaultValue Default(*Objects[Index]->GetArchetype(), Path);
		const void* Value = Default.Get(Property);
		if (Value && Values[Index] && !IsPartOfTemplate(Property, Value) && !Property->Identical(Values[Index], Value))
		{
			return true;
		}
	}
	return false;
}

bool FDetailsReset::Reset(IPropertyHandle& Handle)
{
	TArray<UObject*> Objects;
	Handle.GetOuterObjects(Objects);
	if (Objects.Num() == 0 || !CanReset(Handle))
	{
		return false;
	}
	const FDefaultValue Default(*Objects[0]->GetArchetype(), FWindowText::ToQt(Handle.GeneratePathToProperty()));
	const void* Value = Default.Get(Handle.GetProperty());
	return Value &&
		(SetAs<FBoolProperty>(Handle, Value) || SetAs<FIntProperty>(Handle, Value) ||
			SetAs<FFloatProperty>(Handle, Value) || SetAs<FStrProperty>(Handle, Value) ||
			SetAs<FNameProperty>(Handle, Value) || SetAs<FTextProperty>(Handle, Value) || SetObject(Handle, Value));
}
