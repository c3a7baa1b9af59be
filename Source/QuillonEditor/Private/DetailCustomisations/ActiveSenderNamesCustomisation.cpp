// Copyright Corvane. MIT License.
#include "DetailCustomisations/ActiveSenderNamesCustomisation.h"

#include "DetailWidgetRow.h"
#include "EditorStyleSet.h"
#include "IDetailChildrenBuilder.h"
#include "PropertyHandle.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

#include "DetailCustomisations/ActiveSenderNameOptions.h"

#define LOCTEXT_NAMESPACE "ActiveSenderNamesCustomisation"

namespace
{
	/** What the receiver stores; a value that can't be read, as with receivers that differ, counts as set here. */
	struct FStoredSender
	{
		FStoredSender(const IPropertyHandle& NameHandle, const IPropertyHandle& UseFirstAvailableSenderHandle)
		{
			const FPropertyAccess::Result NameResult = NameHandle.GetValue(Name);
			const FPropertyAccess::Result UseFirstResult = UseFirstAvailableSenderHandle.GetValue(bUseFirstAvailable);
			bIsCommon = NameResult == FPropertyAccess::Success && UseFirstResult == FPropertyAccess::Success;
		}

		FString Name;
		bool bUseFirstAvailable = true;
		/** Whether both values are those of all edited receivers. */
		bool bIsCommon;
	};
}

TSharedRef<IPropertyTypeCustomization> FActiveSenderNamesCustomisation::MakeInstance()
{
	return MakeShared<FActiveSenderNamesCustomisation>();
}

FActiveSenderNamesCustomisation::FActiveSenderNamesCustomisation() : bSelectedSenderLost(false)
{
	// By plain pointer: an object that is still being made can't be held weakly.
	FActiveSenderNameOptions::Get().OnLostStateChanged.AddRaw(
		this, &FActiveSenderNamesCustomisation::HandleLostStateChanged);
}

FActiveSenderNamesCustomisation::~FActiveSenderNamesCustomisation()
{
	// The options outlive every panel, and would go on telling this object.
	FActiveSenderNameOptions::Get().OnLostStateChanged.RemoveAll(this);
}

void FActiveSenderNamesCustomisation::HandleLostStateChanged(bool bLost)
{
	bSelectedSenderLost = bLost;
}

// clang-format off
void FActiveSenderNamesCustomisation::CustomizeHeader(TSharedRef<IPropertyHandle> StructPropertyHandle,
	FDetailWidgetRow& HeaderRow, IPropertyTypeCustomizationUtils& /*Utils*/)
{
	uint32 NumChildren = 0;
	StructPropertyHandle->GetNumChildren(NumChildren);

	HeaderRow
	.NameContent()
	[
		StructPropertyHandle->CreatePropertyNameWidget()
	]
	.ValueContent()
	.VAlign(VAlign_Bottom)
	.MinDesiredWidth(130.0f)
	.MaxDesiredWidth(500.0f)
	[
		SNew(SOverlay)
		+ SOverlay::Slot()
		.Padding(0.0f, 4.0f, 5.0f, 0.0f)
		[
			SNew(STextBlock)
			.Font(FEditorStyle::GetFontStyle("PropertyWindow.NormalFont"))
			.Text(FText::Format(
				NSLOCTEXT("PropertyEditor", "NumStructItems", "{0} members"), FText::AsNumber(NumChildren)))
		]
	];
}
// clang-format on

void FActiveSenderNamesCustomisation::CustomizeChildren(TSharedRef<IPropertyHandle> StructPropertyHandle,
	IDetailChildrenBuilder& ChildBuilder, IPropertyTypeCustomizationUtils& /*Utils*/)
{
	NameHandle = StructPropertyHandle->GetChildHandle("Name");
	UseFirstAvailableSenderHandle = StructPropertyHandle->GetChildHandle("UseFirstAvailableSender");
	const FStoredSender Stored(*NameHandle, *UseFirstAvailableSenderHandle);
	FActiveSenderNameOptions::Get().RefreshOptions(Stored.Name, Stored.bUseFirstAvailable);

	const TSharedPtr<IPropertyHandle> ActiveHandle = StructPropertyHandle->GetChildHandle("Active");
	const TSharedPtr<IPropertyHandle> RenderTargetHandle = StructPropertyHandle->GetChildHandle("RenderTarget");

	// Kept: what is selected at first is what was stored when the rows were made.
	const TSharedPtr<FString> InitialItem = GetCurrentItem();
	SetSelection(*InitialItem);

	ChildBuilder.AddProperty(ActiveHandle.ToSharedRef());
	AddNameRow(ChildBuilder, InitialItem);
	ChildBuilder.AddProperty(RenderTargetHandle.ToSharedRef());
}

