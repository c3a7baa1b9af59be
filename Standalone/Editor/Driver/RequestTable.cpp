// Copyright Corvane. MIT License.
#include "Driver/RequestTable.h"

#include "ErrorText.h"
#include "StrictJson.h"

#include <algorithm>

#include "Driver/ActorRequests.h"
#include "Driver/DetailsRequests.h"
#include "Driver/DriverSession.h"
#include "Driver/InputRequests.h"
#include "Driver/LevelRequests.h"
#include "Driver/MenuRequests.h"
#include "Driver/NotificationRequests.h"
#include "Driver/OutsideRequests.h"
#include "Driver/PlacementRequests.h"
#include "Driver/RegisteredRequests.h"
#include "Driver/SenderRequests.h"
#include "Driver/SessionRequests.h"
#include "Driver/TabRequests.h"
#include "Driver/UndoRequests.h"
#include "Driver/WidgetRequests.h"

using nlohmann::json;

namespace
{
	FAnswer ListRequests(FDriverSession&, const FRequest&)
	{
		FAnswer Answer = {{"requests", FAnswer::array()}};
		for (const FRequestDefinition& Definition : FRequestTable::GetAll())
		{
			FAnswer Parameters = FAnswer::array();
			for (const FParameter& Parameter : Definition.Parameters)
			{
				Parameters.push_back(
					{{"name", Parameter.Name}, {"type", Parameter.GetTypeName()}, {"required", Parameter.bRequired}});
			}
			Answer["requests"].push_back({{"do", Definition.Do}, {"parameters", std::move(Parameters)}});
		}
		return Answer;
	}

	std::vector<FRequestDefinition> MakeTable()
	{
		std::vector<FRequestDefinition> Table = {{"help", {}, ListRequests}};
		for (const auto GetSubject :
			{FLevelRequests::GetAll, FActorRequests::GetAll, FTabRequests::GetAll, FWidgetRequests::GetAll,
				FInputRequests::GetAll, FWidgetRequests::GetGeometry, FMenuRequests::GetAll, FPlacementRequests::GetAll,
				FDetailsRequests::GetAll, FUndoRequests::GetAll, FSenderRequests::GetAll, FNotificationRequests::GetAll,
				FOutsideRequests::GetAll, FRegisteredRequests::GetAll, FSessionRequests::GetAll})
		{
			const std::vector<FRequestDefinition> Subject = GetSubject();
			Table.insert(Table.end(), Subject.begin(), Subject.end());
		}
		return Table;
	}

	/** Throws FRequestError unless the parameters are those of the request. "do" is among them. */
	void CheckParameters(const FRequestDefinition& Definition, const json& Request)
	{
		for (const auto& [Name, Value] : Request.items())
		{
			const auto Known = std::find_if(Definition.Parameters.begin(), Definition.Parameters.end(),
				[&Key = Name](const FParameter& Parameter) { return Key == Parameter.Name; });
			const bool bKnown = Known != Definition.Parameters.end();
			if (!bKnown && Name != "do")
			{
				throw FRequestError("unknown parameter " + FErrorText::Quote(Name));
			}
			const std::string Reason = bKnown ? Known->Check(Value) : std::string();
			if (!Reason.empty())
			{
				throw FRequestError("parameter " + FErrorText::Quote(Name) + ": " + Reason);
			}
		}
		for (const FParameter& Parameter : Definition.Parameters)
		{
			if (Parameter.bRequired && !Request.contains(Parameter.Name))
			{
				throw FRequestError("missing parameter " + FErrorText::Quote(Parameter.Name));
			}
		}
	}

	/** Throws FRequestError if Request is none that the table has. */
	const FRequestDefinition& FindDefinition(const json& Request)
	{
		if (!Request.is_object() || !Request.contains("do"))
		{
			throw FRequestError("a request is an object with \"do\"");
		}
		if (!Request["do"].is_string())
		{
			throw FRequestError("\"do\": a text is wanted");
		}
		const auto& Do = Request["do"].get_ref<const std::string&>();
		for (const FRequestDefinition& Definition : FRequestTable::GetAll())
		{
			if (Do == Definition.Do)
			{
				return Definition;
			}
		}
		throw FRequestError("unknown request " + FErrorText::Quote(Do));
	}

	/** Throws FRequestError before anything was changed. */
	FAnswer CarryOut(FDriverSession& Session, const json& Request)
	{
		const FRequestDefinition& Definition = FindDefinition(Request);
		CheckParameters(Definition, Request);
		return Definition.Run(Session, FRequest(Request));
	}
}

const std::vector<FRequestDefinition>& FRequestTable::GetAll()
{
	static const std::vector<FRequestDefinition> Table = MakeTable();
	return Table;
}

std::string FRequestTable::Answer(FDriverSession& Session, const std::string& Line)
{
	json Request;
	std::string Error;
	FAnswer Members;
	const bool bParsed = FStrictJson::Parse(Line, Request, Error);
	try
	{
		if (!bParsed)
		{
			throw FRequestError(Error);
		}
		Members = CarryOut(Session, Request);
	}
	catch (const FRequestError& Problem)
	{
		Error = Problem.what();
	}
	Session.Tick();
	const bool bHasDo = bParsed && Request.is_object() && Request.contains("do");
	return Format(bHasDo ? FAnswer(Request["do"]) : FAnswer(), Members, Error);
}

std::string FRequestTable::Refuse(const std::string& Reason)
{
	return Format(FAnswer(), FAnswer(), Reason);
}

std::string FRequestTable::Format(const FAnswer& Do, const FAnswer& Members, const std::string& Error)
{
	FAnswer Answer = {{"do", Do}, {"ok", Error.empty()}};
	if (!Error.empty())
	{
		Answer["error"] = Error;
	}
	else if (Members.is_object())
	{
		Answer.update(Members);
	}
	// Whatever a handler put in: the answer is valid Unicode.
	return Answer.dump(-1, ' ', false, FAnswer::error_handler_t::replace);
}
