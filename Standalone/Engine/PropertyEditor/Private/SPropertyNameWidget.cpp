// Copyright Corvane. MIT License.
#include "Standalone/SPropertyNameWidget.h"

#include "EditorStyleSet.h"
#include "PropertyHandle.h"
#include "Widgets/Text/STextBlock.h"

void SPropertyNameWidget::Construct(const FArguments& InArgs)
{
	PropertyHandle = InArgs._PropertyHandle;
	const bool bByHandle = InArgs._Text.IsEmpty() && PropertyHandle.IsValid();
	// clang-format off
	ChildSlot
	[
		SNew(STextBlock)
		.Font(FEditorStyle::GetFontStyle("PropertyWindow.NormalFont"))
		.Text(bByHandle ? PropertyHandle->GetPropertyDisplayName() : InArgs._Text)
	];
	// clang-format on
}
