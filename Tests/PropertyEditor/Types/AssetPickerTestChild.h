// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "AssetPickerTestAsset.h"
#include "AssetPickerTestChild.generated.h"

/** Asset of a derived class. */
UCLASS()
class UAssetPickerTestChild : public UAssetPickerTestAsset
{
	GENERATED_BODY()
};
