// Copyright Corvane. MIT License.
#include "DrawnIcons.h"

#include "PaintedIcon.h"
#include "WindowStyle.h"

#include <map>

namespace
{
	/** Each draws into a square of 16 units, with the pen that is set. */
	using FDraw = void (*)(QPainter&);

	void DrawActor(QPainter& Painter)
	{
		Painter.drawEllipse(QPointF(8.0, 5.0), 3.0, 3.0);
		QPainterPath Body;
		Body.moveTo(2.5, 14.0);
		Body.cubicTo(2.5, 8.5, 13.5, 8.5, 13.5, 14.0);
		Painter.drawPath(Body);
	}

	void DrawCamera(QPainter& Painter)
	{
		Painter.drawRoundedRect(QRectF(1.5, 4.5, 9.0, 7.0), 1.0, 1.0);
		Painter.drawPolygon(
			QPolygonF({QPointF(11.0, 7.5), QPointF(14.5, 5.0), QPointF(14.5, 11.0), QPointF(11.0, 8.5)}));
	}

	void DrawTexture(QPainter& Painter)
	{
		Painter.drawRect(QRectF(2.5, 2.5, 11.0, 11.0));
		Painter.drawPolyline(QPolygonF(
			{QPointF(3.0, 12.0), QPointF(6.5, 7.5), QPointF(9.0, 10.5), QPointF(10.5, 9.0), QPointF(13.0, 12.0)}));
		Painter.drawEllipse(QPointF(10.5, 5.5), 1.0, 1.0);
	}

	void DrawSave(QPainter& Painter)
	{
		Painter.drawPolygon(QPolygonF(
			{QPointF(2.5, 2.5), QPointF(11.5, 2.5), QPointF(13.5, 4.5), QPointF(13.5, 13.5), QPointF(2.5, 13.5)}));
		Painter.drawRect(QRectF(5.0, 2.5, 5.5, 3.5));
		Painter.drawRect(QRectF(4.5, 8.5, 7.0, 5.0));
	}

	/** An arrow that turns back to the left. */
	void DrawUndo(QPainter& Painter)
	{
		QPainterPath Arc;
		Arc.moveTo(3.0, 6.5);
		Arc.lineTo(9.5, 6.5);
		Arc.cubicTo(14.5, 6.5, 14.5, 13.0, 9.5, 13.0);
		Arc.lineTo(6.0, 13.0);
		Painter.drawPath(Arc);
		Painter.drawPolyline(QPolygonF({QPointF(6.0, 3.5), QPointF(3.0, 6.5), QPointF(6.0, 9.5)}));
	}

	void DrawRedo(QPainter& Painter)
	{
		Painter.translate(16.0, 0.0);
		Painter.scale(-1.0, 1.0);
		DrawUndo(Painter);
	}

	void DrawReset(QPainter& Painter)
	{
		QPen Pen = Painter.pen();
		Pen.setColor(FWindowStyle::GetColours().Accent);
		Painter.setPen(Pen);
		DrawUndo(Painter);
	}

	void DrawSearch(QPainter& Painter)
	{
		Painter.drawEllipse(QPointF(6.5, 6.5), 4.0, 4.0);
		Painter.drawLine(QPointF(9.5, 9.5), QPointF(13.5, 13.5));
	}

	void DrawAdd(QPainter& Painter)
	{
		Painter.drawLine(QPointF(8.0, 3.0), QPointF(8.0, 13.0));
		Painter.drawLine(QPointF(3.0, 8.0), QPointF(13.0, 8.0));
	}

	void DrawRemove(QPainter& Painter)
	{
		Painter.drawLine(QPointF(4.0, 4.0), QPointF(12.0, 12.0));
		Painter.drawLine(QPointF(12.0, 4.0), QPointF(4.0, 12.0));
	}

	void DrawFloat(QPainter& Painter)
	{
		Painter.drawRect(QRectF(3.5, 6.5, 6.0, 6.0));
		Painter.drawPolyline(QPolygonF(
			{QPointF(6.5, 6.0), QPointF(6.5, 3.5), QPointF(12.5, 3.5), QPointF(12.5, 9.5), QPointF(10.0, 9.5)}));
	}

	class FDrawnIcon : public FPaintedIcon
	{
	public:
		explicit FDrawnIcon(FDraw InDraw) : Draw(InDraw) {}

		void paint(QPainter* Painter, const QRect& Rect, QIcon::Mode Mode, QIcon::State) override
		{
			Painter->save();
			Painter->setRenderHint(QPainter::Antialiasing);
			Painter->translate(Rect.topLeft());
			Painter->scale(Rect.width() / 16.0, Rect.height() / 16.0);
			Painter->setOpacity(Mode == QIcon::Disabled ? 0.35 : 1.0);
			Painter->setPen(QPen(QColor(215, 215, 215), 1.3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
			Draw(*Painter);
			Painter->restore();
		}
		QIconEngine* clone() const override { return new FDrawnIcon(*this); }

	private:
		FDraw Draw;
	};
}

QIcon FDrawnIcons::Get(const QString& Name)
{
	static const std::map<QString, FDraw> Drawings = {{QStringLiteral("actor"), DrawActor},
		{QStringLiteral("camera"), DrawCamera}, {QStringLiteral("texture"), DrawTexture},
		{QStringLiteral("save"), DrawSave}, {QStringLiteral("undo"), DrawUndo}, {QStringLiteral("redo"), DrawRedo},
		{QStringLiteral("reset"), DrawReset}, {QStringLiteral("search"), DrawSearch}, {QStringLiteral("add"), DrawAdd},
		{QStringLiteral("remove"), DrawRemove}, {QStringLiteral("float"), DrawFloat}};
	const auto Found = Drawings.find(Name);
	return Found == Drawings.end() ? QIcon() : QIcon(new FDrawnIcon(Found->second));
}
