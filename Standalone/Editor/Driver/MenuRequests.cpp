// Copyright Corvane. MIT License.
#include "Driver/MenuRequests.h"

#include "Driver/AnswerText.h"
#include "EditorMenus.h"
#include "EngineText.h"
#include "Framework/MultiBox/MultiBox.h"
#include "ToolMenuEntry.h"

namespace
{
	FAnswer DescribeButton(const FEditorMenus::FButton& Button)
	{
		const FToolMenuEntry& Entry = *Button.Entry;
		FAnswer Answer;
		Answer["name"] = FEngineText::ForDisplay(Entry.Name);
		FAnswerText::Add(Answer, "label", Entry.Label.Get());
		FAnswerText::Add(Answer, "tooltip", Entry.ToolTip.Get());
		Answer["icon"] = FAnswerText::Icon(Entry.Icon.Get());
		Answer["section"] = FEngineText::ForDisplay(Button.Section);
		Answer["kind"] = Entry.Type == EMultiBlockType::ToolBarComboButton ? "combo" : "button";
		return Answer;
	}

	FAnswer RunToolbar(FDriverSession& /*Session*/, const FRequest& /*Request*/)
	{
		FAnswer Buttons = FAnswer::array();
		for (const FEditorMenus::FButton& Button : FEditorMenus::GetButtons())
		{
			Buttons.push_back(DescribeButton(Button));
		}
		return {{"buttons", std::move(Buttons)}};
	}

	FAnswer DescribeEntry(const FMultiBlock& Block)
	{
		FAnswer Answer;
		FAnswerText::Add(Answer, "label", Block.GetLabel());
		FAnswerText::Add(Answer, "tooltip", Block.GetToolTip());
		Answer["command"] = FEngineText::ForDisplay(Block.GetAction()->GetCommandName());
		Answer["checked"] =
			Block.IsCheckable() ? FAnswer(Block.GetCheckState() == ECheckBoxState::Checked) : FAnswer(nullptr);
		Answer["enabled"] = Block.CanExecute();
		Answer["icon"] = FAnswerText::Icon(Block.GetIcon());
		return Answer;
	}

	FAnswer DescribeSection(const FMultiBoxSection& Section)
	{
		FAnswer Answer;
		Answer["hook"] =
			Section.ExtensionHook.IsNone() ? FAnswer(nullptr) : FAnswer(FEngineText::ForDisplay(Section.ExtensionHook));
		FAnswerText::Add(Answer, "heading", Section.Heading.Get());
		FAnswer& Entries = Answer["entries"] = FAnswer::array();
		for (const TSharedRef<const FMultiBlock>& Block : Section.Blocks)
		{
			Entries.push_back(DescribeEntry(*Block));
		}
		return Answer;
	}

	FAnswer RunMenu(FDriverSession& /*Session*/, const FRequest& Request)
	{
		std::string Error;
		const TSharedPtr<const FMultiBox> Menu = FEditorMenus::Open(Request.GetText("button"), Error);
		if (!Menu.IsValid())
		{
			throw FRequestError(Error);
		}
		FAnswer Sections = FAnswer::array();
		for (const FMultiBoxSection& Section : Menu->Sections)
		{
			Sections.push_back(DescribeSection(Section));
		}
		return {{"searchable", Menu->bIsSearchable}, {"maxHeight", Menu->MaxHeight},
			{"closes", Menu->bShouldCloseWindowAfterMenuSelection}, {"sections", std::move(Sections)}};
	}

	FAnswer RunChoose(FDriverSession& /*Session*/, const FRequest& Request)
	{
		std::string Error;
		if (!FEditorMenus::Choose(Request.GetText("button"), Request.GetText("entry"), Error))
		{
			throw FRequestError(Error);
		}
		return FAnswer::object();
	}
}

std::vector<FRequestDefinition> FMenuRequests::GetAll()
{
	const FParameter Button = {"button", EParameterType::Text, true};
	return {{"toolbar", {}, &RunToolbar}, {"menu", {Button}, &RunMenu},
		{"choose", {Button, {"entry", EParameterType::Text, true}}, &RunChoose}};
}
