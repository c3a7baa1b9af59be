// Copyright Corvane. MIT License.
#include "QtHeaders.h"

#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>

#include "Panels/ViewProjection.h"

namespace
{
	const QSizeF Size(640.0, 360.0);

	FViewProjection LookAlong(float Pitch, float Yaw, float Roll)
	{
		return FViewProjection(FVector(), FRotator(Pitch, Yaw, Roll), Size);
	}

	/** Where a point is seen; far outside if it is not. */
	QPointF Project(const FViewProjection& View, const FPoint3& Point)
	{
		QPointF Pixel;
		double Depth = 0.0;
		return View.Project(Point, 0.0, Pixel, Depth) ? Pixel : QPointF(-1000.0, -1000.0);
	}

	void ExpectAt(QPointF Pixel, double X, double Y)
	{
		EXPECT_NEAR(Pixel.x(), X, 0.01);
		EXPECT_NEAR(Pixel.y(), Y, 0.01);
	}

	bool IsSeen(const FViewProjection& View, const FPoint3& Point)
	{
		return Project(View, Point).x() >= 0.0;
	}

	constexpr float NoNumber = std::numeric_limits<float>::quiet_NaN();
	constexpr float Endless = std::numeric_limits<float>::infinity();
}

TEST(FViewProjection, ShowsWhatIsAheadInTheMiddleWithRightToTheRightAndUpAbove)
{
	const FViewProjection View = LookAlong(0.0f, 0.0f, 0.0f);
	ExpectAt(Project(View, {100.0, 0.0, 0.0}), 320.0, 180.0);
	ExpectAt(Project(View, {100.0, 50.0, 0.0}), 480.0, 180.0);
	ExpectAt(Project(View, {100.0, 0.0, 25.0}), 320.0, 100.0);
}

TEST(FViewProjection, IsNinetyDegreesWide)
{
	const FViewProjection View = LookAlong(0.0f, 0.0f, 0.0f);
	ExpectAt(Project(View, {100.0, 99.99, 0.0}), 639.97, 180.0);
	EXPECT_FALSE(IsSeen(View, {100.0, 100.1, 0.0}));
	EXPECT_FALSE(IsSeen(View, {100.0, -100.1, 0.0}));
	EXPECT_TRUE(IsSeen(View, {100.0, 0.0, 56.2}));
	EXPECT_FALSE(IsSeen(View, {100.0, 0.0, 56.3}));
}

TEST(FViewProjection, TurnsAsTheEngineDoes)
{
	// Yaw to the right, pitch up, roll clockwise.
	ExpectAt(Project(LookAlong(0.0f, 90.0f, 0.0f), {0.0, 100.0, 0.0}), 320.0, 180.0);
	ExpectAt(Project(LookAlong(90.0f, 0.0f, 0.0f), {0.0, 0.0, 100.0}), 320.0, 180.0);
	ExpectAt(Project(LookAlong(0.0f, 0.0f, 90.0f), {100.0, 0.0, 25.0}), 240.0, 180.0);
	ExpectAt(Project(LookAlong(0.0f, 90.0f, 0.0f), {-25.0, 100.0, 0.0}), 400.0, 180.0);
}

TEST(FViewProjection, SeesNothingBehindOrAtTheEyeOrNowhere)
{
	const FViewProjection View = LookAlong(0.0f, 0.0f, 0.0f);
	EXPECT_FALSE(IsSeen(View, {-100.0, 0.0, 0.0}));
	EXPECT_FALSE(IsSeen(View, {0.0, 0.0, 0.0}));
	EXPECT_FALSE(IsSeen(View, {9.0, 0.0, 0.0}));
	EXPECT_FALSE(IsSeen(View, {NoNumber, 0.0, 0.0}));
	EXPECT_FALSE(IsSeen(View, {Endless, 0.0, 0.0}));
	EXPECT_TRUE(IsSeen(View, {3.0e38, 0.0, 0.0}));
}

TEST(FViewProjection, IsUnsoundWithoutPlaceDirectionOrSize)
{
	EXPECT_TRUE(LookAlong(1.0f, 2.0f, 3.0f).IsSound());
	EXPECT_FALSE(LookAlong(NoNumber, 0.0f, 0.0f).IsSound());
	EXPECT_FALSE(LookAlong(0.0f, Endless, 0.0f).IsSound());
	EXPECT_FALSE(LookAlong(0.0f, 0.0f, NoNumber).IsSound());
	EXPECT_FALSE(FViewProjection(FVector(0.0f, NoNumber, 0.0f), FRotator(), Size).IsSound());
	EXPECT_FALSE(FViewProjection(FVector(), FRotator(), QSizeF(0.0, 10.0)).IsSound());
	EXPECT_FALSE(FViewProjection().IsSound());
	EXPECT_FALSE(IsSeen(FViewProjection(FVector(0.0f, NoNumber, 0.0f), FRotator(), Size), {100.0, 0.0, 0.0}));
}

