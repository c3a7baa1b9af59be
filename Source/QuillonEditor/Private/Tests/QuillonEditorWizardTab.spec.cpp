// Copyright Corvane. MIT License.
#include "CoreMinimal.h"

#include "Framework/Docking/TabManager.h"
#include "Misc/AutomationTest.h"
#include "Widgets/Docking/SDockTab.h"

#include "WizardUser.h"

#if WITH_DEV_AUTOMATION_TESTS

BEGIN_DEFINE_SPEC(FQuillonEditorWizardTabSpec, "Quillon.WizardTab",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)
	TUniquePtr<FWizardUser> User;
END_DEFINE_SPEC(FQuillonEditorWizardTabSpec)

void FQuillonEditorWizardTabSpec::Define()
{
	BeforeEach([this]() { User = MakeUnique<FWizardUser>(); });
	AfterEach([this]() { User.Reset(); });

	Describe("The wizard's tab",
		[this]()
		{
			It("should be a nomad tab",
				[this]()
				{
					const TSharedPtr<SDockTab> Tab =
						FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId("CineStreamWizard"));
					TestTrue("open", Tab.IsValid());
					TestTrue("role", Tab->GetTabRole() == ETabRole::NomadTab);
				});

			It("should hold the wizard",
				[this]() { TestEqual("content", User->GetWizard()->GetType(), FName("SCineStreamWizard")); });

			It("should come forward instead of opening twice",
				[this]()
				{
					const TSharedPtr<SDockTab> First =
						FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId("CineStreamWizard"));
					const TSharedPtr<SDockTab> Second =
						FGlobalTabmanager::Get()->TryInvokeTab(FTabId("CineStreamWizard"));
					TestTrue("same tab", First == Second);
				});

			It("should keep page and name of a wizard that is held elsewhere",
				[this]()
				{
					const TSharedRef<SWidget> Held = User->GetWizard();
					User->Type(TEXT("Main"));
					User->PressEnter();
					User->ReopenTab();
					TestTrue("same wizard", Held == User->GetWizard());
					// The committed name is still there: no commit comes between the reopening and the click.
					User->ClickCreate();
					TestFalse("creator page", User->IsCreatorPageShown());
				});

			It("should get a fresh wizard once the last one is gone",
				[this]()
				{
					User->Type(TEXT("Main"));
					User->PressEnter();
					TWeakPtr<SWidget> Old = User->GetWizard();
					User->ReopenTab();
					TestFalse("old wizard alive", Old.IsValid());
					TestEqual("box", User->GetNameBoxText(), FString());
					User->ClickCreate();
					TestEqual("warning", User->GetShownWarning(), FString(TEXT("! Stream Name cannot be empty.")));
				});
		});
}

#endif
