// Copyright Corvane. MIT License.
#include "Driver/OutsideRequests.h"

#include "Driver/DriverSession.h"
#include "Driver/OutsideRecorder.h"
#include "EngineText.h"
#include "Standalone/AddressOpener.h"
#include "ZAVTelemetry.h"

namespace
{
	const char* GetKindName(EAppMsgType::Type Kind)
	{
		switch (Kind)
		{
			case EAppMsgType::YesNo:
				return "YesNo";
			case EAppMsgType::OkCancel:
				return "OkCancel";
			default:
				return "Ok";
		}
	}

	FAnswer DescribeMessages(const FOutsideRecorder& Outside)
	{
		FAnswer Messages = FAnswer::array();
		for (const FOutsideRecorder::FMessage& Message : Outside.GetMessages())
		{
			Messages.push_back({{"kind", GetKindName(Message.Kind)}, {"text", FEngineText::ForDisplay(Message.Text)},
				{"title", Message.Title.IsEmpty() ? FAnswer() : FAnswer(FEngineText::ForDisplay(Message.Title))}});
		}
		return Messages;
	}

	FAnswer DescribeEnsures(const FOutsideRecorder& Outside)
	{
		FAnswer Ensures = FAnswer::array();
		for (const FEnsureReport& Report : Outside.GetEnsures())
		{
			Ensures.push_back({{"expression", FEngineText::ForDisplay(Report.Expression)},
				{"file", FEngineText::ForDisplay(Report.File)}, {"line", Report.Line}});
		}
		return Ensures;
	}

	FAnswer DescribeOutside(FDriverSession& Session, const FRequest&)
	{
		const FOutsideRecorder& Outside = Session.GetOutside();
		FAnswer Addresses = FAnswer::array();
		FAnswer Refused = FAnswer::array();
		for (const FString& Address : Outside.GetAddresses())
		{
			Addresses.push_back(FEngineText::ForDisplay(Address));
			if (!FAddressOpener::IsAllowed(Address))
			{
				Refused.push_back(FEngineText::ForDisplay(Address));
			}
		}
		return {{"addresses", std::move(Addresses)}, {"refused", std::move(Refused)},
			{"messages", DescribeMessages(Outside)},
			{"telemetry", {{"wizardOpened", ZAVTelemetry::GetWizardEditorOpenedCount()}}},
			{"ensures", DescribeEnsures(Outside)},
			{"counts",
				{{"redraws", Outside.GetRedraws()}, {"contentSyncs", Outside.GetContentSyncs()},
					{"saves", Outside.GetSaves()}}}};
	}
}

std::vector<FRequestDefinition> FOutsideRequests::GetAll()
{
	return {{"outside", {}, DescribeOutside}};
}
