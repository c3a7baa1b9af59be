// Copyright Corvane. MIT License.
#include "WizardFixture.h"

#include "AssetToolsFault.h"

#include "Editor.h"
#include "LevelEditorViewport.h"
#include "NullViewport.h"
#include "Modules/ModuleManager.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Text/STextBlock.h"

/** An editor whose asset tools make nothing. */
class FWizardWithoutAssets : public FWizardFixture
{
protected:
	FAssetToolsFault Fault{FAssetToolsFault::EKind::ReturnNull};
};

/** An editor whose asset tools make an asset of another class than was asked for. */
class FWizardWithWrongAssets : public FWizardFixture
{
protected:
	FAssetToolsFault Fault{FAssetToolsFault::EKind::ReturnOtherClass};
};

TEST_F(FWizardWithoutAssets, ShowsTheFailurePageWhenNoAssetIsMade)
{
	EXPECT_EQ(Create("Main"), "ERROR: Failed to create Cinestream 'Main'!");
	EXPECT_TRUE(HasButton("Try Again"));
	ExpectNoActors();
}

TEST_F(FWizardWithoutAssets, ShowsTheFailureInRed)
{
	Create("Main");
	const TArray<TSharedRef<STextBlock>> Texts = FWidgetFinder(Wizard.ToSharedRef()).GetTexts();
	EXPECT_TRUE(Texts.Last()->GetColorAndOpacity().GetSpecifiedColor() == FLinearColor::Red);
}

TEST_F(FWizardWithWrongAssets, ShowsTheFailurePageAndLeavesTheAssetAsItIs)
{
	EXPECT_EQ(Create("Main"), "ERROR: Failed to create Cinestream 'Main'!");
	ExpectNoActors();
	EXPECT_EQ(GetAssetPackages(), std::vector<std::string>{"/Game/CineStream/Main"});
}

TEST_F(FWizardWithoutAssets, ReturnsFromAFailureWithAnEmptyNameAndAFullBox)
{
	Create("Main");
	Click("Try Again");
	ASSERT_TRUE(HasButton("Create Instant Cinestream Output"));
	EXPECT_TRUE(FWidgetFinder(Wizard.ToSharedRef()).GetEditBoxes()[0]->GetText().ToString().Equals("Main"));
	// Create at once: nothing commits, so the name is still empty while the box shows it.
	Click("Create Instant Cinestream Output");
	EXPECT_EQ(GetWarning(), "! Stream Name cannot be empty.");
	EXPECT_TRUE(HasButton("Create Instant Cinestream Output"));
}

TEST_F(FWizardWithoutAssets, DoesNotLookForAManagerAfterAFailure)
{
	AActor* Manager = PlaceManager(World(0), TEXT("A"), TEXT("A_Standalone"));
	Create("Main");
	EXPECT_EQ(GetSenders(Manager), std::vector<std::string>{"A|A_Standalone"});
}

class FWizardWithoutViewport : public FWizardFixture
{};

TEST_F(FWizardWithoutViewport, ShowsTheFailurePageWhenThereIsNoActiveViewport)
{
	GEditor->SetActiveViewport(nullptr);
	EXPECT_EQ(Create("Main"), "ERROR: Failed to create Cinestream 'Main'!");
	EXPECT_TRUE(HasButton("Try Again"));
	EXPECT_TRUE(GetAssetPackages().empty());
	ExpectNoActors();
}

TEST_F(FWizardWithoutViewport, ShowsTheFailurePageWhenNoClientShowsTheActiveViewport)
{
	FNullViewport Stranger;
	GEditor->SetActiveViewport(&Stranger);
	EXPECT_EQ(Create("Main"), "ERROR: Failed to create Cinestream 'Main'!");
	EXPECT_TRUE(GetAssetPackages().empty());
	ExpectNoActors();
	GEditor->SetActiveViewport(nullptr);
}

TEST_F(FWizardWithoutViewport, TakesTheFirstOfTwoClientsThatShareTheActiveViewport)
{
	FEditorViewportClient& Second = Editor.AddClient(*World(1));
	FViewport* const Own = Second.Viewport;
	Second.Viewport = Editor.Get().GetLevelClient().Viewport;
	Create("Main");
	EXPECT_EQ(GetActors(World(0), TEXT("ZAVCineCamCapture")).Num(), 1);
	Second.Viewport = Own;
}

TEST_F(FWizardWithoutViewport, IsFatalToCreateInWithoutAssetTools)
{
	OpenWizard();
	Pages->EnterName("Main");
	EXPECT_EXIT(
		{
			const FAssetToolsFault Fault(FAssetToolsFault::EKind::MissingModule);
			Pages->PressButton();
		},
		::testing::ExitedWithCode(3), "AssetTools");
}

TEST_F(FWizardWithoutViewport, IsFatalToTypeInWithoutAnyViewportClient)
{
	OpenWizard();
	EXPECT_EXIT(
		{
			GEditor->RemoveViewportClients(&Editor.Get().GetLevelClient());
			Pages->EnterName("Main");
		},
		::testing::ExitedWithCode(3), "Array index out of bounds: 0 from an array of size 0");
}

TEST_F(FWizardWithoutViewport, IsFatalToCreateInWithoutAnAssetRegistry)
{
	OpenWizard();
	Pages->EnterName("Main");
	EXPECT_EXIT(
		{
			FModuleManager::Get().UnloadModule("AssetRegistry");
			Pages->PressButton();
		},
		::testing::ExitedWithCode(3), "Assertion failed: AssetRegistry \\[File:Source/QuillonEditor/Private/");
}
