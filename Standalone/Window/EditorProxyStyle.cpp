// Copyright Corvane. MIT License.
#include "EditorProxyStyle.h"

#include "DrawnIcons.h"
#include "WindowStyle.h"

namespace
{
	constexpr qreal CornerRadius = 2.0;

	void DrawCheckBox(const QStyleOption& Option, QPainter& Painter)
	{
		const FWindowStyle::FColours& Colours = FWindowStyle::GetColours();
		const bool bEnabled = Option.state & QStyle::State_Enabled;
		const QRectF Frame = QRectF(Option.rect).adjusted(1.5, 1.5, -1.5, -1.5);
		const bool bFocused = Option.state & QStyle::State_HasFocus;
		Painter.setRenderHint(QPainter::Antialiasing);
		Painter.setPen(QPen(bFocused ? Colours.Accent : bEnabled ? Colours.DimText : QColor(80, 80, 80), 1.0));
		Painter.setBrush(Colours.Base);
		Painter.drawRoundedRect(Frame, CornerRadius, CornerRadius);
		Painter.setPen(QPen(bEnabled ? QColor(225, 225, 225) : QColor(110, 110, 110), 2.0));
		if (Option.state & QStyle::State_On)
		{
			QPainterPath Mark;
			Mark.moveTo(Frame.left() + Frame.width() * 0.2, Frame.top() + Frame.height() * 0.52);
			Mark.lineTo(Frame.left() + Frame.width() * 0.42, Frame.top() + Frame.height() * 0.75);
			Mark.lineTo(Frame.left() + Frame.width() * 0.8, Frame.top() + Frame.height() * 0.25);
			Painter.setBrush(Qt::NoBrush);
			Painter.drawPath(Mark);
		}
		else if (Option.state & QStyle::State_NoChange)
		{
			Painter.drawLine(
				QPointF(Frame.left() + 3.0, Frame.center().y()), QPointF(Frame.right() - 3.0, Frame.center().y()));
		}
	}

	/** Not to be mistaken for something to choose. */
	void DrawMenuHeading(const QStyleOptionMenuItem& Item, QPainter& Painter)
	{
		const FWindowStyle::FColours& Colours = FWindowStyle::GetColours();
		const QRect Rect = Item.rect.adjusted(6, 0, -6, 0);
		Painter.save();
		Painter.setFont(FWindowStyle::GetFont(8, true));
		Painter.setPen(Colours.DimText);
		Painter.drawText(Rect, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, Item.text);
		const int End = Rect.left() + QFontMetrics(Painter.font()).horizontalAdvance(Item.text) + 6;
		Painter.setPen(Colours.Window.lighter(130));
		Painter.drawLine(End, Rect.center().y(), Rect.right(), Rect.center().y());
		Painter.restore();
	}

	void DrawButton(const QStyleOption& Option, QPainter& Painter)
	{
		const FWindowStyle::FColours& Colours = FWindowStyle::GetColours();
		const bool bEnabled = Option.state & QStyle::State_Enabled;
		const bool bHovered = bEnabled && (Option.state & QStyle::State_MouseOver);
		QColor Fill = Option.palette.color(QPalette::Button);
		if (Option.state & (QStyle::State_Sunken | QStyle::State_On))
		{
			Fill = Fill.darker(135);
		}
		else if (bHovered)
		{
			Fill = Fill.lighter(122);
		}
		const bool bFocused = Option.state & QStyle::State_HasFocus;
		Painter.setRenderHint(QPainter::Antialiasing);
		Painter.setPen(QPen(bFocused ? Colours.Accent : Colours.Border, 1.0));
		Painter.setBrush(bEnabled ? Fill : Fill.darker(115));
		Painter.drawRoundedRect(QRectF(Option.rect).adjusted(0.5, 0.5, -0.5, -0.5), CornerRadius, CornerRadius);
	}

	/** Where the keyboard focus is can be seen on everything that can have it. */
	void DrawFocus(const QRect& Rect, QPainter& Painter)
	{
		Painter.setRenderHint(QPainter::Antialiasing);
		Painter.setPen(QPen(FWindowStyle::GetColours().Accent, 1.0));
		Painter.setBrush(Qt::NoBrush);
		Painter.drawRoundedRect(QRectF(Rect).adjusted(0.5, 0.5, -0.5, -0.5), CornerRadius, CornerRadius);
	}

