// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

class FViewportClient;

// Not in the engine: a post-process pass over a viewport's picture, in place of a pass on the graphics card. Registered
// passes run inside FViewport::Draw, in the order of registration, on the scene's picture; what they leave is presented.

namespace StandIn
{
/** A step that changes the picture of viewports. */
class ENGINE_API IPicturePass
{
public:
	virtual ~IPicturePass() {}

	/** Returns the name under which the pass is listed. */
	virtual FName GetName() const = 0;

	/** Changes a picture in place: Size.X * Size.Y pixels, row-major from the top left, 8-bit sRGB. */
	virtual void Apply(FViewportClient* Client, const FIntPoint& Size, FColor* Pixels) = 0;

	/** Returns a number that changes whenever Apply would do something else for this client; 0 means that nobody knows. */
	virtual uint64 GetStateKey(FViewportClient* Client) const;
};

/** Adds a pass after the others; it must be removed before it is destroyed, and adding it twice is fatal. */
ENGINE_API void RegisterPicturePass(IPicturePass* Pass);

/** Removes a pass; nothing happens for one that is not registered. */
ENGINE_API void UnregisterPicturePass(IPicturePass* Pass);

/** Returns the passes in the order in which they are applied. */
ENGINE_API const TArray<IPicturePass*>& GetPicturePasses();

/** Applies all passes to a client's picture. */
ENGINE_API void ApplyPicturePasses(FViewportClient* Client, const FIntPoint& Size, FColor* Pixels);

/** Returns a number that stays the same while no pass would do anything else for this client; 0 means that nobody knows. */
ENGINE_API uint64 GetPicturePassKey(FViewportClient* Client);
}
