// Copyright Corvane. MIT License.
#include "CreateJob.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "AssetToolsFault.h"
#include "Editor.h"
#include "EditorAssets.h"
#include "EditorEventCounts.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "HAL/PlatformApplicationMisc.h"
#include "LevelEditorViewport.h"
#include "RecordingEditor.h"
#include "TestEditor.h"

namespace
{
	/** Runs the job in a fresh editor with the plugin. */
	class FCreateJobTest : public ::testing::Test
	{
	protected:
		FCreateReport Run(const TCHAR* Name)
		{
			FCreateReport Report;
			std::string Error;
			EXPECT_TRUE(FCreateJob(Editor.Get()).Run(Name, Report, Error)) << Error;
			return Report;
		}

		static FString GetClipboard()
		{
			FString Text;
			FPlatformApplicationMisc::ClipboardPaste(Text);
			return Text;
		}

		FTestEditor Editor;
	};
}

TEST_F(FCreateJobTest, ReportsWhatWasMade)
{
	Editor.Get().GetLevelClient().SetViewLocation(FVector(1.0f, 2.0f, 3.0f));
	Editor.Get().GetLevelClient().SetViewRotation(FRotator(4.0f, 5.0f, 6.0f));
	const FCreateReport Report = Run(TEXT("Main"));
	EXPECT_EQ(Report.Message, "Cinestream 'Main' created!");
	EXPECT_FALSE(Report.Warning.has_value());
	ASSERT_TRUE(Report.Setup.has_value());
	EXPECT_EQ(Report.Setup->Asset, "/Game/CineStream/Main");
	EXPECT_EQ(Report.Setup->Camera.Location, (std::array<float, 3>{1.0f, 2.0f, 3.0f}));
	EXPECT_EQ(Report.Setup->Camera.Rotation, (std::array<float, 3>{4.0f, 5.0f, 6.0f}));
	EXPECT_TRUE(Report.Setup->Manager.bSpawned);
	EXPECT_EQ(Report.Setup->Manager.Entries, 1);
	EXPECT_TRUE(Report.Setup->Sender.bActive);
	EXPECT_EQ(Report.Setup->Sender.Name, "Main");
	EXPECT_EQ(Report.Setup->Sender.StandaloneName, "Main_Standalone");
	EXPECT_EQ(Report.Setup->Sender.RenderTarget, "/Game/CineStream/Main");
}

TEST_F(FCreateJobTest, ReportsTheManagerThatWasThere)
{
	AActor& Manager = FTestEditor::Spawn(Editor.GetWorld(), TEXT("ZAVSpoutSenderManager"));
	FTestEditor::Spawn(Editor.GetWorld(), TEXT("ZAVSpoutSenderManager"));
	const FCreateReport Report = Run(TEXT("Main"));
	ASSERT_TRUE(Report.Setup.has_value());
	EXPECT_FALSE(Report.Setup->Manager.bSpawned);
	EXPECT_EQ(Report.Setup->Manager.Name, std::string(TCHAR_TO_UTF8(*Manager.GetName())));
}

TEST_F(FCreateJobTest, FindsTheCameraInAnotherWorldThanTheManager)
{
	FTestEditor::Activate(Editor.AddClient(Editor.GetWorld(1)));
	const FCreateReport Report = Run(TEXT("Main"));
	ASSERT_TRUE(Report.Setup.has_value());
	EXPECT_EQ(FTestEditor::GetActors(Editor.GetWorld(0)).Num(), 1);
	EXPECT_EQ(FTestEditor::GetActors(Editor.GetWorld(1)).Num(), 1);
}

TEST_F(FCreateJobTest, ReportsTheFailureWhenNoViewportIsActive)
{
	GEditor->SetActiveViewport(nullptr);
	const FCreateReport Report = Run(TEXT("Main"));
	EXPECT_EQ(Report.Message, "ERROR: Failed to create Cinestream 'Main'!");
	EXPECT_FALSE(Report.Setup.has_value());
}

