// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

/** Fusion, with what it lacks on a dark ground: check marks, frames and headings that can be seen. */
class FEditorProxyStyle : public QProxyStyle
{
public:
	FEditorProxyStyle();

	int styleHint(
		StyleHint Hint, const QStyleOption* Option, const QWidget* Widget, QStyleHintReturn* Return) const override;
	QIcon standardIcon(StandardPixmap Standard, const QStyleOption* Option, const QWidget* Widget) const override;
	int pixelMetric(PixelMetric Metric, const QStyleOption* Option, const QWidget* Widget) const override;
	void drawControl(
		ControlElement Element, const QStyleOption* Option, QPainter* Painter, const QWidget* Widget) const override;
	void drawPrimitive(
		PrimitiveElement Element, const QStyleOption* Option, QPainter* Painter, const QWidget* Widget) const override;
};
