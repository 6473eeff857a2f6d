// Copyright The Tintmill authors. All rights reserved.

#include "Slate/SceneViewport.h"

#include "ViewportDouble.h"

class FSceneViewportTest : public FViewportFixture
{};

TEST_F(FSceneViewportTest, LiesAtAnotherAddressThanItsViewportBase)
{
	EXPECT_NE(static_cast<void*>(Viewport.Get()), static_cast<void*>(static_cast<FViewport*>(Viewport.Get())));
}

TEST_F(FSceneViewportTest, IsTheFrameOfItself)
{
	EXPECT_EQ(Viewport->GetViewportFrame()->GetViewport(), Viewport->GetViewport());
}

TEST_F(FSceneViewportTest, StartsAtSizeZero)
{
	FSceneViewport Fresh(&Client, TSharedPtr<SViewport>());
	EXPECT_EQ(Fresh.GetSizeXY(), FIntPoint(0, 0));
}

TEST_F(FSceneViewportTest, TakesAFixedSize)
{
	EXPECT_EQ(Viewport->GetSizeXY(), FIntPoint(4, 3));
}

TEST_F(FSceneViewportTest, TellsTheSameSizeToTheWidget)
{
	EXPECT_EQ(Viewport->GetSize(), FIntPoint(4, 3));
}

TEST_F(FSceneViewportTest, AsksItsClientForARedrawWhenInvalidated)
{
	Viewport->InvalidateDisplay();
	EXPECT_EQ(Client.NumRedrawRequests, 1);
}

TEST_F(FSceneViewportTest, MayBeInvalidatedWithoutClient)
{
	Viewport->SetViewportClient(nullptr);
	Viewport->Invalidate();
	EXPECT_EQ(Client.NumRedrawRequests, 0);
}

TEST_F(FSceneViewportTest, LetsGoOfItsClientWhenDestroyed)
{
	Viewport->Destroy();
	EXPECT_EQ(Viewport->GetClient(), nullptr);
}

TEST_F(FSceneViewportTest, HasSizeZeroOnceDestroyed)
{
	Viewport->Destroy();
	EXPECT_EQ(Viewport->GetSizeXY(), FIntPoint(0, 0));
}

TEST_F(FSceneViewportTest, FiresNoResizeEventWhenDestroyed)
{
	int NumEvents = 0;
	const FDelegateHandle Handle = FViewport::ViewportResizedEvent.AddLambda([&NumEvents](FViewport*, uint32) { ++NumEvents; });
	Viewport->Destroy();
	FViewport::ViewportResizedEvent.Remove(Handle);
	EXPECT_EQ(NumEvents, 0);
}

TEST_F(FSceneViewportTest, ShowsNothingOnceDestroyed)
{
	Viewport->Draw();
	Viewport->Destroy();
	EXPECT_EQ(Viewport->GetPresentedSurface().Pixels.Num(), 0);
}
