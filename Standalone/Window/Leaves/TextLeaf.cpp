// Copyright Corvane. MIT License.
#include "Leaves/TextLeaf.h"

#include "WindowStyle.h"
#include "WindowText.h"

#include "Fonts/FontMeasure.h"
#include "Framework/Application/SlateApplication.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	Qt::Alignment GetAlignment(ETextJustify::Type Justification)
	{
		switch (Justification)
		{
			case ETextJustify::Center:
				return Qt::AlignHCenter;
			case ETextJustify::Right:
				return Qt::AlignRight;
			default:
				return Qt::AlignLeft;
		}
	}

	/** A label for assistive technology that paints its lines where the engine's layout has them. */
	class FLinesLabel final : public QLabel
	{
	public:
		explicit FLinesLabel(QWidget* Parent) : QLabel(Parent)
		{
			setTextFormat(Qt::PlainText);
			// It may stand on a button.
			setAttribute(Qt::WA_TransparentForMouseEvents);
		}

		void SetLook(const FSlateFontInfo& Info, const QColor& InColour, Qt::Alignment InAlignment)
		{
			if (!bHasLook || !(Info == FontInfo))
			{
				FontInfo = Info;
				bHasLook = true;
				setFont(FWindowStyle::GetFont(Info));
				LineHeight =
					FSlateApplication::Get().GetRenderer()->GetFontMeasureService()->GetMaxCharacterHeight(Info);
				update();
			}
			if (InColour != Colour || InAlignment != alignment())
			{
				Colour = InColour;
				setAlignment(InAlignment);
				update();
			}
		}
		/** What the layout gave it, not rounded. */
		qreal Width = 0.0;

	protected:
		void paintEvent(QPaintEvent*) override
		{
			QPainter Painter(this);
			Painter.setRenderHint(QPainter::Antialiasing);
			Painter.setPen(isEnabled() ? Colour : palette().color(QPalette::Disabled, QPalette::WindowText));
			qreal Top = 0.0;
			// Each keeps the height of a line, so that a text of several has the height that was measured.
			const QStringList Paragraphs = text().split(u'\n');
			const bool bWraps = qFloor(height() / qMax(LineHeight, 1.0)) > Paragraphs.size();
			for (const QString& Paragraph : Paragraphs)
			{
				Top += PaintParagraph(Painter, Paragraph, Top, bWraps);
				if (Top > height())
				{
					break;
				}
			}
		}

	private:
		qreal PaintParagraph(QPainter& Painter, const QString& Paragraph, qreal Top, bool bWraps) const
		{
			QTextLayout Layout(Paragraph, font());
			QTextOption Option(alignment());
			Option.setWrapMode(bWraps ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
			Layout.setTextOption(Option);
			Layout.beginLayout();
			qreal Height = 0.0;
			for (QTextLine Line = Layout.createLine(); Line.isValid() && Top + Height <= height();
				 Line = Layout.createLine())
			{
				// The engine's advances and Qt's differ by less than this over a line.
				Line.setLineWidth(Width + 0.5);
				// The engine's lines are a little lower than Qt's: letters stand in the middle of both.
				Line.setPosition(QPointF(0.0, Height + (LineHeight - Line.height()) / 2.0));
				Height += LineHeight;
			}
			Layout.endLayout();
			PaintOutline(Painter, Paragraph, Top);
			Layout.draw(&Painter, QPointF(0.0, Top));
			return qMax(Height, LineHeight);
		}

		void PaintOutline(QPainter& Painter, const QString& Paragraph, qreal Top) const
		{
			const int Size = FontInfo.OutlineSettings.OutlineSize;
			if (Size <= 0)
			{
				return;
			}
			const QFontMetricsF Metrics(font());
			const qreal Free = Width - Metrics.horizontalAdvance(Paragraph);
			const bool bCentred = alignment() & Qt::AlignHCenter;
			const bool bRight = alignment() & Qt::AlignRight;
			QPainterPath Letters;
			Letters.addText(QPointF(bCentred ? Free / 2.0
									: bRight ? Free
											 : 0.0,
								Top + (LineHeight - Metrics.height()) / 2.0 + Metrics.ascent()),
				font(), Paragraph);
			const FSlateColor OutlineColour(FontInfo.OutlineSettings.OutlineColor);
			Painter.strokePath(Letters,
				QPen(FWindowStyle::GetColour(OutlineColour, Colour), 2.0 * Size, Qt::SolidLine, Qt::RoundCap,
					Qt::RoundJoin));
		}

		FSlateFontInfo FontInfo;
		bool bHasLook = false;
		qreal LineHeight = 1.0;
		QColor Colour;
	};
}

FTextLeaf::FTextLeaf(const TSharedRef<STextBlock>& Text, QWidget* Parent) : FLeaf(Text, new FLinesLabel(Parent)) {}

QRectF FTextLeaf::GetExtent(const SWidget& Shown, const FPlace& Place) const
{
	const STextBlock& Text = static_cast<const STextBlock&>(Shown);
	// Of text that wraps, this is the widest line.
	const qreal Missing = Shown.GetDesiredSize().X - Place.Rect.width();
	// The lowest part of its letters may end within a pixel.
	const QRectF Rect = Place.Rect.adjusted(0.0, 0.0, 0.0, 1.0);
	if (Missing <= 0.0)
	{
		return Rect;
	}
	switch (Text.GetJustification())
	{
		case ETextJustify::Center:
			return Rect.adjusted(-Missing / 2.0, 0.0, Missing / 2.0, 0.0);
		case ETextJustify::Right:
			return Rect.adjusted(-Missing, 0.0, 0.0, 0.0);
		default:
			return Rect.adjusted(0.0, 0.0, Missing, 0.0);
	}
}

void FTextLeaf::Show(SWidget& Shown, const FPlace& Place)
{
	const STextBlock& Text = static_cast<STextBlock&>(Shown);
	FLinesLabel& Label = static_cast<FLinesLabel&>(*GetQtWidget());
	const QString NewText = FWindowText::ToQt(Text.GetText());
	if (NewText != Label.text())
	{
		Label.setText(NewText);
	}
	const qreal Width = GetExtent(Shown, Place).width();
	if (Label.Width != Width)
	{
		Label.Width = Width;
		Label.update();
	}
	Label.SetLook(Text.GetFont(), FWindowStyle::GetColour(Text.GetColorAndOpacity(), FWindowStyle::GetColours().Text),
		GetAlignment(Text.GetJustification()));
}
