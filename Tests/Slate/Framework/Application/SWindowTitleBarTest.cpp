// Copyright The Tintmill authors. All rights reserved.

#include "Slate/SlateFixture.h"

#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SSpacer.h"

namespace
{
/** A desktop of 800 x 600 with one titled window at (100, 100), its content 200 x 120. */
class FTitledWindow : public FSlateFixture
{
protected:
	void SetUp() override
	{
		FSlateFixture::SetUp();
		App().SetWorkArea(FSlateRect(0.0f, 0.0f, 800.0f, 600.0f));
		// clang-format off
		Titled = SNew(SWindow)
			.Title(FText::FromString(TEXT("Look Builder")))
			.AutoCenter(EAutoCenter::None)
			.ScreenPosition(FVector2D(100.0f, 100.0f))
			.ClientSize(FVector2D(200.0f, 120.0f))
			[
				SAssignNew(Content, SSpacer)
			];
		// clang-format on
		App().AddWindow(Titled.ToSharedRef());
		StandIn::AdvanceTime(0.0f);
	}

	void Drag(const FVector2D& From, const FVector2D& To)
	{
		StandIn::MoveMouse(From);
		StandIn::PressMouse();
		StandIn::MoveMouse(To);
		StandIn::AdvanceTime(0.0f);
		StandIn::ReleaseMouse();
		StandIn::AdvanceTime(0.0f);
	}

	/** The middle of the button in the title bar's right corner. */
	FVector2D GetCloseButton() const { return FVector2D(Titled->GetRectInScreen().Right - 18.0f, Titled->GetRectInScreen().Top + 12.0f); }

	TSharedPtr<SWindow> Titled;
	TSharedPtr<SWidget> Content;
};

TEST_F(FTitledWindow, GivesTheContentTheSizeThatWasAskedFor)
{
	EXPECT_EQ(FVector2D(200.0f, 120.0f), Content->GetCachedGeometry().GetAbsoluteSize());
}

TEST_F(FTitledWindow, ShowsItsTitle)
{
	EXPECT_TRUE(StandIn::FindText(Titled.ToSharedRef(), TEXT("Look Builder")).IsValid());
}

TEST_F(FTitledWindow, FollowsATitleThatChanges)
{
	Titled->SetTitle(FText::FromString(TEXT("Game Preview")));
	EXPECT_TRUE(StandIn::FindText(Titled.ToSharedRef(), TEXT("Game Preview")).IsValid());
}

TEST_F(FTitledWindow, IsDraggedByItsTitle)
{
	Drag(FVector2D(150.0f, 110.0f), FVector2D(190.0f, 160.0f));
	EXPECT_EQ(FVector2D(140.0f, 150.0f), Titled->GetPositionInScreen());
}

TEST_F(FTitledWindow, StaysInReachHoweverFarItIsDragged)
{
	Drag(FVector2D(150.0f, 110.0f), FVector2D(5000.0f, -5000.0f));
	EXPECT_EQ(FVector2D(776.0f, 0.0f), Titled->GetPositionInScreen());
}

TEST_F(FTitledWindow, IsClosedByItsButton)
{
	StandIn::ClickAt(GetCloseButton());
	EXPECT_TRUE(Titled->IsDestroyed());
}

TEST_F(FTitledWindow, AsksTheOverrideBeforeItsButtonClosesIt)
{
	Titled->SetRequestDestroyWindowOverride(FRequestDestroyWindowOverride::CreateLambda([](const TSharedRef<SWindow>&) {}));
	StandIn::ClickAt(GetCloseButton());
	EXPECT_FALSE(Titled->IsDestroyed());
}

TEST_F(FTitledWindow, HasNoButtonWhereNoneIsWanted)
{
	const TSharedRef<SWindow> Plain = SNew(SWindow).HasCloseButton(false).ClientSize(FVector2D(50.0f, 50.0f));
	EXPECT_FALSE(StandIn::FindWidgetOfType(Plain, TEXT("SButton")).IsValid());
}

TEST_F(FTitledWindow, GrowsAtItsLowerRightCorner)
{
	const FSlateRect Before = Titled->GetRectInScreen();
	Drag(FVector2D(Before.Right - 2.0f, Before.Bottom - 2.0f), FVector2D(Before.Right + 28.0f, Before.Bottom + 18.0f));
	EXPECT_EQ(FVector2D(230.0f, 140.0f), Titled->GetClientSizeInScreen());
}

TEST_F(FTitledWindow, GrowsInOneDirectionAtItsRightEdge)
{
	const FSlateRect Before = Titled->GetRectInScreen();
	Drag(FVector2D(Before.Right - 2.0f, Before.Top + 60.0f), FVector2D(Before.Right + 28.0f, Before.Top + 90.0f));
	EXPECT_EQ(FVector2D(230.0f, 120.0f), Titled->GetClientSizeInScreen());
}

TEST_F(FTitledWindow, KeepsASmallestSize)
{
	const FSlateRect Before = Titled->GetRectInScreen();
	Drag(FVector2D(Before.Right - 2.0f, Before.Bottom - 2.0f), FVector2D(0.0f, 0.0f));
	EXPECT_EQ(FVector2D(80.0f, 80.0f), Titled->GetClientSizeInScreen());
}

TEST_F(FTitledWindow, ShowsTheCursorOfResizingAtItsEdge)
{
	StandIn::MoveMouse(FVector2D(Titled->GetRectInScreen().Right - 2.0f, 150.0f));
	EXPECT_EQ(EMouseCursor::ResizeLeftRight, App().QueryCursor());
}

TEST_F(FTitledWindow, KeepsTheContentsPixelsWhenTheScaleChanges)
{
	Titled->SetDPIScaleFactor(2.0f);
	EXPECT_EQ(FVector2D(200.0f, 120.0f), Titled->GetClientSizeInScreen());
}

TEST_F(FTitledWindow, MakesNoTitleBarForMenus)
{
	EXPECT_FALSE(SWindow::MakePopupWindow(FVector2D(0.0f, 0.0f), EWindowType::Menu)->HasTitleBar());
}
}
