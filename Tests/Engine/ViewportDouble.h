// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Slate/SceneViewport.h"
#include "StandIn/PicturePass.h"
#include "StandIn/ScenePainter.h"
#include "UnrealClient.h"
#include <gtest/gtest.h>

/** A client that counts what it is asked. */
class FCountingClient : public FViewportClient
{
public:
	virtual void Draw(FViewport*, FCanvas* Canvas) override
	{
		++NumDraws;
		LastCanvas = Canvas;
	}
	virtual void RedrawRequested(FViewport*) override { ++NumRedrawRequests; }

	int NumDraws = 0;
	int NumRedrawRequests = 0;
	FCanvas* LastCanvas = nullptr;
};

/** A pass that adds to the red of every pixel. */
class FAddRed : public StandIn::IPicturePass
{
public:
	explicit FAddRed(uint8 InAmount)
		: Amount(InAmount)
	{
		StandIn::RegisterPicturePass(this);
	}
	virtual ~FAddRed() { StandIn::UnregisterPicturePass(this); }
	virtual FName GetName() const override { return FName(TEXT("AddRed")); }
	virtual void Apply(FViewportClient*, const FIntPoint& Size, FColor* Pixels) override
	{
		for (int32 Index = 0; Index < Size.X * Size.Y; ++Index)
		{
			Pixels[Index].R = static_cast<uint8>(Pixels[Index].R + Amount);
		}
	}
	virtual uint64 GetStateKey(FViewportClient*) const override { return StateKey; }

	uint8 Amount;
	uint64 StateKey = 0;
};

/** A viewport of four by three pixels whose scene numbers its pixels in green and has alpha 0. */
class FViewportFixture : public testing::Test
{
protected:
	virtual void SetUp() override
	{
		StandIn::SetScenePainter([this](FViewportClient&, const FIntPoint& Size, FColor* Pixels) {
			++NumPaints;
			for (int32 Index = 0; Index < Size.X * Size.Y; ++Index)
			{
				Pixels[Index] = FColor(10, static_cast<uint8>(Index), 30, 0);
			}
		});
		Viewport = MakeShareable(new FSceneViewport(&Client, TSharedPtr<SViewport>()));
		Viewport->SetFixedViewportSize(4, 3);
	}

	virtual void TearDown() override { StandIn::SetScenePainter(StandIn::FScenePainter()); }

	/** Reads a rectangle; the empty one stands for everything. */
	TArray<FColor> Read(const FIntRect& Rect = FIntRect(0, 0, 0, 0))
	{
		TArray<FColor> Pixels;
		Viewport->ReadPixels(Pixels, FReadSurfaceDataFlags(), Rect);
		return Pixels;
	}

	FCountingClient Client;
	TSharedPtr<FSceneViewport> Viewport;
	int NumPaints = 0;
};
