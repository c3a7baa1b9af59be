// Copyright Corvane. MIT License.
#include "Driver/SenderRequests.h"

#include "ZAVSpoutNames.h"

namespace
{
	FAnswer SetSenders(FDriverSession&, const FRequest& Request)
	{
		TArray<FString> Names;
		for (const FString& Name : Request.GetTexts("names"))
		{
			Names.Add(Name);
		}
		ZAVSpoutNames::SetActiveSenderNames(Names);
		return FAnswer();
	}
}

std::vector<FRequestDefinition> FSenderRequests::GetAll()
{
	return {{"senders", {{"names", EParameterType::Texts, true}}, SetSenders}};
}
