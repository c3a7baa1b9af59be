// Copyright Corvane. MIT License.
#include "CoreMinimal.h"

#include "Editor.h"
#include "Engine/World.h"
#include "Misc/AutomationTest.h"
#include "PropertyHandle.h"
#include "Tests/AutomationEditorCommon.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include "DetailsUser.h"
#include "ZAVSpoutNames.h"
#include "ZAVSpoutReceiverManager.h"

#if WITH_DEV_AUTOMATION_TESTS

namespace
{
	const TCHAR* const FirstEntry = TEXT("Use first available sender");
}

BEGIN_DEFINE_SPEC(FActiveSenderNamesCustomisationSpec, "Quillon.ActiveSenderNames",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)
	/** Opens the details of the manager, whose first receiver stores this. */
	void Open(bool bUseFirstAvailable, const TCHAR* Name);
	void OpenAgain();
	/** The same with these active senders. */
	void OpenWith(const TArray<FString>& Senders, bool bUseFirstAvailable, const TCHAR* Name);
	/** The closed drop-down's text. */
	FString GetLabel(int32 Receiver = 0) const;
	void Choose(const TCHAR* Option);
	void TestStored(bool bUseFirstAvailable, const TCHAR* Name);
	const FZAVSpoutReceiverInterface& GetReceiver() const
	{
		return Manager->SpoutReceivers[0];
	}

	AZAVSpoutReceiverManager* Manager;
	TUniquePtr<FDetailsUser> User;
	TArray<FString> FormerSenders;
	/** The manager's properties that it was told of, each with "; ". */
	FString Changes;
	FDelegateHandle ChangeHandle;
END_DEFINE_SPEC(FActiveSenderNamesCustomisationSpec)

void FActiveSenderNamesCustomisationSpec::Open(bool bUseFirstAvailable, const TCHAR* Name)
{
	Manager->SpoutReceivers[0].UseFirstAvailableSender = bUseFirstAvailable;
	Manager->SpoutReceivers[0].Name = Name;
	OpenAgain();
}

void FActiveSenderNamesCustomisationSpec::OpenAgain()
{
	User.Reset();
	Changes = FString();
	User = MakeUnique<FDetailsUser>(Manager);
}

void FActiveSenderNamesCustomisationSpec::OpenWith(
	const TArray<FString>& Senders, bool bUseFirstAvailable, const TCHAR* Name)
{
	ZAVSpoutNames::SetActiveSenderNames(Senders);
	Open(bUseFirstAvailable, Name);
}

FString FActiveSenderNamesCustomisationSpec::GetLabel(int32 Receiver) const
{
	return User->GetValue(User->FindRow(TEXT("Name"), User->FindReceiver(Receiver))).ToString();
}

void FActiveSenderNamesCustomisationSpec::Choose(const TCHAR* Option)
{
	Changes = FString();
	User->Choose(User->FindRow(TEXT("Name"), User->FindReceiver()), Option);
}

void FActiveSenderNamesCustomisationSpec::TestStored(bool bUseFirstAvailable, const TCHAR* Name)
{
	TestEqual("flag", GetReceiver().UseFirstAvailableSender, bUseFirstAvailable);
	TestTrue("name", GetReceiver().Name.Equals(Name));
}