TEST_F(FCreateJobTest, ReportsTheFailureWhenNoAssetIsMade)
{
	const FAssetToolsFault Fault(FAssetToolsFault::EKind::ReturnNull);
	const FCreateReport Report = Run(TEXT("Main"));
	EXPECT_EQ(Report.Message, "ERROR: Failed to create Cinestream 'Main'!");
	EXPECT_FALSE(Report.Setup.has_value());
	EXPECT_EQ(FEditorAssets::GetAll().Num(), 0);
}

TEST_F(FCreateJobTest, ReportsTheFailureWhenTheAssetIsOfAnotherClass)
{
	const FAssetToolsFault Fault(FAssetToolsFault::EKind::ReturnOtherClass);
	const FCreateReport Report = Run(TEXT("Main"));
	EXPECT_EQ(Report.Message, "ERROR: Failed to create Cinestream 'Main'!");
	EXPECT_FALSE(Report.Setup.has_value());
	EXPECT_EQ(FEditorAssets::GetAll().Num(), 1);
}

TEST_F(FCreateJobTest, MakesAssetsAgainWhenTheFaultIsOver)
{
	std::make_unique<FAssetToolsFault>(FAssetToolsFault::EKind::ReturnNull).reset();
	EXPECT_TRUE(Run(TEXT("Main")).Setup.has_value());
}

TEST_F(FCreateJobTest, RefusesANameThatTheBoxDoesNotTake)
{
	FCreateReport Report;
	std::string Error;
	EXPECT_FALSE(FCreateJob(Editor.Get()).Run(TEXT("two\nlines"), Report, Error));
	EXPECT_EQ(Error, "NAME: the wizard's box does not take these characters");
	EXPECT_EQ(FTestEditor::GetActors(Editor.GetWorld()).Num(), 0);
}

TEST_F(FCreateJobTest, PastesANameWithWhatNoKeyTypes)
{
	const FCreateReport Report = Run(TEXT("a\tb"));
	ASSERT_TRUE(Report.Setup.has_value());
	EXPECT_EQ(Report.Setup->Sender.Name, "a\tb");
}

TEST_F(FCreateJobTest, LeavesTheClipboardAloneWhenItTypes)
{
	FPlatformApplicationMisc::ClipboardCopy(TEXT("before"));
	ASSERT_TRUE(Run(TEXT("Main")).Setup.has_value());
	EXPECT_TRUE(GetClipboard().Equals(TEXT("before")));
}

TEST_F(FCreateJobTest, PastesANameThatIsLongerThanOneTypes)
{
	const std::string Long(1001, 'x');
	const FCreateReport Report = Run(UTF8_TO_TCHAR(Long.c_str()));
	ASSERT_TRUE(Report.Setup.has_value());
	EXPECT_EQ(Report.Setup->Sender.Name, Long);
	EXPECT_EQ(Report.Setup->Asset, "/Game/CineStream/" + Long);
	EXPECT_TRUE(GetClipboard().Equals(UTF8_TO_TCHAR(Long.c_str())));
}

TEST_F(FCreateJobTest, AsksTheEditorToShowTheCameraOnce)
{
	const FEditorEventCounts Counts;
	ASSERT_TRUE(Run(TEXT("Main")).Setup.has_value());
	EXPECT_EQ(Counts.LevelDirtied, 2);
	EXPECT_EQ(Counts.Redraws, 2);
	EXPECT_EQ(Counts.RedrawsWithHitProxies, 2);
	EXPECT_EQ(Counts.AssetsAdded, 1);
	ASSERT_EQ(Counts.ContentSyncs.Num(), 1);
	EXPECT_FALSE(Counts.ContentSyncs[0].bFocusContentBrowser);
}

TEST_F(FCreateJobTest, SelectsTheCameraAlone)
{
	URecordingEditor::Get().SelectionCalls.Empty();
	ASSERT_TRUE(Run(TEXT("Main")).Setup.has_value());
	const TArray<URecordingEditor::FSelectionCall>& Calls = URecordingEditor::Get().SelectionCalls;
	ASSERT_EQ(Calls.Num(), 2);
	EXPECT_EQ(Calls[0].Actor, nullptr);
	EXPECT_EQ(Calls[0].Flags, (TArray<int32>{1, 1, 1}));
	EXPECT_NE(Calls[1].Actor, nullptr);
	EXPECT_EQ(Calls[1].Flags, (TArray<int32>{1, 0, 0, 0}));
}
