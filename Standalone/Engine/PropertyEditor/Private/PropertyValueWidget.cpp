// Copyright Corvane. MIT License.
#include "PropertyValueWidget.h"

#include "EditorStyleSet.h"
#include "PropertyHandle.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "PropertyEditor"

namespace
{
	FSlateFontInfo GetFont()
	{
		return FEditorStyle::GetFontStyle("PropertyWindow.NormalFont");
	}

	FText GetCountText(TSharedRef<IPropertyHandle> Handle, FText Pattern)
	{
		uint32 Num = 0;
		Handle->GetNumChildren(Num);
		return FText::Format(Pattern, FText::AsNumber(static_cast<int32>(Num)));
	}

	ECheckBoxState GetCheckState(TSharedRef<IPropertyHandle> Handle)
	{
		bool bValue = false;
		if (Handle->GetValue(bValue) == FPropertyAccess::MultipleValues)
		{
			return ECheckBoxState::Undetermined;
		}
		return bValue ? ECheckBoxState::Checked : ECheckBoxState::Unchecked;
	}

	void SetCheckState(ECheckBoxState NewState, TSharedRef<IPropertyHandle> Handle)
	{
		Handle->SetValue(NewState == ECheckBoxState::Checked);
	}

	FText GetValueText(TSharedRef<IPropertyHandle> Handle)
	{
		FString Text;
		const bool bDiffer = Handle->GetValueAsFormattedString(Text) == FPropertyAccess::MultipleValues;
		return bDiffer ? LOCTEXT("MultipleValues", "Multiple Values") : FText::FromString(Text);
	}

	void CommitText(const FText& NewText, ETextCommit::Type /*CommitType*/, TSharedRef<IPropertyHandle> Handle)
	{
		// A box commits whenever it loses the focus, whether anything was typed or not.
		if (!NewText.ToString().Equals(GetValueText(Handle).ToString()))
		{
			Handle->SetValueFromFormattedString(NewText.ToString());
		}
	}

	TSharedRef<SWidget> MakeCount(const TSharedRef<IPropertyHandle>& Handle, const FText& Pattern)
	{
		return SNew(STextBlock).Font(GetFont()).Text_Static(&GetCountText, Handle, Pattern);
	}
}

TSharedRef<SWidget> FPropertyValueWidget::Make(const TSharedRef<IPropertyHandle>& Handle)
{
	const FProperty* Property = Handle->GetProperty();
	if (!Property)
	{
		return SNullWidget::NullWidget;
	}
	if (CastField<FStructProperty>(Property))
	{
		return MakeCount(Handle, LOCTEXT("NumStructItems", "{0} members"));
	}
	if (CastField<FArrayProperty>(Property))
	{
		return MakeCount(Handle, LOCTEXT("NumArrayItems", "{0} Array elements"));
	}
	const bool bCanEdit = !Handle->IsEditConst();
	if (CastField<FBoolProperty>(Property))
	{
		return SNew(SCheckBox)
			.IsEnabled(bCanEdit)
			.IsChecked_Static(&GetCheckState, Handle)
			.OnCheckStateChanged_Static(&SetCheckState, Handle);
	}
	return SNew(SEditableTextBox)
		.IsEnabled(bCanEdit)
		.Font(GetFont())
		.Text_Static(&GetValueText, Handle)
		.OnTextCommitted_Static(&CommitText, Handle);
}

#undef LOCTEXT_NAMESPACE
