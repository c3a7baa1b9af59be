// Copyright Corvane. MIT License.
#pragma once

#include "QtHeaders.h"

#include <array>

#include "CoreMinimal.h"

/** A point or direction in the engine's frame, or in the view's: X forward, Y to the right, Z up; in centimetres. */
struct FPoint3
{
	double X = 0.0;
	double Y = 0.0;
	double Z = 0.0;

	FPoint3() = default;
	FPoint3(double InX, double InY, double InZ) : X(InX), Y(InY), Z(InZ) {}
	explicit FPoint3(const FVector& Vector) : X(Vector.X), Y(Vector.Y), Z(Vector.Z) {}

	FPoint3 operator+(const FPoint3& Other) const { return {X + Other.X, Y + Other.Y, Z + Other.Z}; }
	FPoint3 operator-(const FPoint3& Other) const { return {X - Other.X, Y - Other.Y, Z - Other.Z}; }
	FPoint3 operator*(double Factor) const { return {X * Factor, Y * Factor, Z * Factor}; }
	double Dot(const FPoint3& Other) const { return X * Other.X + Y * Other.Y + Z * Other.Z; }
	double Length() const { return std::sqrt(Dot(*this)); }
	bool IsFinite() const { return std::isfinite(X) && std::isfinite(Y) && std::isfinite(Z); }
	FVector ToVector() const { return FVector(static_cast<float>(X), static_cast<float>(Y), static_cast<float>(Z)); }
};

/** The three directions of something that is turned. */
struct FViewAxes
{
	explicit FViewAxes(const FRotator& Rotation);

	FPoint3 Forward;
	FPoint3 Right;
	FPoint3 Up;
};

/** How a view of 90 degrees, from edge to edge, maps the world to a widget. */
class FViewProjection
{
public:
	/** A view at the world's origin into nothing. */
	FViewProjection() : FViewProjection(FVector(), FRotator(), QSizeF()) {}
	FViewProjection(const FVector& InLocation, const FRotator& InRotation, QSizeF InSize);

	/** Whether anything can be seen: where the view is and where it looks are numbers, and the widget has a size. */
	bool IsSound() const { return bSound; }

	const FPoint3& GetLocation() const { return Location; }
	const FViewAxes& GetAxes() const { return Axes; }
	QSizeF GetSize() const { return Size; }
	/** Pixels a unit of tangent: where a direction's tangent is 1, it is so far from the centre. */
	double GetFocalLength() const { return Size.width() / 2.0; }

	/** A point of the world as the view has it. */
	FPoint3 ToView(const FPoint3& World) const;

	/**
	 * Where a point of the world is seen.
	 * @return false for one behind the eye or too close to it, for one that is not within Margin units of the widget,
	 * and for one that is nowhere.
	 */
	bool Project(const FPoint3& World, double Margin, QPointF& OutPixel, double& OutDepth) const;

	/** What is seen of a line through the world; it is cut in space, thus ends within the widget. @return false if
	 * nothing is. */
	bool ProjectLine(const FPoint3& Start, const FPoint3& End, QLineF& OutLine) const;

private:
	QPointF ToPixel(const FPoint3& View) const;

	FPoint3 Location;
	FViewAxes Axes;
	QSizeF Size;
	/** Each is a direction, in the view's frame, that has what is seen in front of it. */
	std::array<FPoint3, 4> Sides;
	bool bSound = false;
};
