// Copyright Corvane. MIT License.
// Random levels against a plain model: what is saved and opened again is what the model says, and saving that changes
// nothing.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "LevelFile.h"
#include "TemporaryFolder.h"
#include "TestEditor.h"

#include <cmath>
#include <cstring>
#include <optional>
#include <string>
#include <vector>

#include "EditorAssets.h"
#include "Engine/TextureRenderTarget2D.h"
#include "Engine/World.h"
#include "EveryPropertyActor.h"
#include "LevelEditorViewport.h"
#include "Templates/Casts.h"

namespace
{
	/** A well-formed text without null characters. */
	rc::Gen<std::u16string> GenText()
	{
		using FUnits = std::vector<std::u16string>;
		const auto Character =
			rc::gen::element<std::u16string>(u"a", u"B", u" ", u"\t", u"\n", u"\"", u"\\", u"/", u"{", u"\u00A0",
				u"\u00E9", u"\u05D0", u"\u2028", u"\uFFFD", u"\U0001F600", u"\U0010FFFF", u"\u0001", u"\u007F");
		return rc::gen::map(rc::gen::container<FUnits>(Character),
			[](const FUnits& Units)
			{
				std::u16string Text;
				for (const std::u16string& Unit : Units)
				{
					Text += Unit;
				}
				return Text;
			});
	}

	/** Any finite number, the strangest included. */
	rc::Gen<float> GenFloat()
	{
		return rc::gen::map(rc::gen::arbitrary<uint32_t>(),
			[](uint32_t Bits)
			{
				float Value = 0.0F;
				std::memcpy(&Value, &Bits, sizeof(Value));
				return std::isfinite(Value) ? Value : static_cast<float>(Bits) / 1000.0F;
			});
	}

	struct FStructModel
	{
		std::u16string Label;
		int32 Count = 0;
		std::vector<float> Offset;
		std::optional<size_t> Target;
	};

	struct FActorModel
	{
		std::vector<float> Place;
		bool bFlag = false;
		int32 Number = 0;
		float Fraction = 0.0F;
		std::u16string Text;
		std::vector<int32> Numbers;
		std::vector<FStructModel> Structs;
		std::optional<size_t> Texture;
		float Strength = 0.0F;
		std::vector<std::u16string> Notes;
	};

	struct FLevelModel
	{
		std::vector<float> View;
		size_t Assets = 0;
		std::vector<FActorModel> Actors;
	};

	std::vector<float> PickFloats(size_t Count)
	{
		return *rc::gen::container<std::vector<float>>(Count, GenFloat());
	}

	/** Nothing, or one of Count. */
	std::optional<size_t> PickIndex(size_t Count)
	{
		const size_t Picked = *rc::gen::inRange<size_t>(0, Count + 1);
		return Picked < Count ? std::optional<size_t>(Picked) : std::nullopt;
	}

	FStructModel PickStruct(size_t NumActors)
	{
		FStructModel Model;
		Model.Label = *GenText();
		Model.Count = *rc::gen::arbitrary<int32>();
		Model.Offset = PickFloats(3);
		Model.Target = PickIndex(NumActors);
		return Model;
	}

	FActorModel PickActor(const FLevelModel& Level, size_t NumActors)
	{
		FActorModel Model;
		Model.Place = PickFloats(6);
		Model.bFlag = *rc::gen::arbitrary<bool>();
		Model.Number = *rc::gen::arbitrary<int32>();
		Model.Fraction = *GenFloat();
		Model.Text = *GenText();
		Model.Numbers = *rc::gen::arbitrary<std::vector<int32>>();
		for (size_t Left = *rc::gen::inRange<size_t>(0, 4); Left > 0; --Left)
		{
			Model.Structs.push_back(PickStruct(NumActors));
		}
		Model.Texture = PickIndex(Level.Assets);
		Model.Strength = *GenFloat();
		Model.Notes = *rc::gen::container<std::vector<std::u16string>>(GenText());
		return Model;
	}

	FLevelModel PickLevel()
	{
		FLevelModel Model;
		Model.View = PickFloats(6);
		Model.Assets = *rc::gen::inRange<size_t>(0, 4);
		const size_t NumActors = *rc::gen::inRange<size_t>(0, 5);
		for (size_t Index = 0; Index < NumActors; ++Index)
		{
			Model.Actors.push_back(PickActor(Model, NumActors));
		}
		return Model;
	}

	FString ToEngine(const std::u16string& Text)
	{
		return FString(static_cast<int32>(Text.size()), Text.data());
	}

	AEveryPropertyActor& GetActor(const FTestEditor& Editor, size_t Index)
	{
		return *CastChecked<AEveryPropertyActor>(FTestEditor::GetActors(Editor.GetWorld())[static_cast<int32>(Index)]);
	}

	AActor* GetTarget(const FTestEditor& Editor, std::optional<size_t> Index)
	{
		return Index ? &GetActor(Editor, *Index) : nullptr;
	}

	UTextureRenderTarget2D* GetTexture(std::optional<size_t> Index)
	{
		return Index ? CastChecked<UTextureRenderTarget2D>(FEditorAssets::GetAll()[static_cast<int32>(*Index)])
					 : nullptr;
	}

