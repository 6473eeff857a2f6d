// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Delegates/Delegate.h"
#include "Templates/Function.h"

// Delegates that run on later frames. The frame loop ticks the core ticker once a frame; a delegate added during a tick waits for
// the next one.

/** Runs on a later frame; gets the seconds since the last frame and returns whether it is to run again. */
DECLARE_DELEGATE_RetVal_OneParam(bool, FTickerDelegate, float);

/** Runs delegates after a delay or on every frame. Game thread only. */
class CORE_API FTicker
{
public:
	FTicker();

	/** The ticker of the frame loop. */
	static FTicker& GetCoreTicker();

	/** Adds a delegate that runs every InDelay seconds, or with 0 on every frame, until it returns false. */
	FDelegateHandle AddTicker(const FTickerDelegate& InDelegate, float InDelay = 0.0f);

	/** Adds a function; the name is for people. */
	FDelegateHandle AddTicker(const TCHAR* InName, float InDelay, TFunction<bool(float)> Function);

	/** Removes a delegate; an unknown handle does nothing. */
	void RemoveTicker(FDelegateHandle Handle);

	/** Goes on by DeltaTime seconds and runs what is due. */
	void Tick(float DeltaTime);

private:
	struct FElement
	{
		FDelegateHandle Handle;
		FTickerDelegate Delegate;
		double FireTime;
		float Delay;
	};

	double CurrentTime;
	TArray<FElement> Elements;
};
