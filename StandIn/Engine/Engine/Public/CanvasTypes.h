// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "RHIDefinitions.h"

class FHitProxyConsumer;
class FRenderTarget;
class UWorld;

// The canvas that viewport clients are given to draw on. It names its target; drawing on it is not offered.

/** Draws two-dimensional things on a render target. */
class ENGINE_API FCanvas
{
public:
	/** Makes a canvas over a target. */
	FCanvas(FRenderTarget* InRenderTarget, FHitProxyConsumer* InHitProxyConsumer, UWorld* InWorld, ERHIFeatureLevel::Type InFeatureLevel)
		: RenderTarget(InRenderTarget)
		, FeatureLevel(InFeatureLevel)
	{
		(void)InHitProxyConsumer;
		(void)InWorld;
	}

	/** Returns the target. */
	FRenderTarget* GetRenderTarget() const { return RenderTarget; }

	/** Returns the feature level that is drawn at. */
	ERHIFeatureLevel::Type GetFeatureLevel() const { return FeatureLevel; }

private:
	FRenderTarget* RenderTarget;
	ERHIFeatureLevel::Type FeatureLevel;
};
