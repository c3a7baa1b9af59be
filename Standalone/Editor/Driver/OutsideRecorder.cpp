// Copyright Corvane. MIT License.
#include "Driver/OutsideRecorder.h"

#include "Engine/Level.h"
#include "Misc/CoreDelegates.h"
#include "Misc/MessageDialog.h"
#include "SaveGameFolder.h"
#include "StandaloneEditorEvents.h"

FOutsideRecorder::FOutsideRecorder()
{
	FCoreDelegates::ModalErrorMessage =
		FCoreDelegates::FOnModalMessageBox::CreateRaw(this, &FOutsideRecorder::OnMessage);
	FCoreDelegates::ShouldLaunchUrl = FCoreDelegates::FShouldLaunchUrl::CreateRaw(this, &FOutsideRecorder::OnAddress);
	FEnsureReports::OnReported().AddRaw(this, &FOutsideRecorder::OnEnsure);
	FStandaloneEditorEvents::Redraw.AddRaw(this, &FOutsideRecorder::OnRedraw);
	FStandaloneEditorEvents::ContentSync.AddRaw(this, &FOutsideRecorder::OnContentSync);
	ULevel::LevelDirtiedEvent.AddRaw(this, &FOutsideRecorder::OnLevelDirtied);
	FSaveGameFolder::OnSaved().AddRaw(this, &FOutsideRecorder::OnSaved);
}

FOutsideRecorder::~FOutsideRecorder()
{
	FSaveGameFolder::OnSaved().RemoveAll(this);
	ULevel::LevelDirtiedEvent.RemoveAll(this);
	FStandaloneEditorEvents::ContentSync.RemoveAll(this);
	FStandaloneEditorEvents::Redraw.RemoveAll(this);
	FEnsureReports::OnReported().RemoveAll(this);
	FCoreDelegates::ShouldLaunchUrl.Unbind();
	FCoreDelegates::ModalErrorMessage.Unbind();
}

EAppReturnType::Type FOutsideRecorder::OnMessage(EAppMsgType::Type Kind, const FText& Text, const FText& Title)
{
	Messages.push_back({Kind, Text.ToString(), Title.ToString()});
	return FMessageDialog::GetDefaultAnswer(Kind);
}

bool FOutsideRecorder::OnAddress(const TCHAR* Address)
{
	Addresses.push_back(Address);
	return false;
}
