// Copyright Corvane. MIT License.
#include "SlateFixture.h"

#include "Fonts/FontMeasure.h"
#include "HAL/PlatformApplicationMisc.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/SBoxPanel.h"

namespace
{
	/** A box that has the focus, a button, and a log of what they report. */
	class FEditableTextBoxTest : public FSlateFixture
	{
	public:
		// clang-format off
		FEditableTextBoxTest()
		{
			Root = SNew(SVerticalBox)
				+ SVerticalBox::Slot().AutoHeight()
				[
					SAssignNew(Box, SEditableTextBox)
						.OnTextChanged_Raw(this, &FEditableTextBoxTest::OnTextChanged)
						.OnTextCommitted_Raw(this, &FEditableTextBoxTest::OnTextCommitted)
				]
				+ SVerticalBox::Slot().AutoHeight()
				[
					SAssignNew(Button, SButton).OnClicked_Raw(this, &FEditableTextBoxTest::OnClicked)
				];
			App().SetKeyboardFocus(Box);
		}
		// clang-format on
		void OnTextChanged(const FText& Text)
		{
			Log.push_back(std::string("changed ") + TCHAR_TO_UTF8(*Text.ToString()));
		}
		void OnTextCommitted(const FText& Text, ETextCommit::Type CommitType)
		{
			const char* Names[] = {"default", "enter", "moved", "cleared"};
			Log.push_back(std::string("committed ") + TCHAR_TO_UTF8(*Text.ToString()) + " by " + Names[CommitType]);
		}
		FReply OnClicked()
		{
			Log.push_back("clicked");
			return FReply::Handled();
		}
		static void Paste(const TCHAR* Text)
		{
			FPlatformApplicationMisc::ClipboardCopy(Text);
			KeyDown(EKeys::V, false, true);
		}
		bool Shows(const TCHAR* Text) const { return Box->GetText().ToString().Equals(Text); }

		typedef std::vector<std::string> FLog;
		FLog Log;
		TSharedPtr<SVerticalBox> Root;
		TSharedPtr<SEditableTextBox> Box;
		TSharedPtr<SButton> Button;
	};
}

TEST_F(FEditableTextBoxTest, TellsEveryTypedCharacter)
{
	Type(TEXT("ab"));
	EXPECT_TRUE(Shows(TEXT("ab")));
	EXPECT_EQ(Log, (FLog{"changed a", "changed ab"}));
}

TEST_F(FEditableTextBoxTest, TakesAPairOfSurrogatesAsOneChange)
{
	Type(TEXT("\U0001F3A5"));
	EXPECT_TRUE(Shows(TEXT("\U0001F3A5")));
	EXPECT_EQ(Log.size(), 1u);
}

TEST_F(FEditableTextBoxTest, DropsLoneSurrogates)
{
	TypeUnit(0xd83c);
	TypeUnit(TEXT('a'));
	TypeUnit(0xdfa5);
	EXPECT_TRUE(Shows(TEXT("a")));
	EXPECT_EQ(Log, (FLog{"changed a"}));
}

TEST_F(FEditableTextBoxTest, DeletesBackwardsByWholeCharacters)
{
	Box->SetText(FText::FromString(TEXT("a\U0001F3A5b")));
	TypeUnit(8);
	TypeUnit(8);
	EXPECT_TRUE(Shows(TEXT("a")));
	EXPECT_EQ(Log, (FLog{"changed a\xF0\x9F\x8E\xA5", "changed a"}));
}

TEST_F(FEditableTextBoxTest, TellsNothingWhenThereIsNothingToDelete)
{
	TypeUnit(8);
	EXPECT_TRUE(Log.empty());
}

TEST_F(FEditableTextBoxTest, DoesNotTypeControlCharacters)
{
	for (const TCHAR Unit : {TEXT('\t'), TEXT('\n'), TEXT('\r'), TCHAR(1), TCHAR(27), TCHAR(127)})
	{
		TypeUnit(Unit);
	}
	EXPECT_TRUE(Shows(TEXT("")));
	EXPECT_TRUE(Log.empty());
}

TEST_F(FEditableTextBoxTest, ReplacesWhatIsSelected)
{
	Type(TEXT("old"));
	KeyDown(EKeys::A, false, true);
	Type(TEXT("new"));
	EXPECT_TRUE(Shows(TEXT("new")));
	Box->SelectAllText();
	TypeUnit(8);
	EXPECT_TRUE(Shows(TEXT("")));
}

