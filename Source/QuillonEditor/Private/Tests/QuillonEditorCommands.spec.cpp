// Copyright Corvane. MIT License.
#include "CoreMinimal.h"

#include "Framework/Commands/InputBindingManager.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Framework/Docking/TabManager.h"
#include "Misc/AutomationTest.h"
#include "Widgets/Docking/SDockTab.h"

#include "MenuUser.h"
#include "QuillonEditorCommands.h"
#include "ZAVPROBlueprintFunctionLibrary.h"

#if WITH_DEV_AUTOMATION_TESTS

BEGIN_DEFINE_SPEC(FQuillonEditorCommandsSpec, "Quillon.Commands",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)
	void TestCommand(const TCHAR* Name, const TCHAR* Label, const TCHAR* ToolTip, EUserInterfaceActionType Type);
	/** Chooses a toggle twice; tests that its own switch flips and comes back, and that the other one stays. */
	void TestFlip(const TCHAR* Label, bool (*IsOn)(), bool (*IsOtherOn)());
	TSharedPtr<FBindingContext> FindContext() const;
	TUniquePtr<FMenuUser> User;
END_DEFINE_SPEC(FQuillonEditorCommandsSpec)

void FQuillonEditorCommandsSpec::TestCommand(
	const TCHAR* Name, const TCHAR* Label, const TCHAR* ToolTip, EUserInterfaceActionType Type)
{
	const TSharedPtr<FUICommandInfo> Command = FInputBindingManager::Get().FindCommandInContext("QuillonEditor", Name);
	if (!TestTrue("registered", Command.IsValid()))
	{
		return;
	}
	TestTrue("name", Command->GetCommandName().ToString().Equals(Name));
	const FString Prefix = FString(TEXT("FQuillonEditorModule,")) + Name;
	TestTrue("label", DescribeText(Command->GetLabel()).Equals(Prefix + TEXT(",") + Label));
	TestTrue("tooltip", DescribeText(Command->GetDescription()).Equals(Prefix + TEXT("_ToolTip,") + ToolTip));
	TestTrue("type", Command->GetUserInterfaceType() == Type);
	TestFalse("icon", Command->GetIcon().IsSet());
	TestFalse("chord", Command->GetDefaultChord(EMultipleKeyBindingIndex::Primary).IsValidChord());
	TestFalse("alternate chord", Command->GetDefaultChord(EMultipleKeyBindingIndex::Secondary).IsValidChord());
}

void FQuillonEditorCommandsSpec::TestFlip(const TCHAR* Label, bool (*IsOn)(), bool (*IsOtherOn)())
{
	const bool bBefore = IsOn();
	const bool bOther = IsOtherOn();
	User->Choose(Label);
	TestEqual("flipped", IsOn(), !bBefore);
	TestEqual("other", IsOtherOn(), bOther);
	User->Choose(Label);
	TestEqual("back", IsOn(), bBefore);
}

TSharedPtr<FBindingContext> FQuillonEditorCommandsSpec::FindContext() const
{
	TArray<TSharedPtr<FBindingContext>> Contexts;
	FInputBindingManager::Get().GetKnownInputContexts(Contexts);
	for (const TSharedPtr<FBindingContext>& Context : Contexts)
	{
		if (Context->GetContextName() == FName("QuillonEditor"))
		{
			return Context;
		}
	}
	return nullptr;
}

