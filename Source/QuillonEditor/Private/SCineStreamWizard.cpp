// Copyright Corvane. MIT License.
#include "SCineStreamWizard.h"

#include "Editor.h"
#include "EditorViewportClient.h"
#include "Engine/World.h"
#include "Kismet/GameplayStatics.h"
#include "Styling/CoreStyle.h"
#include "Templates/Casts.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

#include "QuillonEditorStyle.h"
#include "ZAVSpoutSenderManager.h"
#include "ZAVTelemetry.h"

// The widget's tree, its pages and the check of the name. The creation of a setup is in SCineStreamWizardCreation.cpp.

#define LOCTEXT_NAMESPACE "CineStreamWizard"

namespace
{
	/** Width of the wizard's column, in slate units. */
	constexpr float ColumnWidth = 300.0f;

	bool HasSenderOfName(const AZAVSpoutSenderManager& Manager, const FString& Name)
	{
		for (const FZAVSpoutSenderInterface& Sender : Manager.SpoutSenders)
		{
			// FString's own == ignores case, while Spout tells Cam from cam.
			if (Name.Equals(Sender.SpoutSenderName, ESearchCase::CaseSensitive) ||
				Name.Equals(Sender.StandaloneSenderName, ESearchCase::CaseSensitive))
			{
				return true;
			}
		}
		return false;
	}

	/** Whether an entry of any sender manager of the editor's world has this name. Names are compared exactly. */
	bool IsStreamNameTaken(const FString& Name)
	{
		UWorld* World = GEditor->GetAllViewportClients()[0]->GetWorld();
		TArray<AActor*> Managers;
		UGameplayStatics::GetAllActorsOfClass(World, AZAVSpoutSenderManager::StaticClass(), Managers);
		for (AActor* Actor : Managers)
		{
			// An actor that is no sender manager after all counts as absent.
			const AZAVSpoutSenderManager* Manager = Cast<AZAVSpoutSenderManager>(Actor);
			if (Manager && HasSenderOfName(*Manager, Name))
			{
				return true;
			}
		}
		return false;
	}
}

SCineStreamWizard::SCineStreamWizard() : bShowCreatorPage(true), bShowStreamNameWarning(false) {}

SCineStreamWizard::~SCineStreamWizard() {}

// clang-format off
void SCineStreamWizard::Construct(const FArguments& /*InArgs*/)
{
	ZAVTelemetry::WizardEditorOpened();

	ChildSlot
	.VAlign(VAlign_Fill)
	.HAlign(HAlign_Fill)
	[
		SNew(SScrollBox)
		+ SScrollBox::Slot()
		.VAlign(VAlign_Center)
		.HAlign(HAlign_Center)
		[
			SNew(SBox)
			.WidthOverride(ColumnWidth)
			.MaxDesiredWidth(ColumnWidth)
			[
				SNew(SVerticalBox)
				+ SVerticalBox::Slot()
				.AutoHeight()
				.Padding(0.0f, 0.0f, 0.0f, 50.0f)
				[
					MakeHeader()
				]
				+ SVerticalBox::Slot()
				[
					SNew(SOverlay)
					+ SOverlay::Slot()
					[
						MakeCreatorPage()
					]
					+ SOverlay::Slot()
					[
						MakeDonePage()
					]
				]
			]
		]
	];
}

