// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "AssetPickerTestOther.generated.h"

/** Asset of a class of its own. */
UCLASS()
class UAssetPickerTestOther : public UObject
{
	GENERATED_BODY()
};