	void Fill(const FTestEditor& Editor, const FActorModel& Model, AEveryPropertyActor& Actor)
	{
		Actor.SetActorLocation(FVector(Model.Place[0], Model.Place[1], Model.Place[2]));
		Actor.SetActorRotation(FRotator(Model.Place[3], Model.Place[4], Model.Place[5]));
		Actor.bFlag = Model.bFlag;
		Actor.Number = Model.Number;
		Actor.Fraction = Model.Fraction;
		Actor.Text = ToEngine(Model.Text);
		for (const int32 Number : Model.Numbers)
		{
			Actor.Numbers.Add(Number);
		}
		for (const FStructModel& Struct : Model.Structs)
		{
			FEveryPropertyStruct& Added = Actor.Structs.AddDefaulted_GetRef();
			Added.Label = ToEngine(Struct.Label);
			Added.Count = Struct.Count;
			Added.Offset = FVector(Struct.Offset[0], Struct.Offset[1], Struct.Offset[2]);
			Added.Target = GetTarget(Editor, Struct.Target);
		}
		Actor.Texture = GetTexture(Model.Texture);
		Actor.Component->Strength = Model.Strength;
		for (const std::u16string& Note : Model.Notes)
		{
			Actor.Component->Notes.Add(ToEngine(Note));
		}
	}

	void Make(const FTestEditor& Editor, const FLevelModel& Model)
	{
		for (size_t Index = 0; Index < Model.Assets; ++Index)
		{
			const FString Path = TEXT("/Game/CineStream/Asset") + FString::FromInt(static_cast<int32>(Index));
			FEditorAssets::Make(FName(*Path), UTextureRenderTarget2D::StaticClass());
		}
		for (size_t Index = 0; Index < Model.Actors.size(); ++Index)
		{
			Editor.GetWorld().SpawnActor<AEveryPropertyActor>();
		}
		for (size_t Index = 0; Index < Model.Actors.size(); ++Index)
		{
			Fill(Editor, Model.Actors[Index], GetActor(Editor, Index));
		}
		FLevelEditorViewportClient& Client = Editor.Get().GetLevelClient();
		Client.SetViewLocation(FVector(Model.View[0], Model.View[1], Model.View[2]));
		Client.SetViewRotation(FRotator(Model.View[3], Model.View[4], Model.View[5]));
	}

	void CheckStruct(const FTestEditor& Editor, const FStructModel& Model, const FEveryPropertyStruct& Struct)
	{
		RC_ASSERT(Struct.Label.Equals(ToEngine(Model.Label)));
		RC_ASSERT(Struct.Count == Model.Count);
		RC_ASSERT((Struct.Offset == FVector(Model.Offset[0], Model.Offset[1], Model.Offset[2])));
		RC_ASSERT(Struct.Target == GetTarget(Editor, Model.Target));
	}

	void CheckActor(const FTestEditor& Editor, const FActorModel& Model, const AEveryPropertyActor& Actor)
	{
		RC_ASSERT((Actor.GetActorLocation() == FVector(Model.Place[0], Model.Place[1], Model.Place[2])));
		RC_ASSERT((Actor.GetActorRotation() == FRotator(Model.Place[3], Model.Place[4], Model.Place[5])));
		RC_ASSERT(Actor.bFlag == Model.bFlag);
		RC_ASSERT(Actor.Number == Model.Number);
		RC_ASSERT(Actor.Fraction == Model.Fraction);
		RC_ASSERT(Actor.Text.Equals(ToEngine(Model.Text)));
		RC_ASSERT(std::vector<int32>(Actor.Numbers.begin(), Actor.Numbers.end()) == Model.Numbers);
		RC_ASSERT(static_cast<size_t>(Actor.Structs.Num()) == Model.Structs.size());
		for (size_t Index = 0; Index < Model.Structs.size(); ++Index)
		{
			CheckStruct(Editor, Model.Structs[Index], Actor.Structs[static_cast<int32>(Index)]);
		}
		RC_ASSERT(Actor.Texture == GetTexture(Model.Texture));
		RC_ASSERT(Actor.Component->Strength == Model.Strength);
		RC_ASSERT(static_cast<size_t>(Actor.Component->Notes.Num()) == Model.Notes.size());
		for (size_t Index = 0; Index < Model.Notes.size(); ++Index)
		{
			RC_ASSERT(Actor.Component->Notes[static_cast<int32>(Index)].Equals(ToEngine(Model.Notes[Index])));
		}
	}

	void CheckLevel(const FTestEditor& Editor, const FLevelModel& Model)
	{
		RC_ASSERT(static_cast<size_t>(FEditorAssets::GetAll().Num()) == Model.Assets);
		RC_ASSERT(static_cast<size_t>(FTestEditor::GetActors(Editor.GetWorld()).Num()) == Model.Actors.size());
		for (size_t Index = 0; Index < Model.Actors.size(); ++Index)
		{
			CheckActor(Editor, Model.Actors[Index], GetActor(Editor, Index));
		}
		const FLevelEditorViewportClient& Client = Editor.Get().GetLevelClient();
		RC_ASSERT((Client.GetViewLocation() == FVector(Model.View[0], Model.View[1], Model.View[2])));
		RC_ASSERT((Client.GetViewRotation() == FRotator(Model.View[3], Model.View[4], Model.View[5])));
	}
}

RC_GTEST_PROP(FLevelFileProperties, ALevelComesBackFromItsFileAndSavesTheSameAgain, ())
{
	const FLevelModel Model = PickLevel();
	const FTestEditor Editor(FTestEditor::EngineOnly());
	const FTemporaryFolder Folder;
	std::string Error;
	Make(Editor, Model);
	RC_ASSERT(FLevelFile::Save(Folder.File("a.json"), Error));
	RC_ASSERT(FLevelFile::Open(Folder.File("a.json"), Error));
	CheckLevel(Editor, Model);
	RC_ASSERT(FLevelFile::Save(Folder.File("b.json"), Error));
	RC_ASSERT(FTemporaryFolder::ReadFile(Folder.File("a.json")) == FTemporaryFolder::ReadFile(Folder.File("b.json")));
}
