// Copyright The Tintmill authors. All rights reserved.

#include "Host/Editor/PaneCamera.h"

#include "InputCoreTypes.h"
#include "UnrealClient.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace TintmillHost
{
namespace
{
/** Degrees for a pixel that the mouse moves. */
constexpr float OrbitDegrees = 0.35f;
constexpr float LookDegrees = 0.2f;

/** Meters for a pixel, at a distance of one meter. */
constexpr float WalkMeters = 0.003f;

/** How much nearer a notch of the wheel, and a pixel of a drag, brings the camera. */
constexpr float NotchFactor = 0.88f;
constexpr float DragFactor = 0.994f;

/** Of a mouse that moves no further than this, in pixels in both directions together, nobody says that it was dragged. */
constexpr float ClickPixels = 4.0f;

bool Pan(FSceneCamera& Camera, const FVector2D& Pixels, int32 PaneWidth)
{
	// The scene stays below the hand.
	const float Width = static_cast<float>(std::max(1, PaneWidth));
	PanSceneCamera(Camera, Pixels.X / Width, -Pixels.Y / Width);
	return true;
}

bool Zoom(FSceneCamera& Camera, const FVector2D& Pixels)
{
	ZoomSceneCamera(Camera, std::pow(DragFactor, Pixels.X + Pixels.Y));
	return true;
}

bool DragFlat(FSceneCamera& Camera, const FPaneButtons& Buttons, const FVector2D& Pixels, int32 PaneWidth)
{
	if (Buttons.bRight && (Buttons.bLeft || Buttons.bAlt))
	{
		return Zoom(Camera, Pixels);
	}
	return (Buttons.bRight || Buttons.bMiddle) && Pan(Camera, Pixels, PaneWidth);
}

bool DragPerspective(FSceneCamera& Camera, const FPaneButtons& Buttons, const FVector2D& Pixels, int32 PaneWidth)
{
	if (Buttons.bMiddle || (Buttons.bLeft && Buttons.bRight))
	{
		return Pan(Camera, Pixels, PaneWidth);
	}
	if (Buttons.bRight)
	{
		if (Buttons.bAlt)
		{
			return Zoom(Camera, Pixels);
		}
		LookSceneCamera(Camera, Pixels.X * LookDegrees, -Pixels.Y * LookDegrees);
		return true;
	}
	if (Buttons.bLeft && Buttons.bAlt)
	{
		// What is looked at turns with the hand.
		OrbitSceneCamera(Camera, -Pixels.X * OrbitDegrees, -Pixels.Y * OrbitDegrees);
		return true;
	}
	if (Buttons.bLeft)
	{
		LookSceneCamera(Camera, Pixels.X * LookDegrees, 0.0f);
		WalkSceneCamera(Camera, Pixels.Y * WalkMeters * Camera.Distance);
		return true;
	}
	return false;
}
}

FPaneButtons GetPaneButtons(const FViewport& Viewport)
{
	FPaneButtons Buttons;
	Buttons.bLeft = Viewport.KeyState(EKeys::LeftMouseButton);
	Buttons.bMiddle = Viewport.KeyState(EKeys::MiddleMouseButton);
	Buttons.bRight = Viewport.KeyState(EKeys::RightMouseButton);
	Buttons.bAlt = Viewport.KeyState(EKeys::LeftAlt) || Viewport.KeyState(EKeys::RightAlt);
	return Buttons;
}

bool DragPaneCamera(FSceneCamera& InOutCamera, const FPaneButtons& Buttons, const FVector2D& Pixels, int32 PaneWidth)
{
	switch (InOutCamera.View)
	{
	case ESceneView::Chart:
		return false;
	case ESceneView::Perspective:
	{
		const bool bMoved = DragPerspective(InOutCamera, Buttons, Pixels, PaneWidth);
		KeepSceneCameraAboveFloor(InOutCamera);
		return bMoved;
	}
	default:
		return DragFlat(InOutCamera, Buttons, Pixels, PaneWidth);
	}
}

bool ZoomPaneCamera(FSceneCamera& InOutCamera, float Notches)
{
	if (InOutCamera.View == ESceneView::Chart)
	{
		return false;
	}
	ZoomSceneCamera(InOutCamera, std::pow(NotchFactor, Notches));
	KeepSceneCameraAboveFloor(InOutCamera);
	return true;
}

bool FramePaneCamera(FSceneCamera& InOutCamera)
{
	static const std::pair<ESceneView, int> DefaultCameras[] = {
		{ESceneView::Perspective, 1}, {ESceneView::Side, 0}, {ESceneView::Front, 2}, {ESceneView::Top, 3}};
	for (const auto& [View, Index] : DefaultCameras)
	{
		if (View == InOutCamera.View)
		{
			const FSceneCamera Default = DefaultSceneCamera(Index);
			InOutCamera.Target = Default.Target;
			InOutCamera.Distance = Default.Distance;
			OrbitSceneCamera(InOutCamera, 0.0f, std::max(0.0f, Default.PitchDegrees - InOutCamera.PitchDegrees));
			return true;
		}
	}
	return false;
}

FVector2D FPaneDrag::Take(const FVector2D& Pixels)
{
	if (bDragging)
	{
		return Pixels;
	}
	Moved = Moved + Pixels;
	if (std::fabs(Moved.X) + std::fabs(Moved.Y) <= ClickPixels)
	{
		return FVector2D(0.0f, 0.0f);
	}
	bDragging = true;
	return Moved;
}
}
