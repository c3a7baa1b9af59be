// Copyright Corvane. MIT License.
#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

/** What the test modules have done so far: the only thing that the test and all of them can see. */
__attribute__((visibility("default"))) TArray<FString>& GetCoreTestJournal();
