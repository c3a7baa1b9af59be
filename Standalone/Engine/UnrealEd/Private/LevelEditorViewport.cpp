// Copyright Corvane. MIT License.
#include "LevelEditorViewport.h"

FLevelEditorViewportClient::FLevelEditorViewportClient(const TSharedPtr<SLevelViewport>& /*InLevelViewport*/)
	: FEditorViewportClient(nullptr)
{}
