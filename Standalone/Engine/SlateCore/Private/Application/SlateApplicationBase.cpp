// Copyright Corvane. MIT License.
#include "Application/SlateApplicationBase.h"

namespace
{
	TSharedPtr<FSlateApplicationBase>& CurrentApplication()
	{
		static TSharedPtr<FSlateApplicationBase> Application;
		return Application;
	}
}

bool FSlateApplicationBase::IsInitialized()
{
	return CurrentApplication().IsValid();
}

FSlateApplicationBase& FSlateApplicationBase::Get()
{
	check(IsInitialized());
	return *CurrentApplication();
}

void FSlateApplicationBase::SetCurrent(const TSharedPtr<FSlateApplicationBase>& Application)
{
	CurrentApplication() = Application;
}
