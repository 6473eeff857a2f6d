// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Layout/SScrollBox.h"
#include "Slate/SlateFixture.h"

namespace
{
class FScrolling : public FSlateFixture
{
protected:
	void SetUp() override
	{
		FSlateFixture::SetUp();
		SAssignNew(Box, SScrollBox);
		for (int32 Index = 0; Index < 10; ++Index)
		{
			Children.push_back(SNew(STestBox).Name(std::to_string(Index)).Size(FVector2D(50, 100)));
			Box->AddSlot()[Children.back()];
		}
		Show(Box.ToSharedRef());
	}

	float GetTop(int32 Index) const { return Children[Index]->GetCachedGeometry().GetAbsolutePosition().Y; }

	TSharedPtr<SScrollBox> Box;
	std::vector<TSharedRef<STestBox>> Children;
};
}

TEST_F(FScrolling, PaintsOnlyWhatIsInSight)
{
	const FNotes Texts = GetPaintedTexts(Window.ToSharedRef());
	EXPECT_EQ("0", Texts.front());
	EXPECT_LE(Texts.size(), 4u);
	EXPECT_EQ(700.0f, Box->GetScrollOffsetOfEnd());
}

TEST_F(FScrolling, MovesByTheWheelTowardsThePerson)
{
	StandIn::MoveMouse(FVector2D(50, 50));
	EXPECT_TRUE(StandIn::TurnWheel(-1.0f));
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ(-32.0f, GetTop(0));
}

TEST_F(FScrolling, PassesTheWheelOnWhereItCanMoveNoFurther)
{
	StandIn::MoveMouse(FVector2D(50, 50));
	EXPECT_FALSE(StandIn::TurnWheel(1.0f));
	StandIn::TurnWheel(-100.0f);
	EXPECT_EQ(700.0f, Box->GetScrollOffset());
	EXPECT_FALSE(StandIn::TurnWheel(-1.0f));
}

TEST_F(FScrolling, CutsAnOffsetThatIsTooFar)
{
	Box->SetScrollOffset(5000.0f);
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ(700.0f, Box->GetScrollOffset());
	EXPECT_EQ(200.0f, GetTop(9));
}

TEST_F(FScrolling, GoesToTheEndAndTheStart)
{
	Box->ScrollToEnd();
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ(200.0f, GetTop(9));
	Box->ScrollToStart();
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ(0.0f, GetTop(0));
}

TEST_F(FScrolling, BringsAChildIntoSightWithTheShortestMove)
{
	Box->ScrollDescendantIntoView(Children[4]);
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ(200.0f, GetTop(4));
	Box->ScrollDescendantIntoView(Children[3]);
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ(200.0f, Box->GetScrollOffset());
	Box->ScrollDescendantIntoView(Children[0]);
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ(0.0f, Box->GetScrollOffset());
}

TEST_F(FScrolling, FollowsTheDraggedThumb)
{
	StandIn::AdvanceTime(0.0f);
	StandIn::MoveMouse(FVector2D(395, 10));
	StandIn::PressMouse();
	StandIn::MoveMouse(FVector2D(395, 115));
	StandIn::AdvanceTime(0.0f);
	EXPECT_NEAR(350.0f, Box->GetScrollOffset(), 1.0f);
	StandIn::MoveMouse(FVector2D(395, 1000));
	EXPECT_EQ(700.0f, Box->GetScrollOffset());
	StandIn::ReleaseMouse();
	EXPECT_FALSE(App().HasAnyMouseCaptor());
}

TEST_F(FScrolling, ShowsNoBarWhereEverythingIsInSight)
{
	Box->ClearChildren();
	Box->AddSlot()[Children[0]];
	StandIn::AdvanceTime(0.0f);
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ(400.0f, Children[0]->GetCachedGeometry().GetLocalSize().X);
}
