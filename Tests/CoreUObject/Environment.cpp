// Copyright Corvane. MIT License.
#include <gtest/gtest.h>

#include "TestTypes.h"

namespace
{
	/** As a program does it: makes the module's types known, and takes everything down at the end. */
	class FObjectEnvironment : public ::testing::Environment
	{
	public:
		virtual void SetUp() override { RegisterReflection_CoreUObjectTests(); }
		virtual void TearDown() override { StaticExit(); }
	};

	::testing::Environment* const Registered = ::testing::AddGlobalTestEnvironment(new FObjectEnvironment());
}
