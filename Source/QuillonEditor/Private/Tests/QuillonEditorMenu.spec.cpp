// Copyright Corvane. MIT License.
#include "CoreMinimal.h"

#include "Interfaces/IPluginManager.h"
#include "Misc/AutomationTest.h"
#include "Misc/MessageDialog.h"
#include "PluginDescriptor.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateStyleRegistry.h"
#include "Styling/ISlateStyle.h"
#include "Textures/SlateIcon.h"
#include "ToolMenus.h"

#include "MenuUser.h"
#include "ZAVPROBlueprintFunctionLibrary.h"

#if WITH_DEV_AUTOMATION_TESTS

BEGIN_DEFINE_SPEC(
	FQuillonEditorMenuSpec, "Quillon.Menu", EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)
	/** Chooses a Support entry; tests that it opens one secure address, with this path or one that starts so. */
	void TestLink(const TCHAR* Label, const TCHAR* Path, bool bWholePath);
	/** Flips one of the two toggles in the runtime module; tests that only this one shows it, and shows it back. */
	void TestToggle(int32 Index, void (*Flip)());
	static bool IsChecked(ECheckBoxState State)
	{
		return State == ECheckBoxState::Checked;
	}
	TUniquePtr<FMenuUser> User;
END_DEFINE_SPEC(FQuillonEditorMenuSpec)

void FQuillonEditorMenuSpec::TestLink(const TCHAR* Label, const TCHAR* Path, bool bWholePath)
{
	User->Choose(Label);
	if (!TestEqual("addresses", User->Addresses.Num(), 1))
	{
		return;
	}
	const FString Secure = TEXT("https://");
	const FString& Address = User->Addresses[0];
	TestTrue("secure", Address.StartsWith(Secure, ESearchCase::CaseSensitive));
	const FString Rest = Address.Mid(Secure.Len());
	const int32 Slash = Rest.Find(TEXT("/"));
	const FString Actual = Rest.Mid(Slash);
	TestTrue("path", bWholePath ? Actual.Equals(Path) : Actual.StartsWith(Path) && Actual.Len() > FString(Path).Len());
}

void FQuillonEditorMenuSpec::TestToggle(int32 Index, void (*Flip)())
{
	const TArray<ECheckBoxState> Before = User->GetChecks();
	if (!TestEqual("toggles", Before.Num(), 2))
	{
		return;
	}
	Flip();
	User->Reopen();
	TestEqual("flipped", IsChecked(User->GetChecks()[Index]), !IsChecked(Before[Index]));
	TestTrue("the other", User->GetChecks()[1 - Index] == Before[1 - Index]);
	Flip();
	User->Reopen();
	TestTrue("back", User->GetChecks()[Index] == Before[Index]);
}

