// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Factories/Factory.h"
#include "AssetPickerTestFactory.generated.h"

/** Factory of tests. */
UCLASS()
class UAssetPickerTestFactory : public UFactory
{
	GENERATED_BODY()

public:
	UAssetPickerTestFactory(const FObjectInitializer& ObjectInitializer);
};
