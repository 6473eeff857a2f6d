// Copyright The Tintmill authors. All rights reserved.

// clang-format off
#pragma once

#include "CoreMinimal.h"
#include "TintmillDisplayConfiguration.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "TintmillEditorSettings.generated.h"

USTRUCT()
struct FTMLPerViewportDisplaySettingPair
{
	GENERATED_BODY()

	/*  Name associated with this viewport's layout to identify it. */
	UPROPERTY(config)
	FName ViewportIdentifier;

	/* Display configuration for a given viewport */
	UPROPERTY(config)
	FTintmillDisplayConfiguration DisplayConfiguration;
};

/**
* List of Tintmill objects associated to level viewport instances linked with an identifier
*/
UCLASS(config = EditorPerProjectUserSettings)
class UTintmillLevelViewportSettings : public UObject
{
	GENERATED_BODY()

public:
	FTintmillDisplayConfiguration* FindDisplayConfiguration(FName InViewportIdentifier);

	void SetDisplayConfiguration(const FName& InViewportIdentifier, const FTintmillDisplayConfiguration& InDisplayConfiguration);

protected:
	/** Settings associated to each viewport that was configured */
	UPROPERTY(config)
	TArray<FTMLPerViewportDisplaySettingPair> ViewportsSettings;
};
