// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Engine/Texture.h"
#include "Texture2D.generated.h"

// Pictures as a kind of asset; see UTexture. Left out: size and pixels.

/** A picture. */
UCLASS()
class ENGINE_API UTexture2D : public UTexture
{
	GENERATED_BODY()
};
