// Copyright The Tintmill authors. All rights reserved.

#include "Host/Scene/SceneSurface.h"

#include "Host/Scene/SceneContent.h"
#include "Host/Scene/SceneSky.h"

namespace TintmillHost
{
namespace SceneSurfacePrivate
{
/** Eyes, mouth and cheeks painted on a head: right and up are measured on the ball, in radii. */
static FSceneSurface HeadSurface(const FSceneShape& Head, const FSceneVector& Outward)
{
	FSceneSurface Surface;
	Surface.Color = Head.Color;
	Surface.Shine = 0.10f;
	Surface.Sharpness = 22.0f;
	const FSceneVector Side = {Head.B.Y, -Head.B.X, 0.0f};
	const float Right = std::fabs(Dot(Outward, Side));
	const float Up = Outward.Z;
	if (Dot(Outward, Head.B) <= 0.0f)
	{
		return Surface;
	}
	const float Blush = 1.0f - SmoothStep(0.02f, 0.24f, std::hypot(Right - 0.46f, Up + 0.22f));
	Surface.Color = Mix(Surface.Color, Surface.Color * FSceneVector{1.12f, 0.52f, 0.46f}, 0.55f * Blush);
	if (std::hypot((Right - 0.33f) * 1.35f, Up - 0.0f) < 0.105f)
	{
		Surface.Color = {0.008f, 0.007f, 0.008f};
		Surface.Shine = 0.9f;
		Surface.Sharpness = 160.0f;
		Surface.Detail = 1;
	}
	const float Curve = Up + 0.40f - 0.55f * Right * Right;
	if (Right < 0.19f && std::fabs(Curve) < 0.028f)
	{
		Surface.Color = Surface.Color * FSceneVector{0.42f, 0.14f, 0.14f};
		Surface.Detail = 2;
	}
	return Surface;
}

static FSceneSurface ChartSurface(const FSceneHit& Hit)
{
	FSceneSurface Surface;
	Surface.Color = {0.012f, 0.012f, 0.013f};
	Surface.Shine = 0.04f;
	Surface.Sharpness = 30.0f;
	if (Hit.V > 1.5f)
	{
		Surface.Color = FromSrgb(104, 82, 58);
		return Surface;
	}
	const float Column = (Hit.U * 0.5f + 0.5f) * 6.3f - 0.15f;
	const float Row = (0.5f - Hit.V * 0.5f) * 4.25f - 0.125f;
	const float InColumn = Column - std::floor(Column);
	const float InRow = Row - std::floor(Row);
	const bool bInside = Column > 0.0f && Column < 6.0f && Row > 0.0f && Row < 4.0f;
	if (bInside && std::fabs(InColumn - 0.5f) < 0.43f && std::fabs(InRow - 0.5f) < 0.42f)
	{
		const int Index = static_cast<int>(Row) * 6 + static_cast<int>(Column);
		Surface.Color = ScenePatch(Index);
		Surface.Detail = Index + 1;
	}
	return Surface;
}

/** The mean of a wave that changes between -1 and 1 at every whole number, over a stretch around the position. */
static float MeanWave(float Position, float Stretch)
{
	const auto Sum = [](float Value) { return std::fabs(Value - 2.0f * std::floor(Value * 0.5f) - 1.0f); };
	return (Sum(Position - 0.5f * Stretch) - Sum(Position + 0.5f * Stretch)) / Stretch;
}

/** The share of a stretch around the position that lies on joints, which are at every whole number. */
static float MeanJoint(float Position, float Stretch)
{
	constexpr float HalfJoint = 0.008f;
	const float Gap = std::fabs(Position - std::floor(Position + 0.5f));
	const float Covered = std::min(Gap + 0.5f * Stretch, HalfJoint) - std::max(Gap - 0.5f * Stretch, -HalfJoint);
	return Stretch > 0.7f ? 2.0f * HalfJoint : std::max(Covered, 0.0f) / Stretch;
}
}

FSceneSurface SolidSurface(const FSceneShape& Shape, const FSceneHit& Hit)
{
	FSceneSurface Surface;
	Surface.Color = Shape.Color;
	switch (Shape.Material)
	{
	case ESceneMaterial::Cloth:
		Surface.Shine = 0.07f;
		Surface.Sharpness = 16.0f;
		break;
	case ESceneMaterial::Head:
		return SceneSurfacePrivate::HeadSurface(Shape, Hit.Normal);
	case ESceneMaterial::Hair:
		Surface.Shine = 0.28f;
		Surface.Sharpness = 34.0f;
		break;
	case ESceneMaterial::Gloss:
		Surface.Shine = 1.6f;
		Surface.Sharpness = 220.0f;
		Surface.Mirror = 0.05f;
		break;
	case ESceneMaterial::Chrome:
		Surface.Shine = 5.0f;
		Surface.Sharpness = 700.0f;
		Surface.Mirror = 0.88f;
		Surface.Color = {0.02f, 0.02f, 0.02f};
		break;
	case ESceneMaterial::Lamp:
		Surface.Glow = Shape.Color;
		Surface.Color = {0.0f, 0.0f, 0.0f};
		break;
	case ESceneMaterial::Chart:
		return SceneSurfacePrivate::ChartSurface(Hit);
	case ESceneMaterial::Matte:
		break;
	}
	return Surface;
}

FSceneSurface FloorSurface(const FSceneVector& Point, float FootprintX, float FootprintY)
{
	static const FSceneVector Middle = FromSrgb(133, 113, 96);
	static const FSceneVector Contrast = FromSrgb(158, 138, 118) - Middle;
	FSceneSurface Surface;
	const float Checker = SceneSurfacePrivate::MeanWave(Point.X, FootprintX) * SceneSurfacePrivate::MeanWave(Point.Y, FootprintY);
	Surface.Color = Middle + Contrast * (0.65f * Checker);
	const float Widest = std::max(FootprintX, FootprintY);
	if (Widest < 0.03f)
	{
		const float Grain = SceneNoise(Point.X * 3.0f + Point.Y * 0.6f, Point.Y * 31.0f) - 0.5f;
		Surface.Color = Surface.Color * (1.0f + 0.10f * Grain * (1.0f - Widest / 0.03f));
	}
	const float JointX = SceneSurfacePrivate::MeanJoint(Point.X, FootprintX);
	const float JointY = SceneSurfacePrivate::MeanJoint(Point.Y, FootprintY);
	Surface.Color = Surface.Color * (1.0f - 0.65f * std::max(JointX, JointY));
	Surface.Shine = 0.10f;
	Surface.Sharpness = 24.0f;
	return Surface;
}
}
