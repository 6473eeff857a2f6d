// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Containers/Array.h"
#include "TintmillAPI_ImageDesc.h"

// In place of the look-editing window: whoever can show one (the host, a test) takes the requests to open it.

class UTintmillObject;

namespace StandIn
{
/** One request to edit a look over a picture. */
struct FLookBuilderRequest
{
	/** The look asset that was opened. */
	UTintmillObject* Asset = nullptr;

	/** The description as it was given; its Pixels point into the copy below, or are null when that is empty. */
	FTintmillAPI_ImageDesc ImageDesc;

	/** A copy of the pixels: red, green, blue, alpha of each, 4 * RowLength * Height bytes; empty when the caller had none. */
	TArray<uint8> Pixels;

	/** The caller's own pixels, which last until Open returns; null when the caller had none. */
	const uint8* BorrowedPixels = nullptr;
};

/** Who shows the look-editing interface. */
class ILookBuilder
{
public:
	virtual ~ILookBuilder() {}

	/** Opens the interface; the request may be kept only by copying it. */
	virtual void Open(const FLookBuilderRequest& Request) = 0;
};

/** Puts a receiver in the place of the present one and returns that one, null for the default; null brings the default back, which logs the request and keeps a copy. */
TINTMILL_API ILookBuilder* SetLookBuilder(ILookBuilder* LookBuilder);

/** Returns the request that the default receiver took last; null when there has been none. */
TINTMILL_API const FLookBuilderRequest* GetLastLookBuilderRequest();
}
