// Copyright The Tintmill authors. All rights reserved.

#include "Layout/Geometry.h"
#include "Layout/LayoutUtils.h"
#include "Layout/Visibility.h"
#include "Support/SlateWidgets.h"
#include "gtest/gtest.h"

TEST(FGeometry, ScalesAChildsPlaceAndSizeByTheParentsScale)
{
	const FGeometry Root = FGeometry::MakeRoot(FVector2D(100, 50), FSlateLayoutTransform(2.0f, FVector2D(10, 20)));
	const FGeometry Child = Root.MakeChild(FVector2D(5, 6), FVector2D(7, 8));
	EXPECT_EQ(FSlateRect(20, 32, 34, 48), Child.GetLayoutBoundingRect());
}

TEST(FGeometry, MultipliesScalesOfNestedChildren)
{
	const FGeometry Root = FGeometry::MakeRoot(FVector2D(100, 50), FSlateLayoutTransform(2.0f));
	EXPECT_EQ(6.0f, Root.MakeChild(FVector2D(0, 0), FVector2D(10, 10), 3.0f).Scale);
}

TEST(FGeometry, MapsDesktopPointsToItsOwnSpaceAndBack)
{
	const FGeometry Geometry = FGeometry::MakeRoot(FVector2D(100, 50), FSlateLayoutTransform(2.0f, FVector2D(10, 20)));
	const FVector2D Local = Geometry.AbsoluteToLocal(FVector2D(30, 24));
	EXPECT_EQ(FVector2D(10, 2), Local);
	EXPECT_EQ(FVector2D(30, 24), Geometry.LocalToAbsolute(Local));
}

TEST(FGeometry, CoversItsUpperLeftEdgeButNotItsLowerRight)
{
	const FGeometry Geometry = FGeometry::MakeRoot(FVector2D(10, 10), FSlateLayoutTransform(FVector2D(5, 5)));
	EXPECT_TRUE(Geometry.IsUnderLocation(FVector2D(5, 5)));
	EXPECT_FALSE(Geometry.IsUnderLocation(FVector2D(15, 15)));
}

TEST(FGeometry, CanBeAssignedThoughItsMembersAreConst)
{
	FGeometry Geometry;
	Geometry = FGeometry::MakeRoot(FVector2D(3, 4), FSlateLayoutTransform(FVector2D(1, 2)));
	EXPECT_EQ(FVector2D(3, 4), Geometry.GetLocalSize());
}

TEST(FSlateRect, GivesNoExtentAtTheOriginWhereRectanglesDoNotOverlap)
{
	EXPECT_EQ(FSlateRect(0, 0, 0, 0), FSlateRect(0, 0, 10, 10).IntersectionWith(FSlateRect(20, 20, 30, 30)));
}

TEST(FMargin, TakesOneTwoAndFourSpaces)
{
	EXPECT_EQ(FMargin(3, 3, 3, 3), FMargin(3));
	EXPECT_EQ(FMargin(1, 2, 1, 2), FMargin(1, 2));
}

TEST(EVisibility, LetsOnlyDrawnWidgetsThroughTheVisibleFilter)
{
	EXPECT_TRUE(EVisibility::DoesVisibilityPassFilter(EVisibility::HitTestInvisible, EVisibility::Visible));
	EXPECT_FALSE(EVisibility::DoesVisibilityPassFilter(EVisibility::Hidden, EVisibility::Visible));
	EXPECT_FALSE(EVisibility::DoesVisibilityPassFilter(EVisibility::Collapsed, EVisibility::Visible));
}

TEST(ComputePopupFitInRect, OpensBelowTheAnchorWhereThereIsRoom)
{
	EXPECT_EQ(FVector2D(10, 30),
		ComputePopupFitInRect(FSlateRect(10, 10, 60, 30), FSlateRect(10, 30, 110, 80), Orient_Vertical, FSlateRect(0, 0, 400, 300)));
}

TEST(ComputePopupFitInRect, FlipsAboveAnAnchorAtTheLowerEdge)
{
	EXPECT_EQ(FVector2D(10, 200),
		ComputePopupFitInRect(FSlateRect(10, 250, 60, 270), FSlateRect(10, 270, 110, 320), Orient_Vertical, FSlateRect(0, 0, 400, 300)));
}

TEST(ComputePopupFitInRect, PushesAPopupBackFromTheRightEdge)
{
	EXPECT_EQ(FVector2D(300, 30),
		ComputePopupFitInRect(FSlateRect(380, 10, 399, 30), FSlateRect(380, 30, 480, 80), Orient_Vertical, FSlateRect(0, 0, 400, 300)));
}

TEST(ComputePopupFitInRect, FlipsASubmenuToTheLeftOfItsRow)
{
	EXPECT_EQ(FVector2D(150, 10),
		ComputePopupFitInRect(FSlateRect(250, 10, 380, 30), FSlateRect(380, 10, 480, 80), Orient_Horizontal, FSlateRect(0, 0, 400, 300)));
}

TEST(ComputePopupFitInRect, UsesTheLargerSideWhereNeitherHasRoom)
{
	EXPECT_EQ(FVector2D(0, 100),
		ComputePopupFitInRect(FSlateRect(0, 100, 10, 110), FSlateRect(0, 110, 50, 310), Orient_Vertical, FSlateRect(0, 0, 400, 300)));
}
