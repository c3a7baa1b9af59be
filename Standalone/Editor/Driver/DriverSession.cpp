// Copyright Corvane. MIT License.
#include "Driver/DriverSession.h"

#include "Driver/OutsideRecorder.h"
#include "EditorView.h"
#include "Framework/Application/SlateApplication.h"

namespace
{
	constexpr double SecondsPerFrame = 1.0 / 60.0;
}

FDriverSession::FDriverSession() : Outside(std::make_unique<FOutsideRecorder>()) {}

FDriverSession::~FDriverSession()
{
	if (View)
	{
		View->Detach();
	}
}

bool FDriverSession::Start(
	const FStandaloneEditorOptions& Options, std::string& OutError, std::unique_ptr<IEditorView> InView)
{
	if (!Editor.Start(Options, OutError))
	{
		return false;
	}
	FSlateApplication::Get().SetCurrentTime(Time);
	View = std::move(InView);
	if (View)
	{
		View->Attach(Editor);
	}
	return true;
}

void FDriverSession::Tick()
{
	FSlateApplication::Get().SetCurrentTime(Time);
	Editor.Tick();
	if (View)
	{
		View->Update();
	}
	Time += SecondsPerFrame;
}

void FDriverSession::Advance(double Seconds)
{
	Time += Seconds;
}
