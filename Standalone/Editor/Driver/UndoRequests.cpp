// Copyright Corvane. MIT License.
#include "Driver/UndoRequests.h"

#include "Editor.h"
#include "EngineText.h"

namespace
{
	FAnswer Describe(const FTransactionContext& Step)
	{
		return {{"step", FEngineText::ForDisplay(Step.Title.ToString())}};
	}

	FAnswer Undo(FDriverSession&, const FRequest&)
	{
		const FTransactionContext Step = GEditor->Trans->GetUndoContext();
		if (!GEditor->UndoTransaction())
		{
			throw FRequestError("there is nothing to undo");
		}
		return Describe(Step);
	}

	FAnswer Redo(FDriverSession&, const FRequest&)
	{
		const FTransactionContext Step = GEditor->Trans->GetRedoContext();
		if (!GEditor->RedoTransaction())
		{
			throw FRequestError("there is nothing to redo");
		}
		return Describe(Step);
	}
}

std::vector<FRequestDefinition> FUndoRequests::GetAll()
{
	return {{"undo", {}, Undo}, {"redo", {}, Redo}};
}
