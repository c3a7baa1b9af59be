// Copyright Corvane. MIT License.
#pragma once

#include "Editor/EditorEngine.h"

/** The editor, from its start to its exit; else null. Whoever starts the editor sets it. */
extern UNREALED_API class UEditorEngine* GEditor;