// clang-format off
void FActiveSenderNamesCustomisation::AddNameRow(
	IDetailChildrenBuilder& ChildBuilder, const TSharedPtr<FString>& InitialItem)
{
	ChildBuilder.AddCustomRow(LOCTEXT("SpoutReceiverName", "Name"))
	.NameContent()
	[
		NameHandle->CreatePropertyNameWidget()
	]
	.ValueContent()
	.MinDesiredWidth(250.0f)
	[
		SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.Padding(0.0f, 2.0f, 0.0f, 2.0f)
		[
			SAssignNew(SenderComboBox, SComboBox<TSharedPtr<FString>>)
			.OptionsSource(&FActiveSenderNameOptions::Get().Options)
			.OnGenerateWidget(this, &FActiveSenderNamesCustomisation::OnGenerateOptionWidget)
			.OnSelectionChanged(this, &FActiveSenderNamesCustomisation::OnOptionSelectionChanged)
			.OnComboBoxOpening(this, &FActiveSenderNamesCustomisation::HandleComboBoxOpening)
			.InitiallySelectedItem(InitialItem)
			.ContentPadding(FMargin(2.0f))
			[
				SNew(STextBlock)
				.Font(FEditorStyle::GetFontStyle("PropertyWindow.NormalFont"))
				.Margin(FMargin(2.0f, 0.0f, 2.0f, 0.0f))
				.Text(this, &FActiveSenderNamesCustomisation::GetCurrentItemLabel)
			]
		]
	];
}
// clang-format on

TSharedPtr<FString> FActiveSenderNamesCustomisation::GetCurrentItem() const
{
	FStoredSender Stored(*NameHandle, *UseFirstAvailableSenderHandle);
	FActiveSenderNameOptions& Shared = FActiveSenderNameOptions::Get();
	const TArray<TSharedPtr<FString>> Options = Shared.RefreshOptions(MoveTemp(Stored.Name), Stored.bUseFirstAvailable);
	if (Stored.bUseFirstAvailable)
	{
		return Options[0];
	}
	if (const TSharedPtr<FString>* Found = Shared.GetCurrentOption())
	{
		return *Found;
	}
	// A refresh always lists the stored name; should it not, this tells so.
	return MakeShared<FString>(TEXT("Error"));
}

FText FActiveSenderNamesCustomisation::GetCurrentItemLabel() const
{
	// First: this refreshes the list, which says whether the name is lost.
	const TSharedPtr<FString> Item = GetCurrentItem();
	if (!Item.IsValid())
	{
		return LOCTEXT("Invalid", "Invalid");
	}
	FActiveSenderNameOptions& Shared = FActiveSenderNameOptions::Get();
	return bSelectedSenderLost ? Shared.GetLabel(*Item + TEXT(" [lost]")) : Shared.GetLabel(*Item);
}

void FActiveSenderNamesCustomisation::SetSelection(FString NewValue)
{
	FString OldName;
	NameHandle->GetValue(OldName);
	if (NewValue.Equals(FActiveSenderNameOptions::Get().FirstAvailableOption, ESearchCase::CaseSensitive))
	{
		UseFirstAvailableSenderHandle->SetValue(true);
		// The entry's own text stands for the name meanwhile.
		NameHandle->SetValue(FActiveSenderNameOptions::Get().FirstAvailableOption);
		return;
	}
	UseFirstAvailableSenderHandle->SetValue(false);
	if (!NewValue.Equals(OldName, ESearchCase::CaseSensitive))
	{
		NameHandle->SetValue(NewValue);
	}
}

TSharedRef<SWidget> FActiveSenderNamesCustomisation::OnGenerateOptionWidget(TSharedPtr<FString> Item)
{
	return SNew(STextBlock)
		.Text(FText::FromString(*Item))
		.Font(FEditorStyle::GetFontStyle("PropertyWindow.NormalFont"));
}

void FActiveSenderNamesCustomisation::HandleComboBoxOpening()
{
	// The value may have become another one since the last choice, by an undo say. The drop-down would take the choice
	// of what it still has selected for none at all. Nothing selected is told to nobody but OnOptionSelectionChanged.
	const FStoredSender Stored(*NameHandle, *UseFirstAvailableSenderHandle);
	const FString& Shown =
		Stored.bUseFirstAvailable ? FActiveSenderNameOptions::Get().FirstAvailableOption : Stored.Name;
	const TSharedPtr<FString> Selected = SenderComboBox->GetSelectedItem();
	if (Selected.IsValid() && !(Stored.bIsCommon && Selected->Equals(Shown, ESearchCase::CaseSensitive)))
	{
		SenderComboBox->ClearSelection();
	}
}

void FActiveSenderNamesCustomisation::OnOptionSelectionChanged(
	TSharedPtr<FString> NewItem, ESelectInfo::Type /*SelectInfo*/)
{
	if (NewItem.IsValid())
	{
		SetSelection(*NewItem);
	}
}

#undef LOCTEXT_NAMESPACE
