// Copyright Corvane. MIT License.
#include "DetailsFixture.h"

#include "EngineText.h"
#include "Engine/World.h"

using nlohmann::json;

AEveryPropertyActor& FDetailsFixture::SpawnSelected()
{
	AEveryPropertyActor& Actor = *Session.GetEditor().GetWorld(0)->SpawnActor<AEveryPropertyActor>();
	Spawned.push_back(FEngineText::ForDisplay(Actor.GetFName()));
	Ask({{"do", "select"}, {"actors", Spawned}});
	return Actor;
}

FAnswer FDetailsFixture::GetRow(const std::string& Path)
{
	std::vector<FAnswer> Found;
	for (const FAnswer& Category : GetCategories())
	{
		for (const FAnswer& Row : Category["rows"])
		{
			if (Row["path"] == Path)
			{
				Found.push_back(Row);
			}
		}
	}
	EXPECT_EQ(Found.size(), 1u) << Path;
	return Found.size() == 1 ? Found[0] : FAnswer(nullptr);
}

std::vector<std::string> FDetailsFixture::GetNames()
{
	std::vector<std::string> Names;
	for (const FAnswer& Category : GetCategories())
	{
		for (const FAnswer& Row : Category["rows"])
		{
			Names.push_back(Row["name"]);
		}
	}
	return Names;
}

void FDetailsFixture::Set(const json& Row, const json& Value)
{
	Ask({{"do", "set"}, {"row", Row}, {"value", Value}});
}

std::string FDetailsFixture::RefuseSet(const json& Row, const json& Value)
{
	return GetRefusal({{"do", "set"}, {"row", Row}, {"value", Value}});
}
