// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Delegates/IDelegateInstance.h"
#include "Host/Scene/SceneCamera.h"

#include <map>

class FViewportClient;

// Scenes whose camera moves right now. Where a picture takes too long to follow the mouse it is coarse as long as the camera moves
// and fine as soon as it rests. Off at first, so that pictures in files are always fine.

namespace TintmillHost
{
/** Paints scenes, those that move coarsely if that is needed. */
class FMovingScenes
{
public:
	FMovingScenes();
	~FMovingScenes();
	FMovingScenes(const FMovingScenes&) = delete;
	FMovingScenes& operator=(const FMovingScenes&) = delete;

	/** Lets pictures be coarse from now on. */
	void Hurry() { bHurries = true; }

	/** Is told that a client's camera has moved. */
	void NoteMove(FViewportClient& Client);

	/** Paints what a client sees from a camera. */
	void Paint(FViewportClient& Client, const FSceneCamera& Camera, const FIntPoint& Size, FColor* Pixels);

	/** Into how many parts a picture of so many pixels is divided each way so that it follows the mouse; 1 if it does as it is. */
	static int FindCoarseness(double Pixels, double SecondsPerPixel);

private:
	void RefineWhatRests(float DeltaTime);

	bool bHurries = false;

	/** Seconds since the camera of a client has moved. */
	std::map<FViewportClient*, float> SecondsSinceMove;

	/** What a pixel took the last time, in seconds. */
	double SecondsPerPixel = 0.0;
	FDelegateHandle Ticker;
};
}