void FActiveSenderNamesCustomisationSpec::Define()
{
	BeforeEach(
		[this]()
		{
			FormerSenders = ZAVSpoutNames::GetActiveSenderNames();
			ZAVSpoutNames::SetActiveSenderNames({});
			Manager = FAutomationEditorCommonUtils::CreateNewMap()->SpawnActor<AZAVSpoutReceiverManager>();
			ChangeHandle = FCoreUObjectDelegates::OnObjectPropertyChanged.AddLambda(
				[this](UObject* Object, FPropertyChangedEvent& Event)
				{
					if (Object == Manager && Event.Property && Event.ChangeType == EPropertyChangeType::ValueSet)
					{
						Changes += Event.Property->GetName() + TEXT("; ");
					}
				});
		});
	AfterEach(
		[this]()
		{
			FCoreUObjectDelegates::OnObjectPropertyChanged.Remove(ChangeHandle);
			User.Reset();
			ZAVSpoutNames::SetActiveSenderNames(FormerSenders);
		});

	Describe("A receiver",
		[this]()
		{
			It("should show its own name and how many members it has",
				[this]()
				{
					Open(true, TEXT(""));
					const int32 Row = User->FindReceiver();
					if (TestTrue("row", Row != INDEX_NONE))
					{
						const FText Name = User->GetNode(Row)->CreatePropertyHandle()->GetPropertyDisplayName();
						TestEqual("name", User->GetName(Row).ToString(), Name.ToString());
						TestEqual("value", User->GetValue(Row).ToString(), FString(TEXT("4 members")));
					}
				});

			It("should show its flag, its name and its target below, in this order, and no row for the first sender",
				[this]()
				{
					Open(true, TEXT(""));
					TestEqual("rows", User->GetNamesBelow(User->FindReceiver()),
						FString(TEXT("Active; Name; Render Target; ")));
				});

			It("should show Active and Render Target as any property is shown",
				[this]()
				{
					Open(true, TEXT(""));
					for (const TCHAR* Name : {TEXT("Active"), TEXT("Render Target")})
					{
						const TSharedPtr<IDetailTreeNode> Node =
							User->GetNode(User->FindRow(Name, User->FindReceiver()));
						TestTrue(Name, Node.IsValid() && Node->CreatePropertyHandle().IsValid());
					}
				});

			It("should offer one drop-down, found by Name, and no box for its name",
				[this]()
				{
					Open(false, TEXT("A"));
					const int32 Row = User->FindRow(TEXT("Name"), User->FindReceiver());
					TestEqual("filter", User->GetFilter(Row), FString(TEXT("Name; ")));
					TestEqual("drop-downs", User->FindInValue(Row, TEXT("SComboBox<TSharedPtr<FString>>")).Num(), 1);
					TestEqual("boxes", User->FindInValue(Row, TEXT("SEditableTextBox")).Num(), 0);
					TestEqual("texts", User->FindInValue(Row, TEXT("STextBlock")).Num(), 1);
				});
		});

	Describe("Opening the details",
		[this]()
		{
			It("should store the first entry's text as the name while the first sender is taken",
				[this]()
				{
					OpenWith({TEXT("A")}, true, TEXT("A"));
					TestStored(true, FirstEntry);
					TestEqual("label", GetLabel(), FString(FirstEntry));
				});

			It("should write flag and name while the first sender is taken, whether they change or not",
				[this]()
				{
					Open(true, FirstEntry);
					TestEqual("changes", Changes, FString(TEXT("UseFirstAvailableSender; Name; ")));
					TestStored(true, FirstEntry);
				});

			It("should write only the flag of a receiver with a name",
				[this]()
				{
					OpenWith({TEXT("A")}, false, TEXT("A"));
					TestEqual("changes", Changes, FString(TEXT("UseFirstAvailableSender; ")));
					TestStored(false, TEXT("A"));
				});

			It("should write only the flag of a receiver whose sender is lost",
				[this]()
				{
					Open(false, TEXT("abc"));
					TestEqual("changes", Changes, FString(TEXT("UseFirstAvailableSender; ")));
					TestStored(false, TEXT("abc"));
				});

			It("should take the first entry's text for the entry, though the flag is off",
				[this]()
				{
					Open(false, FirstEntry);
					TestStored(true, FirstEntry);
				});

			It("should not take another spelling of that text for the entry",
				[this]()
				{
					Open(false, TEXT("use first available sender"));
					TestStored(false, TEXT("use first available sender"));
					TestEqual("label", GetLabel(), FString(TEXT("use first available sender [lost]")));
				});

			It("should take the first sender for receivers that differ in the flag",
				[this]()
				{
					AZAVSpoutReceiverManager* Other = Manager->GetWorld()->SpawnActor<AZAVSpoutReceiverManager>();
					Manager->SpoutReceivers[0].UseFirstAvailableSender = false;
					Manager->SpoutReceivers[0].Name = TEXT("A");
					User = MakeUnique<FDetailsUser>(TArray<UObject*>{Manager, Other});
					TestStored(true, FirstEntry);
					TestTrue("other's flag", Other->SpoutReceivers[0].UseFirstAvailableSender);
					TestTrue("other's name", Other->SpoutReceivers[0].Name.Equals(FirstEntry));
				});

			It("should leave the names of receivers that differ in nothing else",
				[this]()
				{
					AZAVSpoutReceiverManager* Other = Manager->GetWorld()->SpawnActor<AZAVSpoutReceiverManager>();
					for (AZAVSpoutReceiverManager* Each : {Manager, Other})
					{
						Each->SpoutReceivers[0].UseFirstAvailableSender = false;
						Each->SpoutReceivers[0].Name = Each == Other ? TEXT("B") : TEXT("A");
					}
					User = MakeUnique<FDetailsUser>(TArray<UObject*>{Manager, Other});
					TestStored(false, TEXT("A"));
					TestTrue("other's name", Other->SpoutReceivers[0].Name.Equals(TEXT("B")));
					TestEqual("label", GetLabel(), FString(TEXT(" [lost]")));
				});
		});

	Describe("The closed drop-down",
		[this]()
		{
			It("should show the name of an active sender as it stands",
				[this]()
				{
					OpenWith({TEXT("A"), TEXT("B")}, false, TEXT("B"));
					TestEqual("label", GetLabel(), FString(TEXT("B")));
					TestEqual("text", DescribeText(User->GetValue(User->FindRow(TEXT("Name"), User->FindReceiver()))),
						FString(TEXT("-,-,B")));
				});

			It("should mark a name that no active sender has, without translating it",
				[this]()
				{
					OpenWith({TEXT("A"), TEXT("B")}, false, TEXT("abc"));
					TestEqual("label", DescribeText(User->GetValue(User->FindRow(TEXT("Name"), User->FindReceiver()))),
						FString(TEXT("-,-,abc [lost]")));
				});

			It("should follow a sender that stops and starts",
				[this]()
				{
					OpenWith({TEXT("A"), TEXT("abc")}, false, TEXT("abc"));
					TestEqual("active", GetLabel(), FString(TEXT("abc")));
					ZAVSpoutNames::SetActiveSenderNames({TEXT("A")});
					TestEqual("stopped", GetLabel(), FString(TEXT("abc [lost]")));
					ZAVSpoutNames::SetActiveSenderNames({TEXT("abc")});
					TestEqual("started", GetLabel(), FString(TEXT("abc")));
				});

			It("should tell names that differ only in letter case",
				[this]()
				{
					OpenWith({TEXT("Cam")}, false, TEXT("cam"));
					TestEqual("lost", GetLabel(), FString(TEXT("cam [lost]")));
					ZAVSpoutNames::SetActiveSenderNames({TEXT("Cam"), TEXT("cam")});
					TestEqual("found", GetLabel(), FString(TEXT("cam")));
				});

			It("should show only the mark for an empty name",
				[this]()
				{
					OpenWith({TEXT("A")}, false, TEXT(""));
					TestEqual("label", GetLabel(), FString(TEXT(" [lost]")));
					TestStored(false, TEXT(""));
				});

			It("should mark nothing while the first sender is taken, though none is active",
				[this]()
				{
					Open(true, TEXT("A"));
					TestEqual("label", GetLabel(), FString(FirstEntry));
				});

			It("should show a lost name again after the details were closed",
				[this]()
				{
					OpenWith({TEXT("A")}, false, TEXT("abc"));
					OpenAgain();
					TestEqual("label", GetLabel(), FString(TEXT("abc [lost]")));
				});

			It("should show the fall-back's text as a name like any other",
				[this]()
				{
					OpenWith({TEXT("Error")}, false, TEXT("Error"));
					TestEqual("label", GetLabel(), FString(TEXT("Error")));
				});

			It("should show each of two receivers as its own sender is",
				[this]()
				{
					FZAVSpoutReceiverInterface Second;
					Second.UseFirstAvailableSender = false;
					Second.Name = TEXT("gone");
					Manager->SpoutReceivers.Add(Second);
					OpenWith({TEXT("A")}, false, TEXT("A"));
					TestEqual("second", GetLabel(1), FString(TEXT("gone [lost]")));
					TestEqual("first", GetLabel(0), FString(TEXT("A")));
					TestEqual("second again", GetLabel(1), FString(TEXT("gone [lost]")));
				});
		});

	Describe("Choosing",
		[this]()
		{
			It("a sender should store its name and take the flag back",
				[this]()
				{
					OpenWith({TEXT("A"), TEXT("B")}, true, TEXT(""));
					Choose(TEXT("B"));
					TestStored(false, TEXT("B"));
					TestEqual("changes", Changes, FString(TEXT("UseFirstAvailableSender; Name; ")));
					TestEqual("label", GetLabel(), FString(TEXT("B")));
				});

			It("the first entry should set the flag and store the entry's text",
				[this]()
				{
					OpenWith({TEXT("A")}, false, TEXT("A"));
					Choose(FirstEntry);
					TestStored(true, FirstEntry);
					TestEqual("changes", Changes, FString(TEXT("UseFirstAvailableSender; Name; ")));
					TestEqual("label", GetLabel(), FString(FirstEntry));
				});

			It("the first entry again should write both again",
				[this]()
				{
					Open(true, FirstEntry);
					Choose(FirstEntry);
					TestEqual("changes", Changes, FString(TEXT("UseFirstAvailableSender; Name; ")));
				});

			It("the stored name should write only the flag",
				[this]()
				{
					OpenWith({TEXT("A")}, false, TEXT("A"));
					Choose(TEXT("A"));
					TestEqual("changes", Changes, FString(TEXT("UseFirstAvailableSender; ")));
					TestStored(false, TEXT("A"));
				});

			It("another spelling of the stored name should store it",
				[this]()
				{
					OpenWith({TEXT("Cam"), TEXT("cam")}, false, TEXT("Cam"));
					Choose(TEXT("cam"));
					TestStored(false, TEXT("cam"));
				});

			It("should be undone write by write",
				[this]()
				{
					OpenWith({TEXT("A")}, true, FirstEntry);
					Choose(TEXT("A"));
					GEditor->UndoTransaction();
					TestStored(false, FirstEntry);
					GEditor->UndoTransaction();
					TestStored(true, FirstEntry);
					TestEqual("label", GetLabel(), FString(FirstEntry));
				});
		});
}

#endif
