// Copyright Corvane. MIT License.
#include "CoreMinimal.h"

#include "Misc/AutomationTest.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Text/STextBlock.h"

#include "WizardUser.h"

#if WITH_DEV_AUTOMATION_TESTS

BEGIN_DEFINE_SPEC(FCineStreamWizardPagesSpec, "Quillon.Wizard.Pages",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)
	TUniquePtr<FWizardUser> User;
END_DEFINE_SPEC(FCineStreamWizardPagesSpec)

void FCineStreamWizardPagesSpec::Define()
{
	BeforeEach([this]() { User = MakeUnique<FWizardUser>(); });
	AfterEach([this]() { User.Reset(); });

	Describe("A new wizard",
		[this]()
		{
			It("should show the creator page and collapse the done page",
				[this]()
				{
					TestTrue("create button shown", User->IsShown(User->GetCreateButton()));
					TestTrue("name box shown", User->IsShown(User->GetNameBox()));
					TestFalse("done button shown", User->IsShown(User->GetDoneButton()));
					TestFalse("done message shown", User->IsShown(User->GetDoneMessage()));
				});

			It("should hide the warning line and keep its place",
				[this]()
				{
					TestTrue("visibility", User->GetWarning()->GetVisibility() == EVisibility::Hidden);
					TestEqual("initial text", DescribeText(User->GetWarning()->GetText()),
						FString(TEXT("CineStreamWizard,StreamName_Warning,Placeholder Text")));
				});

			It("should have an empty name box", [this]() { TestEqual("box", User->GetNameBoxText(), FString()); });
		});

	Describe("The done page after a success",
		[this]()
		{
			BeforeEach([this]() { User->Create(TEXT("Main")); });

			It("should replace the creator page",
				[this]()
				{
					TestFalse("create button shown", User->IsShown(User->GetCreateButton()));
					TestFalse("name box shown", User->IsShown(User->GetNameBox()));
					TestTrue("done button shown", User->IsShown(User->GetDoneButton()));
				});

			It("should leave the header as it is",
				[this]()
				{
					TestTrue("title shown", User->IsShown(User->GetTitle()));
					TestTrue("description shown", User->IsShown(User->GetDescription()));
				});

			It("should show the name between single quotes",
				[this]() {
					TestEqual("message", User->GetDoneMessage()->GetText().ToString(),
						FString(TEXT("Cinestream 'Main' created!")));
				});

			It("should offer to create another output",
				[this]()
				{
					TestEqual("caption", DescribeText(User->GetDoneCaption()->GetText()),
						FString(TEXT("CineStreamWizard,DoneButtonText,Create Another Cinestream Output")));
				});

			It("should give way to the creator page when its button is clicked",
				[this]()
				{
					User->ClickDone();
					TestTrue("creator page", User->IsCreatorPageShown());
				});

			It("should be shown again by a living wizard in a new tab",
				[this]()
				{
					const TSharedRef<SWidget> Held = User->GetWizard();
					User->ReopenTab();
					TestFalse("creator page", User->IsCreatorPageShown());
					TestEqual("message", User->GetDoneMessage()->GetText().ToString(),
						FString(TEXT("Cinestream 'Main' created!")));
				});

			It("should be gone in a new wizard",
				[this]()
				{
					User->ReopenTab();
					TestTrue("creator page", User->IsCreatorPageShown());
				});
		});

	Describe("The way back to the creator page",
		[this]()
		{
			BeforeEach(
				[this]()
				{
					User->Create(TEXT("Main"));
					User->ClickDone();
				});

			It("should leave the old name in the box",
				[this]() { TestEqual("box", User->GetNameBoxText(), FString(TEXT("Main"))); });

			It("should have emptied the stream name",
				[this]()
				{
					// The focus stays on the button's page, so the box does not commit again before the click.
					User->ClickCreate();
					TestTrue("creator page", User->IsCreatorPageShown());
					TestEqual("warning", User->GetShownWarning(), FString(TEXT("! Stream Name cannot be empty.")));
				});

			It("should leave the warning line as it was",
				[this]()
				{
					User->ClickCreate();
					User->Create(TEXT("Second"));
					User->ClickDone();
					TestTrue("still hidden", User->GetWarning()->GetVisibility() == EVisibility::Hidden);
					TestEqual("text of the last warning", User->GetWarning()->GetText().ToString(),
						FString(TEXT("! Stream Name cannot be empty.")));
				});

			It("should create under the old name once the box commits it again",
				[this]()
				{
					TestEqual("box", User->GetNameBoxText(), FString(TEXT("Main")));
					User->FocusNameBox();
					User->PressEnter();
					User->ClickCreate();
					TestFalse("creator page", User->IsCreatorPageShown());
				});

			It("should stay without a name while the warning shows, whatever the box commits",
				[this]()
				{
					User->ClickCreate();
					User->FocusNameBox();
					User->PressEnter();
					User->ClickCreate();
					TestTrue("creator page", User->IsCreatorPageShown());
					TestEqual("warning", User->GetShownWarning(), FString(TEXT("! Stream Name cannot be empty.")));
				});

			It("should create under a name that is typed anew",
				[this]()
				{
					User->Create(TEXT("Second"));
					TestEqual("message", User->GetDoneMessage()->GetText().ToString(),
						FString(TEXT("Cinestream 'Second' created!")));
				});
		});
}

#endif
