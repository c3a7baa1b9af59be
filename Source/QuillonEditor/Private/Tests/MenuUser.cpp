// Copyright Corvane. MIT License.
#include "MenuUser.h"

#include "Framework/Docking/TabManager.h"
#include "Misc/CoreDelegates.h"
#include "ToolMenus.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/Text/STextBlock.h"

#if WITH_DEV_AUTOMATION_TESTS

namespace
{
	const TCHAR* const MenuTab = TEXT("QuillonEditorMenuUser");
}

FMenuUser::FMenuUser()
	: FormerMessageBox(FCoreDelegates::ModalErrorMessage), FormerShouldLaunch(FCoreDelegates::ShouldLaunchUrl)
{
	FCoreDelegates::ModalErrorMessage = FMessageBoxDelegate::CreateLambda(
		[this](EAppMsgType::Type Type, const FText& Message, const FText& /*Title*/)
		{
			LastMessageType = Type;
			Messages.Add(Message);
			return EAppReturnType::Ok;
		});
	FCoreDelegates::ShouldLaunchUrl = FAddressDelegate::CreateLambda(
		[this](const TCHAR* Address)
		{
			Addresses.Add(Address);
			return false;
		});
	FGlobalTabmanager::Get()->RegisterNomadTabSpawner(MenuTab,
		FOnSpawnTab::CreateLambda(
			[this](const FSpawnTabArgs&)
			{
				const TSharedRef<SDockTab> Tab = SNew(SDockTab).TabRole(ETabRole::NomadTab);
				Tab->SetContent(Menu.ToSharedRef());
				return Tab;
			}));
	Reopen();
}

FMenuUser::~FMenuUser()
{
	FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId(MenuTab))->RequestCloseTab();
	FGlobalTabmanager::Get()->UnregisterNomadTabSpawner(MenuTab);
	FCoreDelegates::ModalErrorMessage = FormerMessageBox;
	FCoreDelegates::ShouldLaunchUrl = FormerShouldLaunch;
}

FToolMenuEntry* FMenuUser::FindButton()
{
	UToolMenu* ToolBar = UToolMenus::Get()->FindMenu("LevelEditor.LevelEditorToolBar");
	FToolMenuSection* Section = ToolBar ? ToolBar->FindSection("Settings") : nullptr;
	return Section ? Section->FindEntry("Corvane") : nullptr;
}

void FMenuUser::Reopen()
{
	const FToolMenuEntry* Button = FindButton();
	// Nothing to read is a failed test, not a crash of the editor.
	Menu = Button && Button->ToolBarData.ComboButtonContextMenuGenerator.OnGetContent.IsBound()
		? Button->ToolBarData.ComboButtonContextMenuGenerator.OnGetContent.Execute()
		: SNullWidget::NullWidget;
	const TSharedPtr<SDockTab> Tab = FGlobalTabmanager::Get()->TryInvokeTab(FTabId(MenuTab));
	Tab->SetContent(GetMenu());
}

TArray<FString> FMenuUser::GetTexts() const
{
	TArray<FString> Texts;
	for (const TSharedRef<SWidget>& Widget : FWidgetUser::FindAll(GetMenu(), TEXT("STextBlock")))
	{
		Texts.Add(StaticCastSharedRef<STextBlock>(Widget)->GetText().ToString());
	}
	return Texts;
}

FString FMenuUser::DescribeTextOf(const TCHAR* Shown) const
{
	for (const TSharedRef<SWidget>& Widget : FWidgetUser::FindAll(GetMenu(), TEXT("STextBlock")))
	{
		const FText Text = StaticCastSharedRef<STextBlock>(Widget)->GetText();
		if (Text.ToString() == Shown)
		{
			return DescribeText(Text);
		}
	}
	return FString();
}

TArray<ECheckBoxState> FMenuUser::GetChecks() const
{
	TArray<ECheckBoxState> Checks;
	for (const TSharedRef<SWidget>& Widget : FWidgetUser::FindAll(GetMenu(), TEXT("SCheckBox")))
	{
		Checks.Add(StaticCastSharedRef<SCheckBox>(Widget)->GetCheckedState());
	}
	return Checks;
}

void FMenuUser::Choose(const TCHAR* Label)
{
	for (const TSharedRef<SWidget>& Widget : FWidgetUser::FindAll(GetMenu(), TEXT("STextBlock")))
	{
		if (StaticCastSharedRef<STextBlock>(Widget)->GetText().ToString() == Label)
		{
			FWidgetUser::Click(Widget);
			return;
		}
	}
}

#endif
