// Copyright Corvane. MIT License.
#include "CoreMinimal.h"

#include "Layout/ArrangedChildren.h"
#include "Layout/Children.h"
#include "Layout/Geometry.h"
#include "Misc/AutomationTest.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SEditableTextBox.h"
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
	/** The box's children as they stand in a column of 300 with the height that the box wants. */
	FArrangedChildren Arrange(int32 Box) const
	{
		const TSharedRef<SWidget> Widget = GetBox(Box);
		// From the column's box on, whose width is what the texts wrap at.
		User->FindAll(TEXT("SBox"))[0]->SlatePrepass(1.0f);
		FArrangedChildren Arranged(EVisibility::All);
		Widget->ArrangeChildren(
			FGeometry::MakeRoot(FVector2D(300.0f, Widget->GetDesiredSize().Y), FSlateLayoutTransform()), Arranged);
		return Arranged;
	}
	static float GetTop(const FArrangedWidget& Widget)
	{
		return Widget.Geometry.GetAbsolutePosition().Y;
	}
	static float GetBottom(const FArrangedWidget& Widget)
	{
		return GetTop(Widget) + Widget.Geometry.GetLocalSize().Y;
	}
	/** The space between a child and the next one, or the box's end. */
	void TestSpaceBelow(int32 Box, int32 Index, float Expected)
	{
		const FArrangedChildren Children = Arrange(Box);
		const float Next = Index + 1 < Children.Num() ? GetTop(Children[Index + 1]) : GetBox(Box)->GetDesiredSize().Y;
		TestEqual("space", Next - GetBottom(Children[Index]), Expected, 0.01f);
	}
	void TestIsCentred(int32 Box, int32 Index)
	{
		const FArrangedChildren Children = Arrange(Box);
		const FGeometry& Child = Children[Index].Geometry;
		TestEqual("middle", Child.GetAbsolutePosition().X + Child.GetLocalSize().X / 2.0f, 150.0f, 0.51f);
		TestTrue("narrower than the column", Child.GetLocalSize().X < 300.0f);
	}
	void TestFillsTheWidth(int32 Box, int32 Index)
	{
		const FArrangedChildren Children = Arrange(Box);
		TestEqual("width", Children[Index].Geometry.GetLocalSize().X, 300.0f, 0.01f);
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

	Describe("On opening, the page",
		[this]()
		{
			It("should show header, label, empty box and create button, and collapse the done page",
				[this]()
				{
					TestTrue("picture", User->IsShown(GetChild(Header, 0)));
					TestTrue("title", User->IsShown(User->GetTitle()));
					TestTrue("description", User->IsShown(User->GetDescription()));
					TestTrue("label", User->IsShown(User->GetNameLabel()));
					TestTrue("box", User->IsShown(User->GetNameBox()));
					TestTrue("caption", User->IsShown(User->GetCreateCaption()));
					TestTrue("creator page", GetBox(CreatorPage)->GetVisibility() == EVisibility::Visible);
					TestTrue("done page", GetBox(DonePage)->GetVisibility() == EVisibility::Collapsed);
				});

			It("should collapse the creator page after a creation",
				[this]()
				{
					User->Create(TEXT("Main"));
					TestTrue("creator page", GetBox(CreatorPage)->GetVisibility() == EVisibility::Collapsed);
					TestTrue("done page", GetBox(DonePage)->GetVisibility() == EVisibility::Visible);
				});
		});

	Describe("The column",
		[this]()
		{
			It("should stand in a scroll box",
				[this]() { TestIsType(User->GetWizard()->GetChildren()->GetChildAt(0), TEXT("SScrollBox")); });

			It("should be 300 wide, whatever its texts want",
				[this]()
				{
					const TSharedRef<SWidget> Box = User->FindAll(TEXT("SBox"))[0];
					Box->SlatePrepass(1.0f);
					TestEqual("width", Box->GetDesiredSize().X, 300.0f);
				});

			It("should stay 300 wide with a long stream name",
				[this]()
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

			It("should stay 300 wide with a long stream name on the done page",
				[this]()
				{
					FString Long;
					for (int32 Index = 0; Index < 200; ++Index)
					{
						Long.AppendChar(TEXT('W'));
					}
					User->Create(Long);
					TestFalse("creator page", User->IsCreatorPageShown());
					const TSharedRef<SWidget> Box = User->FindAll(TEXT("SBox"))[0];
					Box->SlatePrepass(1.0f);
					TestEqual("width", Box->GetDesiredSize().X, 300.0f);
				});

			It("should hold the header above the pages",
				[this]()
				{
					TestEqual("slots", GetBox(Column)->GetChildren()->Num(), 2);
					TestIsType(GetChild(Column, 0), TEXT("SVerticalBox"));
					TestIsType(GetChild(Column, 1), TEXT("SOverlay"));
				});

			It("should leave 50 below the header", [this]() { TestSpaceBelow(Column, 0, 50.0f); });

			It("should lay the creator page and the done page over each other",
				[this]()
				{
					const TSharedRef<SWidget> Pages = GetChild(Column, 1);
					TestEqual("pages", Pages->GetChildren()->Num(), 2);
					TestTrue("creator page first", Pages->GetChildren()->GetChildAt(0) == GetBox(CreatorPage));
					TestTrue("done page second", Pages->GetChildren()->GetChildAt(1) == GetBox(DonePage));
				});
		});

	Describe("The header",
		[this]()
		{
			It("should show the wizard's picture, the title and the description",
				[this]()
				{
					TestEqual("slots", GetBox(Header)->GetChildren()->Num(), 3);
					TestIsType(GetChild(Header, 0), TEXT("SImage"));
					TestTrue("title", GetChild(Header, 1) == User->GetTitle());
					TestTrue("description", GetChild(Header, 2) == User->GetDescription());
				});

			It("should space its parts",
				[this]()
				{
					TestSpaceBelow(Header, 0, 30.0f);
					TestSpaceBelow(Header, 1, 15.0f);
					TestSpaceBelow(Header, 2, 0.0f);
				});

			It("should centre its parts",
				[this]()
				{
					TestIsCentred(Header, 0);
					TestIsCentred(Header, 1);
					TestIsCentred(Header, 2);
				});

			It("should show its picture at 128",
				[this]()
				{
					GetChild(Header, 0)->SlatePrepass(1.0f);
					TestTrue("size", GetChild(Header, 0)->GetDesiredSize() == FVector2D(128.0f, 128.0f));
				});

			It("should title itself",
				[this]()
				{
					TestEqual("text", DescribeText(User->GetTitle()->GetText()),
						FString(TEXT("CineStreamWizard,Title,Instant Cinestream Wizard")));
				});

			It("should describe itself",
				[this]()
				{
					TestEqual("text", DescribeText(User->GetDescription()->GetText()),
						FString(TEXT(
							"CineStreamWizard,Description,Instantly set up an ZAV Cine Cam Capture and Spout Sender "
							"Manager to live stream directly from Unreal to Spout (OBS Studio, Resolume etc.).")));
				});

			It("should wrap its description within the column",
				[this]()
				{
					const TSharedRef<SWidget> Box = User->FindAll(TEXT("SBox"))[0];
					Box->SlatePrepass(1.0f);
					const FVector2D Size = User->GetDescription()->GetDesiredSize();
					TestTrue("width", Size.X > 0.0f && Size.X <= 300.0f);
					TestTrue("more than one line", Size.Y > 1.5f * User->GetNameLabel()->GetDesiredSize().Y);
				});
		});

	Describe("The creator page",
		[this]()
		{
			It("should show the label, the name box, the warning line and the create button",
				[this]()
				{
					TestEqual("slots", GetBox(CreatorPage)->GetChildren()->Num(), 4);
					TestTrue("label", GetChild(CreatorPage, 0) == User->GetNameLabel());
					TestTrue("name box", GetChild(CreatorPage, 1) == User->GetNameBox());
					TestTrue("warning", GetChild(CreatorPage, 2) == User->GetWarning());
					TestTrue("button", GetChild(CreatorPage, 3) == User->GetCreateButton());
				});

			It("should space its parts",
				[this]()
				{
					TestSpaceBelow(CreatorPage, 0, 10.0f);
					TestSpaceBelow(CreatorPage, 1, 5.0f);
					TestSpaceBelow(CreatorPage, 2, 0.0f);
					TestSpaceBelow(CreatorPage, 3, 0.0f);
				});

			It("should use the whole width for the box and the button",
				[this]()
				{
					TestFillsTheWidth(CreatorPage, 1);
					TestFillsTheWidth(CreatorPage, 3);
				});

			It("should label the name box",
				[this]()
				{
					TestEqual("text", DescribeText(User->GetNameLabel()->GetText()),
						FString(TEXT("CineStreamWizard,StreamName_Label,Cinestream Name:")));
				});

			It("should ask for a name box of 300",
				[this]()
				{
					User->GetNameBox()->SlatePrepass(1.0f);
					TestTrue("width", User->GetNameBox()->GetDesiredSize().X >= 300.0f);
				});

			It("should keep its height when the warning shows",
				[this]()
				{
					GetBox(CreatorPage)->SlatePrepass(1.0f);
					const float Before = GetBox(CreatorPage)->GetDesiredSize().Y;
					User->Type(TEXT(" "));
					GetBox(CreatorPage)->SlatePrepass(1.0f);
					TestTrue("warning shown", User->IsShown(User->GetWarning()));
					TestEqual("height", GetBox(CreatorPage)->GetDesiredSize().Y, Before);
				});

			It("should caption the create button",
				[this]()
				{
					TestEqual("text", DescribeText(User->GetCreateCaption()->GetText()),
						FString(TEXT("CineStreamWizard,Button_Label,Create Instant Cinestream Output")));
				});
		});

	Describe("The done page",
		[this]()
		{
			It("should show the message above its button",
				[this]()
				{
					TestEqual("slots", GetBox(DonePage)->GetChildren()->Num(), 2);
					TestTrue("message", GetChild(DonePage, 0) == User->GetDoneMessage());
					TestTrue("button", GetChild(DonePage, 1) == User->GetDoneButton());
				});

			It("should space its parts",
				[this]()
				{
					User->Create(TEXT("Main"));
					TestSpaceBelow(DonePage, 0, 20.0f);
					TestSpaceBelow(DonePage, 1, 0.0f);
				});

			It("should centre the message and use the whole width for the button",
				[this]()
				{
					User->Create(TEXT("Main"));
					TestIsCentred(DonePage, 0);
					TestFillsTheWidth(DonePage, 1);
				});

			It("should have no texts before the first creation",
				[this]()
				{
					TestTrue("message", User->GetDoneMessage()->GetText().IsEmpty());
					TestTrue("caption", User->GetDoneCaption()->GetText().IsEmpty());
				});
		});
}

#endif
