// Copyright Corvane. MIT License.
#include "DetailsSplitter.h"

#include "WindowStyle.h"

namespace
{
	constexpr int Width = 5;
	constexpr int KeyStep = 8;
}

FDetailsSplitter::FDetailsSplitter(QWidget* Parent) : QWidget(Parent)
{
	setCursor(Qt::SplitHCursor);
	// A drag must not take the focus from the value that is being edited.
	setFocusPolicy(Qt::TabFocus);
	setAccessibleName(QStringLiteral("Width of the names"));
}

int FDetailsSplitter::GetX() const
{
	return x() + Width / 2;
}

void FDetailsSplitter::Place(int X, int Height)
{
	setGeometry(X - Width / 2, 0, Width, Height);
}

void FDetailsSplitter::mousePressEvent(QMouseEvent* Event)
{
	GrabbedAt = qRound(Event->position().x());
}

void FDetailsSplitter::mouseMoveEvent(QMouseEvent* Event)
{
	if (Event->buttons().testFlag(Qt::LeftButton))
	{
		OnMoved(GetX() + qRound(Event->position().x()) - GrabbedAt);
	}
}

void FDetailsSplitter::keyPressEvent(QKeyEvent* Event)
{
	if (Event->key() != Qt::Key_Left && Event->key() != Qt::Key_Right)
	{
		QWidget::keyPressEvent(Event);
		return;
	}
	OnMoved(GetX() + (Event->key() == Qt::Key_Right ? KeyStep : -KeyStep));
}

void FDetailsSplitter::focusInEvent(QFocusEvent*)
{
	update();
}

void FDetailsSplitter::focusOutEvent(QFocusEvent*)
{
	update();
}

void FDetailsSplitter::paintEvent(QPaintEvent*)
{
	// Without the focus the rows' own lines show where it is.
	if (hasFocus())
	{
		QPainter(this).fillRect(QRect(Width / 2, 0, 1, height()), FWindowStyle::GetColours().Accent);
	}
}
