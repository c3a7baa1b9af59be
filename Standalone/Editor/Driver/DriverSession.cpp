// Copyright Corvane. MIT License.
#include "Driver/DriverSession.h"

#include "Driver/OutsideRecorder.h"

namespace
{
	constexpr double SecondsPerFrame = 1.0 / 60.0;
}

FDriverSession::FDriverSession() : Outside(std::make_unique<FOutsideRecorder>()) {}

FDriverSession::~FDriverSession() = default;

bool FDriverSession::Start(const FStandaloneEditorOptions& Options, std::string& OutError)
{
	return Editor.Start(Options, OutError);
}

void FDriverSession::Tick()
{
	Editor.Tick();
	Time += SecondsPerFrame;
}

void FDriverSession::Advance(double Seconds)
{
	Time += Seconds;
}
