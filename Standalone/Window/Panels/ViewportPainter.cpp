// Copyright Corvane. MIT License.
#include "ViewportPainter.h"

#include <algorithm>
#include <map>

#include "WindowStyle.h"

namespace
{
	const QColor SkyAbove(23, 26, 31);
	const QColor SkyAtHorizon(62, 68, 77);
	const QColor GroundAtHorizon(46, 48, 51);
	const QColor GroundBelow(33, 34, 36);
	const QColor FrustumColour(150, 160, 200, 170);

	/** In centimetres; each is drawn where the one before has faded. */
	constexpr double GridSteps[] = {100.0, 1000.0, 10000.0};
	/** So many lines each way. */
	constexpr int GridLines = 40;
	/** Pieces of a line, which fades from one to the next. */
	constexpr int GridPieces = 40;
	constexpr int GridShades = 12;
	constexpr int GridOpacity = 72;
	/** Where lines across the view come closer to each other than this, in units, they fade. */
	constexpr double GridDensity = 8.0;
	/** Beyond this, in centimetres, neighbouring lines cannot be told apart any more. */
	constexpr double GridReach = 1.0e9;

	/** Of so many all names and frustums are shown; of more they would hide each other. */
	constexpr size_t MaxWithNames = 300;

	/** As far as a camera's frustum is shown, and half its height there, in centimetres. */
	constexpr double FrustumLength = 100.0;
	constexpr double FrustumHeight = 56.25;

	constexpr double AxisLength = 26.0;

	/** Around the icon, for the outline of what is selected. */
	constexpr double OutlineMargin = 2.0;
	constexpr double PictureSize = FViewportScene::IconSize + 2.0 * OutlineMargin;

	/** An icon as a picture, with outline or without; drawn once a class and painting. */
	class FIconPictures
	{
	public:
		explicit FIconPictures(qreal InRatio) : Ratio(InRatio) {}

		const QPixmap& Get(const FViewportScene::FItem& Item)
		{
			const FKey Key(Item.Class, Item.bSelected);
			const auto Found = Pictures.find(Key);
			return Found != Pictures.end() ? Found->second : Pictures.emplace(Key, Draw(Item)).first->second;
		}

	private:
		using FKey = std::pair<const UClass*, bool>;

		QPixmap Draw(const FViewportScene::FItem& Item) const
		{
			const int Pixels = qCeil(PictureSize * Ratio);
			QPixmap Picture(QSize(Pixels, Pixels));
			Picture.setDevicePixelRatio(Ratio);
			Picture.fill(Qt::transparent);
			QPainter Painter(&Picture);
			const QRectF Icon(OutlineMargin, OutlineMargin, FViewportScene::IconSize, FViewportScene::IconSize);
			Item.Icon.paint(&Painter, Icon.toRect());
			if (Item.bSelected)
			{
				Painter.setRenderHint(QPainter::Antialiasing);
				Painter.setPen(QPen(FWindowStyle::GetColours().Accent, 1.5));
				Painter.drawRect(Icon.adjusted(-1.0, -1.0, 1.0, 1.0));
			}
			return Picture;
		}

		qreal Ratio;
		std::map<FKey, QPixmap> Pictures;
	};
}

void FViewportPainter::DrawSky()
{
	const FViewAxes& Axes = View.GetAxes();
	const QSizeF Size = View.GetSize();
	// The horizon is a straight line: where it stands above the centre, and how it is turned, both follow from where up
	// is.
	const double Slope = std::hypot(Axes.Up.Z, Axes.Right.Z);
	const double Turn = qRadiansToDegrees(std::atan2(Axes.Right.Z, Axes.Up.Z));
	const double Reach = std::hypot(Size.width(), Size.height());
	const double Offset = Axes.Forward.Z * View.GetFocalLength() / qMax(Slope, 1.0e-6);
	const double Horizon = qBound(-2.0 * Reach, Offset, 2.0 * Reach);
	Painter.save();
	Painter.translate(Size.width() / 2.0, Size.height() / 2.0);
	Painter.rotate(Turn);
	QLinearGradient Sky(0.0, Horizon - Size.height() * 0.7, 0.0, Horizon);
	Sky.setColorAt(0.0, SkyAbove);
	Sky.setColorAt(1.0, SkyAtHorizon);
	Painter.fillRect(QRectF(-Reach, -3.0 * Reach, 2.0 * Reach, Horizon + 3.0 * Reach), Sky);
	QLinearGradient Ground(0.0, Horizon, 0.0, Horizon + Size.height() * 0.6);
	Ground.setColorAt(0.0, GroundAtHorizon);
	Ground.setColorAt(1.0, GroundBelow);
	Painter.fillRect(QRectF(-Reach, Horizon, 2.0 * Reach, 3.0 * Reach - Horizon), Ground);
	Painter.restore();
}

