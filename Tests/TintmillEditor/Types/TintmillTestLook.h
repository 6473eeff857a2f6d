// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "TintmillObject.h"

#include "TintmillTestLook.generated.h"

/** A look asset of a class of its own. */
UCLASS()
class UTintmillTestLook : public UTintmillObject
{
	GENERATED_BODY()
};
