// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"
#include "UObject/Object.h"

#include "TintmillObject.generated.h"

// A look asset. Its look comes from the file that the asset was loaded from or made with (StandIn/LookFiles.h); an asset without
// a file leaves every picture as it is. Nothing of the look is saved with the asset.

struct FTintmillAPI_ImageDesc;
struct FTintmillLook;

UCLASS()
class TINTMILL_API UTintmillObject : public UObject
{
	GENERATED_BODY()

public:
	UTintmillObject();
	virtual ~UTintmillObject();

	/** Opens the look-editing interface on this asset over a picture, which is borrowed until the call returns. */
	void DisplayUserInterface(FTintmillAPI_ImageDesc& ImageDesc);

	/** The look read from the asset's file; null until a file has been given. Used by this module alone. */
	TSharedPtr<FTintmillLook> Look;
};
