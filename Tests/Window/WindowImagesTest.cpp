// Copyright Corvane. MIT License.
#include "QtHeaders.h"

#include "WindowImages.h"
#include "WindowText.h"

#include <gtest/gtest.h>

#include "Brushes/SlateImageBrush.h"
#include "TemporaryFolder.h"

namespace
{
	/** A folder of images in which each file has a colour of its own. */
	class FWindowImagesTest : public ::testing::Test
	{
	protected:
		FWindowImagesTest()
		{
			FWindowImages::Forget();
			QDir(Path("")).mkpath(QStringLiteral("Icons"));
			QDir(Path("")).mkpath(QStringLiteral("Source/Icons"));
			Write("Icons/Thing_16x.png", 16, Qt::red);
			Write("Icons/Thing_64x.png", 64, Qt::blue);
			Write("Icons/Thingy_40x.png", 40, Qt::yellow);
		}
		~FWindowImagesTest() override { FWindowImages::Forget(); }

		QString Path(const std::string& File) const { return QString::fromStdString(Folder.File(File)); }
		void Write(const std::string& File, int Size, Qt::GlobalColor Colour) const
		{
			QImage Image(Size, Size, QImage::Format_RGB32);
			Image.fill(Colour);
			ASSERT_TRUE(Image.save(Path(File)));
		}
		/** The colour of what is shown for a file in so many units, and how many pixels wide it is. */
		std::pair<QRgb, int> Show(const std::string& File, int Size, qreal PixelsPerUnit = 1.0) const
		{
			const FSlateImageBrush Brush(FWindowText::FromQt(Path(File)), FVector2D(16.0f, 16.0f));
			const QImage Image = FWindowImages::Get(&Brush, QSizeF(Size, Size), PixelsPerUnit).toImage();
			return Image.isNull() ? std::make_pair(QRgb(0), 0)
								  : std::make_pair(Image.pixel(Image.width() / 2, Image.height() / 2), Image.width());
		}

		const QRgb Red = QColor(Qt::red).rgb();
		const QRgb Blue = QColor(Qt::blue).rgb();
		const QRgb Green = QColor(0, 255, 0).rgb();
		const FTemporaryFolder Folder;
	};
}

TEST_F(FWindowImagesTest, TakesTheSmallestFileThatIsSharpEnough)
{
	EXPECT_EQ(Show("Icons/Thing_16x.png", 16), std::make_pair(Red, 16));
	EXPECT_EQ(Show("Icons/Thing_64x.png", 16), std::make_pair(Red, 16));
	EXPECT_EQ(Show("Icons/Thing_16x.png", 17), std::make_pair(Blue, 17));
	EXPECT_EQ(Show("Icons/Thing_16x.png", 16, 2.0), std::make_pair(Blue, 32));
}

TEST_F(FWindowImagesTest, TakesTheDrawingWhereNoFileIsSharpEnough)
{
	EXPECT_EQ(Show("Icons/Thing_64x.png", 64, 2.0), std::make_pair(Blue, 128)) << "there is none";
	FWindowImages::Forget();
	Folder.Write("Source/Icons/Thing_64x.svg",
		R"(<svg xmlns="http://www.w3.org/2000/svg" width="64" height="64"><rect width="64" height="64" fill="#00ff00"/></svg>)");
	EXPECT_EQ(Show("Icons/Thing_64x.png", 64, 2.0), std::make_pair(Green, 128));
	EXPECT_EQ(Show("Icons/Thing_64x.png", 64), std::make_pair(Blue, 64)) << "the file is what was designed";
}

TEST_F(FWindowImagesTest, ShowsNothingForWhatCannotBeRead)
{
	EXPECT_EQ(Show("Icons/Missing_16x.png", 16).second, 0);
	EXPECT_EQ(Show("Icons/Thing_16x.png", 0).second, 0);
	EXPECT_TRUE(FWindowImages::Get(nullptr, QSizeF(16.0, 16.0), 1.0).isNull());
	EXPECT_TRUE(FWindowImages::GetIcon(static_cast<const FSlateBrush*>(nullptr)).isNull());
	EXPECT_TRUE(FWindowImages::GetDrawn(QStringLiteral("no such drawing")).isNull());
	EXPECT_FALSE(FWindowImages::GetDrawn(QStringLiteral("undo")).isNull());
}

TEST_F(FWindowImagesTest, ReadsFilesAnewOnceItIsToldTo)
{
	EXPECT_EQ(Show("Icons/Thing_16x.png", 16).first, Red);
	Write("Icons/Thing_16x.png", 16, Qt::green);
	EXPECT_EQ(Show("Icons/Thing_16x.png", 16).first, Red);
	FWindowImages::Forget();
	EXPECT_EQ(Show("Icons/Thing_16x.png", 16).first, Green);
}

TEST(FWindowText, KeepsEveryUnitOfAText)
{
	const QString Text = QString::fromUtf8("a\n漢😀") + QChar(0xd800);
	EXPECT_EQ(FWindowText::ToQt(FWindowText::FromQt(Text)), Text);
	EXPECT_EQ(FWindowText::FromQt(QString()).Len(), 0);
}

TEST(FWindowText, MakesOneLineOfACaption)
{
	EXPECT_EQ(FWindowText::ForCaption(FString(TEXT("a\nb\tc & d"))), QStringLiteral("a b c && d"));
}
