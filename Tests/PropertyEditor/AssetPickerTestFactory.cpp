// Copyright The Tintmill authors. All rights reserved.

#include "AssetPickerTestFactory.h"
#include "AssetPickerTestAsset.h"

UAssetPickerTestFactory::UAssetPickerTestFactory(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	SupportedClass = UAssetPickerTestAsset::StaticClass();
	bCreateNew = true;
}
