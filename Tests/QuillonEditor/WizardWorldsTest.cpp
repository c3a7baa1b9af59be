// Copyright Corvane. MIT License.
#include "WizardFixture.h"

#include "LevelEditorViewport.h"
#include "UObject/Package.h"

/** A second viewport, on the second world, which is the one that the user works in. */
class FWizardWithTwoWorlds : public FWizardFixture
{
protected:
	FWizardWithTwoWorlds()
	{
		FEditorViewportClient& Client = Editor.AddClient(*World(1));
		Client.SetViewLocation(FVector(1.0f, 2.0f, 3.0f));
		Client.SetViewRotation(FRotator(4.0f, 5.0f, 6.0f));
		FTestEditor::Activate(Client);
	}
};

TEST_F(FWizardWithTwoWorlds, PutsTheCameraIntoTheWorldOfTheActiveViewportsClient)
{
	EXPECT_EQ(Create("Main"), "Cinestream 'Main' created!");
	EXPECT_EQ(GetActors(World(0), TEXT("ZAVCineCamCapture")).Num(), 0);
	ASSERT_EQ(GetActors(World(1), TEXT("ZAVCineCamCapture")).Num(), 1);
}

TEST_F(FWizardWithTwoWorlds, AimsTheCameraAlongTheActiveViewportsView)
{
	Editor.Get().GetLevelClient().SetViewLocation(FVector(70.0f, 80.0f, 90.0f));
	Create("Main");
	const AActor* Camera = GetActors(World(1), TEXT("ZAVCineCamCapture"))[0];
	EXPECT_TRUE(Camera->GetActorLocation() == FVector(1.0f, 2.0f, 3.0f));
	EXPECT_TRUE(Camera->GetActorRotation() == FRotator(4.0f, 5.0f, 6.0f));
}

TEST_F(FWizardWithTwoWorlds, SpawnsTheManagerInTheFirstClientsWorld)
{
	Create("Main");
	EXPECT_EQ(GetActors(World(0), TEXT("ZAVSpoutSenderManager")).Num(), 1);
	EXPECT_EQ(GetActors(World(1), TEXT("ZAVSpoutSenderManager")).Num(), 0);
}

TEST_F(FWizardWithTwoWorlds, SeeksTheManagerInTheFirstClientsWorld)
{
	AActor* Manager = PlaceManager(World(0), TEXT("A"), TEXT("A_Standalone"));
	AActor* Other = PlaceManager(World(1), TEXT("B"), TEXT("B_Standalone"));
	Create("Main");
	EXPECT_EQ(GetSenders(Manager), (std::vector<std::string>{"A|A_Standalone", "Main|Main_Standalone"}));
	EXPECT_EQ(GetSenders(Other), (std::vector<std::string>{"B|B_Standalone"}));
}

TEST_F(FWizardWithTwoWorlds, ChecksNamesAgainstTheFirstClientsWorldOnly)
{
	PlaceManager(World(0), TEXT("First"), TEXT("First_Standalone"));
	PlaceManager(World(1), TEXT("Second"), TEXT("Second_Standalone"));
	OpenWizard();
	Pages->EnterName("First");
	EXPECT_EQ(GetWarning(), "! Stream Name already defined, please use a differnt name.");
	Pages->EnterName("Second");
	EXPECT_EQ(GetWarning(), "");
}

TEST_F(FWizardWithTwoWorlds, MarksTheManagersWorldDirtyAndNotTheCameras)
{
	Create("Main");
	EXPECT_TRUE(World(0)->GetOutermost()->IsDirty());
	EXPECT_FALSE(World(1)->GetOutermost()->IsDirty());
}
