// Copyright The Tintmill authors. All rights reserved.

#include "LevelViewportLayout.h"
#include "StandIn/SlateDriver.h"
#include "Support/EditorFixture.h"
#include "Support/MenuUser.h"
#include "ToolMenus.h"
#include "Widgets/Input/SButton.h"

namespace
{
/** Four panes in a window of 1200 by 900, and a person who uses them. */
class FPaneArrangementTest : public FEngineFixture
{
protected:
	virtual void ChooseOptions() override { Options.bSlate = true; }

	virtual void SetUp() override
	{
		FEngineFixture::SetUp();
		User = MakeUnique<FMenuUser>(false);
		User->Show(StandIn::OpenLevelEditor("FourPanes2x2", NAME_None));
		User->Wait(0.1f);
		Handle = StandIn::OnPanesArranged().AddLambda([this]() { ++Announced; });
	}

	virtual void TearDown() override
	{
		StandIn::OnPanesArranged().Remove(Handle);
		FSlateApplication::Get().DismissAllMenus();
		User.Reset();
		StandIn::CloseLevelEditor();
		FEngineFixture::TearDown();
	}

	static TSharedRef<SLevelViewport> GetPane(int32 Index) { return StandIn::GetPanes()[Index].ToSharedRef(); }

	static FVector2D GetSize(int32 Pane) { return GetPane(Pane)->GetCachedGeometry().GetLocalSize(); }

	/** Drags with the left button from a place to another one. */
	void Drag(const FVector2D& From, const FVector2D& To)
	{
		StandIn::MoveMouse(From);
		StandIn::PressMouse();
		StandIn::MoveMouse(To);
		StandIn::ReleaseMouse();
		User->Wait(0.0f);
	}

	/** Clicks the button at the right of a pane's tool bar. */
	void ClickMaximize(int32 Pane)
	{
		const TSharedPtr<SWidget> Button = StandIn::FindWidgetOfType(GetPane(Pane), "SButton");
		ASSERT_TRUE(Button.IsValid());
		User->ClickAt(StandIn::GetCenter(Button.ToSharedRef()));
	}

	/** Opens the menu of the first button of a pane's tool bar. */
	void OpenOptions(int32 Pane)
	{
		const TSharedPtr<SWidget> Button = StandIn::FindText(GetPane(Pane), TEXT("\u25BC"));
		ASSERT_TRUE(Button.IsValid());
		User->ClickAt(StandIn::GetCenter(Button.ToSharedRef()));
	}

	TUniquePtr<FMenuUser> User;
	FDelegateHandle Handle;
	int32 Announced = 0;
};
}

TEST_F(FPaneArrangementTest, FourPanesHaveEqualPartsAtFirst)
{
	EXPECT_EQ(GetSize(0), GetSize(3));
}

TEST_F(FPaneArrangementTest, ADragOfTheUprightHandleWidensThePaneBesideIt)
{
	Drag(FVector2D(600.0f, 200.0f), FVector2D(800.0f, 200.0f));
	EXPECT_NEAR(GetSize(0).X, 798.0f, 1.0f);
}

TEST_F(FPaneArrangementTest, ADragOfTheUprightHandleKeepsBothRowsAligned)
{
	Drag(FVector2D(600.0f, 200.0f), FVector2D(800.0f, 200.0f));
	EXPECT_EQ(GetSize(2).X, GetSize(0).X);
}

TEST_F(FPaneArrangementTest, ADragOfTheLevelHandleChangesTheRows)
{
	Drag(FVector2D(200.0f, 450.0f), FVector2D(200.0f, 300.0f));
	EXPECT_NEAR(GetSize(0).Y, 298.0f, 1.0f);
}

TEST_F(FPaneArrangementTest, ADragIsAnnouncedOnceAtItsEnd)
{
	Drag(FVector2D(600.0f, 200.0f), FVector2D(800.0f, 200.0f));
	EXPECT_EQ(Announced, 1);
}

