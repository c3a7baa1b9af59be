// Copyright Corvane. MIT License.
#include "DetailsLine.h"

#include "WindowStyle.h"

using EKind = FDetailsItem::EKind;

namespace
{
	constexpr int LineHeight = 24;
	constexpr int Indent = 12;
	constexpr int ArrowSize = 16;
	constexpr int FontPoints = 9;
}

FDetailsLine::FDetailsLine(QWidget* Parent) : QWidget(Parent)
{
	setFocusPolicy(Qt::StrongFocus);
}

void FDetailsLine::SetItem(const FDetailsItem& Item)
{
	Kind = Item.Kind;
	Depth = Item.Depth;
	bHasChildren = !Item.Children.empty();
	// Rows without anything below are reached through their values.
	setFocusPolicy(bHasChildren ? Qt::StrongFocus : Qt::ClickFocus);
	if (Name != Item.Name)
	{
		Name = Item.Name;
		setAccessibleName(Name);
	}
	update();
}

void FDetailsLine::SetOpen(bool bInOpen)
{
	bOpen = bInOpen;
	setAccessibleDescription(!bHasChildren ? QString() : bOpen ? QStringLiteral("open") : QStringLiteral("closed"));
	update();
}

int FDetailsLine::GetHeight() const
{
	return LineHeight;
}

void FDetailsLine::Toggle()
{
	if (bHasChildren && OnOpen)
	{
		OnOpen(!bOpen);
	}
}

void FDetailsLine::mousePressEvent(QMouseEvent* Event)
{
	if (Event->button() == Qt::LeftButton && Kind != EKind::Row)
	{
		Toggle();
	}
}

void FDetailsLine::keyPressEvent(QKeyEvent* Event)
{
	switch (Event->modifiers() == Qt::NoModifier || Event->modifiers() == Qt::KeypadModifier ? Event->key() : 0)
	{
		case Qt::Key_Left:
		case Qt::Key_Right:
			if (bOpen != (Event->key() == Qt::Key_Right))
			{
				Toggle();
			}
			break;
		case Qt::Key_Return:
		case Qt::Key_Enter:
			Toggle();
			break;
		case Qt::Key_Up:
		case Qt::Key_Down:
			OnStep(Event->key() == Qt::Key_Down ? 1 : -1);
			break;
		default:
			QWidget::keyPressEvent(Event);
			break;
	}
}

void FDetailsLine::focusInEvent(QFocusEvent*)
{
	update();
}

void FDetailsLine::focusOutEvent(QFocusEvent*)
{
	update();
}

QRect FDetailsLine::GetArrowRect() const
{
	return QRect(4 + Depth * Indent, (height() - ArrowSize) / 2, ArrowSize, ArrowSize);
}

void FDetailsLine::PaintArrow(QPainter& Painter) const
{
	if (!bHasChildren)
	{
		return;
	}
	const QPointF Centre = QRectF(GetArrowRect()).center();
	const QPolygonF Right({QPointF(-2.5, -4.0), QPointF(3.0, 0.0), QPointF(-2.5, 4.0)});
	const QPolygonF Down({QPointF(-3.0, 3.0), QPointF(3.5, 3.0), QPointF(3.5, -3.5)});
	Painter.save();
	Painter.setRenderHint(QPainter::Antialiasing);
	Painter.setPen(QPen(FWindowStyle::GetColours().Text, 1.0));
	// As in the engine's trees: an outline while closed, filled while open.
	Painter.setBrush(bOpen ? QBrush(FWindowStyle::GetColours().Text) : QBrush(Qt::NoBrush));
	Painter.translate(Centre);
	Painter.drawPolygon(bOpen ? Down : Right);
	Painter.restore();
}

void FDetailsLine::PaintFocus(QPainter& Painter) const
{
	if (hasFocus())
	{
		Painter.setPen(FWindowStyle::GetColours().Accent);
		Painter.setBrush(Qt::NoBrush);
		Painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -1.5));
	}
}

void FDetailsLine::paintEvent(QPaintEvent*)
{
	const FWindowStyle::FColours& Colours = FWindowStyle::GetColours();
	QPainter Painter(this);
	Painter.fillRect(rect(), Kind == EKind::Category ? Colours.Window.lighter(130) : Colours.Window.lighter(112));
	Painter.fillRect(QRect(0, height() - 1, width(), 1), Colours.Border);
	PaintArrow(Painter);
	Painter.setFont(FWindowStyle::GetFont(FontPoints, Kind == EKind::Category));
	Painter.setPen(Kind == EKind::Advanced ? Colours.DimText : Colours.Text);
	const QRect Room(GetArrowRect().right() + 4, 0, width() - GetArrowRect().right() - 8, height() - 1);
	Painter.drawText(Room, Qt::AlignVCenter | Qt::TextSingleLine,
		Painter.fontMetrics().elidedText(Name, Qt::ElideRight, Room.width()));
	PaintFocus(Painter);
}
