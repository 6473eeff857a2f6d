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
}
