// Copyright Corvane. MIT License.
#include "ZAVSpoutSenderManager.h"
