// Copyright Corvane. MIT License.
#pragma once

#include "Leaves/Leaf.h"

class SImage;

/** A brush's image, in the resolution of the screen. */
class FImageLeaf final : public FLeaf
{
public:
	FImageLeaf(const TSharedRef<SImage>& Image, QWidget* Parent);

protected:
	void Show(SWidget& Shown, const FPlace& Place) override;

private:
	QString LastFile;
	QSizeF LastSize;
	qreal LastRatio = 0.0;
};
