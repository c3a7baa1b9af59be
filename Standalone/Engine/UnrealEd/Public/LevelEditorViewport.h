// Copyright Corvane. MIT License.
#pragma once

#include "EditorViewportClient.h"
#include "Templates/SharedPointer.h"

class SLevelViewport;

/** The client of a viewport of the level editor. */
class UNREALED_API FLevelEditorViewportClient : public FEditorViewportClient
{
public:
	/** There are no widgets of level viewports: InLevelViewport is null. */
	explicit FLevelEditorViewportClient(const TSharedPtr<SLevelViewport>& InLevelViewport);
};
