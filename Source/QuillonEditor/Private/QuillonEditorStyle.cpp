// Copyright Corvane. MIT License.
#include "QuillonEditorStyle.h"

#include "Brushes/SlateImageBrush.h"
#include "Framework/Application/SlateApplication.h"
#include "Interfaces/IPluginManager.h"
#include "Rendering/SlateRenderer.h"
#include "Styling/SlateStyleRegistry.h"

TSharedPtr<FSlateStyleSet> FQuillonEditorStyle::StyleInstance;

const FVector2D FQuillonEditorStyle::Icon16x16(16.0f, 16.0f);
const FVector2D FQuillonEditorStyle::Icon20x20(20.0f, 20.0f);
const FVector2D FQuillonEditorStyle::Icon40x40(40.0f, 40.0f);
const FVector2D FQuillonEditorStyle::Icon64x64(64.0f, 64.0f);
const FVector2D FQuillonEditorStyle::Icon80x80(80.0f, 80.0f);
const FVector2D FQuillonEditorStyle::Icon128x128(128.0f, 128.0f);

void FQuillonEditorStyle::Initialize()
{
	if (!StyleInstance.IsValid())
	{
		StyleInstance = Create();
		FSlateStyleRegistry::RegisterSlateStyle(*StyleInstance);
	}
}

void FQuillonEditorStyle::Shutdown()
{
	FSlateStyleRegistry::UnRegisterSlateStyle(*StyleInstance);
	// The report carries this expression's text: keep it as it is.
	ensure(StyleInstance.IsUnique());
	StyleInstance.Reset();
}

void FQuillonEditorStyle::ReloadTextures()
{
	if (FSlateApplication::IsInitialized())
	{
		FSlateApplication::Get().GetRenderer()->ReloadTextureResources();
	}
}

const ISlateStyle& FQuillonEditorStyle::Get()
{
	return *StyleInstance;
}

FName FQuillonEditorStyle::GetStyleSetName()
{
	static const FName StyleSetName(TEXT("QuillonEditorStyle"));
	return StyleSetName;
}

TSharedRef<FSlateStyleSet> FQuillonEditorStyle::Create()
{
	struct FBrushRow
	{
		const TCHAR* Key;
		const ANSICHAR* Path;
		FVector2D Size;
	};
	// "ClassIcon." and "ClassThumbnail." with a class name are what the editor looks up for an actor class.
	const FBrushRow Brushes[] = {
		{TEXT("ZAVQuillon.PluginTaskbarIcon"), "Logo/Logo_40x", Icon40x40},
		{TEXT("ZAVQuillon.PluginNotificationIcon"), "Logo/Logo_80x", Icon80x80},
		{TEXT("ZAVQuillon.WizardIcon_16x"), "Wizard/Wizard_16x", Icon16x16},
		{TEXT("ZAVQuillon.WizardIcon_128x"), "Wizard/Wizard_128x", Icon128x128},
		{TEXT("ClassThumbnail.ZAVCineCamCapture"), "ClassIcons/CineCapture_64x", Icon64x64},
		{TEXT("ClassIcon.ZAVCineCamCapture"), "ClassIcons/CineCapture_16x", Icon16x16},
		{TEXT("ClassThumbnail.ZAVSpoutSenderManager"), "ClassIcons/Sender_64x", Icon64x64},
		{TEXT("ClassIcon.ZAVSpoutSenderManager"), "ClassIcons/Sender_16x", Icon16x16},
		{TEXT("ClassThumbnail.ZAVSpoutReceiverManager"), "ClassIcons/Receiver_64x", Icon64x64},
		{TEXT("ClassIcon.ZAVSpoutReceiverManager"), "ClassIcons/Receiver_16x", Icon16x16},
	};

	const TSharedRef<FSlateStyleSet> Style = MakeShareable(new FSlateStyleSet(GetStyleSetName()));
	Style->SetContentRoot(IPluginManager::Get().FindPlugin(TEXT("ZAVQuillon"))->GetBaseDir() / TEXT("Resources"));
	for (const FBrushRow& Row : Brushes)
	{
		Style->Set(Row.Key, new FSlateImageBrush(Style->RootToContentDir(Row.Path, TEXT(".png")), Row.Size));
	}
	return Style;
}
