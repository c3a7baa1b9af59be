// Copyright Corvane. MIT License.
#include "CoreMinimal.h"

#include "Editor.h"
#include "EditorViewportClient.h"
#include "Engine/Level.h"
#include "Engine/Selection.h"
#include "Engine/TextureRenderTarget2D.h"
#include "Engine/World.h"
#include "Misc/AutomationTest.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "Widgets/Text/STextBlock.h"

#include "WizardUser.h"
#include "ZAVCaptureComponent.h"
#include "ZAVCineCamCapture.h"
#include "ZAVSpoutSenderManager.h"

#if WITH_DEV_AUTOMATION_TESTS

BEGIN_DEFINE_SPEC(FCineStreamWizardCreationSpec, "Quillon.Wizard.Creation",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)
	TUniquePtr<FWizardUser> User;
	FDelegateHandle LevelDirtiedHandle;
	int32 LevelDirtied;

	FZAVSpoutSenderInterface GetLastSender() const
	{
		return User->GetManagers()[0]->SpoutSenders.Last();
	}
END_DEFINE_SPEC(FCineStreamWizardCreationSpec)

void FCineStreamWizardCreationSpec::Define()
{
	BeforeEach(
		[this]()
		{
			User = MakeUnique<FWizardUser>();
			LevelDirtied = 0;
			LevelDirtiedHandle = ULevel::LevelDirtiedEvent.AddLambda([this]() { ++LevelDirtied; });
		});
	AfterEach(
		[this]()
		{
			ULevel::LevelDirtiedEvent.Remove(LevelDirtiedHandle);
			User.Reset();
		});

	Describe("In a level without a sender manager, a creation",
		[this]()
		{
			BeforeEach([this]() { User->Create(TEXT("Main")); });

			It("should spawn one manager whose first element is the new entry",
				[this]()
				{
					TestEqual("managers", User->GetManagers().Num(), 1);
					TestEqual("entries", User->GetManagers()[0]->SpoutSenders.Num(), 1);
				});

			It("should leave the manager at the world's origin",
				[this]()
				{
					TestTrue("location", User->GetManagers()[0]->GetActorLocation() == FVector::ZeroVector);
					TestTrue("rotation", User->GetManagers()[0]->GetActorRotation() == FRotator::ZeroRotator);
				});

			It("should mark the level's package dirty",
				[this]() { TestTrue("dirty", User->GetWorld()->GetOutermost()->IsDirty()); });

			It("should broadcast that the level changed for the manager and for the entry",
				[this]() { TestEqual("broadcasts", LevelDirtied, 2); });
		});

	Describe("In a level with a manager, a creation",
		[this]()
		{
			It("should append to the first manager only",
				[this]()
				{
					AZAVSpoutSenderManager* First = User->PlaceManager(TEXT("A"), TEXT("A_Standalone"));
					AZAVSpoutSenderManager* Second = User->PlaceManager(TEXT("B"), TEXT("B_Standalone"));
					User->Create(TEXT("Main"));
					TestEqual("managers", User->GetManagers().Num(), 2);
					TestEqual("entries of the first", First->SpoutSenders.Num(), 2);
					TestEqual("entries of the second", Second->SpoutSenders.Num(), 1);
					TestTrue("at the end", First->SpoutSenders[1].SpoutSenderName.Equals(TEXT("Main")));
				});

			It("should broadcast that the level changed once",
				[this]()
				{
					User->PlaceManager(TEXT("A"), TEXT("A_Standalone"));
					User->Create(TEXT("Main"));
					TestEqual("broadcasts", LevelDirtied, 1);
				});

			It("should keep the entries that were there",
				[this]()
				{
					AZAVSpoutSenderManager* Manager = User->PlaceManager(TEXT("A"), TEXT("A_Standalone"));
					User->Create(TEXT("Main"));
					TestTrue("name", Manager->SpoutSenders[0].SpoutSenderName.Equals(TEXT("A")));
					TestTrue(
						"stand-alone name", Manager->SpoutSenders[0].StandaloneSenderName.Equals(TEXT("A_Standalone")));
				});
		});

	Describe("The sender entry",
		[this]()
		{
			It("should be active",
				[this]()
				{
					User->Create(TEXT("Main"));
					TestTrue("bActive", GetLastSender().bActive);
				});

			It("should carry the stream name and the name with its suffix",
				[this]()
				{
					User->Create(TEXT("Main"));
					TestTrue("name", GetLastSender().SpoutSenderName.Equals(TEXT("Main")));
					TestTrue("stand-alone name", GetLastSender().StandaloneSenderName.Equals(TEXT("Main_Standalone")));
				});

			It("should publish what the camera renders into",
				[this]()
				{
					User->Create(TEXT("Main"));
					TestNotNull("render target", GetLastSender().RenderTarget);
					TestTrue("same target",
						GetLastSender().RenderTarget == User->GetOnlyCamera()->CaptureComponent->TextureTarget);
				});

			It("should keep leading and trailing blanks of the name",
				[this]()
				{
					User->Create(TEXT("  Main "));
					TestTrue("name", GetLastSender().SpoutSenderName.Equals(TEXT("  Main ")));
					TestTrue(
						"stand-alone name", GetLastSender().StandaloneSenderName.Equals(TEXT("  Main _Standalone")));
				});

			It("should keep a blank within the name, in the entry and in the message",
				[this]()
				{
					User->Create(TEXT("Cam 1"));
					TestTrue("name", GetLastSender().SpoutSenderName.Equals(TEXT("Cam 1")));
					TestTrue("stand-alone name", GetLastSender().StandaloneSenderName.Equals(TEXT("Cam 1_Standalone")));
					TestEqual("message", User->GetDoneMessage()->GetText().ToString(),
						FString(TEXT("Cinestream 'Cam 1' created!")));
				});

			It("should repeat its names exactly when the same name is used twice, while the render targets differ",
				[this]()
				{
					User->Create(TEXT("Main"));
					UTextureRenderTarget2D* FirstTarget = GetLastSender().RenderTarget;
					// Without its entry the name is free again, while its asset stays.
					User->GetManagers()[0]->SpoutSenders.Empty();
					User->ClickDone();
					User->Create(TEXT("Main"));
					TestTrue("name", GetLastSender().SpoutSenderName.Equals(TEXT("Main")));
					TestTrue("stand-alone name", GetLastSender().StandaloneSenderName.Equals(TEXT("Main_Standalone")));
					TestFalse("same target", GetLastSender().RenderTarget == FirstTarget);
					TestTrue("still named after the stream",
						GetLastSender().RenderTarget->GetName().StartsWith(TEXT("Main")));
				});

			It("should show a name with a format token as it was typed",
				[this]()
				{
					User->Create(TEXT("{0}"));
					TestTrue("name", GetLastSender().SpoutSenderName.Equals(TEXT("{0}")));
					TestEqual("message", User->GetDoneMessage()->GetText().ToString(),
						FString(TEXT("Cinestream '{0}' created!")));
				});
		});

	Describe("The render target",
		[this]()
		{
			BeforeEach([this]() { User->Create(TEXT("Main")); });

			It("should be an asset in the stream folder",
				[this]()
				{
					const FString Package = GetLastSender().RenderTarget->GetOutermost()->GetName();
					TestTrue("folder", Package.StartsWith(TEXT("/Game/CineStream/Main"), ESearchCase::CaseSensitive));
				});

			It("should be unsaved",
				[this]() { TestTrue("dirty", GetLastSender().RenderTarget->GetOutermost()->IsDirty()); });

			It("should keep the size of a new render target",
				[this]()
				{
					const UTextureRenderTarget2D* Default = GetDefault<UTextureRenderTarget2D>();
					TestEqual("width", GetLastSender().RenderTarget->SizeX, Default->SizeX);
					TestEqual("height", GetLastSender().RenderTarget->SizeY, Default->SizeY);
				});
		});

	Describe("The camera",
		[this]()
		{
			It("should stand where the user looks from, and look where the user looks",
				[this]()
				{
					FEditorViewportClient* Client = GEditor->GetAllViewportClients()[0];
					Client->SetViewLocation(FVector(120.5f, -40.0f, 300.0f));
					Client->SetViewRotation(FRotator(-15.0f, 120.25f, 3.0f));
					User->Create(TEXT("Main"));
					TestTrue("location", User->GetOnlyCamera()->GetActorLocation() == Client->GetViewLocation());
					TestTrue("rotation", User->GetOnlyCamera()->GetActorRotation() == Client->GetViewRotation());
				});

			It("should be the only selected actor",
				[this]()
				{
					AZAVSpoutSenderManager* Manager = User->PlaceManager(TEXT("A"), TEXT("A_Standalone"));
					GEditor->SelectActor(Manager, true, false);
					User->Create(TEXT("Main"));
					TestEqual("selected", GEditor->GetSelectedActors()->Num(), 1);
					TestTrue("camera", GEditor->GetSelectedActors()->IsSelected(User->GetOnlyCamera()));
				});

			It("should be made anew by each creation",
				[this]()
				{
					User->Create(TEXT("Main"));
					User->ClickDone();
					User->Create(TEXT("Second"));
					TestEqual("cameras", User->GetActors(AZAVCineCamCapture::StaticClass()).Num(), 2);
					TestEqual("managers", User->GetManagers().Num(), 1);
					TestEqual("entries", User->GetManagers()[0]->SpoutSenders.Num(), 2);
				});
		});
}

#endif
