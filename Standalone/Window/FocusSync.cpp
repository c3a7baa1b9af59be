// Copyright Corvane. MIT License.
#include "FocusSync.h"

int FFocusSync::Depth = 0;
