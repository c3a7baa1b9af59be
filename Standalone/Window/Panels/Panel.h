// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

/** A part of the window that shows something of the editor. */
class FPanel : public QWidget
{
public:
	using QWidget::QWidget;

	/**
	 * Brings it up to date; called with each frame, about 60 times a second, while the editor is between two steps.
	 * What has not changed must cost next to nothing. Between two calls anything of the engine's may have gone: keep
	 * weak references only, or ask anew.
	 */
	virtual void Poll() = 0;

	/** What it looks at only now and then by the application's clock is due with the next Poll. */
	virtual void Invalidate() {}
};
