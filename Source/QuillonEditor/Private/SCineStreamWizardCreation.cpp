// Copyright Corvane. MIT License.
#include "SCineStreamWizard.h"

#include "AssetRegistry/IAssetRegistry.h"
#include "AssetToolsModule.h"
#include "Editor.h"
#include "EditorViewportClient.h"
#include "Engine/Level.h"
#include "Engine/Selection.h"
#include "Engine/TextureRenderTarget2D.h"
#include "Engine/World.h"
#include "IAssetTools.h"
#include "Kismet/GameplayStatics.h"
#include "Modules/ModuleManager.h"
#include "Templates/Casts.h"
#include "Widgets/Text/STextBlock.h"

#include "ZAVCaptureComponent.h"
#include "ZAVCineCamCapture.h"
#include "ZAVSpoutSenderManager.h"

// What the create button does: a render target, a camera and a sender entry from the committed stream name.

#define LOCTEXT_NAMESPACE "CineStreamWizard"

namespace
{
	/** Where render targets go; ends in a slash, as the stream name follows directly. */
	const TCHAR* const RenderTargetPath = TEXT("/Game/CineStream/");

	/** The client that shows the active viewport, or null. */
	FEditorViewportClient* FindActiveViewportClient()
	{
		const FViewport* ActiveViewport = GEditor->GetActiveViewport();
		for (FEditorViewportClient* Client : GEditor->GetAllViewportClients())
		{
			if (Client->Viewport == ActiveViewport)
			{
				return Client;
			}
		}
		return nullptr;
	}

	/** A new render target asset named after the stream, or null. An asset of another class is left as it is. */
	UTextureRenderTarget2D* CreateRenderTarget(const FString& StreamName)
	{
		IAssetTools& AssetTools = FModuleManager::LoadModuleChecked<FAssetToolsModule>("AssetTools").Get();
		FString UniquePackageName;
		FString UniqueAssetName;
		AssetTools.CreateUniqueAssetName(
			FString(RenderTargetPath) + StreamName, FString(), UniquePackageName, UniqueAssetName);
		UTextureRenderTarget2D* RenderTarget = Cast<UTextureRenderTarget2D>(AssetTools.CreateAsset(
			UniqueAssetName, RenderTargetPath, UTextureRenderTarget2D::StaticClass(), nullptr, NAME_None));
		if (RenderTarget)
		{
			RenderTarget->MarkPackageDirty();
			IAssetRegistry* AssetRegistry = IAssetRegistry::Get();
			check(AssetRegistry);
			AssetRegistry->AssetCreated(RenderTarget);
		}
		return RenderTarget;
	}

	/** Makes the actor the only selection and asks the content browser to follow, without bringing it forward. */
	void SelectOnly(AActor* Actor)
	{
		GEditor->SelectNone(true, true, true);
		GEditor->GetSelectedActors()->DeselectAll();
		GEditor->GetSelectedObjects()->DeselectAll();
		GEditor->SelectActor(Actor, true, false, false, false);

		TArray<UObject*> Objects;
		Objects.Add(Actor);
		GEditor->SyncBrowserToObjects(Objects, false);
	}
}

FReply SCineStreamWizard::OnCreateButtonClicked()
{
	// Only emptiness is checked again here: a name that is taken was emptied when it was committed.
	if (StreamName.IsEmptyOrWhitespace())
	{
		ShowStreamNameWarning(LOCTEXT("StreamName_Warning", "! Stream Name cannot be empty."));
		return FReply::Handled();
	}

	// Success and failure share their keys, as translators know them; the text that is set last shows.
	if (CreateSetup())
	{
		DoneTextBlock->SetText(FText::Format(LOCTEXT("DoneText", "Cinestream '{0}' created!"), StreamName));
		DoneTextBlock->SetColorAndOpacity(FSlateColor(FLinearColor::White));
		DoneButtonTextBlock->SetText(LOCTEXT("DoneButtonText", "Create Another Cinestream Output"));
	}
	else
	{
		DoneTextBlock->SetText(
			FText::Format(LOCTEXT("DoneText", "ERROR: Failed to create Cinestream '{0}'!"), StreamName));
		DoneTextBlock->SetColorAndOpacity(FSlateColor(FLinearColor::Red));
		DoneButtonTextBlock->SetText(LOCTEXT("DoneButtonText", "Try Again"));
	}
	bShowCreatorPage = false;
	return FReply::Handled();
}

bool SCineStreamWizard::CreateSetup()
{
	AZAVCineCamCapture* Camera = CreateCameraActor();
	if (!Camera)
	{
		return false;
	}
	AZAVSpoutSenderManager* Manager = FindOrCreateSenderManager();

	FZAVSpoutSenderInterface Sender;
	Sender.bActive = true;
	Sender.SpoutSenderName = StreamName.ToString();
	Sender.StandaloneSenderName = StreamName.ToString() + TEXT("_Standalone");
	// Read back from the camera: the entry publishes what the camera really renders into.
	Sender.RenderTarget = Camera->CaptureComponent->TextureTarget;
	Manager->SpoutSenders.Add(Sender);

	Manager->GetWorld()->MarkPackageDirty();
	ULevel::LevelDirtiedEvent.Broadcast();
	return true;
}

AZAVCineCamCapture* SCineStreamWizard::CreateCameraActor()
{
	FEditorViewportClient* Client = FindActiveViewportClient();
	if (!Client)
	{
		return nullptr;
	}
	// The asset comes first and is never taken back: a later failure leaves it to the user.
	UTextureRenderTarget2D* RenderTarget = CreateRenderTarget(StreamName.ToString());
	if (!RenderTarget)
	{
		return nullptr;
	}

	// The camera belongs to the world that the user looks at; the manager is sought in the first client's.
	AZAVCineCamCapture* Camera = Cast<AZAVCineCamCapture>(
		Client->GetWorld()->SpawnActor(AZAVCineCamCapture::StaticClass(), nullptr, nullptr, FActorSpawnParameters()));
	Camera->SetActorLocation(Client->GetViewLocation());
	Camera->SetActorRotation(Client->GetViewRotation());
	Camera->CaptureComponent->TextureTarget = RenderTarget;

	SelectOnly(Camera);
	GEditor->RedrawAllViewports(true);
	return Camera;
}

AZAVSpoutSenderManager* SCineStreamWizard::FindOrCreateSenderManager()
{
	UWorld* World = GEditor->GetAllViewportClients()[0]->GetWorld();
	TArray<AActor*> Managers;
	UGameplayStatics::GetAllActorsOfClass(World, AZAVSpoutSenderManager::StaticClass(), Managers);
	if (Managers.Num() > 0)
	{
		return Cast<AZAVSpoutSenderManager>(Managers[0]);
	}

	AZAVSpoutSenderManager* Manager = Cast<AZAVSpoutSenderManager>(
		World->SpawnActor(AZAVSpoutSenderManager::StaticClass(), nullptr, nullptr, FActorSpawnParameters()));
	ULevel::LevelDirtiedEvent.Broadcast();
	GEditor->RedrawAllViewports(true);
	return Manager;
}

#undef LOCTEXT_NAMESPACE
