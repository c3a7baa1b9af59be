// Copyright Corvane. MIT License.
#include "CoreMinimal.h"

#include "Misc/AutomationTest.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Text/STextBlock.h"

#include "WizardUser.h"
#include "ZAVSpoutSenderManager.h"

#if WITH_DEV_AUTOMATION_TESTS

BEGIN_DEFINE_SPEC(FCineStreamWizardValidationSpec, "Quillon.Wizard.Validation",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)
	TUniquePtr<FWizardUser> User;
	const FString NoWarning = FString();
	const FString Empty = TEXT("! Stream Name cannot be empty.");
	const FString Taken = TEXT("! Stream Name already defined, please use a differnt name.");
END_DEFINE_SPEC(FCineStreamWizardValidationSpec)

void FCineStreamWizardValidationSpec::Define()
{
	BeforeEach([this]() { User = MakeUnique<FWizardUser>(); });
	AfterEach([this]() { User.Reset(); });

	Describe("While a name is typed, the check",
		[this]()
		{
			It("should pass every name in a level without a sender manager",
				[this]()
				{
					User->Type(TEXT("Main"));
					TestEqual("warning", User->GetShownWarning(), NoWarning);
				});

			It("should refuse a single blank as empty",
				[this]()
				{
					User->Type(TEXT(" "));
					TestEqual("warning", User->GetShownWarning(), Empty);
				});

			It("should refuse a box that has been emptied",
				[this]()
				{
					User->Type(TEXT("Main"));
					User->Type(FString());
					TestEqual("box", User->GetNameBoxText(), FString());
					TestEqual("warning", User->GetShownWarning(), Empty);
				});

			It("should refuse the name of an entry",
				[this]()
				{
					User->PlaceManager(TEXT("Main"), TEXT("Main_Standalone"));
					User->Type(TEXT("Main"));
					TestEqual("warning", User->GetShownWarning(), Taken);
				});

			It("should refuse the stand-alone name of an entry",
				[this]()
				{
					User->PlaceManager(TEXT("Main"), TEXT("Main_Standalone"));
					User->Type(TEXT("Main_Standalone"));
					TestEqual("warning", User->GetShownWarning(), Taken);
				});

			It("should search the entries of every manager",
				[this]()
				{
					User->PlaceManager(TEXT("First"), TEXT("First_Standalone"));
					User->PlaceManager(TEXT("Second"), TEXT("Second_Standalone"));
					User->Type(TEXT("Second"));
					TestEqual("warning", User->GetShownWarning(), Taken);
				});

			It("should search every entry of a manager",
				[this]()
				{
					AZAVSpoutSenderManager* Manager = User->PlaceManager(TEXT("First"), TEXT("First_Standalone"));
					FZAVSpoutSenderInterface Sender;
					Sender.SpoutSenderName = TEXT("Last");
					Manager->SpoutSenders.Add(Sender);
					User->Type(TEXT("Last"));
					TestEqual("warning", User->GetShownWarning(), Taken);
				});

			It("should pass an entry's name in other letter case",
				[this]()
				{
					User->PlaceManager(TEXT("Cam"), TEXT("Cam_Standalone"));
					User->Type(TEXT("cam"));
					TestEqual("warning", User->GetShownWarning(), NoWarning);
				});

			It("should pass an entry's name with a trailing blank",
				[this]()
				{
					User->PlaceManager(TEXT("Cam"), TEXT("Cam_Standalone"));
					User->Type(TEXT("Cam "));
					TestEqual("warning", User->GetShownWarning(), NoWarning);
				});

			It("should pass a longer and a shorter name",
				[this]()
				{
					User->PlaceManager(TEXT("Cam"), TEXT("Cam_Standalone"));
					User->Type(TEXT("Camera"));
					TestEqual("longer", User->GetShownWarning(), NoWarning);
					User->Type(TEXT("Ca"));
					TestEqual("shorter", User->GetShownWarning(), NoWarning);
				});

			It("should follow every keystroke",
				[this]()
				{
					User->PlaceManager(TEXT("Cam"), TEXT("Cam_Standalone"));
					User->Type(TEXT("Cam"));
					TestEqual("at the taken name", User->GetShownWarning(), Taken);
					User->Type(TEXT("Cam2"));
					TestEqual("one character on", User->GetShownWarning(), NoWarning);
				});

			It("should leave the hidden warning's text as it was",
				[this]()
				{
					User->Type(TEXT(" "));
					User->Type(TEXT("Main"));
					TestTrue("hidden", User->GetWarning()->GetVisibility() == EVisibility::Hidden);
					TestEqual("text", User->GetWarning()->GetText().ToString(), Empty);
				});

			It("should name both warnings by one key",
				[this]()
				{
					User->Type(TEXT(" "));
					TestEqual("empty", DescribeText(User->GetWarning()->GetText()),
						FString(TEXT("CineStreamWizard,StreamName_Warning,")) + Empty);
					User->PlaceManager(TEXT("Main"), TEXT("Main_Standalone"));
					User->Type(TEXT("Main"));
					TestEqual("taken", DescribeText(User->GetWarning()->GetText()),
						FString(TEXT("CineStreamWizard,StreamName_Warning,")) + Taken);
				});

			It("should leave the create button enabled",
				[this]()
				{
					User->Type(TEXT(" "));
					TestTrue("enabled", User->GetCreateButton()->IsEnabled());
				});

			It("should change nothing in the level",
				[this]()
				{
					AZAVSpoutSenderManager* Manager = User->PlaceManager(TEXT("Main"), TEXT("Main_Standalone"));
					User->Type(TEXT("Main"));
					TestEqual("managers", User->GetManagers().Num(), 1);
					TestEqual("entries", Manager->SpoutSenders.Num(), 1);
					TestTrue("name", Manager->SpoutSenders[0].SpoutSenderName.Equals(TEXT("Main")));
				});
		});

	Describe("Pressing create",
		[this]()
		{
			It("should warn of an empty name while nothing was typed",
				[this]()
				{
					User->ClickCreate();
					TestEqual("warning", User->GetShownWarning(), Empty);
					TestTrue("creator page", User->IsCreatorPageShown());
					TestNull("camera", User->GetOnlyCamera());
				});

			It("should answer a taken name with the empty-name warning, because the commit emptied it",
				[this]()
				{
					AZAVSpoutSenderManager* Manager = User->PlaceManager(TEXT("Main"), TEXT("Main_Standalone"));
					User->Type(TEXT("Main"));
					TestEqual("while typing", User->GetShownWarning(), Taken);
					User->ClickCreate();
					TestEqual("after the click", User->GetShownWarning(), Empty);
					TestTrue("creator page", User->IsCreatorPageShown());
					TestEqual("entries", Manager->SpoutSenders.Num(), 1);
					TestEqual("box", User->GetNameBoxText(), FString(TEXT("Main")));
				});

			It("should create under a free name that Enter committed",
				[this]()
				{
					User->Type(TEXT("Main"));
					User->PressEnter();
					User->ClickCreate();
					TestEqual("message", User->GetDoneMessage()->GetText().ToString(),
						FString(TEXT("Cinestream 'Main' created!")));
				});

			It("should create under a free name that only the click committed",
				[this]()
				{
					User->Create(TEXT("Main"));
					TestEqual("message", User->GetDoneMessage()->GetText().ToString(),
						FString(TEXT("Cinestream 'Main' created!")));
				});

			It("should not test again whether a committed name has been taken meanwhile",
				[this]()
				{
					User->Type(TEXT("Main"));
					User->PressEnter();
					AZAVSpoutSenderManager* Manager = User->PlaceManager(TEXT("Main"), TEXT("Main_Standalone"));
					User->ClickCreate();
					TestEqual("entries", Manager->SpoutSenders.Num(), 2);
				});
		});
}

#endif
