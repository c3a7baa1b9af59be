// Copyright Corvane. MIT License.
#include "LevelPlan.h"

#include "ErrorText.h"
#include "StrictJson.h"

#include <initializer_list>

#include "AssetPaths.h"
#include "EngineText.h"
#include "GameFramework/Actor.h"
#include "JsonScalars.h"
#include "LevelProperties.h"
#include "PropertyReader.h"
#include "UObject/Class.h"

using nlohmann::json;

namespace
{
	using FPlace = json::json_pointer;

	/** What a key of an object is for. */
	struct FKey
	{
		const char* Name;
		bool bRequired;
	};

	/** Walks one document and fills a plan; stops at the first thing that is not right. */
	class FPlanReader
	{
	public:
		FPlanReader(FLevelPlan& InPlan, std::string& OutError) : Plan(InPlan), Error(OutError) {}

		bool ReadLevel(const json& Json);

	private:
		bool ReadView(const json& Json, const FPlace& Place);
		bool ReadAsset(const json& Json, const FPlace& Place);
		bool ReadActor(const json& Json, const FPlace& Place);
		bool ReadActorName(const json& Json, const FPlace& Place, FName& OutName);
		/** A place that the actor could not keep is refused rather than forgotten. */
		bool CheckPlace(const FLevelPlan::FActor& Actor);
		bool CheckProperties(const FLevelPlan::FActor& Actor);

		bool CheckKeys(const json& Json, const FPlace& Place, std::initializer_list<FKey> Keys);
		/** Calls Read for each element of the array under Key, if there is one. */
		bool ReadEach(const json& Json, const char* Key, bool (FPlanReader::*Read)(const json&, const FPlace&));
		/** Reads three numbers under Key; they stay as they are if the key is absent. */
		bool ReadTriple(
			const json& Json, const FPlace& Place, const char* Key, float& First, float& Second, float& Third);
		bool ReadLocation(const json& Json, const FPlace& Place, FVector& OutLocation);
		bool ReadRotation(const json& Json, const FPlace& Place, FRotator& OutRotation);
		bool ReadClass(const json& Json, const FPlace& Place, UClass* (*Find)(const FString&), const char* Kind,
			UClass*& OutClass);
		bool Refuse(const FPlace& Place, const std::string& Reason);

		FLevelPlan& Plan;
		std::string& Error;
	};

	bool FPlanReader::ReadLevel(const json& Json)
	{
		const FPlace Top;
		if (!CheckKeys(Json, Top, {{"view", false}, {"actors", false}, {"assets", false}}) ||
			(Json.contains("view") && !ReadView(Json["view"], Top / "view")) ||
			!ReadEach(Json, "assets", &FPlanReader::ReadAsset) || !ReadEach(Json, "actors", &FPlanReader::ReadActor))
		{
			return false;
		}
		// Only now are all assets and actors known that a property may point at.
		for (const FLevelPlan::FActor& Actor : Plan.Actors)
		{
			if (!CheckProperties(Actor))
			{
				return false;
			}
		}
		return true;
	}

	bool FPlanReader::ReadView(const json& Json, const FPlace& Place)
	{
		return CheckKeys(Json, Place, {{"location", false}, {"rotation", false}}) &&
			ReadLocation(Json, Place, Plan.ViewLocation) && ReadRotation(Json, Place, Plan.ViewRotation);
	}

	bool FPlanReader::ReadAsset(const json& Json, const FPlace& Place)
	{
		FLevelPlan::FAsset Asset;
		if (!CheckKeys(Json, Place, {{"path", true}, {"class", true}}))
		{
			return false;
		}
		if (const char* Reason = FJsonScalars::ReadName(Json["path"], Asset.Path))
		{
			return Refuse(Place / "path", Reason);
		}
		if (!FAssetPaths::IsValid(Asset.Path))
		{
			return Refuse(Place / "path", "this is no path of an asset below /Game/");
		}
		if (!ReadClass(Json, Place, &FLevelProperties::FindAssetClass, "asset", Asset.Class))
		{
			return false;
		}
		if (!Plan.References.Add(Asset.Path, Asset.Class))
		{
			return Refuse(Place / "path", "an asset of this path stands in the file already");
		}
		Plan.Assets.push_back(Asset);
		return true;
	}

	bool FPlanReader::ReadActor(const json& Json, const FPlace& Place)
	{
		FLevelPlan::FActor Actor;
		Actor.Place = Place;
		if (!CheckKeys(Json, Place,
				{{"class", true}, {"name", true}, {"location", false}, {"rotation", false}, {"properties", false}}) ||
			!ReadClass(Json, Place, &FLevelProperties::FindActorClass, "actor", Actor.Class) ||
			!ReadActorName(Json["name"], Place / "name", Actor.Name) || !ReadLocation(Json, Place, Actor.Location) ||
			!ReadRotation(Json, Place, Actor.Rotation) || !CheckPlace(Actor))
		{
			return false;
		}
		if (!Plan.References.Add(Actor.Name, Actor.Class))
		{
			return Refuse(Place / "name", "an actor of this name stands in the file already");
		}
		Actor.Properties = Json.value("properties", json::object());
		Plan.Actors.push_back(std::move(Actor));
		return true;
	}

