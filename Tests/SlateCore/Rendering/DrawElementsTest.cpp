// Copyright The Tintmill authors. All rights reserved.

#include "Rendering/DrawElements.h"
#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateNoResource.h"
#include "Input/HittestGrid.h"
#include "StandIn/ElementDump.h"
#include "Support/SlateWidgets.h"
#include "Types/PaintArgs.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/SWindow.h"
#include "gtest/gtest.h"

namespace
{
FPaintGeometry MakeArea(float X, float Y, float Width, float Height)
{
	return FPaintGeometry(FVector2D(X, Y), FVector2D(Width, Height), 1.0f);
}

/** Paints a widget alone and returns what it drew. */
FSlateWindowElementList PaintAlone(const TSharedRef<SWidget>& Widget, const FVector2D& Size, FHittestGrid& Grid)
{
	FSlateWindowElementList Elements{TSharedPtr<SWindow>()};
	Widget->SlatePrepass(1.0f);
	Widget->Paint(FPaintArgs(nullptr, Grid, 0.0, 0.0f), FGeometry::MakeRoot(Size, FSlateLayoutTransform()),
		FSlateRect(0, 0, Size.X, Size.Y), Elements, 0, FWidgetStyle(), true);
	return Elements;
}
}

TEST(FSlateDrawElement, AddsNothingForABrushThatPaintsNothing)
{
	FSlateWindowElementList Elements{TSharedPtr<SWindow>()};
	const FSlateNoResource Nothing;
	FSlateDrawElement::MakeBox(Elements, 0, MakeArea(0, 0, 1, 1), &Nothing);
	EXPECT_EQ(0, Elements.GetElements().Num());
}

TEST(FSlateDrawElement, AddsNothingForAnEmptyTextOrASinglePoint)
{
	FSlateWindowElementList Elements{TSharedPtr<SWindow>()};
	FSlateDrawElement::MakeText(Elements, 0, MakeArea(0, 0, 1, 1), FString(), FSlateFontInfo());
	TArray<FVector2D> Points;
	Points.Add(FVector2D(0, 0));
	FSlateDrawElement::MakeLines(Elements, 0, MakeArea(0, 0, 1, 1), Points);
	EXPECT_EQ(0, Elements.GetElements().Num());
}

TEST(FSlateDrawElement, MovesLinePointsToTheDesktop)
{
	FSlateWindowElementList Elements{TSharedPtr<SWindow>()};
	TArray<FVector2D> Points;
	Points.Add(FVector2D(1, 2));
	Points.Add(FVector2D(3, 4));
	FSlateDrawElement::MakeLines(Elements, 0, FPaintGeometry(FVector2D(10, 20), FVector2D(100, 100), 2.0f), Points);
	EXPECT_EQ(FVector2D(12, 24), Elements.GetElements()[0].GetPoints()[0]);
	EXPECT_EQ(FVector2D(16, 28), Elements.GetElements()[0].GetPoints()[1]);
}

TEST(FSlateWindowElementList, DrawsByLayerAndThenInTheOrderOfPainting)
{
	FSlateWindowElementList Elements{TSharedPtr<SWindow>()};
	const FSlateColorBrush Brush(FLinearColor::White);
	const uint32 Layers[] = {2, 0, 2, 1};
	for (const uint32 Layer : Layers)
	{
		FSlateDrawElement::MakeBox(Elements, Layer, MakeArea(0, 0, 1, 1), &Brush);
	}
	const TArray<int32> Order = Elements.GetDrawOrder();
	EXPECT_EQ((std::vector<int32>{1, 3, 0, 2}), (std::vector<int32>{Order[0], Order[1], Order[2], Order[3]}));
}

