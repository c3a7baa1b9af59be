// Copyright Corvane. MIT License.
#include "WizardFixture.h"

#include "Framework/Docking/TabManager.h"
#include "Widgets/Docking/SDockTab.h"
#include "ZAVTelemetry.h"

// How often the wizard was opened, by the reference module's counter.

class FWizardTelemetry : public FWizardFixture
{
protected:
	static void CloseTab()
	{
		FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId("CineStreamWizard"))->RequestCloseTab();
	}
	int32 CountOpenings() const { return ZAVTelemetry::GetWizardEditorOpenedCount() - Before; }

	int32 Before = ZAVTelemetry::GetWizardEditorOpenedCount();
};

TEST_F(FWizardTelemetry, CountsEachWizardThatIsMade)
{
	OpenWizard();
	EXPECT_EQ(CountOpenings(), 1);
	CloseTab();
	Wizard.Reset();
	Pages.reset();
	OpenWizard();
	EXPECT_EQ(CountOpenings(), 2);
}

TEST_F(FWizardTelemetry, DoesNotCountAWizardThatIsShownAgain)
{
	OpenWizard();
	const TSharedPtr<SWidget> Held = Wizard;
	CloseTab();
	OpenWizard();
	EXPECT_TRUE(Wizard == Held);
	EXPECT_EQ(CountOpenings(), 1);
}

TEST_F(FWizardTelemetry, DoesNotCountACreation)
{
	Create("Main");
	EXPECT_EQ(CountOpenings(), 1);
}
