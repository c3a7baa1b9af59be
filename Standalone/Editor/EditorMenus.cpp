// Copyright Corvane. MIT License.
#include "EditorMenus.h"

#include "EngineText.h"
#include "ErrorText.h"
#include "Framework/MultiBox/MultiBox.h"
#include "ToolMenus.h"

namespace
{
	const char* const LevelToolBar = "LevelEditor.LevelEditorToolBar";

	std::string Quote(const FString& Text)
	{
		return FErrorText::Quote(FEngineText::ForDisplay(Text));
	}

	const FToolMenuEntry* FindButton(const FString& Wanted)
	{
		const std::vector<FEditorMenus::FButton> Buttons = FEditorMenus::GetButtons();
		for (const FEditorMenus::FButton& Button : Buttons)
		{
			if (Button.Entry->Label.Get().ToString().Equals(Wanted))
			{
				return Button.Entry;
			}
		}
		for (const FEditorMenus::FButton& Button : Buttons)
		{
			// As names go, without case.
			if (Button.Entry->Name.ToString() == Wanted)
			{
				return Button.Entry;
			}
		}
		return nullptr;
	}

	bool CanBeUsed(const FToolMenuEntry& Button)
	{
		const FUIAction* Action = Button.Action.GetUIAction();
		return !Action || Action->CanExecute();
	}

	std::vector<const FMultiBlock*> FindEntries(const FMultiBox& Menu, const FString& Label)
	{
		std::vector<const FMultiBlock*> Found;
		for (const FMultiBoxSection& Section : Menu.Sections)
		{
			for (const TSharedRef<const FMultiBlock>& Block : Section.Blocks)
			{
				if (Block->GetLabel().ToString().Equals(Label))
				{
					Found.push_back(&Block.Get());
				}
			}
		}
		return Found;
	}
}

std::vector<FEditorMenus::FButton> FEditorMenus::GetButtons()
{
	std::vector<FButton> Buttons;
	if (const UToolMenu* ToolBar = UToolMenus::Get()->FindMenu(LevelToolBar))
	{
		for (const FToolMenuSection& Section : ToolBar->Sections)
		{
			for (const FToolMenuEntry& Entry : Section.Blocks)
			{
				Buttons.push_back(FButton{Section.Name, &Entry});
			}
		}
	}
	return Buttons;
}

TSharedPtr<const FMultiBox> FEditorMenus::Open(const FString& Button, std::string& OutError)
{
	const FToolMenuEntry* Entry = FindButton(Button);
	if (!Entry)
	{
		OutError = "the toolbar has no button " + Quote(Button);
		return nullptr;
	}
	if (!CanBeUsed(*Entry))
	{
		OutError = "the button " + Quote(Button) + " is disabled";
		return nullptr;
	}
	const FOnGetContent& Generator = Entry->ToolBarData.ComboButtonContextMenuGenerator.OnGetContent;
	const TSharedPtr<SWidget> Content = Generator.IsBound() ? TSharedPtr<SWidget>(Generator.Execute()) : nullptr;
	if (!Content.IsValid() || Content->GetType() != FName("SMultiBoxWidget"))
	{
		OutError = "the button " + Quote(Button) + " opens no menu";
		return nullptr;
	}
	return StaticCastSharedRef<SMultiBoxWidget>(Content.ToSharedRef())->GetMultiBox();
}

bool FEditorMenus::Choose(const FString& Button, const FString& Entry, std::string& OutError)
{
	const TSharedPtr<const FMultiBox> Menu = Open(Button, OutError);
	if (!Menu.IsValid())
	{
		return false;
	}
	const std::vector<const FMultiBlock*> Found = FindEntries(*Menu, Entry);
	if (Found.size() != 1)
	{
		OutError = "the menu has " + (Found.empty() ? "no" : std::to_string(Found.size())) +
			(Found.empty() ? " entry " : " entries ") + Quote(Entry);
		return false;
	}
	if (!Found[0]->CanExecute())
	{
		OutError = "the entry " + Quote(Entry) + " is disabled";
		return false;
	}
	if (!Found[0]->Execute())
	{
		OutError = "the entry " + Quote(Entry) + " does nothing";
		return false;
	}
	return true;
}
