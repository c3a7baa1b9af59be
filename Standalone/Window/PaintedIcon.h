// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

/** An icon that paints itself in whatever size and resolution it is asked for. */
class FPaintedIcon : public QIconEngine
{
public:
	QPixmap pixmap(const QSize& Size, QIcon::Mode Mode, QIcon::State State) override;
};
