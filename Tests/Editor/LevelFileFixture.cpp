// Copyright Corvane. MIT License.
#include "LevelFileFixture.h"

#include <sstream>

#include "Editor.h"
#include "EditorAssets.h"
#include "Engine/Selection.h"
#include "Engine/World.h"
#include "EngineText.h"
#include "GameFramework/Actor.h"
#include "LevelEditorViewport.h"
#include "LevelFile.h"
#include "UObject/Package.h"

const std::string FLevelFileFixture::SampleText = R"({
	"view": {
		"location": [1,2.5,-3],
		"rotation": [10,-20,0.1]
	},
	"actors": [
		{
			"class": "EveryPropertyActor",
			"name": "First",
			"location": [0.1,0,0],
			"rotation": [0,370,0],
			"properties": {
				"bFlag": false,
				"Number": -5,
				"Text": "ä€😀",
				"Inner": {"Label":"x","Target":"Second_4"},
				"Texture": "/Game/CineStream/Main",
				"Component": {
					"Strength": 1e-10,
					"Notes": ["a",""]
				}
			}
		},
		{
			"class": "EveryPropertyActor",
			"name": "Second_4",
			"location": [0,0,0],
			"rotation": [0,0,0]
		}
	],
	"assets": [
		{"path":"/Game/CineStream/Main","class":"TextureRenderTarget2D"}
	]
}
)";

FLevelFileFixture::FLevelFileFixture() : Editor(FTestEditor::EngineOnly())
{
	EXPECT_EQ(Open(SampleText), "");
	AActor* First = FTestEditor::GetActors(Editor.GetWorld())[0];
	GEditor->SelectActor(First, true, false);
	First->MarkPackageDirty();
	FEditorAssets::GetAll()[0]->MarkPackageDirty();
}

std::string FLevelFileFixture::Open(const std::string& Text) const
{
	const std::string Path = Folder.Write("level.json", Text);
	std::string Error;
	if (FLevelFile::Open(Path, Error))
	{
		return "";
	}
	EXPECT_EQ(Error.substr(0, Path.size() + 2), Path + ": ");
	EXPECT_EQ(Error.find('\n'), std::string::npos);
	return Error.substr(Path.size() + 2);
}

void FLevelFileFixture::ExpectRefused(const std::string& Text, const std::string& Error) const
{
	const std::string Before = GetState();
	EXPECT_EQ(Open(Text), Error);
	EXPECT_EQ(GetState(), Before);
}

std::string FLevelFileFixture::GetText()
{
	std::string Text;
	std::string Error;
	EXPECT_TRUE(FLevelFile::ToText(Text, Error)) << Error;
	return Text;
}

std::string FLevelFileFixture::GetState() const
{
	std::ostringstream State;
	UWorld& World = Editor.GetWorld();
	State << &World << World.GetOutermost()->IsDirty() << Editor.GetWorld(1).GetOutermost()->IsDirty();
	for (const AActor* Actor : FTestEditor::GetActors(World))
	{
		State << ' ' << Actor << GEditor->GetSelectedActors()->IsSelected(Actor);
	}
	for (const UObject* Asset : FEditorAssets::GetAll())
	{
		State << ' ' << Asset << Asset->GetOutermost()->IsDirty();
	}
	State << '\n' << GetText();
	return State.str();
}
