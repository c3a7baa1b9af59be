// Copyright Corvane. MIT License.
#include "PlatformFeatures.h"

IPlatformFeaturesModule& IPlatformFeaturesModule::Get()
{
	static IPlatformFeaturesModule Module;
	return Module;
}
