// Copyright The Tintmill authors. All rights reserved.

#pragma once

// When the next frame is due. As long as somebody uses the window or something moves there are 60 frames a second; after that
// hardly any, so that an idle editor costs no processor time.

namespace TintmillHost
{
/** Times in seconds of any clock that only goes forward. */
class FFramePacer
{
public:
	/** Starts awake. */
	explicit FFramePacer(double Now);

	/** Somebody did something, or what is shown is moving: frames follow each other for a while. */
	void Wake(double Now);

	/** Whether frames follow each other. */
	bool IsAwake(double Now) const { return Now < AwakeUntil; }

	/** How long to wait for events before the next frame; 0 if it is due. */
	double GetWait(double Now) const;

	/** Notes that a frame starts; returns how long the last one lasted for what it shows, at most a quarter of a second. */
	double BeginFrame(double Now);

private:
	double AwakeUntil;
	double LastFrame;
};
}
