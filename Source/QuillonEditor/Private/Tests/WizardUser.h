// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

#include "WidgetUser.h"
#include "Widgets/SWidget.h"

class AActor;
class AZAVCineCamCapture;
class AZAVSpoutSenderManager;
class SButton;
class SDockTab;
class SEditableTextBox;
class STextBlock;
class UClass;
class UWorld;
struct FSlateBrush;

/**
 * A user in front of the wizard, on a new and empty level: types, presses Enter, clicks, reads what shows. Widgets are
 * found by their type in the order of the tree, never through the wizard's members.
 */
class FWizardUser
{
public:
	/** Makes a new level and opens the wizard's tab on it. */
	FWizardUser();
	/** Closes the tab. */
	~FWizardUser();

	/** Selects what stands in the name box and types the text instead, one character after the other. */
	void Type(const FString& Text);
	/** Moves the focus into the name box and leaves its text. */
	void FocusNameBox();
	void PressEnter();
	void ClickCreate();
	/** Clicks the done page's button. */
	void ClickDone();
	/** Types a name, clicks the create button. */
	void Create(const FString& Name);
	/** Closes the tab and opens it again. */
	void ReopenTab();

	TSharedRef<STextBlock> GetTitle() const;
	TSharedRef<STextBlock> GetDescription() const;
	TSharedRef<STextBlock> GetNameLabel() const;
	TSharedRef<STextBlock> GetWarning() const;
	TSharedRef<STextBlock> GetCreateCaption() const;
	TSharedRef<STextBlock> GetDoneMessage() const;
	TSharedRef<STextBlock> GetDoneCaption() const;
	TSharedRef<SEditableTextBox> GetNameBox() const;
	TSharedRef<SButton> GetCreateButton() const;
	TSharedRef<SButton> GetDoneButton() const;
	/** The wizard itself. */
	TSharedRef<SWidget> GetWizard() const;

	/** The wizard's descendants of a type ("STextBlock"), in tree order. */
	TArray<TSharedRef<SWidget>> FindAll(const TCHAR* Type) const;
	/** Whether the widget and all its parents up to the wizard are visible. */
	bool IsShown(const TSharedRef<SWidget>& Widget) const;

	bool IsCreatorPageShown() const;
	/** The warning line as it shows, empty while it is hidden. */
	FString GetShownWarning() const;
	FString GetNameBoxText() const;

	UWorld* GetWorld() const;
	/** All actors of a class in the level, in the engine's order. */
	TArray<AActor*> GetActors(UClass* Class) const;
	/** The level's only camera; null when there is none or more than one. */
	AZAVCineCamCapture* GetOnlyCamera() const;
	TArray<AZAVSpoutSenderManager*> GetManagers() const;
	/** Places a manager with one entry of these names. */
	AZAVSpoutSenderManager* PlaceManager(const FString& SenderName, const FString& StandaloneName);

private:
	void OpenTab();
	void CloseTab();
	TSharedRef<STextBlock> GetText(int32 Index) const;

	UWorld* World;
	TSharedPtr<SDockTab> Tab;
};
