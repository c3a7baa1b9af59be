// Copyright Corvane. MIT License.
#include "WindowStyle.h"

#include "EditorProxyStyle.h"

#include "Fonts/SlateFontInfo.h"
#include "Styling/SlateColor.h"

namespace
{
	constexpr int DefaultPoints = 9;
	constexpr double PixelsPerPoint = 96.0 / 72.0;

	/** Debian's fonts-roboto-unhinted; without it the system's sans serif font stands in. */
	const char* const FontFolder = "/usr/share/fonts/truetype/roboto/unhinted/RobotoTTF/";

	void LoadFonts()
	{
		for (const char* File : {"Roboto-Regular.ttf", "Roboto-Italic.ttf", "Roboto-Bold.ttf"})
		{
			QFontDatabase::addApplicationFont(QString::fromLatin1(FontFolder) + QLatin1String(File));
		}
	}

	QFont MakeFont(int Points)
	{
		QFont Font(QStringLiteral("Roboto"));
		// Whole sizes and no kerning, as the engine's layout measures: lines break where it says.
		Font.setPixelSize(qRound(Points * PixelsPerPoint));
		Font.setKerning(false);
		Font.setHintingPreference(QFont::PreferNoHinting);
		return Font;
	}

	QPalette MakePalette(const FWindowStyle::FColours& Colours)
	{
		QPalette Palette;
		Palette.setColor(QPalette::Window, Colours.Window);
		Palette.setColor(QPalette::WindowText, Colours.Text);
		Palette.setColor(QPalette::Base, Colours.Base);
		Palette.setColor(QPalette::AlternateBase, Colours.Base.lighter(115));
		Palette.setColor(QPalette::Text, Colours.Text);
		Palette.setColor(QPalette::PlaceholderText, Colours.DimText);
		Palette.setColor(QPalette::Button, QColor(62, 62, 62));
		Palette.setColor(QPalette::ButtonText, Colours.Text);
		Palette.setColor(QPalette::BrightText, Qt::white);
		Palette.setColor(QPalette::Highlight, Colours.Selection);
		Palette.setColor(QPalette::HighlightedText, Qt::white);
		Palette.setColor(QPalette::ToolTipBase, QColor(48, 48, 48));
		Palette.setColor(QPalette::ToolTipText, Colours.Text);
		Palette.setColor(QPalette::Link, Colours.Accent);
		Palette.setColor(QPalette::Light, QColor(80, 80, 80));
		Palette.setColor(QPalette::Midlight, QColor(70, 70, 70));
		Palette.setColor(QPalette::Mid, QColor(44, 44, 44));
		Palette.setColor(QPalette::Dark, QColor(28, 28, 28));
		Palette.setColor(QPalette::Shadow, QColor(16, 16, 16));
		for (const QPalette::ColorRole Role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
		{
			Palette.setColor(QPalette::Disabled, Role, QColor(110, 110, 110));
		}
		return Palette;
	}

	int ToByte(float Channel)
	{
		// The engine's colours are linear; screens are not.
		const double Linear = qBound(0.0, static_cast<double>(Channel), 1.0);
		const double Encoded = Linear <= 0.0031308 ? Linear * 12.92 : 1.055 * qPow(Linear, 1.0 / 2.4) - 0.055;
		return qRound(Encoded * 255.0);
	}
}

void FWindowStyle::Apply(QApplication& Application)
{
	if (dynamic_cast<FEditorProxyStyle*>(QApplication::style()))
	{
		return;
	}
	LoadFonts();
	Application.setStyle(new FEditorProxyStyle);
	Application.setPalette(MakePalette(GetColours()));
	Application.setFont(GetFont(DefaultPoints));
}

const FWindowStyle::FColours& FWindowStyle::GetColours()
{
	static const FColours Colours = {QColor(51, 51, 51), QColor(34, 34, 34), QColor(208, 208, 208),
		QColor(140, 140, 140), QColor(236, 152, 30), QColor(176, 104, 12), QColor(24, 24, 24)};
	return Colours;
}

QFont FWindowStyle::GetFont(const FSlateFontInfo& FontInfo)
{
	static const FName Italic("Italic");
	static const FName Bold("Bold");
	QFont Font = MakeFont(FontInfo.Size);
	Font.setBold(FontInfo.TypefaceFontName == Bold);
	Font.setItalic(FontInfo.TypefaceFontName == Italic);
	return Font;
}

QFont FWindowStyle::GetFont(int Points, bool bBold)
{
	QFont Font = MakeFont(Points);
	Font.setBold(bBold);
	return Font;
}

QColor FWindowStyle::GetColour(const FSlateColor& Colour, const QColor& Surroundings)
{
	if (!Colour.IsColorSpecified())
	{
		return Surroundings;
	}
	const FLinearColor Linear = Colour.GetSpecifiedColor();
	return QColor(ToByte(Linear.R), ToByte(Linear.G), ToByte(Linear.B),
		qRound(qBound(0.0, static_cast<double>(Linear.A), 1.0) * 255.0));
}
