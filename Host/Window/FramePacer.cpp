// Copyright The Tintmill authors. All rights reserved.

#include "Host/Window/FramePacer.h"

#include <algorithm>

namespace TintmillHost
{
namespace
{
constexpr double FrameSeconds = 1.0 / 60.0;

/** Between frames of an idle window. Whatever comes without input shows this much later; a caret blinks at this pace. */
constexpr double IdleSeconds = 0.5;

/** Longer than tool tips and submenus wait and fade. */
constexpr double AwakeSeconds = 0.8;

/** Animations jump no further than this, whatever took so long. */
constexpr double LongestStep = 0.25;
}

FFramePacer::FFramePacer(double Now)
	: AwakeUntil(Now + AwakeSeconds)
	, LastFrame(Now - FrameSeconds)
{}

void FFramePacer::Wake(double Now)
{
	AwakeUntil = Now + AwakeSeconds;
}

double FFramePacer::GetWait(double Now) const
{
	return std::max(0.0, LastFrame + (IsAwake(Now) ? FrameSeconds : IdleSeconds) - Now);
}

double FFramePacer::BeginFrame(double Now)
{
	const double Step = std::clamp(Now - LastFrame, 0.0, LongestStep);
	LastFrame = Now;
	return Step;
}
}