TEST_F(FPaneArrangementTest, APaneKeepsItsPartWhenAnotherOneWasMaximized)
{
	Drag(FVector2D(600.0f, 200.0f), FVector2D(800.0f, 200.0f));
	const FVector2D Before = GetSize(0);
	ClickMaximize(3);
	ClickMaximize(3);
	EXPECT_EQ(GetSize(0), Before);
}

TEST_F(FPaneArrangementTest, TheButtonLetsItsPaneFillTheTab)
{
	ClickMaximize(1);
	EXPECT_EQ(GetSize(1), FVector2D(1200.0f, 900.0f));
}

TEST_F(FPaneArrangementTest, TheButtonOfAMaximizedPaneShowsAllPanesAgain)
{
	const FVector2D Before = GetSize(1);
	ClickMaximize(1);
	ClickMaximize(1);
	EXPECT_EQ(GetSize(1), Before);
}

TEST_F(FPaneArrangementTest, TheButtonLiesAtTheRightEdgeOfThePane)
{
	const TSharedPtr<SWidget> Button = StandIn::FindWidgetOfType(GetPane(0), "SButton");
	const FSlateRect Place = Button->GetCachedGeometry().GetLayoutBoundingRect();
	EXPECT_NEAR(Place.Right, GetPane(0)->GetCachedGeometry().GetLayoutBoundingRect().Right - 4.0f, 1.0f);
}

TEST_F(FPaneArrangementTest, MaximizingIsAnnounced)
{
	ClickMaximize(1);
	EXPECT_EQ(Announced, 1);
}

TEST_F(FPaneArrangementTest, TheMaximizedPaneIsKnown)
{
	ClickMaximize(1);
	EXPECT_EQ(StandIn::GetMaximizedPane(), TSharedPtr<SLevelViewport>(GetPane(1)));
}

TEST_F(FPaneArrangementTest, SharesThatWereReadMoveTheHandlesBack)
{
	Drag(FVector2D(600.0f, 200.0f), FVector2D(800.0f, 200.0f));
	const TArray<float> Shares = StandIn::GetPaneShares();
	const FVector2D Dragged = GetSize(0);
	StandIn::SetViewportLayout("FourPanes2x2");
	StandIn::SetPaneShares(Shares);
	User->Wait(0.0f);
	EXPECT_EQ(GetSize(0), Dragged);
}

TEST_F(FPaneArrangementTest, SharesOfARowAreMadeToSumToOne)
{
	StandIn::SetPaneShares({1.0f, 3.0f, 2.0f, 2.0f});
	EXPECT_EQ(StandIn::GetPaneShares(), TArray<float>({0.25f, 0.75f, 0.5f, 0.5f}));
}

TEST_F(FPaneArrangementTest, SharesForAnotherNumberOfPanesAreRefused)
{
	EXPECT_FALSE(StandIn::SetPaneShares({0.5f, 0.5f}));
}

TEST_F(FPaneArrangementTest, AShareOfNothingIsRefused)
{
	EXPECT_FALSE(StandIn::SetPaneShares({0.0f, 1.0f, 0.5f, 0.5f}));
}

TEST_F(FPaneArrangementTest, OnePaneHasNoShares)
{
	StandIn::SetViewportLayout("OnePane");
	EXPECT_EQ(StandIn::GetPaneShares().Num(), 0);
}

TEST_F(FPaneArrangementTest, EveryLayoutTakesItsOwnShares)
{
	int32 NumTaken = 0;
	for (const FName& Layout : StandIn::GetViewportLayoutNames())
	{
		StandIn::SetViewportLayout(Layout);
		User->Wait(0.0f);
		NumTaken += StandIn::SetPaneShares(StandIn::GetPaneShares()) ? 1 : 0;
	}
	EXPECT_EQ(NumTaken, 12);
}

TEST_F(FPaneArrangementTest, AnOpenedTabIsInFront)
{
	StandIn::OpenViewportTab(3, "OnePane");
	EXPECT_EQ(StandIn::GetFrontViewportTab(), 3);
}

