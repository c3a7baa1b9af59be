// Copyright Corvane. MIT License.
#include "CreateJob.h"

#include "EditorAssets.h"
#include "EditorViews.h"
#include "EngineText.h"
#include "GameFramework/Actor.h"
#include "ReflectedActors.h"
#include "StandaloneEditor.h"
#include "WizardPages.h"

bool FCreateJob::Run(const FString& Name, FCreateReport& OutReport, std::string& OutError)
{
	const TSharedPtr<SWidget> Content = FWizardPages::Open(OutError);
	if (!Content.IsValid())
	{
		return false;
	}
	const FWizardPages Wizard(Content.ToSharedRef());
	const FBefore Before = LookAround();
	if (!Wizard.EnterName(Name))
	{
		OutError = "NAME: the wizard's box does not take these characters";
		return false;
	}
	OutReport.Warning = Wizard.GetWarning();
	if (!Wizard.PressButton())
	{
		OutError = "the wizard has no button to press";
		return false;
	}
	OutReport.Setup = FindSetup(Before);
	Editor.Tick();
	OutReport.Message = Wizard.GetMessage();
	return true;
}

FCreateJob::FBefore FCreateJob::LookAround()
{
	FBefore Before;
	for (const UObject* Asset : FEditorAssets::GetAll())
	{
		Before.Assets.insert(Asset);
	}
	for (const AActor* Manager : FReflectedActors::FindSenderManagers())
	{
		Before.Managers[Manager] = FReflectedActors::CountSenders(Manager);
	}
	return Before;
}

std::optional<FCreateReport::FSetup> FCreateJob::FindSetup(const FBefore& Before) const
{
	FCreateReport::FSetup Setup;
	bool bAsset = false;
	for (const UObject* Asset : FEditorAssets::GetAll())
	{
		if (Before.Assets.count(Asset) == 0)
		{
			Setup.Asset = FEngineText::ForDisplay(FEditorAssets::GetPath(Asset));
			bAsset = true;
		}
	}
	const AActor* Camera = FReflectedActors::FindSelectedCamera();
	if (!bAsset || !Camera)
	{
		return std::nullopt;
	}
	Setup.Camera = FReflectedActors::DescribeCamera(Camera);
	for (const AActor* Manager : FReflectedActors::FindSenderManagers())
	{
		const auto Known = Before.Managers.find(Manager);
		const bool bSpawned = Known == Before.Managers.end();
		const int32 Count = FReflectedActors::CountSenders(Manager);
		if (Count > (bSpawned ? 0 : Known->second))
		{
			Setup.Manager = {FEngineText::ForDisplay(Manager->GetFName()), bSpawned, Count};
			Setup.Sender = FReflectedActors::DescribeSender(Manager, Count - 1);
			return Setup;
		}
	}
	return std::nullopt;
}
