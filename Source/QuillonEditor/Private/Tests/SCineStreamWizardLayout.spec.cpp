// Copyright Corvane. MIT License.
#include "CoreMinimal.h"

#include "Layout/Children.h"
#include "Misc/AutomationTest.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

#include "WizardUser.h"

#if WITH_DEV_AUTOMATION_TESTS

BEGIN_DEFINE_SPEC(FCineStreamWizardLayoutSpec, "Quillon.Wizard.Layout",
	EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter)
	TUniquePtr<FWizardUser> User;

	/** The vertical boxes in tree order: column, header, creator page, done page. */
	TSharedRef<SWidget> GetBox(int32 Index) const
	{
		return User->FindAll(TEXT("SVerticalBox"))[Index];
	}
	const SBoxPanel::FSlot& GetSlot(int32 Box, int32 Index) const
	{
		return static_cast<const SBoxPanel::FSlot&>(GetBox(Box)->GetChildren()->GetSlotAt(Index));
	}
	void TestSlot(int32 Box, int32 Index, bool bAuto, EHorizontalAlignment HAlign, const FMargin& Padding)
	{
		const SBoxPanel::FSlot& Slot = GetSlot(Box, Index);
		TestEqual("auto height", Slot.SizeParam.SizeRule == FSizeParam::SizeRule_Auto, bAuto);
		TestTrue("horizontal alignment", Slot.HAlignment == HAlign);
		TestTrue("vertical alignment", Slot.VAlignment == VAlign_Fill);
		TestTrue("padding", Slot.SlotPadding.Get() == Padding);
	}
	void TestFont(const TSharedRef<STextBlock>& Text, const TCHAR* Typeface, int32 Size)
	{
		TestEqual("typeface", Text->GetFont().TypefaceFontName, FName(Typeface));
		TestTrue("size", Text->GetFont().Size == Size);
	}
	void TestIsType(const TSharedRef<SWidget>& Widget, const TCHAR* Type)
	{
		TestEqual("type", Widget->GetType(), FName(Type));
	}
	TSharedRef<SWidget> GetChild(int32 Box, int32 Index) const
	{
		return GetBox(Box)->GetChildren()->GetChildAt(Index);
	}

	enum EBox
	{
		Column,
		Header,
		CreatorPage,
		DonePage,
	};
END_DEFINE_SPEC(FCineStreamWizardLayoutSpec)