	void DrawEditFrame(const QStyleOption& Option, QPainter& Painter)
	{
		const FWindowStyle::FColours& Colours = FWindowStyle::GetColours();
		Painter.setRenderHint(QPainter::Antialiasing);
		Painter.setPen(QPen((Option.state & QStyle::State_HasFocus) ? Colours.Accent : Colours.Border, 1.0));
		Painter.setBrush(Qt::NoBrush);
		Painter.drawRoundedRect(QRectF(Option.rect).adjusted(0.5, 0.5, -0.5, -0.5), CornerRadius, CornerRadius);
	}
}

FEditorProxyStyle::FEditorProxyStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

int FEditorProxyStyle::styleHint(
	StyleHint Hint, const QStyleOption* Option, const QWidget* Widget, QStyleHintReturn* Return) const
{
	switch (Hint)
	{
		// Else the headings of menus show no text.
		case SH_Menu_SupportsSections:
			return 1;
		case SH_Widget_Animation_Duration:
		case SH_UnderlineShortcut:
		case SH_DialogButtonBox_ButtonsHaveIcons:
		case SH_EtchDisabledText:
			return 0;
		default:
			return QProxyStyle::styleHint(Hint, Option, Widget, Return);
	}
}

QIcon FEditorProxyStyle::standardIcon(StandardPixmap Standard, const QStyleOption* Option, const QWidget* Widget) const
{
	switch (Standard)
	{
		// Fusion's own are made of pixels.
		case SP_TitleBarCloseButton:
		case SP_DockWidgetCloseButton:
			return FDrawnIcons::Get(QStringLiteral("remove"));
		case SP_TitleBarNormalButton:
			return FDrawnIcons::Get(QStringLiteral("float"));
		default:
			return QProxyStyle::standardIcon(Standard, Option, Widget);
	}
}

int FEditorProxyStyle::pixelMetric(PixelMetric Metric, const QStyleOption* Option, const QWidget* Widget) const
{
	switch (Metric)
	{
		case PM_IndicatorWidth:
		case PM_IndicatorHeight:
			return 16;
		case PM_DockWidgetSeparatorExtent:
		case PM_SplitterWidth:
			return 4;
		case PM_ScrollBarExtent:
			return 12;
		default:
			return QProxyStyle::pixelMetric(Metric, Option, Widget);
	}
}

void FEditorProxyStyle::drawControl(
	ControlElement Element, const QStyleOption* Option, QPainter* Painter, const QWidget* Widget) const
{
	const auto* Item = Element == CE_MenuItem ? qstyleoption_cast<const QStyleOptionMenuItem*>(Option) : nullptr;
	if (Item && Item->menuItemType == QStyleOptionMenuItem::Separator && !Item->text.isEmpty())
	{
		DrawMenuHeading(*Item, *Painter);
		return;
	}
	QProxyStyle::drawControl(Element, Option, Painter, Widget);
	if (Element == CE_TabBarTabLabel && (Option->state & State_HasFocus) && (Option->state & State_Selected))
	{
		Painter->save();
		DrawFocus(Option->rect.adjusted(4, 3, -4, -3), *Painter);
		Painter->restore();
	}
}

void FEditorProxyStyle::drawPrimitive(
	PrimitiveElement Element, const QStyleOption* Option, QPainter* Painter, const QWidget* Widget) const
{
	Painter->save();
	switch (Element)
	{
		case PE_IndicatorCheckBox:
			DrawCheckBox(*Option, *Painter);
			break;
		case PE_PanelButtonCommand:
			DrawButton(*Option, *Painter);
			break;
		case PE_FrameLineEdit:
			DrawEditFrame(*Option, *Painter);
			break;
		case PE_FrameFocusRect:
			DrawFocus(Option->rect, *Painter);
			break;
		case PE_Frame:
			QProxyStyle::drawPrimitive(Element, Option, Painter, Widget);
			if (Option->state & State_HasFocus)
			{
				DrawFocus(Option->rect, *Painter);
			}
			break;
		default:
			QProxyStyle::drawPrimitive(Element, Option, Painter, Widget);
			break;
	}
	Painter->restore();
}
