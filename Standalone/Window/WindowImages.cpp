// Copyright Corvane. MIT License.
#include "WindowImages.h"

#include "PaintedIcon.h"
#include "DrawnIcons.h"
#include "WindowText.h"

#include <map>

#include "Standalone/StyleInspector.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateStyleRegistry.h"
#include "UObject/Class.h"

namespace
{
	std::map<QString, QImage>& GetCache()
	{
		static std::map<QString, QImage> Cache;
		return Cache;
	}

	const QImage& Load(const QString& File)
	{
		const auto Found = GetCache().find(File);
		return Found != GetCache().end() ? Found->second : GetCache().emplace(File, QImage(File)).first->second;
	}

	/** The number in "NAME_40x.png", or 0. OutStem is what stands before it. */
	int ReadSize(const QString& FileName, QString& OutStem)
	{
		static const QRegularExpression Pattern(QStringLiteral("^(.*_)(\\d+)x\\.png$"));
		const QRegularExpressionMatch Match = Pattern.match(FileName);
		OutStem = Match.captured(1);
		return Match.hasMatch() ? Match.captured(2).toInt() : 0;
	}

	/** Of the files that differ from this one in their size only, the smallest that has so many pixels. */
	QString FindSharpest(const QString& File, int Pixels)
	{
		const QFileInfo Info(File);
		QString Stem;
		int Best = ReadSize(Info.fileName(), Stem);
		if (Best == 0 || Best == Pixels)
		{
			return File;
		}
		const QDir Folder = Info.dir();
		for (const QString& Name : Folder.entryList({Stem + QStringLiteral("*x.png")}, QDir::Files))
		{
			QString OtherStem;
			const int Size = ReadSize(Name, OtherStem);
			const bool bSharper = Best < Pixels && Size > Best;
			const bool bSmaller = Size >= Pixels && Size < Best;
			Best = OtherStem == Stem && (bSharper || bSmaller) ? Size : Best;
		}
		return Folder.filePath(QStringLiteral("%1%2x.png").arg(Stem).arg(Best));
	}

	/** The drawing that a file was rendered from; an empty image without one. "Logo/Logo_80x.png" is rendered from
	 * "Source/Logo/Logo_80x.svg". */
	const QImage& LoadDrawing(const QString& File, int Pixels)
	{
		const QFileInfo Info(File);
		QDir Folder = Info.dir();
		const QString Name = Folder.dirName();
		Folder.cdUp();
		const QString Drawing = Folder.filePath(QStringLiteral("Source/%1/%2.svg").arg(Name, Info.completeBaseName()));
		const QString Key = QStringLiteral("%1@%2").arg(Drawing).arg(Pixels);
		const auto Found = GetCache().find(Key);
		if (Found != GetCache().end())
		{
			return Found->second;
		}
		QImageReader Reader(Drawing);
		Reader.setScaledSize(QSize(Pixels, Pixels));
		return GetCache().emplace(Key, Reader.read()).first->second;
	}

	/** An image of a file that has at least so many pixels, if there is any. */
	const QImage& LoadSharp(const QString& File, int Pixels)
	{
		const QString Sharpest = FindSharpest(File, Pixels);
		const QImage& Image = Load(Sharpest);
		if (Image.isNull() || Image.width() >= Pixels || Image.width() != Image.height())
		{
			return Image;
		}
		const QImage& Drawing = LoadDrawing(Sharpest, Pixels);
		return Drawing.isNull() ? Image : Drawing;
	}

	/** Draws an image of the style sets in whatever resolution it is asked for. */
	class FBrushIcon : public FPaintedIcon
	{
	public:
		explicit FBrushIcon(const QString& InFile) : File(InFile) {}

		void paint(QPainter* Painter, const QRect& Rect, QIcon::Mode Mode, QIcon::State) override
		{
			const qreal Ratio = Painter->device()->devicePixelRatioF();
			const QImage& Image = LoadSharp(File, qCeil(Rect.width() * Ratio));
			Painter->setRenderHint(QPainter::SmoothPixmapTransform);
			Painter->setOpacity(Mode == QIcon::Disabled ? 0.35 : 1.0);
			Painter->drawImage(Rect, Image);
		}
		QIconEngine* clone() const override { return new FBrushIcon(*this); }

	private:
		QString File;
	};

	QString GetFile(const FSlateBrush* Brush)
	{
		return Brush && !Brush->GetResourceName().IsNone() ? FWindowText::ToQt(Brush->GetResourceName()) : QString();
	}
}

QPixmap FWindowImages::Get(const FSlateBrush* Brush, QSizeF Size, qreal PixelsPerUnit)
{
	const QString File = GetFile(Brush);
	if (File.isEmpty() || Size.isEmpty())
	{
		return QPixmap();
	}
	const QSize Pixels(qCeil(Size.width() * PixelsPerUnit), qCeil(Size.height() * PixelsPerUnit));
	const QImage& Image = LoadSharp(File, Pixels.width());
	if (Image.isNull())
	{
		return QPixmap();
	}
	QPixmap Pixmap = QPixmap::fromImage(Image.scaled(Pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
	Pixmap.setDevicePixelRatio(PixelsPerUnit);
	return Pixmap;
}

QIcon FWindowImages::GetIcon(const FSlateBrush* Brush)
{
	const QString File = GetFile(Brush);
	return File.isEmpty() || Load(File).isNull() ? QIcon() : QIcon(new FBrushIcon(File));
}

QIcon FWindowImages::GetIcon(const FSlateIcon& Icon)
{
	return Icon.IsSet() ? GetIcon(Icon.GetIcon()) : QIcon();
}

QIcon FWindowImages::GetClassIcon(const UClass* Class)
{
	const TArray<FName> StyleSets = FStyleInspector::GetStyleSetNames();
	for (const UClass* Current = Class; Current; Current = Current->GetSuperClass())
	{
		const FName Key(*(FString(TEXT("ClassIcon.")) + Current->GetName()));
		for (const FName& StyleSet : StyleSets)
		{
			QIcon Icon =
				GetIcon(FSlateStyleRegistry::FindSlateStyle(StyleSet)->GetOptionalBrush(Key, nullptr, nullptr));
			if (!Icon.isNull())
			{
				return Icon;
			}
		}
	}
	return GetDrawn(QStringLiteral("actor"));
}

QIcon FWindowImages::GetDrawn(const QString& Name)
{
	return FDrawnIcons::Get(Name);
}

void FWindowImages::Forget()
{
	GetCache().clear();
}
