// Copyright Corvane. MIT License.
#include "TabFixture.h"

#include "Framework/Application/SlateApplication.h"
#include "HAL/PlatformApplicationMisc.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

using nlohmann::json;

namespace
{
	typedef std::vector<std::string> FLog;

	/** With the page open. */
	class FInputRequestsTest : public FTabFixture
	{
	protected:
		FInputRequestsTest() { AskTab("invoke-tab", "TestPage"); }

		static json MakeRequest(const char* Do, const std::string& Text, json Request = json::object())
		{
			Request["do"] = Do;
			Request["tab"] = "TestPage";
			Request["text"] = Text;
			return Request;
		}
		/** @return the text that the box shows then. */
		std::string Enter(const char* Do, const std::string& Text, const json& More = json::object())
		{
			return Ask(MakeRequest(Do, Text, More))["text"];
		}
		bool Click(const std::string& Caption) { return Ask(MakeRequest("click", Caption))["committed"]; }
		std::string GetFocusType()
		{
			const TSharedPtr<SWidget> Focused = FSlateApplication::Get().GetKeyboardFocusedWidget();
			return Focused.IsValid() ? TCHAR_TO_UTF8(*Focused->GetTypeAsString()) : "none";
		}
		/** The error, once it is sure that neither box nor focus nor log changed. */
		std::string GetInputRefusal(const json& Request)
		{
			FSlateApplication::Get().SetKeyboardFocus(Second);
			Log.clear();
			const std::string Error = GetRefusal(Request);
			EXPECT_EQ(Log, FLog());
			EXPECT_TRUE(Second->HasKeyboardFocus());
			return Error;
		}
	};
}

TEST_F(FInputRequestsTest, TypeOverTheContentCharacterByCharacter)
{
	EXPECT_EQ(Enter("type", "abc"), "abc");
	EXPECT_EQ(Log, (FLog{"first changed a", "first changed ab", "first changed abc"}));
	EXPECT_TRUE(First->HasKeyboardFocus());
}

TEST_F(FInputRequestsTest, TypeAPairOfSurrogatesAsOneChange)
{
	EXPECT_EQ(Enter("type", "a😀b"), "a😀b");
	EXPECT_EQ(Log, (FLog{"first changed a", "first changed a😀", "first changed a😀b"}));
}

TEST_F(FInputRequestsTest, TypeNothingToEmptyTheBox)
{
	EXPECT_EQ(Enter("type", ""), "");
	EXPECT_EQ(Log, FLog{"first changed "});
}

TEST_F(FInputRequestsTest, TypeNoControlCharacterAndDeleteWithABackspace)
{
	EXPECT_EQ(Enter("type", "a\tb\n\u007fc\bd"), "abd");
}

TEST_F(FInputRequestsTest, TypeNothingButControlCharactersToEmptyTheBox)
{
	for (const char* Text : {"\t", "\n", "\u0001\u007f"})
	{
		Enter("type", "abc");
		EXPECT_EQ(Enter("type", Text), "") << Text;
	}
}

TEST_F(FInputRequestsTest, PasteOverTheContentInOneChange)
{
	EXPECT_EQ(Enter("paste", "a😀\tb\nc"), "a😀\tbc");
	EXPECT_EQ(Log, FLog{"first changed a😀\tbc"});
	FString Clipboard;
	FPlatformApplicationMisc::ClipboardPaste(Clipboard);
	EXPECT_TRUE(Clipboard.Equals(TEXT("a😀\tb\nc")));
}

TEST_F(FInputRequestsTest, PasteNothingToEmptyTheBox)
{
	EXPECT_EQ(Enter("paste", ""), "");
	EXPECT_EQ(Log, FLog{"first changed "});
}

TEST_F(FInputRequestsTest, TypeUpToAThousandCharactersAndPasteMore)
{
	std::string Text;
	for (int32 Count = 0; Count < 1000; ++Count)
	{
		Text += "😀";
	}
	EXPECT_EQ(Enter("type", Text), Text);
	EXPECT_EQ(Log.size(), 1000U);
	EXPECT_EQ(GetInputRefusal(MakeRequest("type", Text + "x")), "the text has more than 1,000 characters: use paste");
	EXPECT_EQ(Enter("paste", Text + "x"), Text + "x");
}

TEST_F(FInputRequestsTest, GoOnTypingWithoutACommitWhenTheFocusStays)
{
	for (const char* Do : {"type", "paste"})
	{
		Enter(Do, "ab");
		Log.clear();
		Enter(Do, "c", {{"commit", "none"}});
		EXPECT_EQ(Log, FLog{"first changed c"});
	}
}

TEST_F(FInputRequestsTest, CommitOnceByEnter)
{
	for (const char* Do : {"type", "paste"})
	{
		Log.clear();
		EXPECT_EQ(Enter(Do, Do, {{"commit", "enter"}}), Do);
		EXPECT_EQ(Log.back(), std::string("first committed ") + Do + " by enter");
		EXPECT_EQ(Log[Log.size() - 2], std::string("first changed ") + Do);
		EXPECT_EQ(GetFocusType(), "none");
	}
}

TEST_F(FInputRequestsTest, CommitByMovingTheFocusAway)
{
	EXPECT_EQ(Enter("type", "x", {{"commit", "focus"}}), "x");
	EXPECT_EQ(Log, (FLog{"first changed x", "first committed x by moved"}));
	EXPECT_EQ(GetFocusType(), "none");
}

