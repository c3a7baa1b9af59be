// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

struct FSlateFontInfo;
struct FSlateColor;

/** How the window looks: dark, in Roboto. */
class FWindowStyle
{
public:
	/** The colours that panels paint with themselves. All others come from the palette. */
	struct FColours
	{
		QColor Window;
		/** Behind lists and edit boxes. */
		QColor Base;
		QColor Text;
		QColor DimText;
		/** Of what is selected in the viewport, and what has the keyboard focus. */
		QColor Accent;
		/** Of what is selected in a list. */
		QColor Selection;
		QColor Border;
	};

	/** Sets the application's style, palette and font. Does nothing a second time. */
	static void Apply(QApplication& Application);

	static const FColours& GetColours();

	/** The font that a widget of the engine asks for; as wide as the engine's layout takes it to be. */
	static QFont GetFont(const FSlateFontInfo& Font);
	/** The window's own font: Roboto of that many points at 96 dots an inch. */
	static QFont GetFont(int Points, bool bBold = false);
	/** Surroundings is what stands for the foreground colour. */
	static QColor GetColour(const FSlateColor& Colour, const QColor& Surroundings);
};
