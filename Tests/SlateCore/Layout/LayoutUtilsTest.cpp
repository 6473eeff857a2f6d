// Copyright The Tintmill authors. All rights reserved.

#include "Layout/LayoutUtils.h"
#include "Support/Printers.h"
#include <gtest/gtest.h>

namespace
{
const FSlateRect Area(0, 0, 400, 300);

/** Where a pop-up of a size opens that wishes to lie beside an anchor. */
FVector2D Beside(const FSlateRect& Anchor, const FVector2D& Size)
{
	return ComputePopupFitInRect(Anchor, FSlateRect::FromPointAndExtent(Anchor.GetTopRight(), Size), Orient_Horizontal, Area);
}

/** Where a pop-up of a size opens that wishes to lie below an anchor. */
FVector2D Below(const FSlateRect& Anchor, const FVector2D& Size)
{
	return ComputePopupFitInRect(Anchor, FSlateRect::FromPointAndExtent(Anchor.GetBottomLeft(), Size), Orient_Vertical, Area);
}
}

TEST(ComputePopupFitInRect, GoesToTheRightOfARow)
{
	EXPECT_EQ(FVector2D(150, 50), Beside(FSlateRect(50, 50, 150, 70), FVector2D(100, 80)));
}

TEST(ComputePopupFitInRect, GoesToTheLeftOfARowWithoutRoomOnTheRight)
{
	EXPECT_EQ(FVector2D(150, 50), Beside(FSlateRect(250, 50, 350, 70), FVector2D(100, 80)));
}

TEST(ComputePopupFitInRect, IsPushedUpBesideALowRow)
{
	EXPECT_EQ(FVector2D(150, 220), Beside(FSlateRect(50, 260, 150, 280), FVector2D(100, 80)));
}

TEST(ComputePopupFitInRect, GoesBelowARowThatIsAsWideAsTheWindow)
{
	EXPECT_EQ(FVector2D(300, 70), Beside(FSlateRect(20, 50, 350, 70), FVector2D(100, 80)));
}

TEST(ComputePopupFitInRect, GoesAboveALowRowThatIsAsWideAsTheWindow)
{
	EXPECT_EQ(FVector2D(300, 170), Beside(FSlateRect(20, 250, 350, 270), FVector2D(100, 80)));
}

TEST(ComputePopupFitInRect, IsPushedInsideOverARowWithRoomNowhere)
{
	EXPECT_EQ(FVector2D(300, 0), Beside(FSlateRect(20, 50, 350, 270), FVector2D(100, 280)));
}

TEST(ComputePopupFitInRect, GoesBelowAButton)
{
	EXPECT_EQ(FVector2D(50, 70), Below(FSlateRect(50, 50, 100, 70), FVector2D(100, 80)));
}

TEST(ComputePopupFitInRect, GoesAboveALowButton)
{
	EXPECT_EQ(FVector2D(50, 170), Below(FSlateRect(50, 250, 100, 270), FVector2D(100, 80)));
}

TEST(ComputePopupFitInRect, IsPushedLeftBelowAButtonAtTheRightEdge)
{
	EXPECT_EQ(FVector2D(300, 70), Below(FSlateRect(350, 50, 390, 70), FVector2D(100, 80)));
}

TEST(ComputePopupFitInRect, StartsAtTheUpperLeftWhenItIsLargerThanTheWindow)
{
	EXPECT_EQ(FVector2D(0, 0), Below(FSlateRect(50, 50, 100, 70), FVector2D(1000, 1000)));
}
