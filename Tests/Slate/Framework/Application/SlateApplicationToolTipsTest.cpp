// Copyright The Tintmill authors. All rights reserved.

#include "Slate/SlateFixture.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SToolTip.h"

namespace
{
class FToolTips : public FSlateFixture
{
protected:
	void SetUp() override
	{
		FSlateFixture::SetUp();
		SAssignNew(First, STestBox).Size(FVector2D(100, 100)).ToolTipText(FText::FromString(TEXT("first tip")));
		SAssignNew(Second, STestBox).Size(FVector2D(100, 100)).ToolTipText(FText::FromString(TEXT("second tip")));
		Show(SNew(SHorizontalBox) + SHorizontalBox::Slot().AutoWidth()[First.ToSharedRef()]
			+ SHorizontalBox::Slot().AutoWidth()[Second.ToSharedRef()] + SHorizontalBox::Slot()[SNew(STestBox)]);
	}

	/** Returns the shown tool tip's window, or null. */
	static TSharedPtr<SWindow> GetToolTipWindow()
	{
		TArray<TSharedRef<SWindow>> Windows;
		App().GetAllVisibleWindowsOrdered(Windows);
		for (const TSharedRef<SWindow>& Candidate : Windows)
		{
			if (Candidate->GetType() == EWindowType::ToolTip)
			{
				return Candidate;
			}
		}
		return TSharedPtr<SWindow>();
	}

	static std::string GetTip()
	{
		const TSharedPtr<SWindow> ToolTipWindow = GetToolTipWindow();
		const FNotes Texts = ToolTipWindow.IsValid() ? GetPaintedTexts(ToolTipWindow.ToSharedRef()) : FNotes();
		return Texts.empty() ? "" : Texts[0];
	}

	TSharedPtr<STestBox> First;
	TSharedPtr<STestBox> Second;
};
}

TEST_F(FToolTips, ShowAfterFifteenHundredthsOfASecondNotBefore)
{
	StandIn::MoveMouse(FVector2D(50, 50));
	App().Tick(0.0f);
	App().Tick(0.14f);
	EXPECT_EQ("", GetTip());
	App().Tick(0.01f);
	EXPECT_EQ("first tip", GetTip());
}

TEST_F(FToolTips, AppearWithinATenthOfASecond)
{
	StandIn::MoveMouse(FVector2D(50, 50));
	App().Tick(0.0f);
	App().Tick(0.15f);
	EXPECT_EQ(0.0f, GetToolTipWindow()->GetRenderOpacity());
	App().Tick(0.05f);
	EXPECT_NEAR(0.5f, GetToolTipWindow()->GetRenderOpacity(), 0.001f);
	App().Tick(0.05f);
	EXPECT_NEAR(1.0f, GetToolTipWindow()->GetRenderOpacity(), 0.001f);
}

TEST_F(FToolTips, LieBelowAndRightOfTheMouse)
{
	StandIn::MoveMouse(FVector2D(50, 50));
	StandIn::AdvanceTime(0.3f);
	EXPECT_EQ(FVector2D(62, 66), GetToolTipWindow()->GetPositionInScreen());
}

TEST_F(FToolTips, StayInsideTheWindowNearItsLowerRightCorner)
{
	App().SetWorkArea(FSlateRect(0, 0, 100, 100));
	StandIn::MoveMouse(FVector2D(95, 95));
	StandIn::AdvanceTime(0.3f);
	const FSlateRect Rect = GetToolTipWindow()->GetRectInScreen();
	EXPECT_LE(Rect.Right, 100.0f);
	EXPECT_LE(Rect.Bottom, 95.0f);
}

TEST_F(FToolTips, CloseWhenTheMouseLeavesTheWidget)
{
	StandIn::MoveMouse(FVector2D(50, 50));
	StandIn::AdvanceTime(0.3f);
	StandIn::MoveMouse(FVector2D(350, 50));
	StandIn::AdvanceTime(0.0f);
	EXPECT_FALSE(GetToolTipWindow().IsValid());
}

TEST_F(FToolTips, WaitAnewOnTheNextWidget)
{
	StandIn::MoveMouse(FVector2D(50, 50));
	StandIn::AdvanceTime(0.3f);
	StandIn::MoveMouse(FVector2D(150, 50));
	App().Tick(0.0f);
	App().Tick(0.1f);
	EXPECT_EQ("", GetTip());
	App().Tick(0.06f);
	EXPECT_EQ("second tip", GetTip());
}

TEST_F(FToolTips, CloseAtAPressAndStayClosedOnTheSameWidget)
{
	StandIn::MoveMouse(FVector2D(50, 50));
	StandIn::AdvanceTime(0.3f);
	StandIn::PressMouse();
	StandIn::ReleaseMouse();
	EXPECT_FALSE(GetToolTipWindow().IsValid());
	StandIn::AdvanceTime(1.0f);
	EXPECT_FALSE(GetToolTipWindow().IsValid());
}

TEST_F(FToolTips, ShowForDisabledWidgetsToo)
{
	First->SetEnabled(false);
	StandIn::AdvanceTime(0.0f);
	StandIn::MoveMouse(FVector2D(50, 50));
	StandIn::AdvanceTime(0.3f);
	EXPECT_EQ("first tip", GetTip());
}

TEST_F(FToolTips, DoNotShowForAnEmptyText)
{
	First->SetToolTipText(FText::GetEmpty());
	StandIn::MoveMouse(FVector2D(50, 50));
	StandIn::AdvanceTime(1.0f);
	EXPECT_FALSE(GetToolTipWindow().IsValid());
}

TEST_F(FToolTips, FollowAPolledText)
{
	FText Text = FText::FromString(TEXT("before"));
	First->SetToolTipText(TAttribute<FText>::Create(TAttribute<FText>::FGetter::CreateLambda([&Text]() { return Text; })));
	StandIn::MoveMouse(FVector2D(50, 50));
	StandIn::AdvanceTime(0.3f);
	EXPECT_EQ("before", GetTip());
	Text = FText::FromString(TEXT("after"));
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ("after", GetTip());
}

TEST_F(FToolTips, CanShowAgainAfterTheyClosed)
{
	for (int32 Round = 0; Round < 2; ++Round)
	{
		StandIn::MoveMouse(FVector2D(50, 50));
		StandIn::AdvanceTime(0.3f);
		EXPECT_EQ("first tip", GetTip());
		StandIn::MoveMouse(FVector2D(350, 50));
		StandIn::AdvanceTime(0.1f);
		EXPECT_EQ("", GetTip());
	}
}

TEST_F(FToolTips, AreNotShownWhenForbidden)
{
	App().SetAllowTooltips(false);
	StandIn::MoveMouse(FVector2D(50, 50));
	StandIn::AdvanceTime(1.0f);
	EXPECT_FALSE(GetToolTipWindow().IsValid());
}

TEST_F(FToolTips, NeverCatchTheMouse)
{
	StandIn::MoveMouse(FVector2D(50, 50));
	StandIn::AdvanceTime(0.3f);
	StandIn::MoveMouse(GetToolTipWindow()->GetPositionInScreen() + FVector2D(2, 2));
	EXPECT_TRUE(First->IsHovered());
}
