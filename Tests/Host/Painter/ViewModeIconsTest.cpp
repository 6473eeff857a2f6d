// Copyright The Tintmill authors. All rights reserved.

#include "Host/Painter/ViewModeIcons.h"

#include "Host/Painter/Canvas.h"
#include "StandIn/BrushShape.h"

#include <algorithm>

// The icons of view modes: each draws something of its own, inside its area, at every scale.

namespace
{
using StandIn::EBrushShape;

class ViewModeIcon : public FCanvasTest, public testing::WithParamInterface<int>
{
protected:
	/** An icon of 16 x 16 units in the middle of a picture of 32 x 32. */
	TintmillHost::FPicture PaintIcon(int Kind, double Scale)
	{
		const StandIn::FShapeBrush Brush(static_cast<EBrushShape>(Kind), FVector2D(16.0f, 16.0f), FLinearColor::White);
		List.ResetElementList();
		const float Size = 16.0f * static_cast<float>(Scale);
		AddBox(FPaintGeometry(FVector2D(Size / 2.0f, Size / 2.0f), FVector2D(Size, Size), static_cast<float>(Scale)), Brush);
		return Paint(static_cast<int>(32 * Scale), static_cast<int>(32 * Scale));
	}

	static bool IsDrawn(const FColor& Color) { return Color.R != 0 || Color.G != 0 || Color.B != 0; }
};

INSTANTIATE_TEST_SUITE_P(Icons, ViewModeIcon,
	testing::Range(static_cast<int>(EBrushShape::ViewLit), static_cast<int>(EBrushShape::ViewVisibilityCollision) + 1));

TEST_P(ViewModeIcon, FillsAGoodPartOfItsArea)
{
	const TintmillHost::FPicture Picture = PaintIcon(GetParam(), 1.0);
	const int Drawn = static_cast<int>(std::count_if(Picture.Pixels.GetData(), Picture.Pixels.GetData() + Picture.Pixels.Num(), IsDrawn));
	EXPECT_GT(Drawn, 40);
}

TEST_P(ViewModeIcon, StaysInsideItsArea)
{
	for (const double Scale : {1.0, 1.25, 1.5, 2.0})
	{
		const TintmillHost::FPicture Picture = PaintIcon(GetParam(), Scale);
		const int Edge = static_cast<int>(8 * Scale);
		for (int Y = 0; Y < Picture.Height; ++Y)
		{
			for (int X = 0; X < Picture.Width; ++X)
			{
				const bool bInside = X >= Edge - 1 && Y >= Edge - 1 && X <= Picture.Width - Edge && Y <= Picture.Height - Edge;
				ASSERT_TRUE(bInside || !IsDrawn(At(Picture, X, Y))) << X << ", " << Y << " at " << Scale;
			}
		}
	}
}

TEST_P(ViewModeIcon, IsLikeNoOther)
{
	const TintmillHost::FPicture Picture = PaintIcon(GetParam(), 1.0);
	for (int Other = static_cast<int>(EBrushShape::ViewLit); Other <= static_cast<int>(EBrushShape::ViewVisibilityCollision); ++Other)
	{
		if (Other != GetParam())
		{
			EXPECT_FALSE(PaintIcon(Other, 1.0).Pixels == Picture.Pixels) << Other;
		}
	}
}
}
