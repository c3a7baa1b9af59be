// Copyright Corvane. MIT License.
#include "Driver/DetailsEdits.h"

#include "DetailsRow.h"
#include "ErrorText.h"
#include "JsonScalars.h"

#include <algorithm>

#include "Driver/DetailsRowAnswer.h"
#include "Driver/ObjectText.h"
#include "Driver/Request.h"
#include "EngineText.h"
#include "InputCoreTypes.h"
#include "Input/Events.h"
#include "PropertyHandle.h"
#include "UObject/Class.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SComboBox.h"

using nlohmann::json;

namespace
{
	using EKind = FDetailsRow::EKind;

	std::string Quote(const FString& Text)
	{
		return FErrorText::Quote(FEngineText::ForDisplay(Text));
	}

	std::string QuoteName(const FDetailsRow& Row)
	{
		return "row " + Quote(Row.GetName().ToString());
	}

	template <typename ValueType>
	ValueType Convert(const json& Value, FJsonScalars::FReason (*Read)(const json&, ValueType&))
	{
		ValueType Converted = ValueType();
		if (const FJsonScalars::FReason Reason = Read(Value, Converted))
		{
			throw FRequestError(std::string("parameter \"value\": ") + Reason);
		}
		return Converted;
	}

	/** As it could be entered into the row's edit box. */
	FString ReadText(const json& Value)
	{
		FString Text = Convert<FString>(Value, FJsonScalars::ReadString);
		for (int32 Index = 0; Index < Text.Len(); ++Index)
		{
			if (Text[Index] < TEXT(' ') || Text[Index] == 0x7f)
			{
				throw FRequestError("parameter \"value\": the text holds a control character, which no edit box takes");
			}
		}
		return Text;
	}

	void NeedSuccess(FPropertyAccess::Result Result, const FDetailsRow& Row)
	{
		if (Result != FPropertyAccess::Success)
		{
			throw FRequestError(QuoteName(Row) + " can't be changed");
		}
	}

	UObject* FindObject(const FProperty* Property, const json& Value)
	{
		const FString Text = Convert<FString>(Value, FJsonScalars::ReadString);
		if (Text.IsEmpty() || Text == TEXT("None"))
		{
			return nullptr;
		}
		UObject* Object = FObjectText::Find(Text);
		if (!Object)
		{
			throw FRequestError("there is no object " + Quote(Text));
		}
		const UClass* Class = CastField<FObjectProperty>(Property)->PropertyClass;
		if (!Object->IsA(Class))
		{
			throw FRequestError(Quote(Text) + " is no " + FEngineText::ForDisplay(Class->GetFName()));
		}
		return Object;
	}

	FPropertyAccess::Result SetNumber(IPropertyHandle& Handle, const json& Value)
	{
		return CastField<FIntProperty>(Handle.GetProperty())
			? Handle.SetValue(Convert<int32>(Value, FJsonScalars::ReadInt))
			: Handle.SetValue(Convert<float>(Value, FJsonScalars::ReadFloat));
	}

	void Press(SCheckBox& CheckBox)
	{
		const FKeyEvent Space(EKeys::SpaceBar, FModifierKeysState(), 0, false, 0, 0);
		CheckBox.OnKeyDown(FGeometry(), Space);
		CheckBox.OnKeyUp(FGeometry(), Space);
	}

	/** A row's list, opened, as only then a user can pick from it. */
	class FOpenList
	{
	public:
		explicit FOpenList(const FDetailsRow& Row) : Combo(NeedCombo(Row)) { Combo->SetIsOpen(true); }
		FOpenList(const FOpenList&) = delete;
		FOpenList& operator=(const FOpenList&) = delete;
		~FOpenList() { Combo->SetIsOpen(false); }

		bool Choose(int32 Option) { return Combo->ChooseOption(Option, ESelectInfo::OnMouseClick); }

	private:
		static TSharedRef<SComboButton> NeedCombo(const FDetailsRow& Row);

		TSharedRef<SComboButton> Combo;
	};

	TSharedRef<SComboButton> FOpenList::NeedCombo(const FDetailsRow& Row)
	{
		const TSharedPtr<SComboButton> Combo = Row.GetCombo();
		if (!Combo.IsValid())
		{
			throw FRequestError(QuoteName(Row) + " has nothing to pick from");
		}
		if (!Combo->IsEnabled())
		{
			throw FRequestError(QuoteName(Row) + " is disabled");
		}
		return Combo.ToSharedRef();
	}
}

void FDetailsEdits::Set(const FDetailsRow& Row, const json& Value)
{
	if (Row.Kind == EKind::Check || Row.Kind == EKind::Bool)
	{
		Tick(Row, Convert<bool>(Value, FJsonScalars::ReadBool));
		return;
	}
	if (Row.Kind == EKind::Struct || !Row.Value.IsValid())
	{
		throw FRequestError(QuoteName(Row) + (Row.Kind == EKind::Combo ? " is picked from its list" : " has no value"));
	}
	IPropertyHandle& Handle = *Row.Value;
	if (Handle.IsEditConst())
	{
		throw FRequestError(QuoteName(Row) + " is read-only");
	}
	switch (Row.Kind)
	{
		case EKind::Number:
			NeedSuccess(SetNumber(Handle, Value), Row);
			break;
		case EKind::Object:
			NeedSuccess(Handle.SetValue(FindObject(Handle.GetProperty(), Value)), Row);
			break;
		default:
			NeedSuccess(Handle.SetValueFromFormattedString(ReadText(Value)), Row);
			break;
	}
}

void FDetailsEdits::Pick(const FDetailsRow& Row, const FString& Option)
{
	FOpenList List(Row);
	const std::vector<FString> Options = FDetailsRowAnswer::GetOptions(Row);
	const auto IsWanted = [&Option](const FString& Candidate) { return Candidate.Equals(Option); };
	const auto Count = std::count_if(Options.begin(), Options.end(), IsWanted);
	if (Count != 1)
	{
		throw FRequestError(
			QuoteName(Row) + " has " + (Count == 0 ? "no option " : "several options ") + Quote(Option));
	}
	List.Choose(static_cast<int32>(std::find_if(Options.begin(), Options.end(), IsWanted) - Options.begin()));
}

void FDetailsEdits::Pick(const FDetailsRow& Row, int32 Option)
{
	FOpenList List(Row);
	if (!List.Choose(Option))
	{
		throw FRequestError(QuoteName(Row) + " has no option " + std::to_string(Option));
	}
}

void FDetailsEdits::Tick(const FDetailsRow& Row, bool bChecked)
{
	const TSharedPtr<SCheckBox> CheckBox = Row.GetCheckBox();
	if (!CheckBox.IsValid())
	{
		throw FRequestError(QuoteName(Row) + " has no check box");
	}
	if (!CheckBox->IsEnabled())
	{
		throw FRequestError(QuoteName(Row) + " is disabled");
	}
	const ECheckBoxState Wanted = bChecked ? ECheckBoxState::Checked : ECheckBoxState::Unchecked;
	// An undetermined one becomes checked first.
	for (int Presses = 0; Presses < 2 && CheckBox->GetCheckedState() != Wanted; ++Presses)
	{
		Press(*CheckBox);
	}
}
