// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include "CoreMinimal.h"
#include "Textures/SlateIcon.h"

struct FSlateBrush;
class UClass;

/** The images of the style sets, read from their files once. */
class FWindowImages
{
public:
	/**
	 * A brush's image for a place of Size units on a screen of that many pixels a unit. Of files that differ in the
	 * size at the end of their names only, as "Logo_40x.png" and "Logo_80x.png", the sharpest is taken that is needed;
	 * where none has enough pixels, the drawing that they were rendered from, if it is there (Resources/Source). A null
	 * pixmap without image, and for a file that can't be read.
	 */
	static QPixmap Get(const FSlateBrush* Brush, QSizeF Size, qreal PixelsPerUnit);

	/** The same as an icon of any size and resolution. A null icon without image. */
	static QIcon GetIcon(const FSlateBrush* Brush);
	static QIcon GetIcon(const FSlateIcon& Icon);

	/** The icon that a style set has for a class ("ClassIcon.NAME", NAME without prefix letter) or for the nearest of
	 * its super classes; a general one if there is none. Looks it up at each call. */
	static QIcon GetClassIcon(const UClass* Class);

	/** One of the window's own drawings: "save", "undo", "redo", "actor", "camera", "texture", "search" …, by a
	 * painter and in any resolution. A null icon for an unknown name. */
	static QIcon GetDrawn(const QString& Name);

	/** Reads all files anew when they are next asked for. */
	static void Forget();
};
