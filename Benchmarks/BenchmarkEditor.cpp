// Copyright Corvane. MIT License.
#include "BenchmarkEditor.h"

#include "UserInput.h"
#include "WidgetFinder.h"

#include "Engine/World.h"
#include "Framework/Docking/TabManager.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "ZAVSpoutSenderManager.h"

FBenchmarkEditor::FBenchmarkEditor()
{
	Wizard = FGlobalTabmanager::Get()->TryInvokeTab(FTabId("CineStreamWizard"))->GetContent();
}

TSharedRef<SEditableTextBox> FBenchmarkEditor::GetNameBox() const
{
	return FWidgetFinder(Wizard.ToSharedRef()).GetEditBoxes()[0];
}

void FBenchmarkEditor::EnterName(const FString& Name) const
{
	FUserInput::Focus(GetNameBox());
	GetNameBox()->SelectAllText();
	FUserInput::Paste(Name);
}

void FBenchmarkEditor::PressButton() const
{
	FUserInput::Click(FWidgetFinder(Wizard.ToSharedRef()).GetButtons()[0]);
}

AZAVSpoutSenderManager& FBenchmarkEditor::PlaceManager(int32 First, int32 NumEntries)
{
	AZAVSpoutSenderManager* Manager = GetWorld().SpawnActor<AZAVSpoutSenderManager>();
	for (int32 Index = First; Index < First + NumEntries; ++Index)
	{
		FZAVSpoutSenderInterface Sender;
		Sender.SpoutSenderName = MakeName(TEXT("a"), Index);
		Sender.StandaloneSenderName = MakeName(TEXT("b"), Index);
		Manager->SpoutSenders.Add(Sender);
	}
	return *Manager;
}

FString FBenchmarkEditor::MakeName(const TCHAR* Kind, int32 Number)
{
	return FString::Printf(TEXT("Stream name %s%07d"), Kind, Number);
}
