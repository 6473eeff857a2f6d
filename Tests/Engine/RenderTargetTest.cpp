// Copyright The Tintmill authors. All rights reserved.

#include "ViewportDouble.h"

class FRenderTargetTest : public FViewportFixture
{};

TEST_F(FRenderTargetTest, ReadsTheWholeSurfaceForTheEmptyRectangle)
{
	Viewport->Draw();
	EXPECT_EQ(Read().Num(), 12);
}

TEST_F(FRenderTargetTest, ReadsRowByRowFromTheTopLeft)
{
	Viewport->Draw();
	EXPECT_EQ(Read()[5].G, 5);
}

TEST_F(FRenderTargetTest, ReadsAsManyPixelsAsARectangleHas)
{
	Viewport->Draw();
	EXPECT_EQ(Read(FIntRect(1, 1, 3, 3)).Num(), 4);
}

TEST_F(FRenderTargetTest, ReadsTheFirstPixelOfARectangle)
{
	Viewport->Draw();
	EXPECT_EQ(Read(FIntRect(1, 1, 3, 3))[0].G, 5);
}

TEST_F(FRenderTargetTest, ReadsTheSecondRowOfARectangle)
{
	Viewport->Draw();
	EXPECT_EQ(Read(FIntRect(1, 1, 3, 3))[2].G, 9);
}

TEST_F(FRenderTargetTest, KeepsTheAlphaThatTheSceneLeft)
{
	Viewport->Draw();
	EXPECT_EQ(Read()[0].A, 0);
}

TEST_F(FRenderTargetTest, LeavesEightBitValuesAloneWithoutGamma)
{
	Viewport->Draw();
	TArray<FColor> Pixels;
	FReadSurfaceDataFlags Flags;
	Flags.SetLinearToGamma(false);
	Viewport->ReadPixels(Pixels, Flags);
	EXPECT_EQ(Pixels[0], FColor(10, 0, 30, 0));
}

TEST_F(FRenderTargetTest, SaysThatItReadSomething)
{
	Viewport->Draw();
	TArray<FColor> Pixels;
	EXPECT_TRUE(Viewport->ReadPixels(Pixels));
}

TEST_F(FRenderTargetTest, ReplacesWhatTheArrayHeld)
{
	Viewport->Draw();
	TArray<FColor> Pixels;
	Pixels.AddZeroed(100);
	Viewport->ReadPixels(Pixels);
	EXPECT_EQ(Pixels.Num(), 12);
}

TEST_F(FRenderTargetTest, FailsAtSizeZero)
{
	FSceneViewport Empty(&Client, TSharedPtr<SViewport>());
	TArray<FColor> Pixels;
	EXPECT_FALSE(Empty.ReadPixels(Pixels));
}

TEST_F(FRenderTargetTest, EmptiesTheArrayAtSizeZero)
{
	FSceneViewport Empty(&Client, TSharedPtr<SViewport>());
	TArray<FColor> Pixels;
	Pixels.AddZeroed(3);
	Empty.ReadPixels(Pixels);
	EXPECT_EQ(Pixels.Num(), 0);
}

TEST_F(FRenderTargetTest, FailsForARectangleWithoutWidth)
{
	Viewport->Draw();
	TArray<FColor> Pixels;
	EXPECT_FALSE(Viewport->ReadPixels(Pixels, FReadSurfaceDataFlags(), FIntRect(2, 0, 2, 3)));
}

TEST_F(FRenderTargetTest, ReadsTheLastCompletedDrawNotTheScene)
{
	Viewport->Draw();
	StandIn::SetScenePainter(StandIn::FScenePainter());
	EXPECT_EQ(Read()[0].R, 10);
}

TEST_F(FRenderTargetTest, ReadsADrawThatWasNotPresented)
{
	Viewport->Draw(false);
	EXPECT_EQ(Read()[0].R, 10);
}

TEST_F(FRenderTargetTest, ReadsAnEmptySurfaceOfTheRightSizeBeforeTheFirstDraw)
{
	EXPECT_EQ(Read()[0], FColor(0, 0, 0, 0));
}

TEST_F(FRenderTargetTest, ReadsAsManyPixelsAsTheSizeSaysRightAfterAResize)
{
	Viewport->Draw();
	Viewport->SetFixedViewportSize(5, 5);
	EXPECT_EQ(Read().Num(), 25);
}

TEST_F(FRenderTargetTest, ReadsIntoPlainMemoryToo)
{
	Viewport->Draw();
	FColor Pixels[12];
	Viewport->ReadPixelsPtr(Pixels);
	EXPECT_EQ(Pixels[11].G, 11);
}

TEST_F(FRenderTargetTest, DiesForARectangleThatLeavesTheSurface)
{
	Viewport->Draw();
	EXPECT_DEATH(Read(FIntRect(0, 0, 5, 3)), "leaves the surface of 4 x 3 pixels");
}

TEST_F(FRenderTargetTest, RefusesTheStencil)
{
	Viewport->Draw();
	TArray<FColor> Pixels;
	FReadSurfaceDataFlags Flags;
	Flags.SetOutputStencil(true);
	EXPECT_DEATH(Viewport->ReadPixels(Pixels, Flags), "not in this stand-in: FRenderTarget::ReadPixels of the stencil");
}

TEST_F(FRenderTargetTest, RefusesMipLevels)
{
	Viewport->Draw();
	TArray<FColor> Pixels;
	FReadSurfaceDataFlags Flags;
	Flags.SetMip(1);
	EXPECT_DEATH(Viewport->ReadPixels(Pixels, Flags), "not in this stand-in: FRenderTarget::ReadPixels of a mip level");
}

TEST_F(FRenderTargetTest, RefusesCubeFaces)
{
	Viewport->Draw();
	TArray<FColor> Pixels;
	EXPECT_DEATH(Viewport->ReadPixels(Pixels, FReadSurfaceDataFlags(RCM_UNorm, CubeFace_PosX)),
		"not in this stand-in: FRenderTarget::ReadPixels of a cube face");
}
