// Copyright The Tintmill authors. All rights reserved.

#include "Host/Scene/SceneCamera.h"

namespace TintmillHost
{
FSceneCamera DefaultSceneCamera(int PaneIndex)
{
	FSceneCamera Camera;
	switch (PaneIndex)
	{
	case 0:
		Camera.View = ESceneView::Side;
		Camera.Target = {0.6f, 0.0f, 1.05f};
		Camera.Distance = 4.2f;
		break;
	case 2:
		Camera.View = ESceneView::Front;
		Camera.Target = {0.0f, 0.2f, 1.15f};
		Camera.Distance = 3.3f;
		break;
	case 3:
		Camera.View = ESceneView::Top;
		Camera.Target = {0.7f, 0.0f, 0.0f};
		Camera.Distance = 4.2f;
		break;
	default:
		Camera.Target = {0.35f, 0.12f, 1.12f};
		Camera.YawDegrees = 10.0f;
		Camera.PitchDegrees = 7.0f;
		Camera.Distance = 5.3f;
		break;
	}
	return Camera;
}

FSceneCamera GameSceneCamera()
{
	FSceneCamera Camera;
	Camera.Target = {0.2f, 0.1f, 1.0f};
	Camera.YawDegrees = -14.0f;
	Camera.PitchDegrees = 6.0f;
	Camera.Distance = 4.6f;
	return Camera;
}

void OrbitSceneCamera(FSceneCamera& InOutCamera, float YawDegrees, float PitchDegrees)
{
	if (InOutCamera.View != ESceneView::Perspective)
	{
		return;
	}
	InOutCamera.YawDegrees = std::fmod(InOutCamera.YawDegrees + YawDegrees, 360.0f);
	// One that looks upwards already comes down slowly instead of jumping.
	const float Lowest = std::min(2.0f, InOutCamera.PitchDegrees);
	InOutCamera.PitchDegrees = std::min(std::max(InOutCamera.PitchDegrees + PitchDegrees, Lowest), 85.0f);
}

void LookSceneCamera(FSceneCamera& InOutCamera, float YawDegrees, float PitchDegrees)
{
	if (InOutCamera.View != ESceneView::Perspective)
	{
		return;
	}
	const FSceneVector Place = InOutCamera.Target + SceneCameraAxes(InOutCamera).Forward * -InOutCamera.Distance;
	InOutCamera.YawDegrees = std::fmod(InOutCamera.YawDegrees + YawDegrees, 360.0f);
	InOutCamera.PitchDegrees = std::min(std::max(InOutCamera.PitchDegrees + PitchDegrees, -60.0f), 85.0f);
	InOutCamera.Target = Place + SceneCameraAxes(InOutCamera).Forward * InOutCamera.Distance;
}

void WalkSceneCamera(FSceneCamera& InOutCamera, float Meters)
{
	if (InOutCamera.View == ESceneView::Perspective)
	{
		const float Yaw = InOutCamera.YawDegrees * 0.01745329252f;
		InOutCamera.Target = InOutCamera.Target + FSceneVector{std::cos(Yaw), std::sin(Yaw), 0.0f} * Meters;
	}
}

void KeepSceneCameraAboveFloor(FSceneCamera& InOutCamera)
{
	constexpr float LowestMeters = 0.1f;
	if (InOutCamera.View == ESceneView::Perspective)
	{
		const float Height = InOutCamera.Target.Z - SceneCameraAxes(InOutCamera).Forward.Z * InOutCamera.Distance;
		InOutCamera.Target.Z += std::max(0.0f, LowestMeters - Height);
	}
}

void ZoomSceneCamera(FSceneCamera& InOutCamera, float Factor)
{
	InOutCamera.Distance = std::min(std::max(InOutCamera.Distance * Factor, 1.0f), 40.0f);
}

void PanSceneCamera(FSceneCamera& InOutCamera, float Right, float Down)
{
	const FSceneAxes Axes = SceneCameraAxes(InOutCamera);
	const float Width = InOutCamera.Distance * (InOutCamera.View == ESceneView::Perspective ? 1.1f : 2.0f);
	InOutCamera.Target = InOutCamera.Target + Axes.Right * (-Right * Width) + Axes.Up * (Down * Width);
}

FSceneAxes SceneCameraAxes(const FSceneCamera& Camera)
{
	FSceneAxes Axes;
	switch (Camera.View)
	{
	case ESceneView::Top:
		Axes.Forward = {0.0f, 0.0f, -1.0f};
		Axes.Up = {1.0f, 0.0f, 0.0f};
		break;
	case ESceneView::Side:
		Axes.Forward = {0.0f, 1.0f, 0.0f};
		Axes.Up = {0.0f, 0.0f, 1.0f};
		break;
	case ESceneView::Front:
		Axes.Forward = {1.0f, 0.0f, 0.0f};
		Axes.Up = {0.0f, 0.0f, 1.0f};
		break;
	default:
	{
		const float Yaw = Camera.YawDegrees * 0.01745329252f;
		const float Pitch = Camera.PitchDegrees * 0.01745329252f;
		Axes.Forward = {std::cos(Pitch) * std::cos(Yaw), std::cos(Pitch) * std::sin(Yaw), -std::sin(Pitch)};
		Axes.Up = {std::sin(Pitch) * std::cos(Yaw), std::sin(Pitch) * std::sin(Yaw), std::cos(Pitch)};
		break;
	}
	}
	// The scene's Y points to the right of someone who looks along X, so this product is the left-handed one.
	Axes.Right = Cross(Axes.Up, Axes.Forward);
	return Axes;
}
}