void FQuillonEditorMenuSpec::Define()
{
	BeforeEach([this]() { User = MakeUnique<FMenuUser>(); });
	AfterEach([this]() { User.Reset(); });

	Describe("The toolbar button",
		[this]()
		{
			It("should carry the same text as label and tooltip",
				[this]()
				{
					const FToolMenuEntry* Button = FMenuUser::FindButton();
					if (!TestTrue("button", Button != nullptr))
					{
						return;
					}
					TestEqual("label", DescribeText(Button->Label.Get()),
						FString(TEXT("FQuillonEditorModule,CorvaneBtn,Corvane")));
					TestEqual("tooltip", DescribeText(Button->ToolTip.Get()),
						FString(TEXT("FQuillonEditorModule,CorvaneBtnTootlip,Corvane")));
				});

			It("should show the plugin's icon although its name is written in another letter case",
				[this]()
				{
					const FToolMenuEntry* Button = FMenuUser::FindButton();
					if (!TestTrue("button", Button != nullptr))
					{
						return;
					}
					const FSlateIcon Icon = Button->Icon.Get();
					TestTrue("style set", Icon.GetStyleSetName().ToString().Equals(TEXT("QuillonEditorStyle")));
					TestTrue("as written", Icon.GetStyleName().ToString().Equals(TEXT("ZAVQuillOn.PluginTaskbarIcon")));
					const FSlateBrush* Brush = FSlateStyleRegistry::FindSlateStyle("QuillonEditorStyle")
												   ->GetBrush("ZAVQuillon.PluginTaskbarIcon");
					TestTrue("brush", Icon.GetIcon() == Brush);
					TestTrue("size", Brush->ImageSize == FVector2D(40.0f, 40.0f));
				});

			It("should be a full combo button",
				[this]()
				{
					const FToolMenuEntry* Button = FMenuUser::FindButton();
					if (TestTrue("button", Button != nullptr))
					{
						TestFalse("simple", Button->ToolBarData.bSimpleComboBox);
						TestTrue("menu", Button->ToolBarData.ComboButtonContextMenuGenerator.OnGetContent.IsBound());
					}
				});
		});

	Describe("The menu",
		[this]()
		{
			It("should list headings and entries in their order",
				[this]()
				{
					FString Texts;
					for (const FString& Text : User->GetTexts())
					{
						Texts += Text + TEXT("; ");
					}
					// Strings compare without letter case: the engine may show headings in capitals.
					TestEqual("texts", Texts,
						FString(TEXT("Tools; Cine Stream Wizard; ") TEXT(
							"Settings; Editor Viewport Rendering; Runtime Viewport Rendering; ")
								TEXT("Account; Plugin Version; ") TEXT(
									"Support; Knowledge Centre; Video Tutorials; Discord Community; Corvane Website; ")));
				});

			It("should take labels from the commands where nothing replaces them",
				[this]()
				{
					TestEqual("label", User->DescribeTextOf(TEXT("Plugin Version")),
						FString(TEXT("FQuillonEditorModule,PluginVersion,Plugin Version")));
				});

			It("should not translate the wizard's label",
				[this]() {
					TestFalse("identity",
						User->DescribeTextOf(TEXT("Cine Stream Wizard")).Contains(TEXT("FQuillonEditorModule")));
				});

			It("should show both toggles as the runtime module has them",
				[this]()
				{
					const TArray<ECheckBoxState> Checks = User->GetChecks();
					if (TestEqual("toggles", Checks.Num(), 2))
					{
						TestEqual("editor", IsChecked(Checks[0]),
							UZAVPROBlueprintFunctionLibrary::GetIsEditorViewportRendering());
						TestEqual("game", IsChecked(Checks[1]),
							UZAVPROBlueprintFunctionLibrary::GetIsRuntimeViewportRendering());
					}
				});

			It("should show a changed editor toggle at the next opening",
				[this]() { TestToggle(0, &UZAVPROBlueprintFunctionLibrary::ToggleEditorViewportRendering); });

			It("should show a changed game toggle at the next opening",
				[this]() { TestToggle(1, &UZAVPROBlueprintFunctionLibrary::ToggleRuntimeViewportRendering); });

			It("should be made anew each time that it opens",
				[this]()
				{
					const TSharedRef<SWidget> First = User->GetMenu();
					User->Reopen();
					TestFalse("same widget", First == User->GetMenu());
					TestEqual("first one's texts", FWidgetUser::FindAll(First, TEXT("STextBlock")).Num(),
						FWidgetUser::FindAll(User->GetMenu(), TEXT("STextBlock")).Num());
				});
		});

	Describe("The version dialog",
		[this]()
		{
			It("should show the plugin's and the engine's version in two lines",
				[this]()
				{
					User->Choose(TEXT("Plugin Version"));
					const FPluginDescriptor& Plugin =
						IPluginManager::Get().FindPlugin(TEXT("ZAVQuillon"))->GetDescriptor();
					if (TestEqual("boxes", User->Messages.Num(), 1))
					{
						TestTrue("kind", User->LastMessageType == EAppMsgType::Ok);
						TestTrue("text",
							User->Messages[0].ToString().Equals(FString(TEXT("Plugin Version: ")) + Plugin.VersionName +
								TEXT(" \nEngine Version: ") + Plugin.EngineVersion));
					}
				});
		});

	Describe("The support link",
		[this]()
		{
			It("Knowledge Centre should open the documentation's start page",
				[this]() { TestLink(TEXT("Knowledge Centre"), TEXT("/#/"), true); });
			It("Corvane Website should open the home page",
				[this]() { TestLink(TEXT("Corvane Website"), TEXT("/"), true); });
			It("Discord Community should open an invitation",
				[this]() { TestLink(TEXT("Discord Community"), TEXT("/invite/"), false); });
			It("Video Tutorials should open a channel",
				[this]() { TestLink(TEXT("Video Tutorials"), TEXT("/channel/"), false); });
		});
}

#endif