TEST_F(FEditableTextBoxTest, PastesInOneChange)
{
	Type(TEXT("a"));
	Paste(TEXT("bcd"));
	EXPECT_TRUE(Shows(TEXT("abcd")));
	EXPECT_EQ(Log, (FLog{"changed a", "changed abcd"}));
}

TEST_F(FEditableTextBoxTest, LeavesLineBreaksOutOfWhatIsPasted)
{
	Paste(TEXT("one\r\ntwo\nthree"));
	EXPECT_TRUE(Shows(TEXT("onetwothree")));
}

TEST_F(FEditableTextBoxTest, TakesAPasteOfAHundredThousandCharacters)
{
	FString Long;
	for (int32 Index = 0; Index < 100000; ++Index)
	{
		Long.AppendChar(TEXT('x'));
	}
	Paste(*Long);
	EXPECT_EQ(Box->GetText().ToString().Len(), 100000);
	EXPECT_EQ(Log.size(), 1u);
}

TEST_F(FEditableTextBoxTest, SetsItsTextWithoutAnEvent)
{
	Box->SetText(FText::FromString(TEXT("set")));
	EXPECT_TRUE(Shows(TEXT("set")));
	EXPECT_TRUE(Log.empty());
}

TEST_F(FEditableTextBoxTest, CommitsOnceByEnterAndGivesUpTheFocus)
{
	Type(TEXT("a"));
	EXPECT_TRUE(KeyDown(EKeys::Enter));
	EXPECT_EQ(Log, (FLog{"changed a", "committed a by enter"}));
	EXPECT_FALSE(App().GetKeyboardFocusedWidget().IsValid());
}

TEST_F(FEditableTextBoxTest, KeepsTheFocusAfterEnterWhenToldSo)
{
	const TSharedRef<SEditableTextBox> Keeper = SNew(SEditableTextBox).ClearKeyboardFocusOnCommit(false);
	App().SetKeyboardFocus(Keeper);
	KeyDown(EKeys::Enter);
	EXPECT_TRUE(HasFocus(Keeper));
}

TEST_F(FEditableTextBoxTest, ChangesThenCommitsThenTheButtonClicks)
{
	Type(TEXT("a"));
	Click(Button.ToSharedRef());
	EXPECT_EQ(Log, (FLog{"changed a", "committed a by moved", "clicked"}));
}

TEST_F(FEditableTextBoxTest, CommitsWhenTheMouseGoesDownAlready)
{
	MouseDown(Button.ToSharedRef());
	EXPECT_EQ(Log, (FLog{"committed  by moved"}));
}

TEST_F(FEditableTextBoxTest, CommitsOnceALossWhetherAnythingWasTypedOrNot)
{
	Click(Button.ToSharedRef());
	Click(Button.ToSharedRef());
	App().SetKeyboardFocus(Box);
	Click(Button.ToSharedRef());
	EXPECT_EQ(Log, (FLog{"committed  by moved", "clicked", "clicked", "committed  by moved", "clicked"}));
}

TEST_F(FEditableTextBoxTest, DoesNotCommitAgainWhenTheHandlerClearsTheFocus)
{
	FLog Commits;
	const TSharedRef<SEditableTextBox> Eager = SNew(SEditableTextBox)
												   .OnTextCommitted_Lambda(
													   [&Commits](const FText& /*Text*/, ETextCommit::Type /*Type*/)
													   {
														   Commits.push_back("committed");
														   App().ClearKeyboardFocus(EFocusCause::Cleared);
													   });
	App().SetKeyboardFocus(Eager);
	App().SetKeyboardFocus(Box);
	EXPECT_EQ(Commits.size(), 1u);
	EXPECT_FALSE(App().GetKeyboardFocusedWidget().IsValid());
}

TEST_F(FEditableTextBoxTest, CommitsByTabbingAway)
{
	Type(TEXT("a"));
	KeyDown(EKeys::Tab);
	EXPECT_EQ(Log, (FLog{"changed a", "committed a by moved"}));
	EXPECT_TRUE(HasFocus(Button.ToSharedRef()));
}

