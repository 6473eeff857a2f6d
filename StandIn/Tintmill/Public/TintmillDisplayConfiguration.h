// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

#include "TintmillDisplayConfiguration.generated.h"

// Which look one viewport shows. A plain value: copied member by member, owns nothing and keeps no asset alive.

class UTintmillObject;

USTRUCT()
struct TINTMILL_API FTintmillDisplayConfiguration
{
	GENERATED_BODY()

	/** The look is applied to the viewport's picture. */
	UPROPERTY()
	bool bEnableDisplay;

	/** Share of the look in the picture: 0 leaves it as it is, 1 is the look alone; values outside count as the nearer of the two. */
	UPROPERTY()
	float Intensity;

	/** The look asset, or null. */
	UPROPERTY()
	UTintmillObject* LookAsset;

	/** A record that is switched off, at full intensity, without a look. */
	FTintmillDisplayConfiguration();
};
