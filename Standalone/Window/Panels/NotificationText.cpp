// Copyright Corvane. MIT License.
#include "Panels/NotificationText.h"

namespace
{
	/** More than any notification has room for. */
	constexpr int32 MaxLength = 2000;

	QString Shorten(const FString& Full)
	{
		const bool bInPair = Full.Len() > MaxLength && QChar(Full[MaxLength]).isLowSurrogate();
		const int32 Length = qMin(Full.Len(), bInPair ? MaxLength - 1 : MaxLength);
		QString Result(reinterpret_cast<const QChar*>(*Full), Length);
		Result.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
		// The only break that a layout of Qt's knows.
		Result.replace(u'\n', QChar::LineSeparator);
		return Full.Len() > MaxLength ? Result + QChar(0x2026) : Result;
	}
}

FNotificationText::FNotificationText(const QFont& Font, QWidget* Parent) : QWidget(Parent)
{
	setFont(Font);
	// Takes what the buttons leave.
	QSizePolicy Policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
	Policy.setHeightForWidth(true);
	setSizePolicy(Policy);
}

bool FNotificationText::SetText(const FString& NewText)
{
	// Longer texts are not compared to their ends in each frame.
	const QString New = Shorten(NewText);
	if (NewText.Len() == FullLength && New == Text)
	{
		return false;
	}
	Text = New;
	FullLength = NewText.Len();
	updateGeometry();
	update();
	return true;
}

qreal FNotificationText::LayOut(QTextLayout& Layout, qreal Width) const
{
	QTextOption Option;
	Option.setTextDirection(Qt::LayoutDirectionAuto);
	Option.setAlignment(Text.isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft);
	Option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
	Layout.setTextOption(Option);
	Layout.setFont(font());
	Layout.setText(Text);
	qreal Height = 0.0;
	Layout.beginLayout();
	for (QTextLine Line = Layout.createLine(); Line.isValid(); Line = Layout.createLine())
	{
		Line.setLineWidth(Width);
		Line.setPosition(QPointF(0.0, Height));
		Height += Line.height();
	}
	Layout.endLayout();
	return Height;
}

int FNotificationText::GetWidth(int Most) const
{
	QTextLayout Layout;
	LayOut(Layout, Most);
	qreal Width = 0.0;
	for (int Index = 0; Index < Layout.lineCount(); ++Index)
	{
		Width = qMax(Width, Layout.lineAt(Index).naturalTextWidth());
	}
	return qMin(Most, qCeil(Width) + 1);
}

int FNotificationText::heightForWidth(int Width) const
{
	QTextLayout Layout;
	return qCeil(LayOut(Layout, Width));
}

QSize FNotificationText::sizeHint() const
{
	return QSize(100, qCeil(QFontMetricsF(font()).height()));
}

void FNotificationText::paintEvent(QPaintEvent*)
{
	QPainter Painter(this);
	Painter.setPen(palette().color(QPalette::WindowText));
	QTextLayout Layout;
	LayOut(Layout, width());
	for (int Index = 0; Index < Layout.lineCount(); ++Index)
	{
		const QTextLine Line = Layout.lineAt(Index);
		const bool bLast = Index + 1 == Layout.lineCount();
		if (!bLast && Line.y() + Line.height() + Layout.lineAt(Index + 1).height() > height() + 1)
		{
			// There is no room for the next one.
			const QString Rest = Text.mid(Line.textStart()).section(QChar::LineSeparator, 0, 0) + QChar(0x2026);
			const QRectF Area(0.0, Line.y(), width(), Line.height());
			const QString Elided = QFontMetricsF(font()).elidedText(Rest, Qt::ElideRight, width());
			Painter.setLayoutDirection(Text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
			Painter.drawText(Area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, Elided);
			return;
		}
		Line.draw(&Painter, QPointF());
	}
}
