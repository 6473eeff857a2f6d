// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/ScenePainter.h"

#include "UnrealClient.h"
#include <gtest/gtest.h>

TEST(FScenePainter, LeavesAnEmptySceneOpaqueToNobody)
{
	FViewportClient Client;
	FColor Pixel(1, 2, 3, 4);
	StandIn::PaintScene(Client, FIntPoint(1, 1), &Pixel);
	EXPECT_EQ(Pixel.A, 0);
}

TEST(FScenePainter, IsGivenTheClient)
{
	FViewportClient Client;
	FViewportClient* Seen = nullptr;
	StandIn::SetScenePainter([&Seen](FViewportClient& InClient, const FIntPoint&, FColor*) { Seen = &InClient; });
	FColor Pixel;
	StandIn::PaintScene(Client, FIntPoint(1, 1), &Pixel);
	StandIn::SetScenePainter(StandIn::FScenePainter());
	EXPECT_EQ(Seen, &Client);
}

TEST(FScenePainter, HasAnotherGenerationAfterEachReplacement)
{
	const uint32 Before = StandIn::GetScenePainterGeneration();
	StandIn::SetScenePainter(StandIn::FScenePainter());
	EXPECT_NE(StandIn::GetScenePainterGeneration(), Before);
}
