// Copyright Corvane. MIT License.
#include "LevelWriter.h"

#include "EditorAssets.h"
#include "EditorViewportClient.h"
#include "EditorViews.h"
#include "EngineText.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "Kismet/GameplayStatics.h"

using nlohmann::ordered_json;

FLevelWriter::FLevelWriter(std::string& OutError) : Properties(References, OutError) {}

bool FLevelWriter::WriteLevel(ordered_json& OutJson)
{
	UGameplayStatics::GetAllActorsOfClass(FEditorViews::GetLevelWorld(), AActor::StaticClass(), Actors);
	Assets = FEditorAssets::GetAll();
	FindReferences();
	OutJson = ordered_json::object();
	return WriteView(OutJson["view"]) && WriteActors(OutJson["actors"]) && WriteAssets(OutJson["assets"]);
}

void FLevelWriter::FindReferences()
{
	for (const AActor* Actor : Actors)
	{
		References.emplace(Actor, FEngineText::ForDisplay(Actor->GetFName()));
	}
	for (const UObject* Asset : Assets)
	{
		References.emplace(Asset, FEngineText::ForDisplay(FEditorAssets::GetPath(Asset)));
	}
}

bool FLevelWriter::WriteView(ordered_json& OutJson)
{
	const TArray<FEditorViewportClient*> Clients = FEditorViews::FindLevelClients();
	const FEditorViewportClient* Client = Clients.Num() > 0 ? Clients[0] : nullptr;
	const FPlace Place = FPlace() / "view";
	return WriteLocation(Client ? Client->GetViewLocation() : FVector(), OutJson["location"], Place / "location") &&
		WriteRotation(Client ? Client->GetViewRotation() : FRotator(), OutJson["rotation"], Place / "rotation");
}

bool FLevelWriter::WriteActors(ordered_json& OutJson)
{
	OutJson = ordered_json::array();
	for (const AActor* Actor : Actors)
	{
		ordered_json Json;
		if (!WriteActor(Actor, Json, FPlace() / "actors" / OutJson.size()))
		{
			return false;
		}
		OutJson.push_back(std::move(Json));
	}
	return true;
}

bool FLevelWriter::WriteActor(const AActor* Actor, ordered_json& OutJson, const FPlace& Place)
{
	OutJson["class"] = FEngineText::ForDisplay(Actor->GetClass()->GetFName());
	ordered_json Members;
	if (!Properties.WriteString(Actor->GetName(), OutJson["name"], Place / "name") ||
		!WriteLocation(Actor->GetActorLocation(), OutJson["location"], Place / "location") ||
		!WriteRotation(Actor->GetActorRotation(), OutJson["rotation"], Place / "rotation") ||
		!Properties.WriteMembers(Actor->GetClass(), Actor, Actor->GetArchetype(), Members, Place / "properties"))
	{
		return false;
	}
	if (!Members.empty())
	{
		OutJson["properties"] = std::move(Members);
	}
	return true;
}

bool FLevelWriter::WriteAssets(ordered_json& OutJson)
{
	OutJson = ordered_json::array();
	for (const UObject* Asset : Assets)
	{
		const FPlace Place = FPlace() / "assets" / OutJson.size();
		ordered_json Json;
		if (!Properties.WriteString(FEditorAssets::GetPath(Asset), Json["path"], Place / "path"))
		{
			return false;
		}
		Json["class"] = FEngineText::ForDisplay(Asset->GetClass()->GetFName());
		OutJson.push_back(std::move(Json));
	}
	return true;
}

bool FLevelWriter::WriteLocation(const FVector& Location, ordered_json& OutJson, const FPlace& Place)
{
	OutJson = ordered_json::array({nullptr, nullptr, nullptr});
	return Properties.WriteFloat(Location.X, OutJson[0], Place / 0) &&
		Properties.WriteFloat(Location.Y, OutJson[1], Place / 1) &&
		Properties.WriteFloat(Location.Z, OutJson[2], Place / 2);
}

bool FLevelWriter::WriteRotation(const FRotator& Rotation, ordered_json& OutJson, const FPlace& Place)
{
	OutJson = ordered_json::array({nullptr, nullptr, nullptr});
	return Properties.WriteFloat(Rotation.Pitch, OutJson[0], Place / 0) &&
		Properties.WriteFloat(Rotation.Yaw, OutJson[1], Place / 1) &&
		Properties.WriteFloat(Rotation.Roll, OutJson[2], Place / 2);
}
