// Copyright Corvane. MIT License.
#pragma once

#include "Header.h"

#include <string>
#include <vector>

/** Writes the sources that make a module's types known at run time. All functions return a whole file. */
class FGenerator
{
public:
	explicit FGenerator(std::string InModule) : Module(std::move(InModule)) {}

	/** The header that the reflected header includes last: bodies for GENERATED_BODY(). */
	std::string MakeHeader(const FHeader& Header) const;
	/** The definitions for one header. */
	std::string MakeSource(const FHeader& Header) const;
	/** The function that registers all types of the module. */
	std::string MakeInit(const std::vector<FHeader>& Headers) const;

private:
	std::string MakeBody(const FHeader& Header, const FReflectedType& Type) const;
	std::string MakeClass(const FReflectedType& Type) const;
	std::string MakeStruct(const FReflectedType& Type) const;

	std::string Module;
};
