// Copyright Corvane. MIT License.
#include "CoreMinimal.h"

#include "Interfaces/IPluginManager.h"
#include "Misc/AutomationTest.h"
#include "Misc/Paths.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateStyleRegistry.h"

#include "QuillonEditorStyle.h"

#if WITH_DEV_AUTOMATION_TESTS

BEGIN_DEFINE_SPEC(
	FQuillonEditorStyleSpec, "Quillon.Style", EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)
	const ISlateStyle* GetRegistered() const
	{
		return FSlateStyleRegistry::FindSlateStyle("QuillonEditorStyle");
	}

	void TestBrush(const TCHAR* Key, const TCHAR* Path, float Size)
	{
		const FSlateBrush* Brush = GetRegistered()->GetOptionalBrush(Key, nullptr, nullptr);
		if (!TestNotNull(Key, Brush))
		{
			return;
		}
		const FString File =
			IPluginManager::Get().FindPlugin(TEXT("ZAVQuillon"))->GetBaseDir() / TEXT("Resources") / Path;
		TestTrue("file", Brush->GetResourceName().ToString().Equals(File + TEXT(".png")));
		TestTrue("file exists", FPaths::FileExists(File + TEXT(".png")));
		TestTrue("size", Brush->ImageSize == FVector2D(Size, Size));
		TestTrue("white tint", Brush->TintColor.GetSpecifiedColor() == FLinearColor::White);
		TestTrue("drawn as an image", Brush->DrawAs == ESlateBrushDrawType::Image);
		TestTrue("no tiling", Brush->Tiling == ESlateBrushTileType::NoTile);
		TestTrue("full colour", Brush->ImageType == ESlateBrushImageType::FullColor);
	}
END_DEFINE_SPEC(FQuillonEditorStyleSpec)

void FQuillonEditorStyleSpec::Define()
{
	Describe("The style set",
		[this]()
		{
			It("should be registered under its name",
				[this]()
				{
					TestNotNull("registered", GetRegistered());
					TestTrue("same set", GetRegistered() == &FQuillonEditorStyle::Get());
					TestEqual("name", FQuillonEditorStyle::GetStyleSetName(), FName("QuillonEditorStyle"));
				});

			It("should be registered once, however often it is initialised",
				[this]()
				{
					const ISlateStyle* Before = GetRegistered();
					// A second registration of the name would be fatal.
					FQuillonEditorStyle::Initialize();
					TestTrue("same set", GetRegistered() == Before);
				});

			It("should find a brush by its key in other letter case",
				[this]()
				{
					TestTrue("same brush",
						GetRegistered()->GetBrush("ZAVQuillOn.PluginTaskbarIcon") ==
							GetRegistered()->GetBrush("ZAVQuillon.PluginTaskbarIcon"));
				});
		});

	Describe("Each brush of the table",
		[this]()
		{
			It("should be set for the toolbar button's picture",
				[this]() { TestBrush(TEXT("ZAVQuillon.PluginTaskbarIcon"), TEXT("Logo/Logo_40x"), 40.0f); });
			It("should be set for the notification's picture",
				[this]() { TestBrush(TEXT("ZAVQuillon.PluginNotificationIcon"), TEXT("Logo/Logo_80x"), 80.0f); });
			It("should be set for the wizard's tab",
				[this]() { TestBrush(TEXT("ZAVQuillon.WizardIcon_16x"), TEXT("Wizard/Wizard_16x"), 16.0f); });
			It("should be set for the wizard's page",
				[this]() { TestBrush(TEXT("ZAVQuillon.WizardIcon_128x"), TEXT("Wizard/Wizard_128x"), 128.0f); });
			It("should be set for the camera's thumbnail",
				[this]()
				{ TestBrush(TEXT("ClassThumbnail.ZAVCineCamCapture"), TEXT("ClassIcons/CineCapture_64x"), 64.0f); });
			It("should be set for the camera's icon",
				[this]()
				{ TestBrush(TEXT("ClassIcon.ZAVCineCamCapture"), TEXT("ClassIcons/CineCapture_16x"), 16.0f); });
			It("should be set for the sender manager's thumbnail",
				[this]()
				{ TestBrush(TEXT("ClassThumbnail.ZAVSpoutSenderManager"), TEXT("ClassIcons/Sender_64x"), 64.0f); });
			It("should be set for the sender manager's icon",
				[this]() { TestBrush(TEXT("ClassIcon.ZAVSpoutSenderManager"), TEXT("ClassIcons/Sender_16x"), 16.0f); });
			It("should be set for the receiver manager's thumbnail",
				[this]()
				{ TestBrush(TEXT("ClassThumbnail.ZAVSpoutReceiverManager"), TEXT("ClassIcons/Receiver_64x"), 64.0f); });
			It("should be set for the receiver manager's icon",
				[this]()
				{ TestBrush(TEXT("ClassIcon.ZAVSpoutReceiverManager"), TEXT("ClassIcons/Receiver_16x"), 16.0f); });
		});
}

#endif
