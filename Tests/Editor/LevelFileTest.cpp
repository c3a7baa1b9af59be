// Copyright Corvane. MIT License.
#include "LevelFile.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <limits>

#include "Editor.h"
#include "EditorAssets.h"
#include "Engine/Selection.h"
#include "Engine/TextureRenderTarget2D.h"
#include "Engine/World.h"
#include "EveryPropertyActor.h"
#include "LevelEditorViewport.h"
#include "LevelFileFixture.h"
#include "OtherAsset.h"
#include "Templates/Casts.h"
#include "UObject/Package.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "ZAVCaptureComponent.h"
#include "ZAVCineCamCapture.h"

namespace
{
	class FLevelFileTest : public FLevelFileFixture
	{
	protected:
		AEveryPropertyActor& GetFirst() const
		{
			return *CastChecked<AEveryPropertyActor>(FTestEditor::GetActors(Editor.GetWorld())[0]);
		}

		/** Expects that the level can't be saved for this reason, and that neither old file nor dirty flags change. */
		void ExpectNotSaved(const std::string& Error) const
		{
			const std::string Path = Folder.Write("old.json", "old");
			const bool bDirty = Editor.GetWorld().GetOutermost()->IsDirty();
			std::string Reason;
			EXPECT_FALSE(FLevelFile::Save(Path, Reason));
			EXPECT_EQ(Reason, Path + ": " + Error);
			EXPECT_EQ(FTemporaryFolder::ReadFile(Path), "old");
			EXPECT_EQ(Folder.List(), (std::vector<std::string>{"level.json", "old.json"}));
			EXPECT_EQ(Editor.GetWorld().GetOutermost()->IsDirty(), bDirty);
		}
	};
}

TEST_F(FLevelFileTest, OpensActorsWithTheirNamesPlacesAndProperties)
{
	const AEveryPropertyActor& First = GetFirst();
	EXPECT_TRUE(First.GetName().Equals(TEXT("First")));
	EXPECT_EQ(First.GetActorLocation(), FVector(0.1f, 0.0f, 0.0f));
	EXPECT_EQ(First.GetActorRotation(), FRotator(0.0f, 370.0f, 0.0f));
	EXPECT_FALSE(First.bFlag);
	EXPECT_EQ(First.Number, -5);
	EXPECT_TRUE(First.Text.Equals(FString(TEXT("ä€😀"))));
	EXPECT_TRUE(First.Inner.Label.Equals(TEXT("x")));
	EXPECT_EQ(First.Component->Strength, 1e-10f);
	EXPECT_EQ(First.Component->Notes.Num(), 2);
}

TEST_F(FLevelFileTest, LeavesWhatTheFileLeavesOutAtItsDefault)
{
	EXPECT_EQ(GetFirst().Fraction, 0.25f);
	EXPECT_EQ(GetFirst().Inner.Count, 7);
	EXPECT_EQ(GetFirst().Structs.Num(), 0);
}

TEST_F(FLevelFileTest, ResolvesReferencesToAssetsAndToActorsThatComeLater)
{
	EXPECT_EQ(GetFirst().Texture, FEditorAssets::GetAll()[0]);
	EXPECT_EQ(GetFirst().Inner.Target, FTestEditor::GetActors(Editor.GetWorld())[1]);
}

TEST_F(FLevelFileTest, ResolvesReferencesWithoutRegardToLetterCase)
{
	ASSERT_EQ(Open(R"({"actors":[{"class":"EveryPropertyActor","name":"A","properties":{"Texture":"/game/MAIN",)"
				   R"("Actors":["a",null]}}],"assets":[{"path":"/Game/Main","class":"TextureRenderTarget2D"}]})"),
		"");
	EXPECT_EQ(GetFirst().Texture, FEditorAssets::GetAll()[0]);
	EXPECT_EQ(GetFirst().Actors[0], &GetFirst());
	EXPECT_EQ(GetFirst().Actors[1], nullptr);
}

TEST_F(FLevelFileTest, OpensAnEmptyObjectAsAnEmptyLevel)
{
	EXPECT_EQ(Open("{}"), "");
	EXPECT_EQ(FTestEditor::GetActors(Editor.GetWorld()).Num(), 0);
	EXPECT_EQ(FEditorAssets::GetAll().Num(), 0);
	EXPECT_EQ(Editor.Get().GetLevelClient().GetViewLocation(), FVector());
}

