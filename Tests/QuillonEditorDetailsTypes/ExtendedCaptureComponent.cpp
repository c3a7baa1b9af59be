// Copyright Corvane. MIT License.
#include "ExtendedCaptureComponent.h"
