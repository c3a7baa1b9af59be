// Copyright Corvane. MIT License.
#include "TestMenu.h"

#include "Framework/Commands/Commands.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Internationalization/Internationalization.h"
#include "ToolMenus.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "TestMenu"

namespace
{
	class FMenuCommands : public TCommands<FMenuCommands>
	{
	public:
		FMenuCommands() : TCommands("MenuTest", LOCTEXT("Context", "Menu Test"), NAME_None, "TestStyle") {}
		virtual void RegisterCommands() override
		{
			Make(Open, "Open", LOCTEXT("Open", "Open It"));
			Make(Light, "Light", LOCTEXT("Light", "Light"), EUserInterfaceActionType::ToggleButton);
			Make(TwinA, "TwinA", FText::FromString(TEXT("Twin")));
			Make(TwinB, "TwinB", FText::FromString(TEXT("Twin")));
			Make(Idle, "Idle", FText::FromString(TEXT("Idle")));
		}

		TSharedPtr<FUICommandInfo> Open;
		TSharedPtr<FUICommandInfo> Light;
		TSharedPtr<FUICommandInfo> TwinA;
		TSharedPtr<FUICommandInfo> TwinB;
		TSharedPtr<FUICommandInfo> Idle;

	private:
		void Make(TSharedPtr<FUICommandInfo>& OutCommand, const FName Name, const FText& Label,
			EUserInterfaceActionType Type = EUserInterfaceActionType::Button)
		{
			FUICommandInfo::MakeCommandInfo(AsShared(), OutCommand, Name, Label, LOCTEXT("Tip", "A tip"), FSlateIcon(),
				Type, FInputChord(), FInputChord());
		}
	};

	bool Never()
	{
		return false;
	}

	FToolMenuEntry MakeButton(
		const FName Name, const FOnGetContent& Content, const FText& Label, const FUIAction& Action = FUIAction())
	{
		return FToolMenuEntry::InitComboButton(
			Name, Action, Content, Label, LOCTEXT("ButtonTip", "Opens the menu"), FSlateIcon("TestStyle", "Test.Icon"));
	}
}

FTestMenu::FTestMenu() : Commands(MakeShared<FUICommandList>())
{
	FMenuCommands::Register();
	const FMenuCommands& Made = FMenuCommands::Get();
	Commands->MapAction(Made.Open, FExecuteAction::CreateRaw(this, &FTestMenu::OnOpen));
	Commands->MapAction(Made.Light, FExecuteAction::CreateRaw(this, &FTestMenu::OnLight),
		FCanExecuteAction::CreateRaw(this, &FTestMenu::CanLight), FIsActionChecked::CreateRaw(this, &FTestMenu::IsLit));
	Commands->MapAction(Made.TwinA, FExecuteAction::CreateRaw(this, &FTestMenu::OnOpen));
	Commands->MapAction(Made.TwinB, FExecuteAction::CreateRaw(this, &FTestMenu::OnOpen));
	Commands->MapAction(Made.Idle, FExecuteAction());

	const FToolMenuOwnerScoped Owner("TestMenu");
	UToolMenu* ToolBar = UToolMenus::Get()->ExtendMenu("LevelEditor.LevelEditorToolBar");
	const FOnGetContent Menu = FOnGetContent::CreateRaw(this, &FTestMenu::MakeMenu);
	FToolMenuSection& First = ToolBar->FindOrAddSection("First");
	First.AddEntry(MakeButton("TestMenu", Menu, LOCTEXT("Label", "Test Menu")));
	First.AddEntry(MakeButton("TestDead", Menu, LOCTEXT("Dead", "Dead"),
		FUIAction(FExecuteAction(), FCanExecuteAction::CreateStatic(&Never))));
	FToolMenuSection& Second = ToolBar->FindOrAddSection("Second");
	Second.AddEntry(MakeButton("TestEmpty", FOnGetContent(), LOCTEXT("Empty", "Empty")));
	Second.AddEntry(MakeButton(
		"TestOther", FOnGetContent::CreateRaw(this, &FTestMenu::MakeOther), FText::FromString(TEXT("testmenu"))));
}

FTestMenu::~FTestMenu()
{
	UToolMenus::UnregisterOwner("TestMenu");
	FMenuCommands::Unregister();
}

TSharedRef<SWidget> FTestMenu::MakeMenu()
{
	++MadeCount;
	const FMenuCommands& Made = FMenuCommands::Get();
	FMenuBuilder Menu(false, Commands, nullptr, false, &FCoreStyle::Get(), false);
	Menu.AddMenuEntry(Made.Open, NAME_None, TAttribute<FText>(), TAttribute<FText>(), FSlateIcon("TestStyle", "Open"));
	Menu.BeginSection("Hook", LOCTEXT("Heading", "A Heading"));
	Menu.AddMenuEntry(Made.Light);
	Menu.AddMenuEntry(Made.TwinA);
	Menu.AddMenuEntry(Made.TwinB);
	Menu.AddMenuEntry(Made.Idle, NAME_None, FText::FromString(TEXT("Does Nothing")), FText());
	Menu.EndSection();
	return Menu.MakeWidget(nullptr, 250);
}

TSharedRef<SWidget> FTestMenu::MakeOther()
{
	return SNew(STextBlock);
}

#undef LOCTEXT_NAMESPACE
