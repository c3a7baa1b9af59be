// Copyright Corvane. MIT License.
#include "EditorStateFixture.h"

#include "Editor.h"
#include "EditorViewportClient.h"

using nlohmann::json;

std::string FEditorStateFixture::GetRefusal(const json& Request)
{
	return GetLineRefusal(Request.dump(), Request["do"].get<std::string>());
}

std::string FEditorStateFixture::GetLineRefusal(const std::string& Line, const FAnswer& Do)
{
	const std::string Before = DescribeState();
	const FAnswer Answer = AskLine(Line);
	EXPECT_EQ(Answer.size(), 3u) << Answer;
	EXPECT_EQ(Answer["do"], Do);
	EXPECT_EQ(Answer["ok"], false) << Answer;
	EXPECT_EQ(DescribeState(), Before);
	return Answer.value("error", std::string());
}

std::string FEditorStateFixture::Place(const char* Class)
{
	return Ask({{"do", "place"}, {"class", Class}, {"location", {1, 2, 3}}, {"rotation", {4, 5, 6}}})["name"];
}

std::string FEditorStateFixture::DescribeState()
{
	std::string State;
	for (const char* Do : {"level", "assets", "outside", "registered", "tabs"})
	{
		State += Ask({{"do", Do}}).dump();
	}
	for (const FEditorViewportClient* Client : GEditor->GetAllViewportClients())
	{
		const FVector& Location = Client->GetViewLocation();
		const FRotator& Rotation = Client->GetViewRotation();
		State += json(
			{Client->GetWorld() == Session.GetEditor().GetWorld(0), Client->Viewport == GEditor->GetActiveViewport(),
				Location.X, Location.Y, Location.Z, Rotation.Pitch, Rotation.Yaw, Rotation.Roll})
					 .dump();
	}
	return State;
}
