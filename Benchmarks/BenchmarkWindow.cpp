// Copyright Corvane. MIT License.
#include "BenchmarkWindow.h"

#include "MainWindow.h"
#include "WindowView.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "ActorEdits.h"
#include "EditorViews.h"
#include "Engine/World.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/Docking/TabManager.h"
#include "GameFramework/Actor.h"
#include "LevelProperties.h"
#include "ZAVSpoutNames.h"

namespace
{
	constexpr double SecondsPerFrame = 1.0 / 60.0;
	constexpr int FramesToSettle = 60;

	void Need(bool bGiven, const std::string& Error)
	{
		if (!bGiven)
		{
			std::fprintf(stderr, "%s\n", Error.c_str());
			std::abort();
		}
	}
}

FBenchmarkWindow::FBenchmarkWindow()
{
	std::string Error;
	// A person's window, as a script's leaves work out, on a platform that needs no display, with settings of its own.
	qputenv("QT_QPA_PLATFORM", "offscreen");
	qputenv("XDG_CONFIG_HOME", "/nonexistent");
	View = FWindowView::Make(EEditorViewUse::Person, Error);
	Need(View != nullptr, Error);
	Need(Editor.Start(FStandaloneEditorOptions(), Error), Error);
	FSlateApplication::Get().SetCurrentTime(Time);
}

FBenchmarkWindow::~FBenchmarkWindow()
{
	ZAVSpoutNames::SetActiveSenderNames({});
	View->Detach();
	Editor.Shutdown();
}

void FBenchmarkWindow::Open()
{
	View->Attach(Editor);
}

void FBenchmarkWindow::Close()
{
	View->Detach();
}

void FBenchmarkWindow::Frame()
{
	Time += SecondsPerFrame;
	FSlateApplication::Get().SetCurrentTime(Time);
	Editor.Tick();
	View->Update();
}

void FBenchmarkWindow::Settle()
{
	for (int Index = 0; Index < FramesToSettle; ++Index)
	{
		Frame();
	}
}

void FBenchmarkWindow::ShowWizardAndReceiver(int NumSenders)
{
	TArray<FString> Names;
	for (int Index = 0; Index < NumSenders; ++Index)
	{
		Names.Add(FString::Printf(TEXT("Sender%d"), Index));
	}
	ZAVSpoutNames::SetActiveSenderNames(Names);
	FGlobalTabmanager::Get()->TryInvokeTab(FTabId("CineStreamWizard"));
	FActorEdits::Place(FLevelProperties::FindActorClass(TEXT("ZAVSpoutReceiverManager")), FVector(), FRotator());
}

std::vector<AActor*> FBenchmarkWindow::FillLevel(int32 NumActors)
{
	UClass* Class = FLevelProperties::FindActorClass(TEXT("ZAVCineCamCapture"));
	const int32 Side = static_cast<int32>(std::ceil(std::sqrt(NumActors)));
	std::vector<AActor*> Actors;
	for (int32 Index = 0; Index < NumActors; ++Index)
	{
		const FVector Location(500.0f + 100.0f * static_cast<float>(Index / Side),
			100.0f * static_cast<float>(Index % Side - Side / 2), 0.0f);
		const FRotator Rotation;
		Actors.push_back(FEditorViews::GetLevelWorld()->SpawnActor(Class, &Location, &Rotation));
	}
	Frame();
	return Actors;
}