TEST_F(FEditableTextBoxTest, CommitsByAClickOnNothingThatTakesTheFocus)
{
	MouseDown(Root.ToSharedRef());
	EXPECT_EQ(Log, (FLog{"committed  by moved"}));
	EXPECT_FALSE(App().GetKeyboardFocusedWidget().IsValid());
}

TEST_F(FEditableTextBoxTest, KeepsTheFocusWhenItIsClickedAgain)
{
	Click(Box.ToSharedRef());
	EXPECT_TRUE(Log.empty());
	EXPECT_TRUE(HasFocus(Box.ToSharedRef()));
}

TEST_F(FEditableTextBoxTest, CommitsAsClearedWhenCodeTakesTheFocus)
{
	App().ClearKeyboardFocus(EFocusCause::Cleared);
	EXPECT_EQ(Log, (FLog{"committed  by cleared"}));
}

TEST_F(FEditableTextBoxTest, CommitsWhenItIsCollapsed)
{
	Box->SetVisibility(EVisibility::Collapsed);
	App().Tick();
	EXPECT_EQ(Log, (FLog{"committed  by default"}));
}

TEST_F(FEditableTextBoxTest, KeepsTextAndFocusOnEscape)
{
	Type(TEXT("a"));
	EXPECT_FALSE(KeyDown(EKeys::Escape));
	EXPECT_TRUE(Shows(TEXT("a")));
	EXPECT_TRUE(HasFocus(Box.ToSharedRef()));
}

TEST_F(FEditableTextBoxTest, GetsNoKeysWithoutTheFocus)
{
	App().ClearKeyboardFocus();
	Log.clear();
	Type(TEXT("a"));
	EXPECT_TRUE(Log.empty());
}

TEST_F(FEditableTextBoxTest, LetsTheHandlerOfAChangeSetAnotherText)
{
	TSharedPtr<SEditableTextBox> Changer;
	SAssignNew(Changer, SEditableTextBox)
		.OnTextChanged_Lambda(
			[&Changer](const FText& /*Text*/) { Changer->SetText(FText::FromString(TEXT("fixed"))); });
	App().SetKeyboardFocus(Changer);
	TypeUnit(TEXT('x'));
	EXPECT_TRUE(Changer->GetText().ToString().Equals(TEXT("fixed")));
}

TEST_F(FEditableTextBoxTest, StartsWithItsTextArgument)
{
	const TSharedRef<SEditableTextBox> Filled = SNew(SEditableTextBox).Text(FText::FromString(TEXT("first")));
	EXPECT_TRUE(Filled->GetText().ToString().Equals(TEXT("first")));
}

TEST_F(FEditableTextBoxTest, FollowsABoundTextUnlessSomethingIsTyped)
{
	FText Bound = FText::FromString(TEXT("one"));
	FText Committed;
	const TSharedRef<SEditableTextBox> Follower =
		SNew(SEditableTextBox)
			.Text_Lambda([&Bound]() { return Bound; })
			.OnTextCommitted_Lambda([&](const FText& Text, ETextCommit::Type) { Committed = Text; });
	const auto Shown = [&Follower]() { return std::string(TCHAR_TO_UTF8(*Follower->GetText().ToString())); };
	Bound = FText::FromString(TEXT("two"));
	EXPECT_EQ(Shown(), "two");
	Follower->SlatePrepass(1.0f);
	const float Narrow = Follower->GetDesiredSize().X;
	Bound = FText::FromString(TEXT("two and more"));
	Follower->SlatePrepass(1.0f);
	EXPECT_GT(Follower->GetDesiredSize().X, Narrow);
	App().SetKeyboardFocus(Follower);
	Bound = FText::FromString(TEXT("three"));
	TypeUnit(8);
	EXPECT_EQ(Shown(), "thre");
	Type(TEXT("w"));
	Bound = FText::FromString(TEXT("four"));
	EXPECT_EQ(Shown(), "threw");
	// What nobody took over is gone with the commit.
	KeyDown(EKeys::Enter);
	EXPECT_TRUE(Committed.ToString().Equals(TEXT("threw")));
	EXPECT_EQ(Shown(), "four");
	App().SetKeyboardFocus(Follower);
	Type(TEXT("!"));
	App().ClearKeyboardFocus(EFocusCause::Mouse);
	EXPECT_TRUE(Committed.ToString().Equals(TEXT("four!")));
	EXPECT_EQ(Shown(), "four");
	Follower->SetText(FText::FromString(TEXT("fixed")));
	EXPECT_EQ(Shown(), "fixed");
}

