// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "AssetPickerTestAsset.generated.h"

/** Asset of tests. */
UCLASS()
class UAssetPickerTestAsset : public UObject
{
	GENERATED_BODY()
};
