// Copyright Corvane. MIT License.
#include "CoreMinimal.h"

#include "Engine/TextureRenderTarget2D.h"
#include "Engine/World.h"
#include "GameFramework/SaveGame.h"
#include "Misc/AutomationTest.h"
#include "Templates/Casts.h"
#include "Tests/AutomationEditorCommon.h"
#include "UObject/UnrealType.h"

#include "AuthDelegates.h"
#include "ZAVCaptureComponent.h"
#include "ZAVCineCamCapture.h"
#include "ZAVPROBlueprintFunctionLibrary.h"
#include "ZAVSaveGame.h"
#include "ZAVSpoutReceiverManager.h"
#include "ZAVSpoutSenderManager.h"

#if WITH_DEV_AUTOMATION_TESTS

// What the editor module takes for granted of the plugin's runtime module: a product's own module must pass these as
// well.

BEGIN_DEFINE_SPEC(FRuntimeContractSpec, "Quillon.RuntimeContract",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)
	FString Version;
	FString Address;

	void OnUpgradeAvailable(FString InVersion, FString InAddress)
	{
		Version = InVersion;
		Address = InAddress;
	}

	template <typename PropertyType>
	void TestProperty(const UStruct* Owner, const TCHAR* Name)
	{
		TestNotNull(Name, CastField<PropertyType>(Owner->FindPropertyByName(Name)));
	}
END_DEFINE_SPEC(FRuntimeContractSpec)

