// Copyright Corvane. MIT License.
#include "Driver/DetailsRequests.h"

#include "DetailsPanel.h"
#include "ErrorText.h"

#include <algorithm>
#include <iterator>

#include "Driver/DetailsEdits.h"
#include "Driver/DetailsRowAnswer.h"
#include "Driver/DriverSession.h"
#include "EngineText.h"

namespace
{
	FAnswer ListDetails(FDriverSession& Session, const FRequest&)
	{
		FAnswer Categories = FAnswer::array();
		for (const FDetailsPanel::FCategory& Category : Session.GetEditor().GetDetails().GetCategories())
		{
			FAnswer Rows = FAnswer::array();
			for (const FDetailsRow& Row : Category.Rows)
			{
				Rows.push_back(FDetailsRowAnswer::Describe(Row));
			}
			Categories.push_back(
				{{"name", FEngineText::ForDisplay(Category.Name.ToString())}, {"rows", std::move(Rows)}});
		}
		return {{"categories", std::move(Categories)}};
	}

	/** What a request may call a row by. */
	enum class ECall
	{
		Number,
		Path,
		Name
	};

	std::vector<FDetailsRow> FindRows(FDriverSession& Session, const FRequest& Request, ECall Call)
	{
		const FString Wanted = Call == ECall::Number ? FString() : Request.GetText("row");
		const auto IsWanted = [&](const FDetailsRow& Row)
		{
			if (Call == ECall::Number)
			{
				return Row.Id == Request.GetIndex("row");
			}
			return Call == ECall::Path ? !Wanted.IsEmpty() && Row.Path.Equals(Wanted)
									   : Row.GetName().ToString().Equals(Wanted);
		};
		std::vector<FDetailsRow> Found;
		for (const FDetailsPanel::FCategory& Category : Session.GetEditor().GetDetails().GetCategories())
		{
			std::copy_if(Category.Rows.begin(), Category.Rows.end(), std::back_inserter(Found), IsWanted);
		}
		return Found;
	}

	std::string Quote(const FRequest& Request)
	{
		return Request.IsText("row") ? FErrorText::Quote(Request.GetUtf8("row"))
									 : std::to_string(Request.GetIndex("row"));
	}

	/** Nobody reaches for a row without having seen it: what is shown is what there is to pick from. */
	void LookOnce(FDriverSession& Session, const FRequest& Request)
	{
		if (!Session.GetEditor().GetDetails().IsBuilt())
		{
			ListDetails(Session, Request);
		}
	}

	/** A copy: the panel may build its rows anew while the row is being changed. */
	FDetailsRow FindRow(FDriverSession& Session, const FRequest& Request)
	{
		LookOnce(Session, Request);
		std::vector<FDetailsRow> Found =
			FindRows(Session, Request, Request.IsText("row") ? ECall::Path : ECall::Number);
		if (Found.empty() && Request.IsText("row"))
		{
			Found = FindRows(Session, Request, ECall::Name);
		}
		if (Found.empty())
		{
			throw FRequestError("the details have no row " + Quote(Request));
		}
		if (Found.size() > 1)
		{
			std::string Ids;
			for (const FDetailsRow& Row : Found)
			{
				Ids += (Ids.empty() ? "" : ", ") + std::to_string(Row.Id);
			}
			throw FRequestError("the details have several rows " + Quote(Request) + ": " + Ids);
		}
		return Found[0];
	}

	FAnswer SetRow(FDriverSession& Session, const FRequest& Request)
	{
		FDetailsEdits::Set(FindRow(Session, Request), Request.GetValue("value"));
		return FAnswer();
	}

	FAnswer PickOption(FDriverSession& Session, const FRequest& Request)
	{
		const FDetailsRow Row = FindRow(Session, Request);
		if (Request.IsText("option"))
		{
			FDetailsEdits::Pick(Row, Request.GetText("option"));
		}
		else
		{
			FDetailsEdits::Pick(Row, Request.GetIndex("option"));
		}
		return FAnswer();
	}

	FAnswer TickBox(FDriverSession& Session, const FRequest& Request)
	{
		const std::string State = Request.GetUtf8("state");
		if (State != "checked" && State != "unchecked")
		{
			throw FRequestError("parameter \"state\": \"checked\" or \"unchecked\" is wanted");
		}
		FDetailsEdits::Tick(FindRow(Session, Request), State == "checked");
		return FAnswer();
	}
}

std::vector<FRequestDefinition> FDetailsRequests::GetAll()
{
	const FParameter Row = {"row", EParameterType::IndexOrText, true};
	return {{"details", {}, ListDetails}, {"set", {Row, {"value", EParameterType::Value, true}}, SetRow},
		{"pick", {Row, {"option", EParameterType::IndexOrText, true}}, PickOption},
		{"tick", {Row, {"state", EParameterType::Text, true}}, TickBox}};
}