TEST_F(FEditableTextBoxTest, IsAtLeastAsWideAsItsMinimumAndTheFrame)
{
	const TSharedRef<SEditableTextBox> Wide = SNew(SEditableTextBox).MinDesiredWidth(300);
	Wide->SlatePrepass(1.0f);
	EXPECT_EQ(Wide->GetDesiredSize(), FVector2D(308.0f, 18.0f));
}

TEST_F(FEditableTextBoxTest, GrowsWithItsText)
{
	Type(TEXT("some text"));
	Box->SlatePrepass(1.0f);
	const float TextWidth = App()
								.GetRenderer()
								->GetFontMeasureService()
								->Measure(Box->GetText(), FCoreStyle::GetDefaultFontStyle("Regular", 9))
								.X;
	EXPECT_FLOAT_EQ(Box->GetDesiredSize().X, TextWidth + 8.0f);
}

namespace
{
	/** One step of a user at the box. */
	struct FEdit
	{
		enum EKind
		{
			TypeCharacter,
			Backspace,
			SelectAll,
			PasteText,
		};
		EKind Kind;
		std::u32string Text;
	};

	std::u16string ToUtf16(const std::u32string& Text)
	{
		std::u16string Result;
		for (const char32_t CodePoint : Text)
		{
			if (CodePoint >= 0x10000)
			{
				Result.push_back(static_cast<char16_t>(0xd7c0 + (CodePoint >> 10)));
				Result.push_back(static_cast<char16_t>(0xdc00 + (CodePoint & 0x3ff)));
			}
			else
			{
				Result.push_back(static_cast<char16_t>(CodePoint));
			}
		}
		return Result;
	}

	/** What the box should hold, in code points. */
	struct FModelBox
	{
		void Apply(const FEdit& Edit)
		{
			const std::u32string Before = Text;
			if (Edit.Kind == FEdit::SelectAll)
			{
				bSelected = true;
				return;
			}
			if (bSelected)
			{
				Text.clear();
			}
			if (Edit.Kind == FEdit::Backspace && !bSelected && !Text.empty())
			{
				Text.pop_back();
			}
			else if (Edit.Kind != FEdit::Backspace)
			{
				Text += Edit.Text;
			}
			bSelected = false;
			Changes += Text == Before ? 0 : 1;
		}

		std::u32string Text;
		bool bSelected = false;
		size_t Changes = 0;
	};

	rc::Gen<FEdit> GenerateEdit()
	{
		const auto CodePoint = rc::gen::element<char32_t>(U'a', U' ', U'\u00e4', U'\u6620', U'\U0001F3A5');
		return rc::gen::mapcat(rc::gen::inRange(0, 6),
			[CodePoint](int Kind)
			{
				const FEdit::EKind EditKind = Kind < 3 ? FEdit::TypeCharacter : static_cast<FEdit::EKind>(Kind - 2);
				const auto Text = EditKind == FEdit::TypeCharacter ? rc::gen::container<std::u32string>(1, CodePoint)
																   : rc::gen::container<std::u32string>(CodePoint);
				return rc::gen::map(Text, [EditKind](const std::u32string& Value) { return FEdit{EditKind, Value}; });
			});
	}
}

RC_GTEST_FIXTURE_PROP(FEditableTextBoxTest, EditsLikeAPlainModel, ())
{
	FModelBox Model;
	for (const FEdit& Edit : *rc::gen::container<std::vector<FEdit>>(GenerateEdit()))
	{
		const std::u16string Units = ToUtf16(Edit.Text);
		switch (Edit.Kind)
		{
			case FEdit::TypeCharacter:
				Type(FString(static_cast<int32>(Units.size()), Units.data()));
				break;
			case FEdit::Backspace:
				TypeUnit(8);
				break;
			case FEdit::SelectAll:
				KeyDown(EKeys::A, false, true);
				break;
			case FEdit::PasteText:
				Paste(Units.c_str());
				break;
		}
		Model.Apply(Edit);
		RC_ASSERT(std::u16string(*Box->GetText().ToString()) == ToUtf16(Model.Text));
		RC_ASSERT(Log.size() == Model.Changes);
	}
}
