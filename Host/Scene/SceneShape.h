// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Scene/SceneMath.h"

#include <cstdint>

// The solid shapes of the scene: where a ray meets them, and how much light they take from a point.

namespace TintmillHost
{
/** Kinds of solids. */
enum class ESceneShape : std::uint8_t
{
	Sphere,
	HairCap,
	Capsule,
	Board,
};

/** What a solid looks like; SceneSurface turns it into colors. */
enum class ESceneMaterial : std::uint8_t
{
	Cloth,
	Head,
	Hair,
	Matte,
	Gloss,
	Chrome,
	Lamp,
	Chart,
};

/** One solid. */
struct FSceneShape
{
	ESceneShape Kind = ESceneShape::Sphere;
	ESceneMaterial Material = ESceneMaterial::Matte;

	/** Solids with the same owner throw no shadow on one another where they nest (head and hair). */
	int Owner = 0;

	/** Center; lower end of a capsule. */
	FSceneVector A;

	/** Upper end of a capsule; the direction in which a head or a board faces. */
	FSceneVector B;

	/** Radius; half the width of a board. */
	float Radius = 0.0f;

	/** Half the height of a board. */
	float HalfHeight = 0.0f;

	/** Linear color. */
	FSceneVector Color;
};

/** Where a ray meets a solid. */
struct FSceneHit
{
	float Distance = 1e30f;
	FSceneVector Normal;

	/** Position on a board, -1..1 to the right and upwards as seen from the front. */
	float U = 0.0f;
	float V = 0.0f;
};

/** True where hair covers a head that faces Facing, in the direction Outward from the head's center. */
bool IsHair(const FSceneVector& Outward, const FSceneVector& Facing);

/** Right-hand direction of a board, seen from its front. */
FSceneVector BoardRight(const FSceneShape& Board);

/** Upward direction of a board within its plane. */
FSceneVector BoardUp(const FSceneShape& Board);

/** Finds the nearest meeting in front of the ray that is nearer than the hit already there; true if there is one. */
bool Intersect(const FSceneShape& Shape, const FSceneRay& Ray, FSceneHit& InOutHit);

/** How much of the light, 0..1, that comes from the direction passes the solid on its way to the point; Softness is the light's radius over its distance. */
float PassingLight(const FSceneShape& Shape, const FSceneVector& Point, const FSceneVector& ToLight, float Softness);

/** How many radii away a ball stops hiding sky that anyone would miss. */
constexpr float SceneSkyReach = 5.8f;

/** How much of the sky, 0..1, a surface still sees past the solid. */
float PassingSky(const FSceneShape& Shape, const FSceneVector& Point, const FSceneVector& Normal);

/** Radius of a ball around Center that holds the solid. */
float BoundingRadius(const FSceneShape& Shape, FSceneVector& OutCenter);
}