void FRuntimeContractSpec::Define()
{
	Describe("A camera",
		[this]()
		{
			It("should have its capture component as soon as it is spawned",
				[this]()
				{
					UWorld* World = FAutomationEditorCommonUtils::CreateNewMap();
					AZAVCineCamCapture* Camera = Cast<AZAVCineCamCapture>(World->SpawnActor(
						AZAVCineCamCapture::StaticClass(), nullptr, nullptr, FActorSpawnParameters()));
					TestNotNull("camera", Camera);
					TestNotNull("capture component", Camera->CaptureComponent);
					TestNull("target", Camera->CaptureComponent->TextureTarget);
				});

			It("should have a capture component of its own",
				[this]()
				{
					UWorld* World = FAutomationEditorCommonUtils::CreateNewMap();
					AZAVCineCamCapture* First = World->SpawnActor<AZAVCineCamCapture>();
					AZAVCineCamCapture* Second = World->SpawnActor<AZAVCineCamCapture>();
					TestFalse("shared", First->CaptureComponent == Second->CaptureComponent);
				});

			It("should carry show-flag overrides in its capture component",
				[this]()
				{ TestProperty<FArrayProperty>(UZAVCaptureComponent::StaticClass(), TEXT("ShowFlagSettings")); });
		});

	Describe("A sender entry",
		[this]()
		{
			It("should keep every field when it is appended by copy",
				[this]()
				{
					UTextureRenderTarget2D* Target = NewObject<UTextureRenderTarget2D>();
					FZAVSpoutSenderInterface Sender;
					Sender.bActive = true;
					Sender.SpoutSenderName = TEXT("Main");
					Sender.StandaloneSenderName = TEXT("Main_Standalone");
					Sender.RenderTarget = Target;
					TArray<FZAVSpoutSenderInterface> Senders;
					Senders.Add(Sender);
					TestTrue("bActive", Senders[0].bActive);
					TestTrue("name", Senders[0].SpoutSenderName.Equals(TEXT("Main")));
					TestTrue("stand-alone name", Senders[0].StandaloneSenderName.Equals(TEXT("Main_Standalone")));
					TestTrue("target", Senders[0].RenderTarget == Target);
				});
		});

	Describe("A receiver entry",
		[this]()
		{
			It("should reflect the four names that the details panel looks for",
				[this]()
				{
					const UScriptStruct* Type = FZAVSpoutReceiverInterface::StaticStruct();
					TestEqual("type name", Type->GetName(), FString(TEXT("ZAVSpoutReceiverInterface")));
					TestProperty<FStrProperty>(Type, TEXT("Name"));
					TestProperty<FBoolProperty>(Type, TEXT("UseFirstAvailableSender"));
					TestProperty<FBoolProperty>(Type, TEXT("Active"));
					TestProperty<FObjectProperty>(Type, TEXT("RenderTarget"));
				});

			It("should stand in a new receiver manager, taking the first available sender",
				[this]()
				{
					const AZAVSpoutReceiverManager* Manager = GetDefault<AZAVSpoutReceiverManager>();
					TestEqual("receivers", Manager->SpoutReceivers.Num(), 1);
					TestTrue("no name", Manager->SpoutReceivers[0].Name.IsEmpty());
					TestTrue("first available", Manager->SpoutReceivers[0].UseFirstAvailableSender);
					TestTrue("active", Manager->SpoutReceivers[0].Active);
					TestNull("target", Manager->SpoutReceivers[0].RenderTarget);
				});
		});

	Describe("The saved state",
		[this]()
		{
			It("should name its slot and its user by class default",
				[this]()
				{
					const UZAVSaveGame* State = GetDefault<UZAVSaveGame>();
					TestTrue("slot", State->SaveSlotName.Equals(TEXT("ZAVQuillon")));
					TestEqual("user", State->UserIndex, 0);
					TestFalse("skipped", State->bSkipVersion);
					TestTrue("no release", State->OfferedVersion.IsEmpty());
				});
		});

	Describe("Viewport rendering",
		[this]()
		{
			It("should be switched for the editor alone",
				[this]()
				{
					const bool bEditor = UZAVPROBlueprintFunctionLibrary::GetIsEditorViewportRendering();
					const bool bRuntime = UZAVPROBlueprintFunctionLibrary::GetIsRuntimeViewportRendering();
					UZAVPROBlueprintFunctionLibrary::ToggleEditorViewportRendering();
					TestEqual("editor", UZAVPROBlueprintFunctionLibrary::GetIsEditorViewportRendering(), !bEditor);
					TestEqual("runtime", UZAVPROBlueprintFunctionLibrary::GetIsRuntimeViewportRendering(), bRuntime);
					UZAVPROBlueprintFunctionLibrary::ToggleEditorViewportRendering();
					TestEqual("editor again", UZAVPROBlueprintFunctionLibrary::GetIsEditorViewportRendering(), bEditor);
				});

			It("should be switched for the game alone",
				[this]()
				{
					const bool bEditor = UZAVPROBlueprintFunctionLibrary::GetIsEditorViewportRendering();
					const bool bRuntime = UZAVPROBlueprintFunctionLibrary::GetIsRuntimeViewportRendering();
					UZAVPROBlueprintFunctionLibrary::ToggleRuntimeViewportRendering();
					TestEqual("runtime", UZAVPROBlueprintFunctionLibrary::GetIsRuntimeViewportRendering(), !bRuntime);
					TestEqual("editor", UZAVPROBlueprintFunctionLibrary::GetIsEditorViewportRendering(), bEditor);
					UZAVPROBlueprintFunctionLibrary::ToggleRuntimeViewportRendering();
					TestEqual(
						"runtime again", UZAVPROBlueprintFunctionLibrary::GetIsRuntimeViewportRendering(), bRuntime);
				});
		});

	Describe("An announced release",
		[this]()
		{
			It("should reach a subscriber with version and address until it unsubscribes",
				[this]()
				{
					const FDelegateHandle Handle =
						AuthDelegates::OnUpgradeAvailable.AddRaw(this, &FRuntimeContractSpec::OnUpgradeAvailable);
					AuthDelegates::OnUpgradeAvailable.Broadcast(TEXT("2.0"), TEXT("https://corvane.example/2.0"));
					TestTrue("version", Version.Equals(TEXT("2.0")));
					TestTrue("address", Address.Equals(TEXT("https://corvane.example/2.0")));
					AuthDelegates::OnUpgradeAvailable.Remove(Handle);
					AuthDelegates::OnUpgradeAvailable.Broadcast(TEXT("3.0"), TEXT("https://corvane.example/3.0"));
					TestTrue("unchanged", Version.Equals(TEXT("2.0")));
				});
		});
}

#endif
