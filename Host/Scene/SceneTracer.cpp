// Copyright The Tintmill authors. All rights reserved.

#include "Host/Scene/SceneTracer.h"

#include "Host/Scene/SceneSky.h"

#include <utility>

namespace TintmillHost
{
namespace SceneTracerPrivate
{
constexpr int FloorShape = -1;
constexpr float SunSoftness = 0.055f;

static float Highlight(const FSceneVector& Normal, const FSceneVector& View, const FSceneVector& ToLight, const FSceneSurface& Surface)
{
	if (Surface.Shine <= 0.0f)
	{
		return 0.0f;
	}
	const FSceneVector Half = ToLight - View;
	const float Cosine = Dot(Normal, Half) / Length(Half);
	// Far from the highlight's middle nothing would be left of it.
	return (1.0f - Cosine) * Surface.Sharpness > 7.0f ? 0.0f : Surface.Shine * std::pow(Cosine, Surface.Sharpness);
}
}

FSceneTracer::FSceneTracer(std::vector<FSceneShape> InShapes, bool bInBackdrop)
	: Shapes(std::move(InShapes))
	, bBackdrop(bInBackdrop)
{
	for (const FSceneShape& Shape : Shapes)
	{
		const int Index = static_cast<int>(All.size());
		FSceneVector Center;
		Radii.push_back(BoundingRadius(Shape, Center));
		Centers.push_back(Center);
		All.push_back(Index);
		Lamp = Shape.Material == ESceneMaterial::Lamp ? Index : Lamp;
		if (Shape.Kind != ESceneShape::HairCap && Shape.Kind != ESceneShape::Board && Shape.Material != ESceneMaterial::Lamp)
		{
			const float Reach = Radii.back() - Shape.Radius + Shape.Radius * SceneSkyReach;
			SkyHiders.push_back({Center, Reach * Reach, Index});
		}
	}
}

void FSceneTracer::FindVisible(const FSceneRay& Axis, float Width, float Slope, std::vector<int>& OutVisible) const
{
	OutVisible.clear();
	for (const int Index : All)
	{
		const FSceneVector ToCenter = Centers[Index] - Axis.Origin;
		const float Along = Dot(ToCenter, Axis.Direction);
		const float Aside = std::sqrt(std::max(Dot(ToCenter, ToCenter) - Along * Along, 0.0f));
		const float Reach = Width + std::max(Along, 0.0f) * Slope + Radii[Index] * (1.0f + Slope);
		if (Along > -Radii[Index] && Aside <= Reach)
		{
			OutVisible.push_back(Index);
		}
	}
}

bool FSceneTracer::Find(const FSceneRay& Ray, const std::vector<int>& Visible, FPoint& OutPoint, FSceneHit& OutHit) const
{
	int Nearest = -2;
	for (const int Index : Visible)
	{
		if (Intersect(Shapes[Index], Ray, OutHit))
		{
			Nearest = Index;
		}
	}
	if (Ray.Direction.Z < -1e-4f && Ray.Origin.Z > 0.0f)
	{
		const float Distance = -Ray.Origin.Z / Ray.Direction.Z;
		if (Distance < OutHit.Distance)
		{
			OutHit.Distance = Distance;
			OutHit.Normal = {0.0f, 0.0f, 1.0f};
			Nearest = SceneTracerPrivate::FloorShape;
		}
	}
	if (Nearest == -2)
	{
		return false;
	}
	OutPoint.Position = Ray.Origin + Ray.Direction * OutHit.Distance;
	OutPoint.Normal = OutHit.Normal;
	OutPoint.View = Ray.Direction;
	OutPoint.Shape = Nearest;
	return true;
}

FSceneSample FSceneTracer::Trace(const FSceneRay& Ray, const std::vector<int>& Visible, float Width, float Spread) const
{
	FSceneSample Sample;
	FPoint Point;
	FSceneHit Hit;
	if (!Find(Ray, Visible, Point, Hit))
	{
		Sample.Light = Background(Ray.Direction);
		return Sample;
	}
	const bool bFloor = Point.Shape == SceneTracerPrivate::FloorShape;
	// On the floor a pixel is drawn out along the ray.
	const float Across = Width + Hit.Distance * Spread;
	const float Along = Across / std::max(std::fabs(Ray.Direction.Z), 0.005f);
	const FSceneSurface Surface = bFloor
		? FloorSurface(Point.Position, Across + Along * std::fabs(Ray.Direction.X), Across + Along * std::fabs(Ray.Direction.Y))
		: SolidSurface(Shapes[Point.Shape], Hit);
	Sample.Light = Shade(Point, Surface);
	Sample.Key = (Point.Shape + 2) * 64 + Surface.Detail;
	if (bFloor && !bBackdrop)
	{
		const float Far = std::max(Hit.Distance - 7.0f, 0.0f);
		Sample.Light = Mix(Sample.Light, SceneHaze(Ray.Direction), 0.92f * Far / (Far + 26.0f));
	}
	return Sample;
}

FSceneVector FSceneTracer::Background(const FSceneVector& Direction) const
{
	return bBackdrop ? FSceneVector{0.16f, 0.165f, 0.175f} : SceneSky(Direction);
}

FSceneVector FSceneTracer::Shade(const FPoint& Point, const FSceneSurface& Surface) const
{
	const float Sky = SeenSky(Point);
	FSceneVector Light = Surface.Glow + Surface.Color * SceneSkyLight(Point.Normal) * Sky;
	Light = Light + SunLight(Point, Surface) + LampLight(Point, Surface);
	if (Surface.Mirror > 0.0f)
	{
		const float Grazing = 1.0f - std::max(-Dot(Point.Normal, Point.View), 0.0f);
		const float Mirror = Surface.Mirror + (1.0f - Surface.Mirror) * Grazing * Grazing * Grazing * Grazing * Grazing;
		Light = Light + Reflection(Point) * Mirror;
	}
	return Light;
}

FSceneVector FSceneTracer::SunLight(const FPoint& Point, const FSceneSurface& Surface) const
{
	static const FSceneVector Sun = {2.05f, 1.66f, 1.18f};
	static const FSceneVector ToSun = SceneSunDirection();
	const float Facing = Dot(Point.Normal, ToSun);
	if (Facing <= 0.0f)
	{
		return {};
	}
	const float Shadow = Passing(Point, ToSun, 1e30f, SceneTracerPrivate::SunSoftness);
	if (Shadow <= 0.0f)
	{
		return {};
	}
	const float Shine = SceneTracerPrivate::Highlight(Point.Normal, Point.View, ToSun, Surface);
	return Sun * (Surface.Color * Facing + FSceneVector{Shine, Shine, Shine} * SmoothStep(0.0f, 0.2f, Facing)) * Shadow;
}

FSceneVector FSceneTracer::LampLight(const FPoint& Point, const FSceneSurface& Surface) const
{
	static const FSceneVector Color = {2.6f, 1.45f, 0.55f};
	if (Lamp < 0 || Point.Shape == Lamp)
	{
		return {};
	}
	const FSceneVector Way = Shapes[Lamp].A - Point.Position;
	const float Squared = std::max(Dot(Way, Way), 0.05f);
	const float Distance = std::sqrt(Squared);
	const FSceneVector ToLamp = Way * (1.0f / Distance);
	const float Facing = Dot(Point.Normal, ToLamp);
	if (Facing <= 0.0f || Squared > 60.0f)
	{
		return {};
	}
	const float Shadow = Passing(Point, ToLamp, Distance - 0.25f, Shapes[Lamp].Radius / Distance);
	const float Shine = SceneTracerPrivate::Highlight(Point.Normal, Point.View, ToLamp, Surface);
	return Color * (Surface.Color * Facing + FSceneVector{Shine, Shine, Shine} * 0.5f) * (Shadow / (0.4f + Squared));
}

FSceneVector FSceneTracer::Reflection(const FPoint& Point) const
{
	FSceneRay Ray;
	Ray.Direction = Normalized(Point.View - Point.Normal * (2.0f * Dot(Point.View, Point.Normal)));
	Ray.Origin = Point.Position + Point.Normal * 0.002f;
	FPoint Mirrored;
	FSceneHit Hit;
	if (!Find(Ray, All, Mirrored, Hit))
	{
		return SceneSky(Ray.Direction);
	}
	const bool bFloor = Mirrored.Shape == SceneTracerPrivate::FloorShape;
	FSceneSurface Surface = bFloor ? FloorSurface(Mirrored.Position, 0.02f, 0.02f) : SolidSurface(Shapes[Mirrored.Shape], Hit);
	Surface.Mirror = 0.0f;
	return Shade(Mirrored, Surface);
}

float FSceneTracer::SeenSky(const FPoint& Point) const
{
	const int Owner = Point.Shape >= 0 ? Shapes[Point.Shape].Owner : 0;
	float Free = 1.0f;
	for (const FSkyHider& Hider : SkyHiders)
	{
		const FSceneVector Way = Hider.Center - Point.Position;
		if (Dot(Way, Way) < Hider.ReachSquared && Shapes[Hider.Shape].Owner != Owner)
		{
			Free *= PassingSky(Shapes[Hider.Shape], Point.Position, Point.Normal);
		}
	}
	if (Point.Shape != SceneTracerPrivate::FloorShape)
	{
		// The floor hides the lower half of the sky; near it, its own shade is dark too.
		Free *= 0.55f + 0.45f * SmoothStep(-0.9f, 1.0f, Point.Normal.Z + std::min(Point.Position.Z, 1.0f));
	}
	return Free;
}

float FSceneTracer::Passing(const FPoint& Point, const FSceneVector& ToLight, float Reach, float Softness) const
{
	const int Owner = Point.Shape >= 0 ? Shapes[Point.Shape].Owner : 0;
	float Light = 1.0f;
	for (const int Index : All)
	{
		const FSceneShape& Shape = Shapes[Index];
		if (Shape.Owner == Owner || Shape.Material == ESceneMaterial::Lamp || Shape.Material == ESceneMaterial::Head)
		{
			continue;
		}
		const FSceneVector ToCenter = Centers[Index] - Point.Position;
		const float Along = Dot(ToCenter, ToLight);
		const float Wide = Radii[Index] + std::max(Along, 0.0f) * Softness + 0.01f;
		if (Along < -Radii[Index] || Along > Reach || Dot(ToCenter, ToCenter) - Along * Along > Wide * Wide)
		{
			continue;
		}
		Light *= PassingLight(Shape, Point.Position, ToLight, Softness);
		if (Light <= 0.0f)
		{
			return 0.0f;
		}
	}
	return Light;
}
}
