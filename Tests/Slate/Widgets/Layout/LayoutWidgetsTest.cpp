// Copyright The Tintmill authors. All rights reserved.

#include "Slate/SlateFixture.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SSeparator.h"
#include "Widgets/Layout/SSpacer.h"
#include "Widgets/Layout/SSplitter.h"
#include "Widgets/Layout/SUniformGridPanel.h"
#include "Widgets/Layout/SWrapBox.h"
#include "Widgets/Notifications/SProgressBar.h"
#include "Widgets/SBoxPanel.h"
#include "Brushes/SlateColorBrush.h"

namespace
{
FVector2D Measure(const TSharedRef<SWidget>& Widget)
{
	Widget->SlatePrepass(1.0f);
	return Widget->GetDesiredSize();
}

class FLayout : public FSlateFixture
{};
}

TEST_F(FLayout, BoxHasTheSizeOfItsContentAndPadding)
{
	EXPECT_EQ(FVector2D(24, 36), Measure(SNew(SBox).Padding(FMargin(2, 3))[MakeBox(20, 30)]));
}

TEST_F(FLayout, BoxHasTheSizeThatOverridesItsContents)
{
	EXPECT_EQ(FVector2D(300, 30), Measure(SNew(SBox).WidthOverride(300.0f)[MakeBox(20, 30)]));
}

TEST_F(FLayout, BoxKeepsBetweenItsLeastAndGreatestSize)
{
	EXPECT_EQ(FVector2D(50, 10), Measure(SNew(SBox).MinDesiredWidth(50.0f).MaxDesiredHeight(10.0f)[MakeBox(20, 30)]));
}

TEST_F(FLayout, BoxOfACollapsedChildTakesNoSpace)
{
	const TSharedRef<STestBox> Child = MakeBox(20, 30);
	Child->SetVisibility(EVisibility::Collapsed);
	EXPECT_EQ(FVector2D(0, 0), Measure(SNew(SBox).WidthOverride(300.0f)[Child]));
}

TEST_F(FLayout, BoxPlacesItsChildByAlignment)
{
	EXPECT_EQ((std::vector<FSlateRect>{FSlateRect(40, 70, 60, 100)}),
		Arrange(SNew(SBox).HAlign(HAlign_Center).VAlign(VAlign_Bottom)[MakeBox(20, 30)], FVector2D(100, 100)));
}

TEST_F(FLayout, BorderDrawsItsBrushBelowItsContent)
{
	const FSlateColorBrush Brush(FLinearColor(0.5f, 0.25f, 0.125f, 1.0f));
	Show(SNew(SBorder).BorderImage(&Brush).Padding(FMargin(10))[SNew(STestBox).Name("content")]);
	const TArray<FSlateDrawElement>& Elements = Window->GetElementList().GetElements();
	ASSERT_EQ(3, Elements.Num());
	EXPECT_EQ(0.25f, Elements[1].GetTint().G);
	EXPECT_EQ(FSlateRect(10, 10, 390, 290), Elements[2].GetRect());
	EXPECT_LT(Elements[1].GetLayer(), Elements[2].GetLayer());
}

TEST_F(FLayout, BorderPadsTwoUnitsByDefault)
{
	EXPECT_EQ(FVector2D(24, 34), Measure(SNew(SBorder)[MakeBox(20, 30)]));
}

TEST_F(FLayout, ContentOfADisabledBorderIsDisabledToo)
{
	const TSharedRef<SBorder> Border = SNew(SBorder).IsEnabled(false)[SNew(SImage)];
	Show(Border);
	const TArray<FSlateDrawElement>& Elements = Window->GetElementList().GetElements();
	EXPECT_FALSE(Elements[0].IsDisabled());
	EXPECT_TRUE(Elements[1].IsDisabled());
	EXPECT_TRUE(Elements[2].IsDisabled());
}

TEST_F(FLayout, ImageHasTheSizeOfItsBrushInSlateUnits)
{
	const FSlateBrush* Brush = FCoreStyle::Get().GetBrush("Menu.SubMenuIndicator");
	EXPECT_EQ(FVector2D(8, 8), Measure(SNew(SImage).Image(Brush)));
	EXPECT_EQ(FVector2D(0, 0), Measure(SNew(SImage).Image(static_cast<const FSlateBrush*>(nullptr))));
}

