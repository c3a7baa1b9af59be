// Copyright Corvane. MIT License.
#pragma once

#include "Request.h"

#include <functional>
#include <string>
#include <vector>

class FDriverSession;

/** One request that the driver knows. */
struct FRequestDefinition
{
	const char* Do;
	std::vector<FParameter> Parameters;
	/** Carries the request out. Throws FRequestError before anything was changed. */
	std::function<FAnswer(FDriverSession&, const FRequest&)> Run;
};

/** All requests: the one table from which they are dispatched and from which `help` lists them. */
class FRequestTable
{
public:
	/** The whole table, in the order in which help lists it. */
	static const std::vector<FRequestDefinition>& GetAll();

	/**
	 * Reads one line and carries it out.
	 * @return the answer as one line without line feed; a line that is no request answers with an error as well.
	 */
	static std::string Answer(FDriverSession& Session, const std::string& Line);

	/** @return the answer to a line that never became a request. */
	static std::string Refuse(const std::string& Reason);

private:
	static std::string Format(const FAnswer& Do, const FAnswer& Members, const std::string& Error);
};
