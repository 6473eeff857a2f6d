// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "AssetToolsTestAsset.generated.h"

/** An asset for tests. */
UCLASS()
class UAssetToolsTestAsset : public UObject
{
	GENERATED_BODY()
};