TEST_F(FLevelFileTest, DestroysWhatWasOpenBefore)
{
	const TWeakObjectPtr<AActor> OldActor = &GetFirst();
	const TWeakObjectPtr<UObject> OldAsset = FEditorAssets::GetAll()[0];
	EXPECT_EQ(Open(SampleText), "");
	EXPECT_FALSE(OldActor.IsValid());
	EXPECT_FALSE(OldAsset.IsValid());
	EXPECT_EQ(FTestEditor::GetActors(Editor.GetWorld()).Num(), 2);
	EXPECT_EQ(FEditorAssets::GetAll().Num(), 1);
}

TEST_F(FLevelFileTest, DeselectsEverything)
{
	ASSERT_EQ(GEditor->GetSelectedActors()->Num(), 1);
	EXPECT_EQ(Open(SampleText), "");
	EXPECT_EQ(GEditor->GetSelectedActors()->Num(), 0);
}

TEST_F(FLevelFileTest, LeavesTheSecondWorldAlone)
{
	UWorld& Second = Editor.GetWorld(1);
	FTestEditor::Spawn(Second, TEXT("Actor"));
	EXPECT_EQ(Open(SampleText), "");
	EXPECT_EQ(&Editor.GetWorld(1), &Second);
	EXPECT_EQ(FTestEditor::GetActors(Second).Num(), 1);
}

TEST_F(FLevelFileTest, SetsTheViewsThatShowTheLevelOnly)
{
	FEditorViewportClient& Other = Editor.AddClient(Editor.GetWorld(1));
	FTestEditor::Activate(Other);
	EXPECT_EQ(Open(R"({"view":{"location":[7,8,9],"rotation":[1,2,3]}})"), "");
	EXPECT_EQ(Other.GetViewLocation(), FVector());
	EXPECT_EQ(Editor.Get().GetLevelClient().GetViewLocation(), FVector(7.0f, 8.0f, 9.0f));
	EXPECT_EQ(Editor.Get().GetLevelClient().GetViewRotation(), FRotator(1.0f, 2.0f, 3.0f));
}

TEST_F(FLevelFileTest, HasNothingToSaveAfterOpening)
{
	EXPECT_EQ(Open(SampleText), "");
	EXPECT_FALSE(Editor.GetWorld().GetOutermost()->IsDirty());
	EXPECT_FALSE(FEditorAssets::GetAll()[0]->GetOutermost()->IsDirty());
}

TEST_F(FLevelFileTest, SavesWhatWasOpenedByteForByte)
{
	EXPECT_EQ(GetText(), SampleText);
	std::string Error;
	ASSERT_TRUE(FLevelFile::Save(Folder.File("saved.json"), Error)) << Error;
	EXPECT_EQ(FTemporaryFolder::ReadFile(Folder.File("saved.json")), SampleText);
}

TEST_F(FLevelFileTest, ClearsTheDirtyFlagsWhenItWasSaved)
{
	std::string Error;
	ASSERT_TRUE(Editor.GetWorld().GetOutermost()->IsDirty());
	ASSERT_TRUE(FLevelFile::Save(Folder.File("saved.json"), Error)) << Error;
	EXPECT_FALSE(Editor.GetWorld().GetOutermost()->IsDirty());
	EXPECT_FALSE(FEditorAssets::GetAll()[0]->GetOutermost()->IsDirty());
}

TEST_F(FLevelFileTest, WritesTheStructuresOfAnArrayInFull)
{
	GetFirst().Structs.SetNum(1);
	const nlohmann::ordered_json Actor = nlohmann::ordered_json::parse(GetText())["actors"][0];
	EXPECT_EQ(Actor["properties"]["Structs"].dump(),
		R"([{"Label":"","Count":7,"Offset":{"X":0,"Y":0,"Z":0},"Target":null}])");
}

TEST_F(FLevelFileTest, WritesAnEmptiedArrayThatIsNotEmptyByDefault)
{
	AEveryPropertyActor* Default = GetMutableDefault<AEveryPropertyActor>();
	Default->Numbers.Add(1);
	const std::string Text = GetText();
	Default->Numbers.Empty();
	EXPECT_NE(Text.find("\"Numbers\": []"), std::string::npos) << Text;
}