TEST_F(FPaneArrangementTest, OpenTabsAreListed)
{
	StandIn::OpenViewportTab(3, "OnePane");
	EXPECT_EQ(StandIn::GetViewportTabs(), TArray<int32>({1, 3}));
}

TEST_F(FPaneArrangementTest, TheFirstTabComesToTheFrontWhenAnotherOneIsClosed)
{
	StandIn::OpenViewportTab(3, "OnePane");
	StandIn::CloseViewportTab(3);
	EXPECT_EQ(StandIn::GetFrontViewportTab(), 1);
}

TEST_F(FPaneArrangementTest, TheOptionsMenuListsWhatItCanDo)
{
	OpenOptions(0);
	EXPECT_TRUE(IsText(User->GetLabels(), TEXT("Realtime|Layouts|Maximize Viewport")));
}

TEST_F(FPaneArrangementTest, TheOptionsMenuOffersToRestoreAMaximizedPane)
{
	ClickMaximize(0);
	OpenOptions(0);
	EXPECT_TRUE(IsText(User->GetLabels(), TEXT("Realtime|Layouts|Restore Viewport")));
}

TEST_F(FPaneArrangementTest, TheOptionsMenuMaximizesThePane)
{
	OpenOptions(2);
	User->Click(TEXT("Maximize Viewport"));
	EXPECT_TRUE(GetPane(2)->IsMaximized());
}

TEST_F(FPaneArrangementTest, TheLayoutsMenuChecksThePresentLayout)
{
	OpenOptions(0);
	User->Hover(TEXT("Layouts"));
	EXPECT_EQ(User->FindRow(TEXT("Four Panes (2x2)")).CheckState, ECheckBoxState::Checked);
}

TEST_F(FPaneArrangementTest, TheLayoutsMenuGivesTheTabAnotherLayout)
{
	OpenOptions(0);
	User->Hover(TEXT("Layouts"));
	User->Click(TEXT("Two Panes (side by side)"));
	EXPECT_EQ(StandIn::GetViewportLayout(), FName("TwoPanesHoriz"));
}

TEST_F(FPaneArrangementTest, TheLayoutsMenuOffersEveryLayout)
{
	OpenOptions(0);
	User->Hover(TEXT("Layouts"));
	EXPECT_EQ(User->GetRows(1).Num(), StandIn::GetViewportLayoutNames().Num());
}

TEST_F(FPaneArrangementTest, TheOptionsMenuSwitchesRealtime)
{
	const bool bBefore = GetPane(0)->GetLevelViewportClient().IsRealtime();
	OpenOptions(0);
	User->Click(TEXT("Realtime"));
	EXPECT_NE(GetPane(0)->GetLevelViewportClient().IsRealtime(), bBefore);
}

TEST_F(FPaneArrangementTest, TheCameraMenuChangesTheKindOfView)
{
	User->ClickAt(StandIn::GetCenter(StandIn::FindText(GetPane(1), TEXT("Perspective")).ToSharedRef()));
	User->Click(TEXT("Top"));
	EXPECT_EQ(GetPane(1)->GetLevelViewportClient().GetViewportType(), LVT_OrthoXY);
}

TEST_F(FPaneArrangementTest, TheOptionsMenuShowsWhatExtendsIt)
{
	bool bAsked = false;
	UToolMenus::Get()
		->ExtendMenu("LevelEditor.LevelViewportToolBar.Options")
		->AddDynamicSection("Mine", FNewToolMenuDelegate::CreateLambda([&bAsked](UToolMenu*) { bAsked = true; }));
	OpenOptions(0);
	EXPECT_TRUE(bAsked);
}

TEST_F(FPaneArrangementTest, PanesOfNoSizeAreLaidOutWithoutHarm)
{
	User->Window->Resize(FVector2D(3.0f, 2.0f));
	User->Wait(0.1f);
	EXPECT_GE(GetSize(0).X, 0.0f);
}
