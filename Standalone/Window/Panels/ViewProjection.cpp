// Copyright Corvane. MIT License.
#include "ViewProjection.h"

namespace
{
	/** What is closer to the eye than this is not drawn. */
	constexpr double NearPlane = 10.0;

	/** Cuts off the part of a line where Distance is negative. @return false if nothing is left. */
	bool Cut(FPoint3& Start, FPoint3& End, double DistanceOfStart, double DistanceOfEnd)
	{
		const bool bStartSeen = DistanceOfStart >= 0.0;
		const bool bEndSeen = DistanceOfEnd >= 0.0;
		if (bStartSeen != bEndSeen)
		{
			const double Share = DistanceOfStart / (DistanceOfStart - DistanceOfEnd);
			const FPoint3 Crossing = Start + (End - Start) * Share;
			(bStartSeen ? End : Start) = Crossing;
		}
		return bStartSeen || bEndSeen;
	}
}

FViewAxes::FViewAxes(const FRotator& Rotation)
{
	const double Pitch = qDegreesToRadians(static_cast<double>(Rotation.Pitch));
	const double Yaw = qDegreesToRadians(static_cast<double>(Rotation.Yaw));
	const double Roll = qDegreesToRadians(static_cast<double>(Rotation.Roll));
	const FPoint3 Level(-std::sin(Yaw), std::cos(Yaw), 0.0);
	Forward = FPoint3(std::cos(Pitch) * std::cos(Yaw), std::cos(Pitch) * std::sin(Yaw), std::sin(Pitch));
	const FPoint3 Above(-std::sin(Pitch) * std::cos(Yaw), -std::sin(Pitch) * std::sin(Yaw), std::cos(Pitch));
	// A positive roll turns clockwise, as seen from behind.
	Right = Level * std::cos(Roll) - Above * std::sin(Roll);
	Up = Above * std::cos(Roll) + Level * std::sin(Roll);
}

FViewProjection::FViewProjection(const FVector& InLocation, const FRotator& InRotation, QSizeF InSize)
	: Location(InLocation), Axes(InRotation), Size(InSize)
{
	bSound = Location.IsFinite() && Axes.Forward.IsFinite() && Axes.Up.IsFinite() && !Size.isEmpty();
	const double Steepness = bSound ? Size.height() / Size.width() : 1.0;
	Sides = {
		FPoint3(1.0, 1.0, 0.0), FPoint3(1.0, -1.0, 0.0), FPoint3(Steepness, 0.0, 1.0), FPoint3(Steepness, 0.0, -1.0)};
}

FPoint3 FViewProjection::ToView(const FPoint3& World) const
{
	const FPoint3 Offset = World - Location;
	return {Offset.Dot(Axes.Forward), Offset.Dot(Axes.Right), Offset.Dot(Axes.Up)};
}

QPointF FViewProjection::ToPixel(const FPoint3& View) const
{
	const double Scale = GetFocalLength() / View.X;
	return {Size.width() / 2.0 + View.Y * Scale, Size.height() / 2.0 - View.Z * Scale};
}

bool FViewProjection::Project(const FPoint3& World, double Margin, QPointF& OutPixel, double& OutDepth) const
{
	const FPoint3 View = ToView(World);
	if (!bSound || !View.IsFinite() || View.X < NearPlane)
	{
		return false;
	}
	OutPixel = ToPixel(View);
	OutDepth = View.X;
	return QRectF(QPointF(), Size).adjusted(-Margin, -Margin, Margin, Margin).contains(OutPixel);
}

bool FViewProjection::ProjectLine(const FPoint3& Start, const FPoint3& End, QLineF& OutLine) const
{
	FPoint3 From = ToView(Start);
	FPoint3 To = ToView(End);
	if (!bSound || !From.IsFinite() || !To.IsFinite() || !Cut(From, To, From.X - NearPlane, To.X - NearPlane))
	{
		return false;
	}
	for (const FPoint3& Side : Sides)
	{
		if (!Cut(From, To, From.Dot(Side), To.Dot(Side)))
		{
			return false;
		}
	}
	OutLine = QLineF(ToPixel(From), ToPixel(To));
	// Of ends that are far beyond all measure, cutting leaves but rounding errors.
	const QRectF Seen = QRectF(QPointF(), Size).adjusted(-1.0, -1.0, 1.0, 1.0);
	return Seen.contains(OutLine.p1()) && Seen.contains(OutLine.p2());
}
