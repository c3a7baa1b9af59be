// Copyright Corvane. MIT License.
#include "PaintedIcon.h"

QPixmap FPaintedIcon::pixmap(const QSize& Size, QIcon::Mode Mode, QIcon::State State)
{
	QPixmap Pixmap(Size);
	Pixmap.fill(Qt::transparent);
	QPainter Painter(&Pixmap);
	paint(&Painter, QRect(QPoint(), Size), Mode, State);
	return Pixmap;
}
