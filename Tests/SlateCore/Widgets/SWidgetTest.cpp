// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/SWidget.h"
#include "Application/SlateApplicationBase.h"
#include "Support/SlateWidgets.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SOverlay.h"
#include "gtest/gtest.h"

namespace
{
/** Two units of data that derive from each other. */
class FBaseData : public ISlateMetaData
{
public:
	SLATE_METADATA_TYPE(FBaseData, ISlateMetaData)
};

class FDerivedData : public FBaseData
{
public:
	SLATE_METADATA_TYPE(FDerivedData, FBaseData)
};
}

TEST(SWidget, KnowsItsParentWhileItIsInASlot)
{
	const TSharedRef<STestBox> Child = MakeBox(1, 1);
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox) + SVerticalBox::Slot()[Child];
	EXPECT_TRUE(Child->GetParentWidget() == Box);
	Box->ClearChildren();
	EXPECT_FALSE(Child->IsParentValid());
}

TEST(SWidget, LosesItsParentWithTheParentsDeath)
{
	const TSharedRef<STestBox> Child = MakeBox(1, 1);
	{
		const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox) + SVerticalBox::Slot()[Child];
	}
	EXPECT_FALSE(Child->IsParentValid());
}

TEST(SWidget, KeepsItsNewParentWhenTheOldOneLetsGoLater)
{
	const TSharedRef<STestBox> Child = MakeBox(1, 1);
	const TSharedRef<SVerticalBox> First = SNew(SVerticalBox) + SVerticalBox::Slot()[Child];
	const TSharedRef<SVerticalBox> Second = SNew(SVerticalBox) + SVerticalBox::Slot()[Child];
	First->ClearChildren();
	EXPECT_TRUE(Child->GetParentWidget() == Second);
}

TEST(SWidget, FindsMetaDataByItsTypeAndBaseTypes)
{
	const TSharedRef<STestBox> Widget = MakeBox(1, 1);
	EXPECT_FALSE(Widget->GetMetaData<FBaseData>().IsValid());
	const TSharedRef<FDerivedData> Data = MakeShareable(new FDerivedData());
	Widget->AddMetadata(Data);
	EXPECT_TRUE(Widget->GetMetaData<FBaseData>() == Data);
}

TEST(SWidget, ComputesNoSizeOfCollapsedChildren)
{
	int32 NumPolls = 0;
	const TSharedRef<STestBox> Child = SNew(STestBox).Visibility(EVisibility::Collapsed).Size_Lambda([&NumPolls]() {
		++NumPolls;
		return FVector2D(1, 1);
	});
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox) + SVerticalBox::Slot()[Child];
	Box->SlatePrepass(1.0f);
	EXPECT_EQ(0, NumPolls);
}

TEST(SWidget, FollowsAPolledSizeAtTheNextPrepass)
{
	FVector2D Size(1, 2);
	const TSharedRef<STestBox> Widget = SNew(STestBox).Size_Lambda([&Size]() { return Size; });
	Widget->SlatePrepass(1.0f);
	Size = FVector2D(3, 4);
	EXPECT_EQ(FVector2D(1, 2), Widget->GetDesiredSize());
	Widget->SlatePrepass();
	EXPECT_EQ(FVector2D(3, 4), Widget->GetDesiredSize());
}

TEST(SWidget, TellsWhereItWasMade)
{
	EXPECT_EQ("SVerticalBox [SWidgetTest.cpp(" + std::to_string(__LINE__) + ")]", ToStd((SNew(SVerticalBox))->ToString()));
}

TEST(SNullWidget, WishesForNothing)
{
	SNullWidget::NullWidget->SlatePrepass(1.0f);
	EXPECT_EQ(FVector2D(0, 0), SNullWidget::NullWidget->GetDesiredSize());
}

TEST(SNullWidget, HasNoParentThoughItStandsInManySlots)
{
	const TSharedRef<SVerticalBox> Box = SNew(SVerticalBox) + SVerticalBox::Slot() + SVerticalBox::Slot();
	EXPECT_EQ(2, Box->NumSlots());
	EXPECT_FALSE(SNullWidget::NullWidget->IsParentValid());
}

TEST(SOverlay, GivesEveryChildTheWholeAreaAndWishesForTheLargest)
{
	const TSharedRef<SOverlay> Overlay = SNew(SOverlay) + SOverlay::Slot()[MakeBox(10, 50)]
		+ SOverlay::Slot().HAlign(HAlign_Right).VAlign(VAlign_Top).Padding(2.0f)[MakeBox(20, 10)];
	EXPECT_EQ((std::vector<FSlateRect>{FSlateRect(0, 0, 100, 100), FSlateRect(78, 2, 98, 12)}), Arrange(Overlay, FVector2D(100, 100)));
	EXPECT_EQ(FVector2D(24, 50), Overlay->GetDesiredSize());
}

TEST(SOverlay, OrdersSlotsByTheirZOrder)
{
	const TSharedRef<SOverlay> Overlay = SNew(SOverlay);
	const TSharedRef<STestBox> Low = MakeBox(1, 1);
	const TSharedRef<STestBox> High = MakeBox(1, 1);
	Overlay->AddSlot(10)[High];
	Overlay->AddSlot(5)[Low];
	EXPECT_TRUE(Overlay->GetChildren()->GetChildAt(0) == Low);
	EXPECT_TRUE(Overlay->RemoveSlot(10));
	EXPECT_FALSE(Overlay->RemoveSlot(10));
}

TEST(FSlateApplicationBaseDeathTest, IsFatalToAskForWithoutAnApplication)
{
	EXPECT_DEATH(FSlateApplicationBase::Get(), "Assertion failed: IsInitialized\\(\\)");
}

TEST(FNoChildrenDeathTest, HasNoChildToGive)
{
	EXPECT_DEATH(FNoChildren::NoChildrenInstance.GetChildAt(0), "Assertion failed");
}
