// Copyright The Tintmill authors. All rights reserved.

#include "Host/Scene/SceneShape.h"

namespace TintmillHost
{
namespace SceneShapePrivate
{
static float HitSphere(const FSceneVector& Center, float Radius, const FSceneRay& Ray)
{
	const FSceneVector ToCenter = Center - Ray.Origin;
	const float Along = Dot(ToCenter, Ray.Direction);
	const float Inside = Radius * Radius - (Dot(ToCenter, ToCenter) - Along * Along);
	return Inside < 0.0f ? -1.0f : Along - std::sqrt(Inside);
}

static float HitCapsule(const FSceneVector& Low, const FSceneVector& High, float Radius, const FSceneRay& Ray)
{
	const FSceneVector Axis = High - Low;
	const FSceneVector From = Ray.Origin - Low;
	const float AxisAxis = Dot(Axis, Axis);
	const float AxisDirection = Dot(Axis, Ray.Direction);
	const float AxisFrom = Dot(Axis, From);
	const float A = AxisAxis - AxisDirection * AxisDirection;
	const float B = AxisAxis * Dot(From, Ray.Direction) - AxisFrom * AxisDirection;
	const float C = AxisAxis * Dot(From, From) - AxisFrom * AxisFrom - Radius * Radius * AxisAxis;
	const float Inside = B * B - A * C;
	if (Inside < 0.0f)
	{
		return -1.0f;
	}
	if (A > 1e-6f)
	{
		const float Distance = (-B - std::sqrt(Inside)) / A;
		const float Height = AxisFrom + Distance * AxisDirection;
		if (Height > 0.0f && Height < AxisAxis)
		{
			return Distance;
		}
		return HitSphere(Height <= 0.0f ? Low : High, Radius, Ray);
	}
	return HitSphere(AxisDirection < 0.0f ? High : Low, Radius, Ray);
}

static FSceneVector NearestOnAxis(const FSceneShape& Capsule, const FSceneVector& Point)
{
	const FSceneVector Axis = Capsule.B - Capsule.A;
	return Capsule.A + Axis * Saturate(Dot(Point - Capsule.A, Axis) / Dot(Axis, Axis));
}

/** The share of a light's disk that is free when its rays pass the solid's edge at Gap, Along meters away. */
static float FreeShare(float Gap, float Along, float Softness)
{
	const float Width = Along * Softness + 0.002f;
	return SmoothStep(-Width, Width, Gap);
}

static float PassBall(const FSceneVector& Center, float Radius, const FSceneVector& Point, const FSceneVector& ToLight, float Softness)
{
	const FSceneVector ToCenter = Center - Point;
	const float Along = Dot(ToCenter, ToLight);
	if (Along <= 0.0f)
	{
		return 1.0f;
	}
	const float Aside = std::sqrt(std::max(Dot(ToCenter, ToCenter) - Along * Along, 0.0f));
	return FreeShare(Aside - Radius, Along, Softness);
}

static float PassCapsule(const FSceneShape& Shape, const FSceneVector& Point, const FSceneVector& ToLight, float Softness)
{
	const FSceneVector Axis = Shape.B - Shape.A;
	const FSceneVector From = Point - Shape.A;
	const float AxisAxis = Dot(Axis, Axis);
	const float AxisLight = Dot(Axis, ToLight);
	const float Slant = std::max(AxisAxis - AxisLight * AxisLight, 1e-5f);
	const float OnAxis = Saturate((Dot(From, Axis) - Dot(From, ToLight) * AxisLight) / Slant);
	return PassBall(Shape.A + Axis * OnAxis, Shape.Radius, Point, ToLight, Softness);
}

static float PassBoard(const FSceneShape& Shape, const FSceneVector& Point, const FSceneVector& ToLight, float Softness)
{
	const float Slope = Dot(Shape.B, ToLight);
	if (std::fabs(Slope) < 1e-4f)
	{
		return 1.0f;
	}
	const float Along = Dot(Shape.B, Shape.A - Point) / Slope;
	if (Along <= 0.01f)
	{
		return 1.0f;
	}
	const FSceneVector Local = Point + ToLight * Along - Shape.A;
	const float GapU = std::fabs(Dot(Local, BoardRight(Shape))) - Shape.Radius;
	const float GapV = std::fabs(Dot(Local, BoardUp(Shape))) - Shape.HalfHeight;
	return FreeShare(std::max(GapU, GapV), Along, Softness);
}

static bool HitBoard(const FSceneShape& Shape, const FSceneRay& Ray, FSceneHit& InOutHit)
{
	const float Slope = Dot(Shape.B, Ray.Direction);
	if (std::fabs(Slope) < 1e-5f)
	{
		return false;
	}
	const float Distance = Dot(Shape.B, Shape.A - Ray.Origin) / Slope;
	if (Distance <= 1e-3f || Distance >= InOutHit.Distance)
	{
		return false;
	}
	const FSceneVector Local = Ray.Origin + Ray.Direction * Distance - Shape.A;
	const float U = Dot(Local, BoardRight(Shape)) / Shape.Radius;
	const float V = Dot(Local, BoardUp(Shape)) / Shape.HalfHeight;
	if (std::fabs(U) > 1.0f || std::fabs(V) > 1.0f)
	{
		return false;
	}
	InOutHit.Distance = Distance;
	InOutHit.Normal = Slope < 0.0f ? Shape.B : Shape.B * -1.0f;
	InOutHit.U = U;
	// The back of the board is plain; it is told apart by a height beyond the edge.
	InOutHit.V = Slope < 0.0f ? V : 2.0f;
	return true;
}
}

bool IsHair(const FSceneVector& Outward, const FSceneVector& Facing)
{
	const float Forward = 0.5f + 0.5f * Dot(Outward, Facing);
	return Outward.Z > -0.55f + 1.02f * SmoothStep(0.30f, 0.95f, Forward);
}

FSceneVector BoardRight(const FSceneShape& Board)
{
	return Normalized(Cross(Board.B, {0.0f, 0.0f, 1.0f}));
}

FSceneVector BoardUp(const FSceneShape& Board)
{
	return Cross(BoardRight(Board), Board.B);
}

bool Intersect(const FSceneShape& Shape, const FSceneRay& Ray, FSceneHit& InOutHit)
{
	if (Shape.Kind == ESceneShape::Board)
	{
		return SceneShapePrivate::HitBoard(Shape, Ray, InOutHit);
	}
	const bool bCapsule = Shape.Kind == ESceneShape::Capsule;
	const float Distance = bCapsule ? SceneShapePrivate::HitCapsule(Shape.A, Shape.B, Shape.Radius, Ray)
									: SceneShapePrivate::HitSphere(Shape.A, Shape.Radius, Ray);
	if (Distance <= 1e-3f || Distance >= InOutHit.Distance)
	{
		return false;
	}
	const FSceneVector Point = Ray.Origin + Ray.Direction * Distance;
	const FSceneVector Center = bCapsule ? SceneShapePrivate::NearestOnAxis(Shape, Point) : Shape.A;
	const FSceneVector Normal = (Point - Center) * (1.0f / Shape.Radius);
	if (Shape.Kind == ESceneShape::HairCap && !IsHair(Normal, Shape.B))
	{
		return false;
	}
	InOutHit.Distance = Distance;
	InOutHit.Normal = Normal;
	return true;
}

float PassingLight(const FSceneShape& Shape, const FSceneVector& Point, const FSceneVector& ToLight, float Softness)
{
	switch (Shape.Kind)
	{
	case ESceneShape::Board:
		return SceneShapePrivate::PassBoard(Shape, Point, ToLight, Softness);
	case ESceneShape::Capsule:
		return SceneShapePrivate::PassCapsule(Shape, Point, ToLight, Softness);
	default:
		return SceneShapePrivate::PassBall(Shape.A, Shape.Radius, Point, ToLight, Softness);
	}
}

float PassingSky(const FSceneShape& Shape, const FSceneVector& Point, const FSceneVector& Normal)
{
	const FSceneVector Center = Shape.Kind == ESceneShape::Capsule ? SceneShapePrivate::NearestOnAxis(Shape, Point) : Shape.A;
	const FSceneVector ToCenter = Center - Point;
	const float Share = Shape.Radius * Shape.Radius / std::max(Dot(ToCenter, ToCenter), Shape.Radius * Shape.Radius);
	constexpr float Least = 1.0f / (SceneSkyReach * SceneSkyReach);
	if (Share < Least)
	{
		return 1.0f;
	}
	const float Facing = Dot(Normal, ToCenter) * std::sqrt(Share) / Shape.Radius;
	return 1.0f - 0.9f * std::max(Facing * 0.85f + 0.15f, 0.0f) * (Share - Least);
}

float BoundingRadius(const FSceneShape& Shape, FSceneVector& OutCenter)
{
	if (Shape.Kind == ESceneShape::Capsule)
	{
		OutCenter = (Shape.A + Shape.B) * 0.5f;
		return Shape.Radius + 0.5f * Length(Shape.B - Shape.A);
	}
	OutCenter = Shape.A;
	return Shape.Kind == ESceneShape::Board ? std::hypot(Shape.Radius, Shape.HalfHeight) : Shape.Radius;
}
}
