// Copyright Corvane. MIT License.
#include "DetailsRow.h"

#include "PropertyHandle.h"
#include "Standalone/SPropertyNameWidget.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	/** The first widget, from the top down, of that type; a template's type begins with its name. */
	TSharedPtr<SWidget> FindWidget(const TSharedPtr<SWidget>& Root, const TCHAR* Type)
	{
		if (!Root.IsValid() || Root->GetTypeAsString().StartsWith(Type))
		{
			return Root;
		}
		FChildren& Children = *Root->GetChildren();
		for (int32 Index = 0; Index < Children.Num(); ++Index)
		{
			if (TSharedPtr<SWidget> Found = FindWidget(Children.GetChildAt(Index), Type))
			{
				return Found;
			}
		}
		return nullptr;
	}

	FDetailsRow::EKind KindOf(const FProperty* Property)
	{
		if (CastField<FBoolProperty>(Property))
		{
			return FDetailsRow::EKind::Bool;
		}
		if (CastField<FIntProperty>(Property) || CastField<FFloatProperty>(Property))
		{
			return FDetailsRow::EKind::Number;
		}
		if (CastField<FObjectProperty>(Property))
		{
			return FDetailsRow::EKind::Object;
		}
		const bool bHasRowsBelow = CastField<FStructProperty>(Property) || CastField<FArrayProperty>(Property);
		return bHasRowsBelow ? FDetailsRow::EKind::Struct : FDetailsRow::EKind::Text;
	}
}

FDetailsRow::FDetailsRow(const TSharedRef<IDetailTreeNode>& InNode)
	: Node(InNode), Widgets(InNode->CreateNodeWidgets()), Value(InNode->CreatePropertyHandle())
{
	const TSharedPtr<SWidget> Name = FindWidget(Widgets.NameWidget, TEXT("SPropertyNameWidget"));
	Property = Value;
	if (!Property.IsValid() && Name.IsValid())
	{
		Property = StaticCastSharedPtr<SPropertyNameWidget>(Name)->GetPropertyHandle();
	}
	Path = Property.IsValid() ? Property->GeneratePathToProperty() : FString();
	Kind = FindKind();
}

FDetailsRow::EKind FDetailsRow::FindKind() const
{
	if (Value.IsValid() && Value->IsValidHandle())
	{
		return KindOf(Value->GetProperty());
	}
	if (GetCombo().IsValid())
	{
		return EKind::Combo;
	}
	return GetCheckBox().IsValid() ? EKind::Check : EKind::Text;
}

FText FDetailsRow::GetName() const
{
	return FindText(Widgets.NameWidget);
}

FString FDetailsRow::GetFilter() const
{
	TArray<FString> Strings;
	Node->GetFilterStrings(Strings);
	FString Filter;
	for (const FString& String : Strings)
	{
		Filter += Filter.IsEmpty() ? String : TEXT(" ") + String;
	}
	return Filter;
}

TSharedPtr<SComboButton> FDetailsRow::GetCombo() const
{
	return StaticCastSharedPtr<SComboButton>(FindWidget(Widgets.ValueWidget, TEXT("SComboBox")));
}

TSharedPtr<SCheckBox> FDetailsRow::GetCheckBox() const
{
	return StaticCastSharedPtr<SCheckBox>(FindWidget(Widgets.ValueWidget, TEXT("SCheckBox")));
}

FText FDetailsRow::GetValueText() const
{
	return FindText(Widgets.ValueWidget);
}

FText FDetailsRow::FindText(const TSharedPtr<SWidget>& Root)
{
	const TSharedPtr<SWidget> Text = FindWidget(Root, TEXT("STextBlock"));
	return Text.IsValid() ? StaticCastSharedPtr<STextBlock>(Text)->GetText() : FText();
}