TEST_F(FLayout, SpacerAndSeparatorTakeSpace)
{
	EXPECT_EQ(FVector2D(7, 9), Measure(SNew(SSpacer).Size(FVector2D(7, 9))));
	EXPECT_EQ(FVector2D(0, 1), Measure(SNew(SSeparator).Thickness(1.0f)));
	EXPECT_EQ(FVector2D(3, 0), Measure(SNew(SSeparator).Orientation(Orient_Vertical)));
}

TEST_F(FLayout, WrapBoxStartsANewLineWhereTheNextChildDoesNotFit)
{
	const TSharedRef<SWrapBox> Box = SNew(SWrapBox).PreferredWidth(50.0f) + SWrapBox::Slot()[MakeBox(30, 10)]
		+ SWrapBox::Slot()[MakeBox(20, 15)] + SWrapBox::Slot()[MakeBox(30, 10)];
	EXPECT_EQ((std::vector<FSlateRect>{FSlateRect(0, 0, 30, 10), FSlateRect(30, 0, 50, 15), FSlateRect(0, 15, 30, 25)}),
		Arrange(Box, FVector2D(50, 100)));
	EXPECT_EQ(FVector2D(50, 25), Box->GetDesiredSize());
}

TEST_F(FLayout, UniformGridHasCellsOfTheLargestChild)
{
	const TSharedRef<SUniformGridPanel> Grid = SNew(SUniformGridPanel).SlotPadding(FMargin(1))
		+ SUniformGridPanel::Slot(0, 0)[MakeBox(10, 20)] + SUniformGridPanel::Slot(2, 1)[MakeBox(30, 5)];
	EXPECT_EQ(FVector2D(96, 44), Measure(Grid));
	EXPECT_EQ((std::vector<FSlateRect>{FSlateRect(1, 1, 31, 21), FSlateRect(65, 23, 95, 43)}), Arrange(Grid, FVector2D(96, 44)));
}

TEST_F(FLayout, ProgressBarFillsTheKnownPart)
{
	Show(SNew(SProgressBar).Percent(TOptional<float>(0.25f)));
	const TArray<FSlateDrawElement>& Elements = Window->GetElementList().GetElements();
	EXPECT_EQ(FSlateRect(0, 0, 100, 300), Elements.Last().GetRect());
}

TEST_F(FLayout, SplitterSharesTheSpaceByWeight)
{
	const TSharedRef<SSplitter> Splitter =
		SNew(SSplitter) + SSplitter::Slot().Value(1.0f)[MakeBox(1, 1)] + SSplitter::Slot().Value(3.0f)[MakeBox(1, 1)];
	EXPECT_EQ((std::vector<FSlateRect>{FSlateRect(0, 0, 100, 50), FSlateRect(105, 0, 405, 50)}), Arrange(Splitter, FVector2D(405, 50)));
}

TEST_F(FLayout, SplitterFollowsADraggedHandle)
{
	const TSharedRef<STestBox> Left = MakeBox(1, 1);
	const TSharedRef<STestBox> Right = MakeBox(1, 1);
	Show(SNew(SSplitter).PhysicalSplitterHandleSize(4.0f) + SSplitter::Slot()[Left] + SSplitter::Slot()[Right]);
	EXPECT_EQ(FSlateRect(0, 0, 198, 300), Left->GetCachedGeometry().GetLayoutBoundingRect());
	StandIn::MoveMouse(FVector2D(200, 100));
	EXPECT_EQ(EMouseCursor::ResizeLeftRight, App().QueryCursor());
	StandIn::PressMouse();
	StandIn::MoveMouse(FVector2D(102, 100));
	StandIn::ReleaseMouse();
	StandIn::AdvanceTime(0.0f);
	EXPECT_NEAR(100.0f, Left->GetCachedGeometry().GetLocalSize().X, 0.01f);
	EXPECT_NEAR(104.0f, Right->GetCachedGeometry().GetAbsolutePosition().X, 0.01f);
}

TEST_F(FLayout, SplitterLeavesNoPlaceBelowItsLeastLength)
{
	const TSharedRef<STestBox> Left = MakeBox(1, 1);
	Show(SNew(SSplitter) + SSplitter::Slot()[Left] + SSplitter::Slot()[MakeBox(1, 1)]);
	StandIn::MoveMouse(FVector2D(200, 100));
	StandIn::PressMouse();
	StandIn::MoveMouse(FVector2D(0, 100));
	StandIn::AdvanceTime(0.0f);
	EXPECT_NEAR(20.0f, Left->GetCachedGeometry().GetLocalSize().X, 0.01f);
}
