// Copyright Corvane. MIT License.
#include "WizardUser.h"

#include "Engine/World.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Docking/TabManager.h"
#include "Input/Events.h"
#include "InputCoreTypes.h"
#include "Kismet/GameplayStatics.h"
#include "Templates/Casts.h"
#include "Tests/AutomationEditorCommon.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Text/STextBlock.h"

#include "WidgetUser.h"
#include "ZAVCineCamCapture.h"
#include "ZAVSpoutSenderManager.h"

#if WITH_DEV_AUTOMATION_TESTS

namespace
{
	/** The order in which the wizard's texts stand in its tree. */
	enum ETextIndex
	{
		TitleText,
		DescriptionText,
		NameLabelText,
		WarningText,
		CreateCaptionText,
		DoneMessageText,
		DoneCaptionText,
	};
}

FWizardUser::FWizardUser() : World(FAutomationEditorCommonUtils::CreateNewMap())
{
	OpenTab();
}

FWizardUser::~FWizardUser()
{
	CloseTab();
}

void FWizardUser::OpenTab()
{
	Tab = FGlobalTabmanager::Get()->TryInvokeTab(FTabId("CineStreamWizard"));
}

void FWizardUser::CloseTab()
{
	Tab->RequestCloseTab();
	Tab.Reset();
}

void FWizardUser::ReopenTab()
{
	CloseTab();
	OpenTab();
}

void FWizardUser::Type(const FString& Text)
{
	FSlateApplication& Slate = FSlateApplication::Get();
	const TSharedRef<SEditableTextBox> Box = GetNameBox();
	Slate.SetKeyboardFocus(Box, EFocusCause::Mouse);
	Box->SelectAllText();
	if (Text.IsEmpty())
	{
		const TCHAR Backspace = 8;
		Slate.ProcessKeyCharEvent(FCharacterEvent(Backspace, FModifierKeysState(), 0, false));
	}
	for (int32 Index = 0; Index < Text.Len(); ++Index)
	{
		Slate.ProcessKeyCharEvent(FCharacterEvent(Text[Index], FModifierKeysState(), 0, false));
	}
}

void FWizardUser::FocusNameBox()
{
	FSlateApplication::Get().SetKeyboardFocus(GetNameBox(), EFocusCause::Mouse);
}

void FWizardUser::PressEnter()
{
	FWidgetUser::PressKey(EKeys::Enter);
}

void FWizardUser::ClickCreate()
{
	FWidgetUser::Click(GetCreateButton());
}

void FWizardUser::ClickDone()
{
	FWidgetUser::Click(GetDoneButton());
}

void FWizardUser::Create(const FString& Name)
{
	Type(Name);
	ClickCreate();
}

TSharedRef<STextBlock> FWizardUser::GetText(int32 Index) const
{
	return StaticCastSharedRef<STextBlock>(FindAll(TEXT("STextBlock"))[Index]);
}

TSharedRef<STextBlock> FWizardUser::GetTitle() const
{
	return GetText(TitleText);
}

TSharedRef<STextBlock> FWizardUser::GetDescription() const
{
	return GetText(DescriptionText);
}

TSharedRef<STextBlock> FWizardUser::GetNameLabel() const
{
	return GetText(NameLabelText);
}

TSharedRef<STextBlock> FWizardUser::GetWarning() const
{
	return GetText(WarningText);
}

TSharedRef<STextBlock> FWizardUser::GetCreateCaption() const
{
	return GetText(CreateCaptionText);
}

TSharedRef<STextBlock> FWizardUser::GetDoneMessage() const
{
	return GetText(DoneMessageText);
}

TSharedRef<STextBlock> FWizardUser::GetDoneCaption() const
{
	return GetText(DoneCaptionText);
}

TSharedRef<SEditableTextBox> FWizardUser::GetNameBox() const
{
	return StaticCastSharedRef<SEditableTextBox>(FindAll(TEXT("SEditableTextBox"))[0]);
}

TSharedRef<SButton> FWizardUser::GetCreateButton() const
{
	return StaticCastSharedRef<SButton>(FindAll(TEXT("SButton"))[0]);
}

TSharedRef<SButton> FWizardUser::GetDoneButton() const
{
	return StaticCastSharedRef<SButton>(FindAll(TEXT("SButton"))[1]);
}

TSharedRef<SWidget> FWizardUser::GetWizard() const
{
	return Tab->GetContent();
}

TArray<TSharedRef<SWidget>> FWizardUser::FindAll(const TCHAR* Type) const
{
	return FWidgetUser::FindAll(GetWizard(), Type);
}

bool FWizardUser::IsShown(const TSharedRef<SWidget>& Widget) const
{
	return FWidgetUser::IsShown(GetWizard(), Widget);
}

bool FWizardUser::IsCreatorPageShown() const
{
	return IsShown(GetCreateButton()) && !IsShown(GetDoneButton());
}

FString FWizardUser::GetShownWarning() const
{
	return IsShown(GetWarning()) ? GetWarning()->GetText().ToString() : FString();
}

FString FWizardUser::GetNameBoxText() const
{
	return GetNameBox()->GetText().ToString();
}

UWorld* FWizardUser::GetWorld() const
{
	return World;
}

TArray<AActor*> FWizardUser::GetActors(UClass* Class) const
{
	TArray<AActor*> Actors;
	UGameplayStatics::GetAllActorsOfClass(World, Class, Actors);
	return Actors;
}

AZAVCineCamCapture* FWizardUser::GetOnlyCamera() const
{
	const TArray<AActor*> Cameras = GetActors(AZAVCineCamCapture::StaticClass());
	return Cameras.Num() == 1 ? Cast<AZAVCineCamCapture>(Cameras[0]) : nullptr;
}

TArray<AZAVSpoutSenderManager*> FWizardUser::GetManagers() const
{
	TArray<AZAVSpoutSenderManager*> Managers;
	for (AActor* Actor : GetActors(AZAVSpoutSenderManager::StaticClass()))
	{
		Managers.Add(Cast<AZAVSpoutSenderManager>(Actor));
	}
	return Managers;
}

AZAVSpoutSenderManager* FWizardUser::PlaceManager(const FString& SenderName, const FString& StandaloneName)
{
	AZAVSpoutSenderManager* Manager = World->SpawnActor<AZAVSpoutSenderManager>();
	FZAVSpoutSenderInterface Sender;
	Sender.SpoutSenderName = SenderName;
	Sender.StandaloneSenderName = StandaloneName;
	Manager->SpoutSenders.Add(Sender);
	return Manager;
}

#endif
