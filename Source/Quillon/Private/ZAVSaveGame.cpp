// Copyright Corvane. MIT License.
#include "ZAVSaveGame.h"