void FViewportPainter::DrawGrid()
{
	const FPoint3& Eye = View.GetLocation();
	if (qAbs(Eye.X) > GridReach || qAbs(Eye.Y) > GridReach || qAbs(Eye.Z) > GridReach)
	{
		return;
	}
	for (const double Step : GridSteps)
	{
		DrawGridLevel(Step);
	}
}

void FViewportPainter::DrawGridLevel(double Step)
{
	const FPoint3& Eye = View.GetLocation();
	const double Reach = Step * GridLines;
	const double CentreX = std::floor(Eye.X / Step) * Step;
	const double CentreY = std::floor(Eye.Y / Step) * Step;
	std::vector<QLineF> Shades[GridShades];
	const auto AddPiece = [&](const FPoint3& Start, const FPoint3& End)
	{
		const FPoint3 Middle = (Start + End) * 0.5;
		const double Distance = qMax((Middle - Eye).Length(), 1.0);
		const double Spacing = View.GetFocalLength() * qAbs(Eye.Z) * Step / (Distance * Distance);
		const double Share = (1.0 - Distance / Reach) * qMin(1.0, Spacing / GridDensity);
		const int Shade = qMin(GridShades - 1, static_cast<int>(Share * GridShades));
		QLineF Line;
		if (Share > 0.0 && View.ProjectLine(Start, End, Line))
		{
			Shades[Shade].push_back(Line);
		}
	};
	for (int Index = -GridLines; qAbs(Eye.Z) < Reach && Index <= GridLines; ++Index)
	{
		const double X = CentreX + Index * Step;
		const double Y = CentreY + Index * Step;
		for (int Piece = 0; Piece < GridPieces; ++Piece)
		{
			const double From = 2.0 * Reach * Piece / GridPieces - Reach;
			const double To = 2.0 * Reach * (Piece + 1) / GridPieces - Reach;
			AddPiece({X, CentreY + From, 0.0}, {X, CentreY + To, 0.0});
			AddPiece({CentreX + From, Y, 0.0}, {CentreX + To, Y, 0.0});
		}
	}
	for (int Shade = 0; Shade < GridShades; ++Shade)
	{
		const int Alpha = static_cast<int>(GridOpacity * (Shade + 0.5) / GridShades);
		Painter.setPen(QPen(QColor(190, 196, 205, Alpha), 1.0));
		Painter.drawLines(Shades[Shade].data(), static_cast<int>(Shades[Shade].size()));
	}
}

void FViewportPainter::DrawItems(const FViewportScene& Scene)
{
	const std::vector<FViewportScene::FSeenItem> Seen = Scene.FindSeen(View);
	const auto IsSelected = [](const FViewportScene::FSeenItem& Item) { return Item.Item->bSelected; };
	const bool bAll = Seen.size() <= MaxWithNames;
	// The farthest of too many selected ones are left out as well.
	const size_t NumSelected = static_cast<size_t>(std::count_if(Seen.begin(), Seen.end(), IsSelected));
	size_t NumToSkip = NumSelected > MaxWithNames ? NumSelected - MaxWithNames : 0;

	FIconPictures Pictures(Painter.device()->devicePixelRatioF());
	const QPointF Half(PictureSize / 2.0, PictureSize / 2.0);
	Painter.setFont(FWindowStyle::GetFont(9));
	for (const FViewportScene::FSeenItem& Item : Seen)
	{
		const bool bSelected = IsSelected(Item);
		const bool bSkipped = bSelected && NumToSkip > 0;
		NumToSkip -= bSkipped ? 1 : 0;
		const bool bDetailed = (bAll || bSelected) && !bSkipped;
		if (bDetailed && Item.Item->bCamera)
		{
			DrawFrustum(*Item.Item);
		}
		Painter.drawPixmap(Item.Pixel - Half, Pictures.Get(*Item.Item));
		if (bDetailed)
		{
			DrawName(Item);
		}
	}
}

