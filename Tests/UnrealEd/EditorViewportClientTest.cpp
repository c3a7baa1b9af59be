// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "TestEditor.h"

TEST(FEditorViewportClient, ShowsTheOpenLevel)
{
	const FTestEditor Editor;
	const FEditorViewportClient Client(nullptr);
	EXPECT_EQ(Client.GetWorld(), Editor.World());
	EXPECT_EQ(Client.Viewport, nullptr);
}

TEST(FEditorViewportClient, ShowsAnotherWorldWhileItExists)
{
	const FTestEditor Editor;
	FEditorViewportClient Client(nullptr);
	UWorld* Second = UWorld::CreateWorld(EWorldType::EditorPreview, true);
	Client.SetWorld(Second);
	EXPECT_EQ(Client.GetWorld(), Second);
	GEditor->NewMap();
	EXPECT_EQ(Client.GetWorld(), Second);
	Second->DestroyWorld(true);
	EXPECT_EQ(Client.GetWorld(), Editor.World());
}

TEST(FEditorViewportClient, FollowsTheOpenLevelAlsoWhenItWasSet)
{
	const FTestEditor Editor;
	FEditorViewportClient Client(nullptr);
	Client.SetWorld(Editor.World());
	UWorld* NewWorld = GEditor->NewMap();
	EXPECT_EQ(Client.GetWorld(), NewWorld);
}

TEST(FEditorViewportClient, GoesBackToTheOpenLevel)
{
	const FTestEditor Editor;
	FEditorViewportClient Client(nullptr);
	UWorld* Second = UWorld::CreateWorld(EWorldType::EditorPreview, true);
	Client.SetWorld(Second);
	Client.SetWorld(nullptr);
	EXPECT_EQ(Client.GetWorld(), Editor.World());
	Second->DestroyWorld(true);
}

TEST(FEditorViewportClient, KeepsItsViewAsItIsSet)
{
	const FTestEditor Editor;
	FEditorViewportClient Client(nullptr);
	EXPECT_EQ(Client.GetViewLocation(), FVector::ZeroVector);
	Client.SetViewLocation(FVector(1.0f, 2.0f, 3.0f));
	Client.SetViewRotation(FRotator(400.0f, -500.0f, 1.0f));
	EXPECT_EQ(Client.GetViewLocation(), FVector(1.0f, 2.0f, 3.0f));
	EXPECT_EQ(Client.GetViewRotation(), FRotator(400.0f, -500.0f, 1.0f));
}
