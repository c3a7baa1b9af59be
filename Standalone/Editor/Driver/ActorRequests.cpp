// Copyright Corvane. MIT License.
#include "Driver/ActorRequests.h"

#include "ErrorText.h"
#include "PropertyWriter.h"
#include "StrictJson.h"

#include <algorithm>

#include "ActorEdits.h"
#include "Driver/DriverSession.h"
#include "Driver/OutsideRecorder.h"
#include "Editor.h"
#include "EditorAssets.h"
#include "EditorViews.h"
#include "EngineText.h"
#include "Engine/Selection.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "Kismet/GameplayStatics.h"
#include "LevelProperties.h"
#include "UObject/Package.h"

namespace
{
	constexpr int32 NumWorlds = 2;

	TArray<AActor*> GetActors(FDriverSession& Session, int32 World)
	{
		TArray<AActor*> Actors;
		UGameplayStatics::GetAllActorsOfClass(Session.GetEditor().GetWorld(World), AActor::StaticClass(), Actors);
		return Actors;
	}

	FPropertyWriter::FReferenceTexts FindReferences(FDriverSession& Session)
	{
		FPropertyWriter::FReferenceTexts References;
		for (const UObject* Asset : FEditorAssets::GetAll())
		{
			References.emplace(Asset, FEngineText::ForDisplay(FEditorAssets::GetPath(Asset)));
		}
		for (int32 World = 0; World < NumWorlds; ++World)
		{
			for (const AActor* Actor : GetActors(Session, World))
			{
				References.emplace(Actor, FEngineText::ForDisplay(Actor->GetFName()));
			}
		}
		return References;
	}

	FAnswer ToJson(float First, float Second, float Third)
	{
		return FAnswer::array({FStrictJson::Number(First), FStrictJson::Number(Second), FStrictJson::Number(Third)});
	}

	FAnswer Describe(const AActor* Actor, int32 World, const FPropertyWriter::FReferenceTexts& References)
	{
		const FVector Location = Actor->GetActorLocation();
		const FRotator Rotation = Actor->GetActorRotation();
		return {{"name", FEngineText::ForDisplay(Actor->GetFName())},
			{"class", FEngineText::ForDisplay(Actor->GetClass()->GetFName())}, {"world", World},
			{"location", ToJson(Location.X, Location.Y, Location.Z)},
			{"rotation", ToJson(Rotation.Pitch, Rotation.Yaw, Rotation.Roll)},
			{"properties", FPropertyWriter::Report(Actor->GetClass(), Actor, References)}};
	}

	FAnswer DescribeLevel(FDriverSession& Session, const FRequest&)
	{
		const FPropertyWriter::FReferenceTexts References = FindReferences(Session);
		FAnswer Actors = FAnswer::array();
		for (int32 World = 0; World < NumWorlds; ++World)
		{
			for (const AActor* Actor : GetActors(Session, World))
			{
				Actors.push_back(Describe(Actor, World, References));
			}
		}
		FAnswer Selected = FAnswer::array();
		TArray<AActor*> SelectedActors;
		GEditor->GetSelectedActors()->GetSelectedObjects(SelectedActors);
		for (const AActor* Actor : SelectedActors)
		{
			Selected.push_back(FEngineText::ForDisplay(Actor->GetFName()));
		}
		return {{"dirty", FEditorViews::GetLevelWorld()->GetOutermost()->IsDirty()},
			{"dirtied", Session.GetOutside().GetLevelsDirtied()}, {"actors", std::move(Actors)},
			{"selected", std::move(Selected)}};
	}

	FAnswer ListAssets(FDriverSession&, const FRequest&)
	{
		FAnswer Assets = FAnswer::array();
		for (const UObject* Asset : FEditorAssets::GetAll())
		{
			Assets.push_back({{"path", FEngineText::ForDisplay(FEditorAssets::GetPath(Asset))},
				{"class", FEngineText::ForDisplay(Asset->GetClass()->GetFName())},
				{"dirty", Asset->GetOutermost()->IsDirty()}});
		}
		return {{"assets", std::move(Assets)}};
	}

	FAnswer Place(FDriverSession&, const FRequest& Request)
	{
		UClass* Class = FLevelProperties::FindActorClass(Request.GetText("class"));
		if (!Class)
		{
			throw FRequestError("there is no class of actors " + FErrorText::Quote(Request.GetUtf8("class")));
		}
		const FVector Location = Request.GetVector("location");
		const FRotator Rotation = Request.GetRotator("rotation");
		if (!FActorEdits::HasPlace(Class) && !(Location == FVector() && Rotation == FRotator()))
		{
			throw FRequestError("actors of this class have no place in the world");
		}
		const AActor* Actor = FActorEdits::Place(Class, Location, Rotation);
		check(Actor != nullptr);
		return {{"name", FEngineText::ForDisplay(Actor->GetFName())}};
	}

	/** Of two actors with one name, that of the open level. */
	AActor* FindActor(FDriverSession& Session, const FString& Name)
	{
		for (int32 World = 0; World < NumWorlds; ++World)
		{
			for (AActor* Actor : GetActors(Session, World))
			{
				if (Actor->GetName() == Name)
				{
					return Actor;
				}
			}
		}
		throw FRequestError("there is no actor " + FErrorText::Quote(FEngineText::ForDisplay(Name)));
	}

	FAnswer Select(FDriverSession& Session, const FRequest& Request)
	{
		std::vector<AActor*> Actors;
		for (const FString& Name : Request.GetTexts("actors"))
		{
			AActor* Actor = FindActor(Session, Name);
			if (std::find(Actors.begin(), Actors.end(), Actor) == Actors.end())
			{
				Actors.push_back(Actor);
			}
		}
		FActorEdits::SelectOnly(Actors);
		return FAnswer();
	}
}

std::vector<FRequestDefinition> FActorRequests::GetAll()
{
	return {{"level", {}, DescribeLevel}, {"assets", {}, ListAssets},
		{"place",
			{{"class", EParameterType::Text, true}, {"location", EParameterType::Vector, true},
				{"rotation", EParameterType::Vector, true}},
			Place},
		{"select", {{"actors", EParameterType::Texts, true}}, Select}};
}