void FViewportPainter::DrawFrustum(const FViewportScene::FItem& Item)
{
	const FViewAxes Axes(Item.Rotation);
	FPoint3 Corners[4];
	for (int Index = 0; Index < 4; ++Index)
	{
		const double Side = Index == 0 || Index == 3 ? -1.0 : 1.0;
		const double Height = Index < 2 ? 1.0 : -1.0;
		Corners[Index] = Item.Location + Axes.Forward * FrustumLength + Axes.Right * (Side * FrustumLength) +
			Axes.Up * (Height * FrustumHeight);
	}
	Painter.setPen(QPen(Item.bSelected ? FWindowStyle::GetColours().Accent : FrustumColour, 1.0));
	for (int Index = 0; Index < 4; ++Index)
	{
		QLineF Line;
		if (View.ProjectLine(Item.Location, Corners[Index], Line))
		{
			Painter.drawLine(Line);
		}
		if (View.ProjectLine(Corners[Index], Corners[(Index + 1) % 4], Line))
		{
			Painter.drawLine(Line);
		}
	}
}

void FViewportPainter::DrawName(const FViewportScene::FSeenItem& Seen)
{
	const QRectF Place(Seen.Pixel.x() - 150.0, Seen.Pixel.y() + FViewportScene::IconSize / 2.0 + 2.0, 300.0, 16.0);
	const int Flags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextSingleLine | Qt::TextDontClip;
	// A shadow, as there may be anything behind it.
	Painter.setPen(QColor(0, 0, 0, 200));
	Painter.drawText(Place.translated(1.0, 1.0), Flags, Seen.Item->Name);
	Painter.setPen(Seen.Item->bSelected ? FWindowStyle::GetColours().Accent : FWindowStyle::GetColours().Text);
	Painter.drawText(Place, Flags, Seen.Item->Name);
}

void FViewportPainter::DrawAxes()
{
	struct FAxis
	{
		QString Letter;
		FPoint3 Direction;
		QColor Colour;
	};
	std::vector<FAxis> Directions = {{QStringLiteral("X"), {1.0, 0.0, 0.0}, QColor(214, 68, 60)},
		{QStringLiteral("Y"), {0.0, 1.0, 0.0}, QColor(106, 176, 62)},
		{QStringLiteral("Z"), {0.0, 0.0, 1.0}, QColor(72, 118, 216)}};
	const FViewAxes& Axes = View.GetAxes();
	// The one that comes towards the eye is drawn last.
	std::stable_sort(Directions.begin(), Directions.end(),
		[&Axes](const FAxis& Left, const FAxis& Right)
		{ return Left.Direction.Dot(Axes.Forward) > Right.Direction.Dot(Axes.Forward); });
	const QPointF Origin(AxisLength + 16.0, View.GetSize().height() - AxisLength - 16.0);
	Painter.setFont(FWindowStyle::GetFont(8, true));
	for (const FAxis& Axis : Directions)
	{
		const QPointF Way(Axis.Direction.Dot(Axes.Right), -Axis.Direction.Dot(Axes.Up));
		Painter.setPen(QPen(Axis.Colour, 2.0, Qt::SolidLine, Qt::RoundCap));
		Painter.drawLine(Origin, Origin + Way * AxisLength);
		const QRectF Letter(Origin + Way * (AxisLength + 9.0) - QPointF(8.0, 8.0), QSizeF(16.0, 16.0));
		Painter.drawText(Letter, Qt::AlignCenter, Axis.Letter);
	}
}

void FViewportPainter::DrawTitle(const QString& Title)
{
	Painter.setFont(FWindowStyle::GetFont(9));
	const QRectF Frame(8.0, 8.0, Painter.fontMetrics().horizontalAdvance(Title) + 20.0, 22.0);
	Painter.setPen(Qt::NoPen);
	Painter.setBrush(QColor(20, 20, 20, 170));
	Painter.drawRoundedRect(Frame, 3.0, 3.0);
	Painter.setPen(FWindowStyle::GetColours().Text);
	Painter.drawText(Frame, Qt::AlignCenter, Title);
}
