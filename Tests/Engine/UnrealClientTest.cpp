// Copyright The Tintmill authors. All rights reserved.

#include "CanvasTypes.h"
#include "ViewportDouble.h"

class FViewportTest : public FViewportFixture
{};

TEST_F(FViewportTest, AsksThePainterForTheSceneOnce)
{
	Viewport->Draw();
	Viewport->Draw();
	EXPECT_EQ(NumPaints, 1);
}

TEST_F(FViewportTest, AsksThePainterAgainAfterInvalidateDisplay)
{
	Viewport->Draw();
	Viewport->InvalidateDisplay();
	Viewport->Draw();
	EXPECT_EQ(NumPaints, 2);
}

TEST_F(FViewportTest, AsksThePainterAgainAfterInvalidate)
{
	Viewport->Draw();
	Viewport->Invalidate();
	Viewport->Draw();
	EXPECT_EQ(NumPaints, 2);
}

TEST_F(FViewportTest, AsksThePainterAgainAtAnotherSize)
{
	Viewport->Draw();
	Viewport->SetFixedViewportSize(6, 6);
	Viewport->Draw();
	EXPECT_EQ(NumPaints, 2);
}

TEST_F(FViewportTest, AsksThePainterAgainForAnotherClient)
{
	FCountingClient Other;
	Viewport->Draw();
	Viewport->SetViewportClient(&Other);
	Viewport->Draw();
	EXPECT_EQ(NumPaints, 2);
}

TEST_F(FViewportTest, ShowsTheNewPaintersSceneWithoutAnInvalidation)
{
	Viewport->Draw();
	StandIn::SetScenePainter([](FViewportClient&, const FIntPoint&, FColor* Pixels) { Pixels[0] = FColor(1, 2, 3, 4); });
	Viewport->Draw();
	EXPECT_EQ(Read()[0], FColor(1, 2, 3, 4));
}

TEST_F(FViewportTest, AppliesPassesToTheScene)
{
	FAddRed Pass(5);
	Viewport->Draw();
	EXPECT_EQ(Read()[0].R, 15);
}

TEST_F(FViewportTest, AppliesPassesToTheSceneNotToTheLastPicture)
{
	FAddRed Pass(5);
	Viewport->Draw();
	Viewport->Draw();
	EXPECT_EQ(Read()[0].R, 15);
}

TEST_F(FViewportTest, AppliesAChangedPassOnTheNextDraw)
{
	FAddRed Pass(5);
	Viewport->Draw();
	Pass.Amount = 7;
	Viewport->Draw();
	EXPECT_EQ(Read()[0].R, 17);
}

TEST_F(FViewportTest, PresentsWhatItDrew)
{
	FAddRed Pass(5);
	Viewport->Draw();
	EXPECT_EQ(Viewport->GetPresentedSurface().Pixels[0].R, 15);
}

TEST_F(FViewportTest, LeavesTheScreenAloneWhenNotAskedToPresent)
{
	Viewport->Draw();
	FAddRed Pass(5);
	Viewport->Draw(false);
	EXPECT_EQ(Viewport->GetPresentedSurface().Pixels[0].R, 10);
}

TEST_F(FViewportTest, CountsPresentedDraws)
{
	Viewport->Draw();
	const uint64 Before = Viewport->GetPresentedSurface().Revision;
	Viewport->Draw();
	EXPECT_EQ(Viewport->GetPresentedSurface().Revision, Before + 1);
}

TEST_F(FViewportTest, LetsTheClientDrawOverEveryPicture)
{
	Viewport->Draw();
	Viewport->Draw();
	EXPECT_EQ(Client.NumDraws, 2);
}

TEST_F(FViewportTest, DoesNotDrawAtSizeZero)
{
	FSceneViewport Empty(&Client, TSharedPtr<SViewport>());
	Empty.Draw();
	EXPECT_EQ(Client.NumDraws, 0);
}

TEST_F(FViewportTest, DiesWhenDrawnWithoutClient)
{
	Viewport->SetViewportClient(nullptr);
	EXPECT_DEATH(Viewport->Draw(), "Assertion failed: ViewportClient ");
}

TEST_F(FViewportTest, MayHaveNoClient)
{
	Viewport->SetViewportClient(nullptr);
	EXPECT_EQ(Viewport->GetClient(), nullptr);
}

TEST_F(FViewportTest, FiresTheResizeEventWithItself)
{
	FViewport* Resized = nullptr;
	const FDelegateHandle Handle =
		FViewport::ViewportResizedEvent.AddLambda([&Resized](FViewport* InViewport, uint32) { Resized = InViewport; });
	Viewport->SetFixedViewportSize(8, 8);
	FViewport::ViewportResizedEvent.Remove(Handle);
	EXPECT_EQ(Resized, Viewport->GetViewport());
}

TEST_F(FViewportTest, FiresNoResizeEventForTheSameSize)
{
	int NumEvents = 0;
	const FDelegateHandle Handle = FViewport::ViewportResizedEvent.AddLambda([&NumEvents](FViewport*, uint32) { ++NumEvents; });
	Viewport->SetFixedViewportSize(4, 3);
	FViewport::ViewportResizedEvent.Remove(Handle);
	EXPECT_EQ(NumEvents, 0);
}

TEST_F(FViewportTest, IsNoPlayViewportAtFirst)
{
	EXPECT_FALSE(Viewport->IsPlayInEditorViewport());
}

TEST_F(FViewportTest, KnowsThatADrawWouldShowNothingNew)
{
	Viewport->Draw();
	EXPECT_FALSE(Viewport->WouldDrawSomethingElse());
}

TEST_F(FViewportTest, KnowsThatAnInvalidatedSceneCouldLookDifferent)
{
	Viewport->Draw();
	Viewport->InvalidateDisplay();
	EXPECT_TRUE(Viewport->WouldDrawSomethingElse());
}

TEST_F(FViewportTest, TrustsAPassThatSaysItsStateIsTheSame)
{
	FAddRed Pass(5);
	Pass.StateKey = 1;
	Viewport->Draw();
	EXPECT_FALSE(Viewport->WouldDrawSomethingElse());
}

TEST_F(FViewportTest, SeesThatAPassChangedItsState)
{
	FAddRed Pass(5);
	Pass.StateKey = 1;
	Viewport->Draw();
	Pass.StateKey = 2;
	EXPECT_TRUE(Viewport->WouldDrawSomethingElse());
}

TEST_F(FViewportTest, DistrustsAPassThatKnowsNoState)
{
	FAddRed Pass(5);
	Viewport->Draw();
	EXPECT_TRUE(Viewport->WouldDrawSomethingElse());
}

TEST_F(FViewportTest, SeesThatAPassWasAdded)
{
	Viewport->Draw();
	FAddRed Pass(5);
	Pass.StateKey = 1;
	EXPECT_TRUE(Viewport->WouldDrawSomethingElse());
}

TEST(FViewportClient, DrawsAtOnceWhenARedrawIsRequested)
{
	FViewportClient Plain;
	FSceneViewport Viewport(&Plain, TSharedPtr<SViewport>());
	Viewport.SetFixedViewportSize(2, 2);
	Viewport.InvalidateDisplay();
	EXPECT_EQ(Viewport.GetPresentedSurface().Revision, 1u);
}
