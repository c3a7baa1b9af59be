// Copyright Corvane. MIT License.
#include "Driver/DetailsRequests.h"

namespace
{
	FAnswer RefuseDetails(FDriverSession&, const FRequest&)
	{
		throw FRequestError("this build has no details panel");
	}

	FAnswer RefuseUndo(FDriverSession&, const FRequest&)
	{
		throw FRequestError("this build has no undo history");
	}
}

std::vector<FRequestDefinition> FDetailsRequests::GetAll()
{
	const FParameter Row = {"row", EParameterType::IndexOrText, true};
	return {{"details", {}, RefuseDetails}, {"set", {Row, {"value", EParameterType::Value, true}}, RefuseDetails},
		{"pick", {Row, {"option", EParameterType::IndexOrText, true}}, RefuseDetails},
		{"tick", {Row, {"state", EParameterType::Text, true}}, RefuseDetails}, {"undo", {}, RefuseUndo},
		{"redo", {}, RefuseUndo}};
}