TEST(FSlateWindowElementList, CutsElementsToAllPushedZones)
{
	FSlateWindowElementList Elements{TSharedPtr<SWindow>()};
	const FSlateColorBrush Brush(FLinearColor::White);
	FSlateDrawElement::MakeBox(Elements, 0, MakeArea(0, 0, 1, 1), &Brush);
	Elements.PushClip(FSlateClippingZone(FSlateRect(0, 0, 50, 50)));
	Elements.PushClip(FSlateClippingZone(FSlateRect(25, 25, 100, 100)));
	FSlateDrawElement::MakeBox(Elements, 0, MakeArea(0, 0, 1, 1), &Brush);
	Elements.PopClip();
	FSlateDrawElement::MakeBox(Elements, 0, MakeArea(0, 0, 1, 1), &Brush);
	Elements.PopClip();
	EXPECT_FALSE(Elements.GetElements()[0].GetClipRect().IsSet());
	EXPECT_EQ(FSlateRect(25, 25, 50, 50), Elements.GetElements()[1].GetClipRect().GetValue());
	EXPECT_EQ(FSlateRect(0, 0, 50, 50), Elements.GetElements()[2].GetClipRect().GetValue());
}

TEST(FSlateWindowElementListDeathTest, CannotPopWhatWasNotPushed)
{
	FSlateWindowElementList Elements{TSharedPtr<SWindow>()};
	EXPECT_DEATH(Elements.PopClip(), "Assertion failed: ClipStack.Num\\(\\) > 0");
}

TEST(SWidget, CutsWhatItDrawsWhenItClipsToItsBounds)
{
	FHittestGrid Grid;
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight().HAlign(
			HAlign_Left)[SNew(STestBox).Name("cut").Size(FVector2D(30, 20)).Clipping(EWidgetClipping::ClipToBounds)];
	const FSlateWindowElementList Elements = PaintAlone(Box, FVector2D(100, 100), Grid);
	EXPECT_EQ(FSlateRect(0, 0, 30, 20), Elements.GetElements()[0].GetClipRect().GetValue());
}

TEST(SWidget, HandsItsOpacityDownToWhatItDraws)
{
	FHittestGrid Grid;
	const FSlateWindowElementList Elements =
		PaintAlone(SNew(STestBox).Name("pale").Size(FVector2D(30, 20)).RenderOpacity(0.25f), FVector2D(30, 20), Grid);
	EXPECT_EQ(0.25f, Elements.GetElements()[0].GetTint().A);
}

TEST(SPanel, DoesNotPaintChildrenOutsideTheCullingRectangle)
{
	FHittestGrid Grid;
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight()[SNew(STestBox).Name("seen").Size(FVector2D(10, 90))]
		+ SVerticalBox::Slot().AutoHeight()[SNew(STestBox).Name("edge").Size(FVector2D(10, 90))]
		+ SVerticalBox::Slot().AutoHeight()[SNew(STestBox).Name("unseen").Size(FVector2D(10, 90))];
	EXPECT_EQ(2, PaintAlone(Box, FVector2D(100, 100), Grid).GetElements().Num());
}

TEST(SOverlay, PaintsLaterChildrenOnHigherLayers)
{
	FHittestGrid Grid;
	const FSlateWindowElementList Elements =
		PaintAlone(SNew(SOverlay) + SOverlay::Slot()[SNew(STestBox).Name("low")] + SOverlay::Slot()[SNew(STestBox).Name("high")],
			FVector2D(10, 10), Grid);
	EXPECT_LT(Elements.GetElements()[0].GetLayer(), Elements.GetElements()[1].GetLayer());
}

TEST(FHittestGrid, FindsTheTopmostWidgetWithItsParents)
{
	FHittestGrid Grid;
	const TSharedRef<STestBox> Top = SNew(STestBox).Name("top").Size(FVector2D(10, 10));
	const TSharedRef<SOverlay> Overlay =
		SNew(SOverlay) + SOverlay::Slot()[SNew(STestBox).Name("bottom")] + SOverlay::Slot().HAlign(HAlign_Left).VAlign(VAlign_Top)[Top];
	PaintAlone(Overlay, FVector2D(100, 100), Grid);
	const TArray<FArrangedWidget> Path = Grid.GetBubblePath(FVector2D(5, 5), false);
	ASSERT_EQ(2, Path.Num());
	EXPECT_TRUE(Path[0].Widget == Overlay);
	EXPECT_TRUE(Path[1].Widget == Top);
}