void FCineStreamWizardLayoutSpec::Define()
{
	BeforeEach([this]() { User = MakeUnique<FWizardUser>(); });
	AfterEach([this]() { User.Reset(); });

	Describe("The column", [this]()
	{
		It("should stand in a scroll box", [this]()
		{ TestIsType(User->GetWizard()->GetChildren()->GetChildAt(0), TEXT("SScrollBox")); });

		It("should be 300 wide, whatever its texts want", [this]()
		{
			const TSharedRef<SWidget> Box = User->FindAll(TEXT("SBox"))[0];
			Box->SlatePrepass(1.0f);
			TestEqual("width", Box->GetDesiredSize().X, 300.0f);
		});

		It("should stay 300 wide with a long stream name", [this]()
		{
			FString Long;
			for (int32 Index = 0; Index < 200; ++Index)
			{
				Long.AppendChar(TEXT('W'));
			}
			User->Type(Long);
			const TSharedRef<SWidget> Box = User->FindAll(TEXT("SBox"))[0];
			Box->SlatePrepass(1.0f);
			TestEqual("width", Box->GetDesiredSize().X, 300.0f);
		});

		It("should hold the header above the pages", [this]()
		{
			TestEqual("slots", GetBox(Column)->GetChildren()->Num(), 2);
			TestIsType(GetChild(Column, 0), TEXT("SVerticalBox"));
			TestIsType(GetChild(Column, 1), TEXT("SOverlay"));
		});

		It("should leave 50 below the header", [this]()
		{ TestSlot(Column, 0, true, HAlign_Fill, FMargin(0.0f, 0.0f, 0.0f, 50.0f)); });

		It("should give the pages the rest of the height", [this]()
		{ TestSlot(Column, 1, false, HAlign_Fill, FMargin(0.0f)); });

		It("should lay the creator page and the done page over each other", [this]()
		{
			const TSharedRef<SWidget> Pages = GetChild(Column, 1);
			TestEqual("pages", Pages->GetChildren()->Num(), 2);
			TestTrue("creator page first", Pages->GetChildren()->GetChildAt(0) == GetBox(CreatorPage));
			TestTrue("done page second", Pages->GetChildren()->GetChildAt(1) == GetBox(DonePage));
		});
	});

	Describe("The header", [this]()
	{
		It("should show the wizard's picture, the title and the description", [this]()
		{
			TestEqual("slots", GetBox(Header)->GetChildren()->Num(), 3);
			TestIsType(GetChild(Header, 0), TEXT("SImage"));
			TestTrue("title", GetChild(Header, 1) == User->GetTitle());
			TestTrue("description", GetChild(Header, 2) == User->GetDescription());
		});

		It("should space its slots", [this]()
		{
			TestSlot(Header, 0, false, HAlign_Center, FMargin(0.0f, 0.0f, 0.0f, 30.0f));
			TestSlot(Header, 1, true, HAlign_Center, FMargin(0.0f, 0.0f, 0.0f, 15.0f));
			TestSlot(Header, 2, true, HAlign_Center, FMargin(0.0f));
		});

		It("should show its picture at 128", [this]()
		{
			GetChild(Header, 0)->SlatePrepass(1.0f);
			TestTrue("size", GetChild(Header, 0)->GetDesiredSize() == FVector2D(128.0f, 128.0f));
		});

		It("should title itself", [this]()
		{
			TestEqual("text", DescribeText(User->GetTitle()->GetText()),
				FString(TEXT("CineStreamWizard,Title,Instant Cinestream Wizard")));
			TestFont(User->GetTitle(), TEXT("Regular"), 19);
		});

		It("should describe itself", [this]()
		{
			TestEqual("text", DescribeText(User->GetDescription()->GetText()),
				FString(TEXT("CineStreamWizard,Description,Instantly set up an ZAV Cine Cam Capture and Spout Sender "
							 "Manager to live stream directly from Unreal to Spout (OBS Studio, Resolume etc.).")));
			TestFont(User->GetDescription(), TEXT("Regular"), 10);
		});

		It("should wrap its description within the column", [this]()
		{
			const TSharedRef<SWidget> Box = User->FindAll(TEXT("SBox"))[0];
			Box->SlatePrepass(1.0f);
			const FVector2D Size = User->GetDescription()->GetDesiredSize();
			TestTrue("width", Size.X > 0.0f && Size.X <= 300.0f);
			TestTrue("more than one line", Size.Y > 1.5f * User->GetNameLabel()->GetDesiredSize().Y);
		});
	});

	Describe("The creator page", [this]()
	{
		It("should show the label, the name box, the warning line and the create button", [this]()
		{
			TestEqual("slots", GetBox(CreatorPage)->GetChildren()->Num(), 4);
			TestTrue("label", GetChild(CreatorPage, 0) == User->GetNameLabel());
			TestTrue("name box", GetChild(CreatorPage, 1) == User->GetNameBox());
			TestTrue("warning", GetChild(CreatorPage, 2) == User->GetWarning());
			TestTrue("button", GetChild(CreatorPage, 3) == User->GetCreateButton());
		});

		It("should space its slots", [this]()
		{
			TestSlot(CreatorPage, 0, true, HAlign_Fill, FMargin(0.0f, 0.0f, 0.0f, 10.0f));
			TestSlot(CreatorPage, 1, true, HAlign_Fill, FMargin(0.0f));
			TestSlot(CreatorPage, 2, true, HAlign_Fill, FMargin(0.0f, 5.0f, 0.0f, 0.0f));
			TestSlot(CreatorPage, 3, true, HAlign_Fill, FMargin(0.0f));
		});

		It("should label the name box", [this]()
		{
			TestEqual("text", DescribeText(User->GetNameLabel()->GetText()),
				FString(TEXT("CineStreamWizard,StreamName_Label,Cinestream Name:")));
			TestFont(User->GetNameLabel(), TEXT("Regular"), 10);
		});

		It("should ask for a name box of 300", [this]()
		{
			User->GetNameBox()->SlatePrepass(1.0f);
			TestTrue("width", User->GetNameBox()->GetDesiredSize().X >= 300.0f);
		});

		It("should warn in small red italics", [this]()
		{
			TestFont(User->GetWarning(), TEXT("Italic"), 8);
			TestTrue("colour", User->GetWarning()->GetColorAndOpacity().GetSpecifiedColor() == FLinearColor::Red);
		});

		It("should keep its height when the warning shows", [this]()
		{
			GetBox(CreatorPage)->SlatePrepass(1.0f);
			const float Before = GetBox(CreatorPage)->GetDesiredSize().Y;
			User->Type(TEXT(" "));
			GetBox(CreatorPage)->SlatePrepass(1.0f);
			TestTrue("warning shown", User->IsShown(User->GetWarning()));
			TestEqual("height", GetBox(CreatorPage)->GetDesiredSize().Y, Before);
		});

		It("should caption the create button", [this]()
		{
			TestEqual("text", DescribeText(User->GetCreateCaption()->GetText()),
				FString(TEXT("CineStreamWizard,Button_Label,Create Instant Cinestream Output")));
		});
	});

	Describe("The done page", [this]()
	{
		It("should show the message above its button", [this]()
		{
			TestEqual("slots", GetBox(DonePage)->GetChildren()->Num(), 2);
			TestTrue("message", GetChild(DonePage, 0) == User->GetDoneMessage());
			TestTrue("button", GetChild(DonePage, 1) == User->GetDoneButton());
		});

		It("should space its slots", [this]()
		{
			TestSlot(DonePage, 0, true, HAlign_Center, FMargin(0.0f, 0.0f, 0.0f, 20.0f));
			TestSlot(DonePage, 1, true, HAlign_Fill, FMargin(0.0f));
		});

		It("should have no texts before the first creation", [this]()
		{
			TestTrue("message", User->GetDoneMessage()->GetText().IsEmpty());
			TestTrue("caption", User->GetDoneCaption()->GetText().IsEmpty());
		});

		It("should write its message at 12", [this]() { TestFont(User->GetDoneMessage(), TEXT("Regular"), 12); });
	});
}

#endif
