// Copyright Corvane. MIT License.
#include "ZAVCaptureComponent.h"
