// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Scene/SceneMath.h"

#include <cstdint>

// From where a pane looks at the scene, and how the mouse changes that.

namespace TintmillHost
{
/** Kinds of views; the last one is a flat chart of colors instead of the scene. */
enum class ESceneView : std::uint8_t
{
	Perspective,
	Top,
	Front,
	Side,
	Chart,
};

/** A pane's camera; a plain value. */
struct FSceneCamera
{
	ESceneView View = ESceneView::Perspective;

	/** The point looked at, in meters. */
	FSceneVector Target;

	/** Perspective only: where the camera stands around the target, in degrees. */
	float YawDegrees = 0.0f;
	float PitchDegrees = 0.0f;

	/** Perspective: distance to the target; other views: half the width of what is seen; in meters. */
	float Distance = 6.0f;

	/** Time of the scene in seconds; 0 is the still scene, and in play the figures move with it. */
	float Seconds = 0.0f;
};

/** The camera that the pane of a four-pane layout starts with: 0 side, 1 perspective, 2 front, 3 top; other numbers are perspective. */
FSceneCamera DefaultSceneCamera(int PaneIndex);

/** The camera of the game's own picture: lower and nearer than the editor's. */
FSceneCamera GameSceneCamera();

/** Turns a perspective camera around its target; the pitch goes up to 85 degrees, and down to 2 unless it is lower already. Flat views do not turn. */
void OrbitSceneCamera(FSceneCamera& InOutCamera, float YawDegrees, float PitchDegrees);

/** Turns a perspective camera where it stands, to the right and downwards; the pitch stays between -60 and 85 degrees. */
void LookSceneCamera(FSceneCamera& InOutCamera, float YawDegrees, float PitchDegrees);

/** Moves a perspective camera over the floor, forwards by meters. */
void WalkSceneCamera(FSceneCamera& InOutCamera, float Meters);

/** Lifts a perspective camera that came below the floor. */
void KeepSceneCameraAboveFloor(FSceneCamera& InOutCamera);

/** Moves nearer (Factor below 1) or away (above 1), within 1 to 40 meters. */
void ZoomSceneCamera(FSceneCamera& InOutCamera, float Factor);

/** Moves the target across the picture by fractions of the picture's width, to the right and downwards. */
void PanSceneCamera(FSceneCamera& InOutCamera, float Right, float Down);

/** The three directions of a camera, each of length 1. */
struct FSceneAxes
{
	FSceneVector Forward;
	FSceneVector Right;
	FSceneVector Up;
};

/** Where the camera looks and how it stands. */
FSceneAxes SceneCameraAxes(const FSceneCamera& Camera);
}