	bool FPlanReader::ReadActorName(const json& Json, const FPlace& Place, FName& OutName)
	{
		if (const char* Reason = FJsonScalars::ReadName(Json, OutName))
		{
			return Refuse(Place, Reason);
		}
		if (OutName.IsNone())
		{
			return Refuse(Place, "an actor needs a name other than None");
		}
		// These separate the parts of an object's path.
		const bool bSeparator = Json.get_ref<const std::string&>().find_first_of("/.:") != std::string::npos;
		return !bSeparator || Refuse(Place, "an actor's name can't hold any of / . :");
	}

	bool FPlanReader::CheckPlace(const FLevelPlan::FActor& Actor)
	{
		const bool bHasRoot = Actor.Class->GetDefaultObject<AActor>()->GetRootComponent() != nullptr;
		const bool bAtZero = Actor.Location == FVector() && Actor.Rotation == FRotator();
		return bHasRoot || bAtZero || Refuse(Actor.Place, "actors of this class have no place in the world");
	}

	bool FPlanReader::CheckProperties(const FLevelPlan::FActor& Actor)
	{
		FPropertyReader Reader(FPropertyReader::EPass::Check, Plan.References, Error);
		return Reader.ReadMembers(
			Actor.Class, Actor.Class->GetDefaultObject(), Actor.Properties, Actor.Place / "properties");
	}

	bool FPlanReader::CheckKeys(const json& Json, const FPlace& Place, std::initializer_list<FKey> Keys)
	{
		if (!Json.is_object())
		{
			return Refuse(Place, "an object is wanted");
		}
		size_t Known = 0;
		for (const FKey& Key : Keys)
		{
			const bool bPresent = Json.contains(Key.Name);
			if (Key.bRequired && !bPresent)
			{
				return Refuse(Place, std::string("the key \"") + Key.Name + "\" is missing");
			}
			Known += bPresent ? 1 : 0;
		}
		if (Known == Json.size())
		{
			return true;
		}
		for (const auto& [Name, Value] : Json.items())
		{
			if (std::none_of(Keys.begin(), Keys.end(), [&Name = Name](const FKey& Key) { return Name == Key.Name; }))
			{
				return Refuse(Place / Name, "unknown key");
			}
		}
		return true;
	}

	bool FPlanReader::ReadEach(const json& Json, const char* Key, bool (FPlanReader::*Read)(const json&, const FPlace&))
	{
		const FPlace Place = FPlace() / Key;
		if (!Json.contains(Key))
		{
			return true;
		}
		const json& Elements = Json[Key];
		if (!Elements.is_array())
		{
			return Refuse(Place, "an array is wanted");
		}
		for (size_t Index = 0; Index < Elements.size(); ++Index)
		{
			if (!(this->*Read)(Elements[Index], Place / Index))
			{
				return false;
			}
		}
		return true;
	}

	bool FPlanReader::ReadTriple(
		const json& Json, const FPlace& Place, const char* Key, float& First, float& Second, float& Third)
	{
		if (!Json.contains(Key))
		{
			return true;
		}
		const json& Triple = Json[Key];
		if (!Triple.is_array() || Triple.size() != 3)
		{
			return Refuse(Place / Key, "an array of three numbers is wanted");
		}
		float* const Targets[] = {&First, &Second, &Third};
		for (size_t Index = 0; Index < 3; ++Index)
		{
			if (const char* Reason = FJsonScalars::ReadFloat(Triple[Index], *Targets[Index]))
			{
				return Refuse(Place / Key / Index, Reason);
			}
		}
		return true;
	}

	bool FPlanReader::ReadLocation(const json& Json, const FPlace& Place, FVector& OutLocation)
	{
		return ReadTriple(Json, Place, "location", OutLocation.X, OutLocation.Y, OutLocation.Z);
	}

	bool FPlanReader::ReadRotation(const json& Json, const FPlace& Place, FRotator& OutRotation)
	{
		return ReadTriple(Json, Place, "rotation", OutRotation.Pitch, OutRotation.Yaw, OutRotation.Roll);
	}

	bool FPlanReader::ReadClass(
		const json& Json, const FPlace& Place, UClass* (*Find)(const FString&), const char* Kind, UClass*& OutClass)
	{
		FString Name;
		if (const char* Reason = FJsonScalars::ReadString(Json["class"], Name))
		{
			return Refuse(Place / "class", Reason);
		}
		OutClass = Find(Name);
		return OutClass ||
			Refuse(Place / "class",
				FErrorText::Quote(Json["class"].get_ref<const std::string&>()) + " is no class of " + Kind + "s");
	}

	bool FPlanReader::Refuse(const FPlace& Place, const std::string& Reason)
	{
		Error = FErrorText::AtPlace(Place.to_string(), Reason);
		return false;
	}
}

bool FLevelPlan::Make(const std::string& Text, FLevelPlan& OutPlan, std::string& OutError)
{
	json Document;
	return FStrictJson::Parse(Text, Document, OutError) && FPlanReader(OutPlan, OutError).ReadLevel(Document);
}