TEST(FHittestGrid, LooksThroughWidgetsThatAreInvisibleToTheMouse)
{
	FHittestGrid Grid;
	const TSharedRef<STestBox> Bottom = SNew(STestBox).Name("bottom");
	const TSharedRef<SOverlay> Overlay = SNew(SOverlay) + SOverlay::Slot()[Bottom]
		+ SOverlay::Slot()[SNew(STestBox).Name("glass").Visibility(EVisibility::HitTestInvisible)];
	PaintAlone(Overlay, FVector2D(100, 100), Grid);
	ASSERT_NE(0, Grid.GetBubblePath(FVector2D(5, 5), false).Num());
	EXPECT_TRUE(Grid.GetBubblePath(FVector2D(5, 5), false).Last().Widget == Bottom);
}

TEST(FHittestGrid, LooksThroughChildrenOfWhatLetsNoneBeHit)
{
	FHittestGrid Grid;
	const TSharedRef<SVerticalBox> Glass =
		SNew(SVerticalBox).Visibility(EVisibility::HitTestInvisible) + SVerticalBox::Slot()[SNew(STestBox).Name("child")];
	PaintAlone(Glass, FVector2D(100, 100), Grid);
	EXPECT_EQ(0, Grid.GetBubblePath(FVector2D(5, 5), false).Num());
}

TEST(FHittestGrid, DoesNotReachChildrenOfAParentThatIsGone)
{
	FHittestGrid Grid;
	const TSharedRef<STestBox> Child = SNew(STestBox).Name("orphan");
	{
		const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox) + SVerticalBox::Slot()[Child];
		PaintAlone(Box, FVector2D(100, 100), Grid);
		EXPECT_EQ(2, Grid.GetBubblePath(FVector2D(5, 5), false).Num());
	}
	EXPECT_EQ(0, Grid.GetBubblePath(FVector2D(5, 5), false).Num());
}

TEST(FHittestGrid, EndsThePathAboveTheFirstDisabledWidget)
{
	FHittestGrid Grid;
	const TSharedRef<STestBox> Child = SNew(STestBox).Name("child").IsEnabled(false);
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox) + SVerticalBox::Slot()[Child];
	PaintAlone(Box, FVector2D(100, 100), Grid);
	EXPECT_TRUE(Grid.GetBubblePath(FVector2D(5, 5), false).Last().Widget == Box);
	EXPECT_TRUE(Grid.GetBubblePath(FVector2D(5, 5), true).Last().Widget == Child);
}

TEST(FHittestGrid, DoesNotHitWhatIsCutOff)
{
	FHittestGrid Grid;
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox).Clipping(EWidgetClipping::ClipToBounds)
		+ SVerticalBox::Slot().AutoHeight()[SNew(STestBox).Size(FVector2D(10, 500))];
	PaintAlone(Box, FVector2D(100, 100), Grid);
	EXPECT_EQ(0, Grid.GetBubblePath(FVector2D(5, 200), false).Num());
}

TEST(DumpElements, DescribesElementsInDrawingOrder)
{
	FSlateWindowElementList Elements{TSharedPtr<SWindow>()};
	const FSlateColorBrush Brush(FLinearColor::White);
	FSlateDrawElement::MakeText(Elements, 1, MakeArea(1, 2, 30, 16), FString(TEXT("Hi")),
		FSlateFontInfo(MakeShareable(new FCompositeFont()), 9, FName(TEXT("Bold"))));
	FSlateDrawElement::MakeBox(Elements, 0, MakeArea(0, 0, 40, 20), &Brush, ESlateDrawEffect::DisabledEffect);
	EXPECT_EQ("0 box at 0,0 40x20 #FFFFFFFF disabled\n1 text 'Hi' Roboto Bold 9 at 1,2 30x16 #FFFFFFFF\n",
		ToStd(StandIn::DumpElements(Elements)));
}

TEST(DumpWidgets, IndentsChildrenAndTellsWhatIsUnusual)
{
	const TSharedRef<SVerticalBox> Box =
		SNew(SVerticalBox) + SVerticalBox::Slot()[SNew(STestBox).Size(FVector2D(3, 4)).Visibility(EVisibility::Hidden).IsEnabled(false)];
	Box->SlatePrepass(1.0f);
	EXPECT_EQ("SVerticalBox 3x4\n\tSTestBox 3x4 Hidden disabled\n", ToStd(StandIn::DumpWidgets(Box)));
}
