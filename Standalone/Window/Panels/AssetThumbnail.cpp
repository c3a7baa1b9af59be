// Copyright Corvane. MIT License.
#include "AssetThumbnail.h"

#include "WindowImages.h"
#include "WindowStyle.h"

namespace
{
	const QColor Ground(18, 18, 18);
	const QColor TextureColour(160, 62, 62);
	const QColor OtherColour(110, 110, 110);

	/** Drawn in a square of 72 units. */
	class FThumbnail : public QIconEngine
	{
	public:
		FThumbnail(bool bInTexture, const QString& InSize) : bTexture(bInTexture), Size(InSize) {}

		void paint(QPainter* Painter, const QRect& Rect, QIcon::Mode Mode, QIcon::State) override
		{
			Painter->save();
			Painter->setRenderHint(QPainter::Antialiasing);
			Painter->translate(Rect.topLeft());
			Painter->scale(Rect.width() / 72.0, Rect.height() / 72.0);
			Painter->fillRect(QRectF(0.0, 0.0, 72.0, 72.0), Ground);
			// The colour that tells kinds of assets apart.
			Painter->fillRect(QRectF(0.0, 69.0, 72.0, 3.0), bTexture ? TextureColour : OtherColour);
			if (Mode == QIcon::Selected)
			{
				Painter->setPen(QPen(FWindowStyle::GetColours().Accent, 2.0));
				Painter->drawRect(QRectF(1.0, 1.0, 70.0, 70.0));
			}
			const QString Drawing = bTexture ? QStringLiteral("texture") : QStringLiteral("actor");
			FWindowImages::GetDrawn(Drawing).paint(Painter, QRect(20, Size.isEmpty() ? 18 : 10, 32, 32));
			Painter->setFont(FWindowStyle::GetFont(7));
			Painter->setPen(FWindowStyle::GetColours().DimText);
			Painter->drawText(QRectF(0.0, 48.0, 72.0, 16.0), Qt::AlignCenter, Size);
			Painter->restore();
		}
		QPixmap pixmap(const QSize& PixelSize, QIcon::Mode Mode, QIcon::State State) override
		{
			QPixmap Pixmap(PixelSize);
			Pixmap.fill(Qt::transparent);
			QPainter Painter(&Pixmap);
			paint(&Painter, QRect(QPoint(), PixelSize), Mode, State);
			return Pixmap;
		}
		QIconEngine* clone() const override { return new FThumbnail(*this); }

	private:
		bool bTexture;
		QString Size;
	};
}

QIcon FAssetThumbnail::Make(bool bTexture, const QString& Size)
{
	return QIcon(new FThumbnail(bTexture, Size));
}
