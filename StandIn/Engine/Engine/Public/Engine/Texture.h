// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "Texture.generated.h"

// Textures as a kind of asset: they can be listed, named and told apart by their class. Left out: everything else, such as source
// art, compression, sampling, streaming and the base class for it.

/** Base of textures. */
UCLASS(Abstract)
class ENGINE_API UTexture : public UObject
{
	GENERATED_BODY()
};
