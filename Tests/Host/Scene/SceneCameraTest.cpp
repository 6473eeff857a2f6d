// Copyright The Tintmill authors. All rights reserved.

#include "Host/Scene/SceneCamera.h"

#include <gtest/gtest.h>

namespace SceneCameraTest
{
using namespace TintmillHost;

TEST(SceneCamera, KeepsItsPitchAboveTheFloor)
{
	FSceneCamera Camera = DefaultSceneCamera(1);
	OrbitSceneCamera(Camera, 0.0f, -500.0f);
	EXPECT_EQ(Camera.PitchDegrees, 2.0f);
}

TEST(SceneCamera, DoesNotTurnFlatViews)
{
	FSceneCamera Camera = DefaultSceneCamera(3);
	OrbitSceneCamera(Camera, 30.0f, 30.0f);
	EXPECT_EQ(Camera.YawDegrees, 0.0f);
}

TEST(SceneCamera, StopsBeforeItReachesTheTarget)
{
	FSceneCamera Camera = DefaultSceneCamera(1);
	ZoomSceneCamera(Camera, 0.0001f);
	EXPECT_EQ(Camera.Distance, 1.0f);
}

TEST(SceneCamera, HasItsRightOnTheRightWhenItLooksAhead)
{
	FSceneCamera Camera;
	EXPECT_FLOAT_EQ(SceneCameraAxes(Camera).Right.Y, 1.0f);
}

TEST(SceneCamera, LooksDownFromTheTop)
{
	EXPECT_FLOAT_EQ(SceneCameraAxes(DefaultSceneCamera(3)).Forward.Z, -1.0f);
}

TEST(SceneCamera, MovesItsTargetAgainstTheHand)
{
	FSceneCamera Camera;
	PanSceneCamera(Camera, 0.5f, 0.0f);
	EXPECT_LT(Camera.Target.Y, 0.0f);
}

TEST(SceneCamera, ComesDownSlowlyWhenItLooksUp)
{
	FSceneCamera Camera = DefaultSceneCamera(1);
	LookSceneCamera(Camera, 0.0f, -27.0f);
	OrbitSceneCamera(Camera, 0.0f, 5.0f);
	EXPECT_FLOAT_EQ(Camera.PitchDegrees, -15.0f);
}

TEST(SceneCamera, StandsStillWhenItLooksAround)
{
	FSceneCamera Camera = DefaultSceneCamera(1);
	const FSceneVector Before = Camera.Target - SceneCameraAxes(Camera).Forward * Camera.Distance;
	LookSceneCamera(Camera, 33.0f, 11.0f);
	EXPECT_LT(Length(Camera.Target - SceneCameraAxes(Camera).Forward * Camera.Distance - Before), 0.001f);
}

TEST(SceneCamera, DoesNotLookStraightUp)
{
	FSceneCamera Camera = DefaultSceneCamera(1);
	LookSceneCamera(Camera, 0.0f, -500.0f);
	EXPECT_EQ(Camera.PitchDegrees, -60.0f);
}

TEST(SceneCamera, StaysAtItsHeightWhenItWalks)
{
	FSceneCamera Camera = DefaultSceneCamera(1);
	const float Before = Camera.Target.Z;
	WalkSceneCamera(Camera, 2.0f);
	EXPECT_EQ(Camera.Target.Z, Before);
}

TEST(SceneCamera, IsLiftedFromBelowTheFloor)
{
	FSceneCamera Camera = DefaultSceneCamera(1);
	Camera.Target.Z = -5.0f;
	KeepSceneCameraAboveFloor(Camera);
	EXPECT_NEAR(Camera.Target.Z - SceneCameraAxes(Camera).Forward.Z * Camera.Distance, 0.1f, 0.001f);
}
}
