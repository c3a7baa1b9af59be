// Copyright Corvane. MIT License.
#pragma once

#include "CoreMinimal.h"

#include "Input/Reply.h"
#include "Layout/Visibility.h"
#include "Types/SlateEnums.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class AZAVCineCamCapture;
class AZAVSpoutSenderManager;
class STextBlock;

/**
 * The instant setup wizard. From one stream name it makes a render target asset, a camera that captures into it from
 * where the user looks, and an entry of the level's Spout sender manager that publishes it.
 *
 * Two pages share one place: the creator page with the name box and the create button, and the done page with the
 * outcome and a button back. Failures are told on the page. What a running editor always has is taken for granted, and
 * fatal where it lacks: a viewport client to check names and seek managers with, the asset tools, the asset registry,
 * and an engine that spawns the plugin's actors. Game thread only.
 */
class QUILLONEDITOR_API SCineStreamWizard : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SCineStreamWizard) {}
	SLATE_END_ARGS()

	SCineStreamWizard();
	virtual ~SCineStreamWizard();

	/** Builds the widget tree. Each call is one opening of the wizard for telemetry. */
	void Construct(const FArguments& InArgs);

private:
	TSharedRef<SWidget> MakeHeader();
	TSharedRef<SWidget> MakeCreatorPage();
	TSharedRef<SWidget> MakeDonePage();

	EVisibility GetCreatorPageVisibility() const;
	EVisibility GetDonePageVisibility() const;
	/** Hidden, not collapsed, without a warning: the line keeps its place, so the page does not jump when it shows. */
	EVisibility GetStreamNameWarningVisibility() const;

	/** Checks the name as it is typed. It only advises: the button stays enabled. */
	void OnStreamNameTextChanged(const FText& NewText);
	/** Keeps the name, or an empty one while the warning shows. The box itself goes on showing what was typed. */
	void OnStreamNameCommitted(const FText& NewText, ETextCommit::Type CommitType);
	FReply OnCreateButtonClicked();
	/** Back to the creator page, whatever the button's caption says. Leaves the box and the warning as they are. */
	FReply OnRestartButtonClicked();

	/** The whole creation. False when no camera could be made; what was made until then stays. */
	bool CreateSetup();
	/** The render target and the camera that captures into it; null when no client shows the active viewport or no
	 * asset is made. */
	AZAVCineCamCapture* CreateCameraActor();
	/** The first sender manager of the editor's world, spawned when there is none. */
	AZAVSpoutSenderManager* FindOrCreateSenderManager();

	/** Puts a warning under the name box. */
	void ShowStreamNameWarning(const FText& Warning);

	bool bShowCreatorPage;
	TSharedPtr<STextBlock> StreamNameWarningTextBlock;
	TSharedPtr<STextBlock> DoneTextBlock;
	TSharedPtr<STextBlock> DoneButtonTextBlock;
	bool bShowStreamNameWarning;
	/** The committed name: what the creation uses. */
	FText StreamName;
};