TEST(FViewProjection, CutsLinesBeforeTheEye)
{
	const FViewProjection View = LookAlong(0.0f, 0.0f, 0.0f);
	QLineF Line;
	// From in front of the eye to far behind it, a little to the right.
	ASSERT_TRUE(View.ProjectLine({100.0, 5.0, 0.0}, {-1000.0, 5.0, 0.0}, Line));
	ExpectAt(Line.p1(), 336.0, 180.0);
	ExpectAt(Line.p2(), 480.0, 180.0);
	EXPECT_FALSE(View.ProjectLine({-1.0, 5.0, 0.0}, {-1000.0, 5.0, 0.0}, Line));
}

TEST(FViewProjection, CutsLinesAtTheWidgetsEdges)
{
	const FViewProjection View = LookAlong(0.0f, 0.0f, 0.0f);
	QLineF Line;
	ASSERT_TRUE(View.ProjectLine({100.0, -5000.0, 10.0}, {100.0, 5000.0, 10.0}, Line));
	ExpectAt(Line.p1(), 0.0, 148.0);
	ExpectAt(Line.p2(), 640.0, 148.0);
	ASSERT_TRUE(View.ProjectLine({100.0, 10.0, 5000.0}, {100.0, 10.0, -5000.0}, Line));
	ExpectAt(Line.p1(), 352.0, 0.0);
	ExpectAt(Line.p2(), 352.0, 360.0);
	// Both ends outside, on different sides, and nothing between them seen.
	EXPECT_FALSE(View.ProjectLine({100.0, 150.0, 0.0}, {100.0, 0.0, 200.0}, Line));
}

TEST(FViewProjection, DrawsNoLineToNowhere)
{
	const FViewProjection View = LookAlong(0.0f, 0.0f, 0.0f);
	QLineF Line;
	EXPECT_FALSE(View.ProjectLine({100.0, NoNumber, 0.0}, {100.0, 5.0, 0.0}, Line));
	EXPECT_FALSE(View.ProjectLine({100.0, 0.0, 0.0}, {Endless, 5.0, 0.0}, Line));
	EXPECT_FALSE(FViewProjection().ProjectLine({100.0, 0.0, 0.0}, {200.0, 5.0, 0.0}, Line));
}

RC_GTEST_PROP(FViewProjection, EndsEachLineWithinTheWidget, ())
{
	// Floats of any size and kind, numbers or not.
	const auto AnyFloat = []
	{
		const uint32 Bits = *rc::gen::arbitrary<uint32>().as("bits");
		float Value = 0.0f;
		std::memcpy(&Value, &Bits, sizeof(Value));
		return *rc::gen::element(Value, static_cast<float>(static_cast<int32>(Bits) % 1000));
	};
	const auto AnyPoint = [&AnyFloat] { return FVector(AnyFloat(), AnyFloat(), AnyFloat()); };
	const FViewProjection View(AnyPoint(), FRotator(AnyFloat(), AnyFloat(), AnyFloat()), Size);
	QLineF Line;
	if (View.ProjectLine(FPoint3(AnyPoint()), FPoint3(AnyPoint()), Line))
	{
		const QRectF Widget = QRectF(QPointF(), Size).adjusted(-1.0, -1.0, 1.0, 1.0);
		RC_ASSERT(Widget.contains(Line.p1()));
		RC_ASSERT(Widget.contains(Line.p2()));
	}
}

RC_GTEST_PROP(FViewProjection, DrawsLinesBetweenSeenPointsWhole, ())
{
	const auto Between = [](int Low, int High) { return static_cast<double>(*rc::gen::inRange(Low, High)); };
	const FViewProjection View(FVector(10.0f, -20.0f, 30.0f),
		FRotator(static_cast<float>(Between(-89, 90)), static_cast<float>(Between(-400, 400)), 0.0f), Size);
	const FViewAxes& Axes = View.GetAxes();
	// Points that are in sight whatever the view.
	const auto SeenPoint = [&]
	{
		const double Depth = Between(20, 10000);
		return View.GetLocation() + Axes.Forward * Depth + Axes.Right * (Depth * Between(-99, 100) / 100.0) +
			Axes.Up * (Depth * Between(-55, 56) / 100.0);
	};
	const FPoint3 Start = SeenPoint();
	const FPoint3 End = SeenPoint();
	QLineF Line;
	RC_ASSERT(View.ProjectLine(Start, End, Line));
	RC_ASSERT(QLineF(Line.p1(), Project(View, Start)).length() < 0.01);
	RC_ASSERT(QLineF(Line.p2(), Project(View, End)).length() < 0.01);
}
