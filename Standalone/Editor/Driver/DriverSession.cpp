// Copyright Corvane. MIT License.
#include "Driver/DriverSession.h"

#include "Driver/OutsideRecorder.h"
#include "Framework/Application/SlateApplication.h"

namespace
{
	constexpr double SecondsPerFrame = 1.0 / 60.0;
}

FDriverSession::FDriverSession() : Outside(std::make_unique<FOutsideRecorder>()) {}

FDriverSession::~FDriverSession() = default;

bool FDriverSession::Start(const FStandaloneEditorOptions& Options, std::string& OutError)
{
	if (!Editor.Start(Options, OutError))
	{
		return false;
	}
	FSlateApplication::Get().SetCurrentTime(Time);
	return true;
}

void FDriverSession::Tick()
{
	FSlateApplication::Get().SetCurrentTime(Time);
	Editor.Tick();
	Time += SecondsPerFrame;
}

void FDriverSession::Advance(double Seconds)
{
	Time += Seconds;
}