TEST_F(FInputRequestsTest, ChooseTheBoxAmongTheShownOnesAndCommitTheOneThatIsLeft)
{
	Enter("type", "x");
	EXPECT_EQ(Enter("type", "y", {{"box", 1}}), "y");
	EXPECT_EQ(Log, (FLog{"first changed x", "first committed x by moved", "second changed y"}));
	Group->SetVisibility(EVisibility::Visible);
	EXPECT_EQ(Enter("type", "z", {{"box", 1}}), "z");
	EXPECT_EQ(GetNode({1, 1, 0})["text"], "z");
}

TEST_F(FInputRequestsTest, AnswerWhatStandsInABoxThatIsGoneOnceAnotherHasCommitted)
{
	FSlateApplication::Get().SetKeyboardFocus(Second);
	First->SetVisibility(TAttribute<EVisibility>::Create(TAttribute<EVisibility>::FGetter::CreateLambda(
		[this]() { return Log.empty() ? EVisibility::Visible : EVisibility::Collapsed; })));
	EXPECT_EQ(Enter("type", "x", {{"commit", "enter"}}), "old");
	EXPECT_EQ(Log, (FLog{"second committed  by moved", "first committed old by default"}));
}

TEST_F(FInputRequestsTest, TypeIntoNoOtherBoxThatTakesTheFocusBack)
{
	FSlateApplication::Get().SetKeyboardFocus(Second);
	AfterCommit = [this]() { FSlateApplication::Get().SetKeyboardFocus(Second); };
	EXPECT_EQ(Enter("type", "x", {{"commit", "enter"}}), "old");
	EXPECT_EQ(Log, (FLog{"second committed  by moved", "first committed old by default"}));
	EXPECT_TRUE(Second->HasKeyboardFocus());
}

TEST_F(FInputRequestsTest, RefuseABoxThatCannotBeTypedInto)
{
	for (const char* Do : {"type", "paste"})
	{
		EXPECT_EQ(GetInputRefusal(MakeRequest(Do, "x", {{"box", 2}})), "box 2: the tab shows 2");
	}
	First->SetEnabled(false);
	EXPECT_EQ(GetInputRefusal(MakeRequest("type", "x")), "box 0 is disabled");
}

TEST_F(FInputRequestsTest, RefuseAnUnknownCommit)
{
	EXPECT_EQ(GetInputRefusal(MakeRequest("paste", "x", {{"commit", "Enter"}})),
		"commit is \"none\", \"enter\" or \"focus\", not \"Enter\"");
}

TEST_F(FInputRequestsTest, RefuseATabThatIsNotOpen)
{
	for (const char* Do : {"type", "paste", "click"})
	{
		json Request = MakeRequest(Do, "Press");
		Request["tab"] = "TestOther";
		EXPECT_EQ(GetInputRefusal(Request), "the tab \"TestOther\" is not open");
	}
}

TEST_F(FInputRequestsTest, WorkATabBehindWithoutBringingItForward)
{
	AskTab("invoke-tab", "TestOther");
	EXPECT_EQ(Enter("type", "x"), "x");
	EXPECT_TRUE(Click("Press"));
	const FAnswer Tabs = Ask({{"do", "tabs"}})["tabs"];
	EXPECT_EQ(Tabs[0]["front"], false);
	EXPECT_EQ(Tabs[1]["front"], true);
}

TEST_F(FInputRequestsTest, ClickTheShownButtonOfTheCaption)
{
	EXPECT_FALSE(Click("Press"));
	EXPECT_EQ(Log, FLog{"pressed"});
	EXPECT_EQ(GetFocusType(), "SButton");
}

TEST_F(FInputRequestsTest, CommitTheBoxBeforeTheClick)
{
	Enter("type", "x");
	Log.clear();
	EXPECT_TRUE(Click("Press"));
	EXPECT_EQ(Log, (FLog{"first committed x by moved", "pressed"}));
	EXPECT_FALSE(Click("Press"));
}

TEST_F(FInputRequestsTest, ClickNoButtonThatTheCommitDisables)
{
	FSlateApplication::Get().SetKeyboardFocus(Second);
	Dead->SetEnabled(
		TAttribute<bool>::Create(TAttribute<bool>::FGetter::CreateLambda([this]() { return Log.empty(); })));
	EXPECT_TRUE(Click("Dead"));
	EXPECT_EQ(Log, FLog{"second committed  by moved"});
}

TEST_F(FInputRequestsTest, RefuseAButtonThatCannotBeClicked)
{
	EXPECT_EQ(GetInputRefusal(MakeRequest("click", "press")), "the tab shows no button \"press\"");
	EXPECT_EQ(GetInputRefusal(MakeRequest("click", "The Title")), "the tab shows no button \"The Title\"");
	EXPECT_EQ(GetInputRefusal(MakeRequest("click", "Dead")), "the button \"Dead\" is disabled");
	EXPECT_EQ(GetInputRefusal(MakeRequest("click", "Twin")), "the tab shows 2 buttons \"Twin\"");
	Group->SetVisibility(EVisibility::Visible);
	EXPECT_EQ(GetInputRefusal(MakeRequest("click", "Press")), "the tab shows 2 buttons \"Press\"");
}
