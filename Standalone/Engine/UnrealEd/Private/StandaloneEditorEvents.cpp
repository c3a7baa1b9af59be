// Copyright Corvane. MIT License.
#include "StandaloneEditorEvents.h"

FStandaloneEditorEvents::FContentSync FStandaloneEditorEvents::ContentSync;
FStandaloneEditorEvents::FRedraw FStandaloneEditorEvents::Redraw;