TEST_F(FLevelFileTest, KeepsTheOldFileWhenATextIsNoUnicode)
{
	const TCHAR Lone = 0xD83D;
	GetFirst().Structs.SetNum(1);
	GetFirst().Structs[0].Label = FString(1, &Lone);
	ExpectNotSaved("/actors/0/properties/Structs/0/Label: the text is not well-formed Unicode");
}

TEST_F(FLevelFileTest, KeepsTheOldFileWhenANumberIsNotFinite)
{
	GetFirst().Component->Strength = std::numeric_limits<float>::quiet_NaN();
	ExpectNotSaved("/actors/0/properties/Component/Strength: the number is not finite");
	GetFirst().Component->Strength = 0.5f;
	GetFirst().SetActorLocation(FVector(0.0f, std::numeric_limits<float>::infinity(), 0.0f));
	ExpectNotSaved("/actors/0/location/1: the number is not finite");
}

TEST_F(FLevelFileTest, KeepsTheOldFileWhenAReferenceLeavesTheLevel)
{
	AActor& Outside = FTestEditor::Spawn(Editor.GetWorld(1), TEXT("Actor"));
	GetFirst().Actors.Add(&Outside);
	const std::string Path = TCHAR_TO_UTF8(*Outside.GetPathName());
	ExpectNotSaved("/actors/0/properties/Actors/0: refers to \"" + Path + "\", which is no part of the level");
}

TEST_F(FLevelFileTest, KeepsTheOldFileWhenAnActorsNameCouldNotBeOpenedAgain)
{
	FActorSpawnParameters Parameters;
	Parameters.Name = FName("a.b");
	Editor.GetWorld().SpawnActor<AActor>(Parameters);
	ExpectNotSaved("/actors/2/name: an actor's name can't hold any of / . :");
}

TEST_F(FLevelFileTest, WritesTheAssetsInTheOrderOfTheirMaking)
{
	FEditorAssets::Make(FName("/Game/B"), UTextureRenderTarget2D::StaticClass());
	FEditorAssets::Make(FName("/Game/A"), UOtherAsset::StaticClass());
	const std::string Text = GetText();
	EXPECT_NE(Text.find("{\"path\":\"/Game/B\",\"class\":\"TextureRenderTarget2D\"},\n"
						"\t\t{\"path\":\"/Game/A\",\"class\":\"OtherAsset\"}\n"),
		std::string::npos)
		<< Text;
}

TEST_F(FLevelFileTest, GivesAnActorThatIsSpawnedLaterANameOfItsOwn)
{
	EXPECT_EQ(Open(R"({"actors":[{"class":"Actor","name":"Actor_0"},{"class":"Actor","name":"Actor_2"}]})"), "");
	for (int32 Count = 0; Count < 4; ++Count)
	{
		FTestEditor::Spawn(Editor.GetWorld(), TEXT("Actor"));
	}
	// A name that came twice would be refused.
	EXPECT_EQ(Open(GetText()), "");
	EXPECT_EQ(FTestEditor::GetActors(Editor.GetWorld()).Num(), 6);
}

TEST_F(FLevelFileTest, SavesBelowNoRegularFile)
{
	const std::string Below = Folder.File("level.json") + "/level.json";
	std::string Error;
	EXPECT_FALSE(FLevelFile::Save(Below, Error));
	EXPECT_EQ(Error, Below + ": Not a directory");
	EXPECT_TRUE(Editor.GetWorld().GetOutermost()->IsDirty());
}

TEST(FLevelFile, GivesCaptureComponentsTheShowFlagsOfTheirSettings)
{
	const FTestEditor Editor;
	const FTemporaryFolder Folder;
	const std::string Path = Folder.Write("level.json", R"({"actors": [{"class": "ZAVCineCamCapture", "name": "Camera",
		"properties": {"CaptureComponent": {"ShowFlagSettings": [{"ShowFlagName": "fog", "Enabled": false}]}}}]})");
	std::string Error;
	ASSERT_TRUE(FLevelFile::Open(Path, Error)) << Error;
	const AZAVCineCamCapture* Camera = Cast<AZAVCineCamCapture>(FTestEditor::GetActors(Editor.GetWorld())[0]);
	ASSERT_NE(Camera, nullptr);
	EXPECT_FALSE(Camera->CaptureComponent->ShowFlags.GetSingleFlag(FEngineShowFlags::SF_Fog));
	EXPECT_TRUE(Camera->CaptureComponent->ShowFlags.GetSingleFlag(FEngineShowFlags::SF_Bloom));
}