void FQuillonEditorCommandsSpec::Define()
{
	Describe("The command context",
		[this]()
		{
			It("should be called QuillonEditor, without a parent, and use the plugin's style set",
				[this]()
				{
					const TSharedPtr<FBindingContext> Context = FindContext();
					if (TestTrue("known", Context.IsValid()))
					{
						TestEqual("description", DescribeText(Context->GetContextDesc()),
							FString(TEXT("Contexts,QuillonEditor,ZAVQuillon Plugin")));
						TestTrue("parent", Context->GetContextParent().IsNone());
						TestEqual("style set", Context->GetStyleSetName(), FName("QuillonEditorStyle"));
					}
				});

			It("should hold its commands in their order",
				[this]()
				{
					TArray<TSharedPtr<FUICommandInfo>> Commands;
					FInputBindingManager::Get().GetCommandInfosFromContext("QuillonEditor", Commands);
					FString Names;
					for (const TSharedPtr<FUICommandInfo>& Command : Commands)
					{
						Names += Command->GetCommandName().ToString() + TEXT(" ");
					}
					TestEqual("names", Names,
						FString(TEXT("UseCineStreamSetupWizard EditorViewportRendering RuntimeViewportRendering ")
								TEXT("PluginVersion KnowledgeCentre CorvaneWebsite DiscordCommunity VideoTutorials ")));
				});

			It("should stay the same instance when it is registered again",
				[this]()
				{
					const FQuillonEditorCommands* First = &FQuillonEditorCommands::Get();
					const TSharedPtr<FUICommandInfo> Command = First->PluginVersion;
					FQuillonEditorCommands::Register();
					TestTrue("same instance", &FQuillonEditorCommands::Get() == First);
					TestTrue("same command", FQuillonEditorCommands::Get().PluginVersion == Command);
				});
		});

	Describe("The command",
		[this]()
		{
			It("UseCineStreamSetupWizard should be a button",
				[this]()
				{
					TestCommand(TEXT("UseCineStreamSetupWizard"), TEXT("Cine Stream Wizard"),
						TEXT("Use to create a simple Cinecam Capture and Spout setup to stream out of ue4"),
						EUserInterfaceActionType::Button);
				});
			It("EditorViewportRendering should be a toggle",
				[this]()
				{
					TestCommand(TEXT("EditorViewportRendering"), TEXT("Editor Viewport Rendering"),
						TEXT("Switch on/off viewport rendering at Editor/SIE time"),
						EUserInterfaceActionType::ToggleButton);
				});
			It("RuntimeViewportRendering should be a toggle",
				[this]()
				{
					TestCommand(TEXT("RuntimeViewportRendering"), TEXT("Runtime Viewport Rendering"),
						TEXT("Switch on/off viewport rendering at PIE/Game time"),
						EUserInterfaceActionType::ToggleButton);
				});
			It("PluginVersion should be a button",
				[this]()
				{
					TestCommand(TEXT("PluginVersion"), TEXT("Plugin Version"), TEXT("See your plugin version here"),
						EUserInterfaceActionType::Button);
				});
			It("KnowledgeCentre should be a button",
				[this]()
				{
					TestCommand(TEXT("KnowledgeCentre"), TEXT("Knowledge Centre"),
						TEXT("Installation and feature documentation"), EUserInterfaceActionType::Button);
				});
			It("CorvaneWebsite should be a button",
				[this]() {
					TestCommand(TEXT("CorvaneWebsite"), TEXT("Corvane Website"), TEXT("Corvane"),
						EUserInterfaceActionType::Button);
				});
			It("DiscordCommunity should be a button",
				[this]()
				{
					TestCommand(TEXT("DiscordCommunity"), TEXT("Discord Community"), TEXT("Corvane Discord community"),
						EUserInterfaceActionType::Button);
				});
			It("VideoTutorials should be a button",
				[this]()
				{
					TestCommand(TEXT("VideoTutorials"), TEXT("Video Tutorials"), TEXT("YouTube video tutorials"),
						EUserInterfaceActionType::Button);
				});
		});

	Describe("Choosing from the menu",
		[this]()
		{
			BeforeEach([this]() { User = MakeUnique<FMenuUser>(); });
			AfterEach([this]() { User.Reset(); });

			It("should open the wizard's tab",
				[this]()
				{
					const FTabId Wizard("CineStreamWizard");
					TestFalse("open before", FGlobalTabmanager::Get()->FindExistingLiveTab(Wizard).IsValid());
					User->Choose(TEXT("Cine Stream Wizard"));
					const TSharedPtr<SDockTab> Tab = FGlobalTabmanager::Get()->FindExistingLiveTab(Wizard);
					if (TestTrue("open after", Tab.IsValid()))
					{
						TestTrue("in front", Tab->IsForeground());
						Tab->RequestCloseTab();
					}
				});

			It("should flip the editor viewports' rendering, and back",
				[this]()
				{
					TestFlip(TEXT("Editor Viewport Rendering"),
						&UZAVPROBlueprintFunctionLibrary::GetIsEditorViewportRendering,
						&UZAVPROBlueprintFunctionLibrary::GetIsRuntimeViewportRendering);
				});

			It("should flip the game viewport's rendering, and back",
				[this]()
				{
					TestFlip(TEXT("Runtime Viewport Rendering"),
						&UZAVPROBlueprintFunctionLibrary::GetIsRuntimeViewportRendering,
						&UZAVPROBlueprintFunctionLibrary::GetIsEditorViewportRendering);
				});
		});
}

#endif
