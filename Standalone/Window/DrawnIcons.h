// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

/** The window's own icons, drawn with lines so that they are sharp at any size. */
class FDrawnIcons
{
public:
	/** "actor", "camera", "texture", "save", "undo", "redo", "reset", "search", "add", "remove", "float"; a null icon
	 * for any other name. */
	static QIcon Get(const QString& Name);
};
