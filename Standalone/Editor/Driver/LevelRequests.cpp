// Copyright Corvane. MIT License.
#include "Driver/LevelRequests.h"

#include "LevelPlan.h"

#include "AssetRegistry/IAssetRegistry.h"
#include "Driver/DriverSession.h"
#include "Editor.h"
#include "EditorViews.h"
#include "LevelBuilder.h"
#include "LevelEditorViewport.h"
#include "LevelFile.h"

namespace
{
	/** Its module may have been unloaded; without it nobody knows which assets a level has. */
	void NeedAssetRegistry()
	{
		if (!IAssetRegistry::Get())
		{
			throw FRequestError("a level needs the module \"AssetRegistry\", which is not loaded");
		}
	}

	FAnswer OpenLevel(FDriverSession& Session, const FRequest& Request)
	{
		NeedAssetRegistry();
		std::string Error;
		if (!FLevelFile::Open(Request.GetUtf8("file"), Error))
		{
			throw FRequestError(Error);
		}
		Session.GetEditor().EmptySecondWorld();
		return FAnswer();
	}

	FAnswer NewLevel(FDriverSession& Session, const FRequest&)
	{
		NeedAssetRegistry();
		FLevelPlan Empty;
		FLevelBuilder::Replace(Empty);
		Session.GetEditor().EmptySecondWorld();
		return FAnswer();
	}

	FAnswer SaveLevel(FDriverSession&, const FRequest& Request)
	{
		NeedAssetRegistry();
		std::string Error;
		if (!FLevelFile::Save(Request.GetUtf8("file"), Error))
		{
			throw FRequestError(Error);
		}
		return FAnswer();
	}

	FEditorViewportClient& GetClient(const FRequest& Request)
	{
		if (!Request.Has("client"))
		{
			if (FEditorViewportClient* Active = FEditorViews::FindActiveClient())
			{
				return *Active;
			}
			throw FRequestError("no viewport is active");
		}
		const int32 Index = Request.GetIndex("client");
		if (!GEditor->GetAllViewportClients().IsValidIndex(Index))
		{
			throw FRequestError("there is no client " + std::to_string(Index));
		}
		return *GEditor->GetAllViewportClients()[Index];
	}

	FAnswer MoveView(FDriverSession&, const FRequest& Request)
	{
		FEditorViewportClient& Client = GetClient(Request);
		Client.SetViewLocation(Request.GetVector("location"));
		Client.SetViewRotation(Request.GetRotator("rotation"));
		return FAnswer();
	}

	FAnswer SetViewports(FDriverSession& Session, const FRequest& Request)
	{
		const std::vector<int32> Indices =
			Request.Has("clients") ? Request.GetWorlds("clients") : std::vector<int32>{0};
		int32 Active = Indices.empty() ? INDEX_NONE : 0;
		if (Request.Has("active"))
		{
			Active = Request.IsNull("active") ? INDEX_NONE : Request.GetIndex("active");
		}
		if (Active >= static_cast<int32>(Indices.size()))
		{
			throw FRequestError("there is no client " + std::to_string(Active) + " to be active");
		}
		std::vector<UWorld*> Worlds;
		Worlds.reserve(Indices.size());
		for (const int32 Index : Indices)
		{
			Worlds.push_back(Session.GetEditor().GetWorld(Index));
		}
		Session.GetEditor().GetViewports().Open(Worlds, Active);
		return FAnswer();
	}
}

std::vector<FRequestDefinition> FLevelRequests::GetAll()
{
	const FParameter File = {"file", EParameterType::Text, true};
	const FParameter Location = {"location", EParameterType::Vector, true};
	const FParameter Rotation = {"rotation", EParameterType::Vector, true};
	return {{"open-level", {File}, OpenLevel}, {"new-level", {}, NewLevel}, {"save-level", {File}, SaveLevel},
		{"view", {Location, Rotation, {"client", EParameterType::Index, false}}, MoveView},
		{"viewports", {{"clients", EParameterType::Clients, false}, {"active", EParameterType::IndexOrNull, false}},
			SetViewports}};
}
