// Copyright Corvane. MIT License.
#include "DrivenEditor.h"

#include "Driver/RequestTable.h"

FDrivenEditor::FDrivenEditor()
{
	std::string Error;
	EXPECT_TRUE(Session.Start(FStandaloneEditorOptions(), Error)) << Error;
}

nlohmann::json FDrivenEditor::Ask(FDriverSession& Session, const nlohmann::json& Request)
{
	const nlohmann::json Answer = nlohmann::json::parse(FRequestTable::Answer(Session, Request.dump()));
	EXPECT_TRUE(Answer["ok"]) << Request << " was answered with " << Answer;
	return Answer;
}

void FDrivenEditor::Module(const char* Action, const char* Name)
{
	Ask({{"do", "module"}, {"name", Name}, {"action", Action}});
}
