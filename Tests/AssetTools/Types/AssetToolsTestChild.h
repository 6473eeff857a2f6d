// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "AssetToolsTestAsset.h"
#include "AssetToolsTestChild.generated.h"

/** Asset of a derived class. */
UCLASS()
class UAssetToolsTestChild : public UAssetToolsTestAsset
{
	GENERATED_BODY()
};
