// Copyright Corvane. MIT License.
#include "Driver/DetailsRowAnswer.h"

#include "StrictJson.h"

#include "DetailsRow.h"
#include "Driver/AnswerText.h"
#include "Driver/ObjectText.h"
#include "EngineText.h"
#include "PropertyHandle.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SComboBox.h"

namespace
{
	using EKind = FDetailsRow::EKind;

	const char* GetWord(EKind Kind)
	{
		constexpr const char* Words[] = {"struct", "text", "bool", "number", "object", "combo", "check"};
		return Words[static_cast<int>(Kind)];
	}

	/** Reads the property in the type that it has. @return null if the objects differ, or it is of another type. */
	template <typename ValueType, typename ConvertType>
	FAnswer Read(const IPropertyHandle& Property, FPropertyAccess::Result& OutResult, ConvertType&& Convert)
	{
		ValueType Value = ValueType();
		OutResult = Property.GetValue(Value);
		return OutResult == FPropertyAccess::Success ? FAnswer(Convert(Value)) : FAnswer(nullptr);
	}

	FAnswer ReadText(const IPropertyHandle& Property, FPropertyAccess::Result& OutResult)
	{
		FString Text;
		OutResult = Property.GetValueAsFormattedString(Text);
		return OutResult == FPropertyAccess::Success ? FAnswer(FEngineText::ForDisplay(Text)) : FAnswer(nullptr);
	}

	FAnswer ReadNumber(const IPropertyHandle& Property, FPropertyAccess::Result& OutResult)
	{
		FAnswer Whole = Read<int32>(Property, OutResult, [](int32 Value) { return Value; });
		return OutResult != FPropertyAccess::Fail
			? Whole
			: Read<float>(Property, OutResult, [](float Value) { return FStrictJson::Number(Value); });
	}

	void AddPropertyValue(FAnswer& Answer, const FDetailsRow& Row)
	{
		FPropertyAccess::Result Result = FPropertyAccess::Fail;
		switch (Row.Kind)
		{
			case EKind::Number:
				Answer["value"] = ReadNumber(*Row.Value, Result);
				break;
			case EKind::Object:
				Answer["value"] = Read<UObject*>(
					*Row.Value, Result, [](const UObject* Object) { return FObjectText::Describe(Object); });
				break;
			default:
				Answer["value"] = ReadText(*Row.Value, Result);
				break;
		}
		Answer["mixed"] = Result == FPropertyAccess::MultipleValues;
	}

	/** A text that is no property's own, or a combo's closed box. */
	void AddShownText(FAnswer& Answer, const FDetailsRow& Row)
	{
		Answer["value"] = FEngineText::ForDisplay(Row.GetValueText().ToString());
		FString Ignored;
		const bool bIsText = Row.Kind == EKind::Combo && Row.Property.IsValid();
		Answer["mixed"] = bIsText && Row.Property->GetValue(Ignored) == FPropertyAccess::MultipleValues;
	}

	/** @return the state's word. */
	FAnswer AddCheck(FAnswer& Answer, ECheckBoxState State)
	{
		const bool bMixed = State == ECheckBoxState::Undetermined;
		const bool bChecked = State == ECheckBoxState::Checked;
		Answer["value"] = bMixed ? FAnswer(nullptr) : FAnswer(bChecked);
		Answer["mixed"] = bMixed;
		if (bMixed)
		{
			return "undetermined";
		}
		return bChecked ? "checked" : "unchecked";
	}

	FAnswer DescribeOptions(const FDetailsRow& Row)
	{
		if (Row.Kind != EKind::Combo)
		{
			return nullptr;
		}
		FAnswer Options = FAnswer::array();
		for (const FString& Option : FDetailsRowAnswer::GetOptions(Row))
		{
			Options.push_back(FEngineText::ForDisplay(Option));
		}
		return Options;
	}

	FAnswer DescribeNumber(const TOptional<float>& Number)
	{
		return Number.IsSet() ? FStrictJson::Number(Number.GetValue()) : FAnswer(nullptr);
	}

	FAnswer DescribeWidth(const FNodeWidgetLayoutData& Layout)
	{
		if (!Layout.MinWidth.IsSet() && !Layout.MaxWidth.IsSet())
		{
			return nullptr;
		}
		return {{"min", DescribeNumber(Layout.MinWidth)}, {"max", DescribeNumber(Layout.MaxWidth)}};
	}
}

FAnswer FDetailsRowAnswer::Describe(const FDetailsRow& Row)
{
	FAnswer Answer;
	Answer["id"] = Row.Id;
	FAnswerText::Add(Answer, "name", Row.GetName());
	Answer["path"] = Row.Path.IsEmpty() ? FAnswer(nullptr) : FAnswer(FEngineText::ForDisplay(Row.Path));
	Answer["filter"] = FEngineText::ForDisplay(Row.GetFilter());
	Answer["kind"] = GetWord(Row.Kind);
	FAnswer State = nullptr;
	if (const TSharedPtr<SCheckBox> CheckBox = Row.GetCheckBox())
	{
		State = AddCheck(Answer, CheckBox->GetCheckedState());
	}
	else if (Row.Value.IsValid() && Row.Kind != EKind::Struct)
	{
		AddPropertyValue(Answer, Row);
	}
	else
	{
		AddShownText(Answer, Row);
	}
	Answer["options"] = DescribeOptions(Row);
	Answer["state"] = std::move(State);
	const bool bGrouped = Row.GroupIndex != INDEX_NONE;
	Answer["group"] = bGrouped ? FAnswer(FEngineText::ForDisplay(Row.Group.ToString())) : FAnswer(nullptr);
	Answer["groupIndex"] = bGrouped ? FAnswer(Row.GroupIndex) : FAnswer(nullptr);
	Answer["advanced"] = Row.bAdvanced;
	Answer["width"] = DescribeWidth(Row.Widgets.ValueWidgetLayoutData);
	return Answer;
}

std::vector<FString> FDetailsRowAnswer::GetOptions(const FDetailsRow& Row)
{
	std::vector<FString> Options;
	if (const TSharedPtr<SComboButton> Combo = Row.GetCombo())
	{
		for (int32 Index = 0; Index < Combo->GetNumOptions(); ++Index)
		{
			Options.push_back(FDetailsRow::FindText(Combo->GenerateOption(Index)).ToString());
		}
	}
	return Options;
}
