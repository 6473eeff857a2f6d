// Copyright The Tintmill authors. All rights reserved.

#include "Host/Scene/SceneSky.h"

#include <cstdint>

namespace TintmillHost
{
namespace SceneSkyPrivate
{
static float Random(std::int32_t X, std::int32_t Y)
{
	std::uint32_t Bits = static_cast<std::uint32_t>(X) * 0x9e3779b1u + static_cast<std::uint32_t>(Y) * 0x85ebca77u;
	Bits = (Bits ^ (Bits >> 15)) * 0x2c1b3c6du;
	Bits = (Bits ^ (Bits >> 12)) * 0x297a2d39u;
	return static_cast<float>((Bits ^ (Bits >> 15)) >> 8) * (1.0f / 16777216.0f);
}

static float Clouds(const FSceneVector& Direction)
{
	const float Scale = 1.0f / (Direction.Z + 0.16f);
	const float X = Direction.X * Scale * 1.1f;
	const float Y = Direction.Y * Scale * 1.9f;
	const float Value =
		0.55f * SceneNoise(X + 7.3f, Y + 1.7f) + 0.28f * SceneNoise(X * 2.3f, Y * 2.3f) + 0.17f * SceneNoise(X * 5.1f, Y * 5.1f);
	return SmoothStep(0.52f, 0.84f, Value) * SmoothStep(0.03f, 0.22f, Direction.Z);
}

/** Where the sun of the picture sets: opposite the light, so that the sky behind the figures is bright. */
static const FSceneVector& Sunset()
{
	static const FSceneVector Direction = Normalized({0.92f, -0.34f, 0.075f});
	return Direction;
}

/** Height of a line of hills over the horizon in a direction, as the sine of its angle. */
static float Hills(float Azimuth, float Frequency, float Base, float Size)
{
	return Base + Size * (0.7f * SceneNoise(Azimuth * Frequency, Frequency) + 0.3f * SceneNoise(Azimuth * Frequency * 3.1f, 4.0f));
}
}

FSceneVector SceneSunDirection()
{
	return Normalized({-0.55f, -0.62f, 0.60f});
}

float SceneNoise(float X, float Y)
{
	const float FloorX = std::floor(X);
	const float FloorY = std::floor(Y);
	const std::int32_t CellX = static_cast<std::int32_t>(FloorX);
	const std::int32_t CellY = static_cast<std::int32_t>(FloorY);
	const float U = SmoothStep(0.0f, 1.0f, X - FloorX);
	const float V = SmoothStep(0.0f, 1.0f, Y - FloorY);
	const float Low = SceneSkyPrivate::Random(CellX, CellY) * (1.0f - U) + SceneSkyPrivate::Random(CellX + 1, CellY) * U;
	const float High = SceneSkyPrivate::Random(CellX, CellY + 1) * (1.0f - U) + SceneSkyPrivate::Random(CellX + 1, CellY + 1) * U;
	return Low * (1.0f - V) + High * V;
}

FSceneVector SceneHaze(const FSceneVector& Direction)
{
	const float Toward = std::max(Dot(Direction, SceneSkyPrivate::Sunset()), 0.0f);
	return Mix({0.20f, 0.17f, 0.18f}, {0.46f, 0.26f, 0.15f}, Toward * Toward * Toward);
}

FSceneVector SceneSky(const FSceneVector& Direction)
{
	static const FSceneVector Zenith = {0.018f, 0.062f, 0.22f};
	static const FSceneVector Middle = {0.085f, 0.20f, 0.44f};
	static const FSceneVector Horizon = {0.60f, 0.34f, 0.20f};
	static const FSceneVector Glow = {1.30f, 0.56f, 0.17f};
	static const FSceneVector FarHills = {0.085f, 0.080f, 0.125f};
	static const FSceneVector NearHills = {0.026f, 0.034f, 0.040f};
	const float Height = std::max(Direction.Z, 0.0f);
	const float Toward = std::max(Dot(Direction, SceneSkyPrivate::Sunset()), 0.0f);
	const float Toward4 = Toward * Toward * Toward * Toward;
	const float Toward32 = std::pow(Toward4, 8.0f);
	FSceneVector Color = Mix(Mix(Horizon, Middle, SmoothStep(0.0f, 0.20f, Height)), Zenith, SmoothStep(0.12f, 0.80f, Height));
	Color = Color + Glow * (0.34f * Toward4 * Toward4 * (1.0f - Height) + 0.9f * Toward32 * Toward32 + 14.0f * std::pow(Toward32, 40.0f));
	if (Height > 0.03f)
	{
		const FSceneVector Cloud = Mix({0.30f, 0.29f, 0.36f}, {1.35f, 0.76f, 0.46f}, 0.15f + 0.85f * Toward4);
		Color = Mix(Color, Cloud, 0.80f * SceneSkyPrivate::Clouds({Direction.X, Direction.Y, Height}));
	}
	if (Height > 0.13f)
	{
		return Color;
	}
	const float Azimuth = std::atan2(Direction.Y, Direction.X);
	const float Far = SceneSkyPrivate::Hills(Azimuth, 5.0f, 0.020f, 0.085f);
	const float Near = SceneSkyPrivate::Hills(Azimuth + 9.0f, 8.0f, 0.004f, 0.050f);
	const FSceneVector Misty = Mix(FarHills, Horizon, 0.10f + 0.30f * Toward4);
	Color = Mix(Misty, Color, SmoothStep(Far - 0.0018f, Far + 0.0018f, Direction.Z));
	const FSceneVector Foot = Mix(SceneHaze(Direction), NearHills, SmoothStep(-0.02f, 0.06f, Direction.Z));
	return Mix(Foot, Color, SmoothStep(Near - 0.0018f, Near + 0.0018f, Direction.Z));
}

FSceneVector SceneSkyLight(const FSceneVector& Normal)
{
	static const FSceneVector FromAbove = {0.17f, 0.22f, 0.32f};
	static const FSceneVector FromBelow = {0.085f, 0.062f, 0.045f};
	static const FSceneVector FromSunset = {0.20f, 0.10f, 0.04f};
	const FSceneVector Light = Mix(FromBelow, FromAbove, 0.5f + 0.5f * Normal.Z);
	return Light + FromSunset * std::max(0.2f + 0.8f * Normal.X, 0.0f);
}
}