TSharedRef<SWidget> SCineStreamWizard::MakeHeader()
{
	return SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.HAlign(HAlign_Center)
		.Padding(0.0f, 0.0f, 0.0f, 30.0f)
		[
			SNew(SImage)
			.Image(FQuillonEditorStyle::Get().GetBrush("ZAVQuillon.WizardIcon_128x"))
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		.HAlign(HAlign_Center)
		.Padding(0.0f, 0.0f, 0.0f, 15.0f)
		[
			SNew(STextBlock)
			.Text(LOCTEXT("Title", "Instant Cinestream Wizard"))
			.Font(FCoreStyle::GetDefaultFontStyle("Regular", 19))
			.Justification(ETextJustify::Center)
			.AutoWrapText(true)
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		.HAlign(HAlign_Center)
		[
			SNew(STextBlock)
			.Text(LOCTEXT("Description", "Instantly set up an ZAV Cine Cam Capture and Spout Sender Manager to live stream directly from Unreal to Spout (OBS Studio, Resolume etc.)."))
			.Font(FCoreStyle::GetDefaultFontStyle("Regular", 10))
			.AutoWrapText(true)
		];
}

TSharedRef<SWidget> SCineStreamWizard::MakeCreatorPage()
{
	return SNew(SVerticalBox)
		.Visibility(this, &SCineStreamWizard::GetCreatorPageVisibility)
		+ SVerticalBox::Slot()
		.AutoHeight()
		.Padding(0.0f, 0.0f, 0.0f, 10.0f)
		[
			SNew(STextBlock)
			.Text(LOCTEXT("StreamName_Label", "Cinestream Name:"))
			.Font(FCoreStyle::GetDefaultFontStyle("Regular", 10))
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			// Not bound to StreamName: the box keeps what the user typed, also where it was refused.
			SNew(SEditableTextBox)
			.MinDesiredWidth(ColumnWidth)
			.OnTextChanged(this, &SCineStreamWizard::OnStreamNameTextChanged)
			.OnTextCommitted(this, &SCineStreamWizard::OnStreamNameCommitted)
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		.Padding(0.0f, 5.0f, 0.0f, 0.0f)
		[
			// Shares its key with both warnings, one of which replaces it before it is ever seen.
			SAssignNew(StreamNameWarningTextBlock, STextBlock)
			.Text(LOCTEXT("StreamName_Warning", "Placeholder Text"))
			.Font(FCoreStyle::GetDefaultFontStyle("Italic", 8))
			.ColorAndOpacity(FLinearColor::Red)
			.Visibility(this, &SCineStreamWizard::GetStreamNameWarningVisibility)
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			SNew(SButton)
			.OnClicked(this, &SCineStreamWizard::OnCreateButtonClicked)
			[
				SNew(STextBlock)
				.Text(LOCTEXT("Button_Label", "Create Instant Cinestream Output"))
				.Justification(ETextJustify::Center)
			]
		];
}

TSharedRef<SWidget> SCineStreamWizard::MakeDonePage()
{
	return SNew(SVerticalBox)
		.Visibility(this, &SCineStreamWizard::GetDonePageVisibility)
		+ SVerticalBox::Slot()
		.AutoHeight()
		.HAlign(HAlign_Center)
		.Padding(0.0f, 0.0f, 0.0f, 20.0f)
		[
			SAssignNew(DoneTextBlock, STextBlock)
			.Font(FCoreStyle::GetDefaultFontStyle("Regular", 12))
			.Justification(ETextJustify::Center)
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		.HAlign(HAlign_Fill)
		.Padding(0.0f, 0.0f, 0.0f, 0.0f)
		[
			SNew(SButton)
			.OnClicked(this, &SCineStreamWizard::OnRestartButtonClicked)
			[
				SAssignNew(DoneButtonTextBlock, STextBlock)
				.Justification(ETextJustify::Center)
			]
		];
}
// clang-format on

EVisibility SCineStreamWizard::GetCreatorPageVisibility() const
{
	return bShowCreatorPage ? EVisibility::Visible : EVisibility::Collapsed;
}

EVisibility SCineStreamWizard::GetDonePageVisibility() const
{
	return bShowCreatorPage ? EVisibility::Collapsed : EVisibility::Visible;
}

EVisibility SCineStreamWizard::GetStreamNameWarningVisibility() const
{
	return bShowStreamNameWarning ? EVisibility::Visible : EVisibility::Hidden;
}

void SCineStreamWizard::ShowStreamNameWarning(const FText& Warning)
{
	bShowStreamNameWarning = true;
	StreamNameWarningTextBlock->SetText(Warning);
}

// Both warnings go by one key, as translators know it: keep the key, and the spelling of the second one, which is the
// established message.

void SCineStreamWizard::OnStreamNameTextChanged(const FText& NewText)
{
	if (NewText.IsEmptyOrWhitespace())
	{
		ShowStreamNameWarning(LOCTEXT("StreamName_Warning", "! Stream Name cannot be empty."));
	}
	else if (IsStreamNameTaken(NewText.ToString()))
	{
		ShowStreamNameWarning(
			LOCTEXT("StreamName_Warning", "! Stream Name already defined, please use a differnt name."));
	}
	else
	{
		bShowStreamNameWarning = false;
	}
}

void SCineStreamWizard::OnStreamNameCommitted(const FText& NewText, ETextCommit::Type /*CommitType*/)
{
	// A refused name becomes an empty one, so the create button answers with the empty-name warning afterwards.
	StreamName = bShowStreamNameWarning ? FText::FromString(FString()) : NewText;
}

FReply SCineStreamWizard::OnRestartButtonClicked()
{
	StreamName = FText::FromString(FString());
	bShowCreatorPage = true;
	return FReply::Handled();
}

#undef LOCTEXT_NAMESPACE
