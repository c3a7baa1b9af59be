// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

/** An asset's picture, drawn in any resolution: nothing is rendered here that could be shown. */
class FAssetThumbnail
{
public:
	/** @param Size what is written below a texture; may be empty. */
	static QIcon Make(bool bTexture, const QString& Size);
};
