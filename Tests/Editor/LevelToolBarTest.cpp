// Copyright Corvane. MIT License.
#include "LevelToolBar.h"

#include <gtest/gtest.h>

#include "ActorEdits.h"
#include "Editor.h"
#include "EditorMenus.h"
#include "Engine/Level.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "Standalone/ToolMenusStartup.h"
#include "TestEditor.h"
#include "ToolMenus.h"

namespace
{
	class FLevelToolBarTest : public ::testing::Test
	{
	protected:
		const FUIAction& Find(const char* Name)
		{
			for (const FEditorMenus::FButton& Button : FEditorMenus::GetButtons())
			{
				if (Button.Entry->Name == FName(Name))
				{
					return *Button.Entry->Action.GetUIAction();
				}
			}
			ADD_FAILURE() << Name;
			return Missing;
		}
		int32 CountActors() { return FTestEditor::GetActors(Editor.GetWorld()).Num(); }

		FTestEditor Editor{FTestEditor::EngineOnly()};
		FUIAction Missing;
	};
}

TEST_F(FLevelToolBarTest, UndoesAndRedoesWhileThereIsAStep)
{
	EXPECT_FALSE(Find("Undo").CanExecute());
	EXPECT_FALSE(Find("Redo").CanExecute());
	FActorEdits::Place(AActor::StaticClass(), FVector(), FRotator());
	EXPECT_FALSE(Find("Redo").CanExecute());
	EXPECT_TRUE(Find("Undo").Execute());
	EXPECT_EQ(CountActors(), 0);
	EXPECT_FALSE(Find("Undo").Execute());
	EXPECT_TRUE(Find("Redo").Execute());
	EXPECT_EQ(CountActors(), 1);
}

TEST_F(FLevelToolBarTest, SavesOnlyWhereSomebodySaves)
{
	EXPECT_FALSE(Find("Save").Execute());
	int32 Saved = 0;
	Editor.Get().GetToolBar().OnSave = FSimpleDelegate::CreateLambda([&Saved] { ++Saved; });
	EXPECT_TRUE(Find("Save").Execute());
	EXPECT_EQ(Saved, 1);
}

TEST_F(FLevelToolBarTest, IsNotCountedAmongTheOwnersOfMenusIfThatIsAskedFor)
{
	EXPECT_EQ(FToolMenusStartup::GetOwnerCount(), 1);
	EXPECT_EQ(FToolMenusStartup::GetOwnerCount(FLevelToolBar::GetOwner()), 0);
}

TEST_F(FLevelToolBarTest, SurvivesMenusThatGoBeforeIt)
{
	FToolMenusStartup::ShutDown();
	EXPECT_TRUE(FEditorMenus::GetButtons().empty());
	FToolMenusStartup::Run();
}
