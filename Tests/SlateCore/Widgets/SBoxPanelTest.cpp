// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/SBoxPanel.h"
#include "Support/SlateWidgets.h"
#include "gtest/gtest.h"

TEST(SVerticalBox, WishesForTheSumOfHeightsAndTheGreatestWidth)
{
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[MakeBox(30, 10)]
		+ SVerticalBox::Slot().AutoHeight().Padding(1, 2, 3, 4)[MakeBox(20, 5)];
	Box->SlatePrepass(1.0f);
	EXPECT_EQ(FVector2D(30, 21), Box->GetDesiredSize());
}

TEST(SHorizontalBox, CountsStretchedChildrenInItsWish)
{
	const TSharedRef<SHorizontalBox> Box =
		SNew(SHorizontalBox) + SHorizontalBox::Slot()[MakeBox(30, 10)] + SHorizontalBox::Slot().AutoWidth()[MakeBox(20, 15)];
	Box->SlatePrepass(1.0f);
	EXPECT_EQ(FVector2D(50, 15), Box->GetDesiredSize());
}

TEST(SHorizontalBox, GivesAutoSlotsTheirWishAndStretchedOnesTheRestByWeight)
{
	const TSharedRef<SHorizontalBox> Box = SNew(SHorizontalBox) + SHorizontalBox::Slot().AutoWidth()[MakeBox(20, 10)]
		+ SHorizontalBox::Slot().FillWidth(1.0f)[MakeBox(5, 10)] + SHorizontalBox::Slot().FillWidth(3.0f)[MakeBox(5, 10)];
	EXPECT_EQ((std::vector<FSlateRect>{FSlateRect(0, 0, 20, 40), FSlateRect(20, 0, 40, 40), FSlateRect(40, 0, 100, 40)}),
		Arrange(Box, FVector2D(100, 40)));
}

TEST(SHorizontalBox, StretchesAndFillsByDefault)
{
	const TSharedRef<SHorizontalBox> Box =
		SNew(SHorizontalBox) + SHorizontalBox::Slot()[MakeBox(1, 1)] + SHorizontalBox::Slot()[MakeBox(9, 1)];
	EXPECT_EQ((std::vector<FSlateRect>{FSlateRect(0, 0, 50, 40), FSlateRect(50, 0, 100, 40)}), Arrange(Box, FVector2D(100, 40)));
}

TEST(SVerticalBox, PlacesAChildByItsAlignment)
{
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Left)[MakeBox(20, 10)]
		+ SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Center)[MakeBox(20, 10)]
		+ SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Right)[MakeBox(20, 10)]
		+ SVerticalBox::Slot().VAlign(VAlign_Bottom)[MakeBox(20, 10)];
	EXPECT_EQ((std::vector<FSlateRect>{
				  FSlateRect(0, 0, 20, 10), FSlateRect(40, 10, 60, 20), FSlateRect(80, 20, 100, 30), FSlateRect(0, 90, 100, 100)}),
		Arrange(Box, FVector2D(100, 100)));
}

TEST(SVerticalBox, KeepsPaddingOutsideTheChild)
{
	const TSharedRef<SVerticalBox> Box =
		SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight().Padding(1, 2, 3, 4)[MakeBox(20, 10)] + SVerticalBox::Slot()[MakeBox(5, 5)];
	EXPECT_EQ((std::vector<FSlateRect>{FSlateRect(1, 2, 97, 12), FSlateRect(0, 16, 100, 50)}), Arrange(Box, FVector2D(100, 50)));
}

TEST(SVerticalBox, CentresAPaddedChildBetweenItsPaddings)
{
	const TSharedRef<SVerticalBox> Box =
		SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Center).Padding(10, 0, 0, 0)[MakeBox(20, 10)];
	EXPECT_EQ((std::vector<FSlateRect>{FSlateRect(45, 0, 65, 10)}), Arrange(Box, FVector2D(100, 50)));
}

TEST(SHorizontalBox, LimitsAChildToItsGreatestSize)
{
	const TSharedRef<SHorizontalBox> Box = SNew(SHorizontalBox) + SHorizontalBox::Slot().FillWidth(1.0f).MaxWidth(30.0f)[MakeBox(5, 5)]
		+ SHorizontalBox::Slot().AutoWidth().MaxWidth(10.0f)[MakeBox(50, 5)];
	EXPECT_EQ((std::vector<FSlateRect>{FSlateRect(0, 0, 30, 10), FSlateRect(30, 0, 40, 10)}), Arrange(Box, FVector2D(100, 10)));
}

TEST(SHorizontalBox, GivesCollapsedChildrenNoSpace)
{
	const TSharedRef<STestBox> Gone = MakeBox(30, 10);
	Gone->SetVisibility(EVisibility::Collapsed);
	const TSharedRef<SHorizontalBox> Box =
		SNew(SHorizontalBox) + SHorizontalBox::Slot().AutoWidth().Padding(5.0f)[Gone] + SHorizontalBox::Slot().AutoWidth()[MakeBox(20, 10)];
	EXPECT_EQ((std::vector<FSlateRect>{FSlateRect(0, 0, 20, 10)}), Arrange(Box, FVector2D(100, 10)));
	EXPECT_EQ(FVector2D(20, 10), Box->GetDesiredSize());
}

TEST(SHorizontalBox, KeepsTheSpaceOfHiddenChildren)
{
	const TSharedRef<STestBox> Hidden = MakeBox(30, 10);
	Hidden->SetVisibility(EVisibility::Hidden);
	const TSharedRef<SHorizontalBox> Box =
		SNew(SHorizontalBox) + SHorizontalBox::Slot().AutoWidth()[Hidden] + SHorizontalBox::Slot().AutoWidth()[MakeBox(20, 10)];
	EXPECT_EQ((std::vector<FSlateRect>{FSlateRect(30, 0, 50, 10)}), Arrange(Box, FVector2D(100, 10)));
	EXPECT_EQ(FVector2D(50, 10), Box->GetDesiredSize());
}

TEST(SVerticalBox, LaysOutInSlateUnitsAtAnyScale)
{
	const TSharedRef<SVerticalBox> Box =
		SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[MakeBox(20, 10)] + SVerticalBox::Slot()[MakeBox(1, 1)];
	EXPECT_EQ((std::vector<FSlateRect>{FSlateRect(0, 0, 200, 20), FSlateRect(0, 20, 200, 100)}),
		Arrange(Box, FVector2D(100, 50), EVisibility::Visible, 2.0f));
}

TEST(SVerticalBox, ExposesAndChangesItsSlots)
{
	SVerticalBox::FSlot* Exposed = nullptr;
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox) + SVerticalBox::Slot().Expose(Exposed)[MakeBox(20, 10)];
	Exposed->AutoHeight();
	Box->AddSlot().AutoHeight()[MakeBox(20, 5)];
	Box->InsertSlot(0).AutoHeight()[MakeBox(20, 1)];
	EXPECT_EQ((std::vector<FSlateRect>{FSlateRect(0, 0, 20, 1), FSlateRect(0, 1, 20, 11), FSlateRect(0, 11, 20, 16)}),
		Arrange(Box, FVector2D(20, 100)));
}

TEST(SVerticalBox, TellsTheIndexOfARemovedSlot)
{
	const TSharedRef<STestBox> Child = MakeBox(1, 1);
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox) + SVerticalBox::Slot()[MakeBox(1, 1)] + SVerticalBox::Slot()[Child];
	EXPECT_EQ(1, Box->RemoveSlot(Child));
	EXPECT_EQ(INDEX_NONE, Box->RemoveSlot(Child));
	EXPECT_EQ(1, Box->NumSlots());
}
