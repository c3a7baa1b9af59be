// Copyright Corvane. MIT License.
#include "Driver/NotificationRequests.h"

namespace
{
	FAnswer Refuse(FDriverSession&, const FRequest&)
	{
		throw FRequestError("this build has no notifications");
	}
}

std::vector<FRequestDefinition> FNotificationRequests::GetAll()
{
	return {{"announce", {{"version", EParameterType::Text, true}, {"address", EParameterType::Text, true}}, Refuse},
		{"notifications", {}, Refuse},
		{"press", {{"notification", EParameterType::Index, true}, {"button", EParameterType::Text, true}}, Refuse}};
}
