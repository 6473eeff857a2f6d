// Copyright The Tintmill authors. All rights reserved.

#include "Host/Scene/SceneDisplay.h"

#include <array>

namespace TintmillHost
{
namespace SceneDisplayPrivate
{
constexpr int TableSize = 4096;
constexpr float Shoulder = 0.9f;

static float Encode(float Linear)
{
	return Linear <= 0.0031308f ? 12.92f * Linear : 1.055f * std::pow(Linear, 1.0f / 2.4f) - 0.055f;
}

/** A curve with a short toe and a long shoulder; 0.18 comes out near 0.18, and 6 near 1. */
static float Curve(float Light)
{
	const float Bright = Light * 1.12f;
	return Bright * (Bright * 2.30f + 0.05f) / (Bright * (Bright * 2.28f + 0.62f) + 0.12f);
}

/** The curve over Light / (Light + Shoulder), which runs from 0 to 1; values are 0..255. */
static const std::array<float, TableSize + 2>& Table()
{
	static const std::array<float, TableSize + 2> Values = [] {
		std::array<float, TableSize + 2> Result = {};
		for (int Index = 0; Index < TableSize + 2; ++Index)
		{
			const float Compressed = std::min(static_cast<float>(Index) / TableSize, 0.9995f);
			const float Light = Shoulder * Compressed / (1.0f - Compressed);
			Result[static_cast<std::size_t>(Index)] = 255.0f * Encode(Saturate(Curve(Light)));
		}
		return Result;
	}();
	return Values;
}

static std::uint8_t Lookup(float Light, float Dither)
{
	const float Positive = std::max(Light, 0.0f);
	const float Position = Positive / (Positive + Shoulder) * TableSize;
	const int Index = static_cast<int>(Position);
	const std::array<float, TableSize + 2>& Values = Table();
	const float Low = Values[static_cast<std::size_t>(Index)];
	const float High = Values[static_cast<std::size_t>(Index) + 1];
	const float Value = Low + (High - Low) * (Position - static_cast<float>(Index)) + 0.5f + Dither;
	return static_cast<std::uint8_t>(std::min(std::max(Value, 0.0f), 255.0f));
}
}

FSceneByteColor ToDisplay(const FSceneVector& Light, float Dither)
{
	return {SceneDisplayPrivate::Lookup(Light.X, Dither), SceneDisplayPrivate::Lookup(Light.Y, Dither),
		SceneDisplayPrivate::Lookup(Light.Z, Dither)};
}

FSceneByteColor ToSrgb(const FSceneVector& Color)
{
	const auto Byte = [](float Value) { return static_cast<std::uint8_t>(255.0f * SceneDisplayPrivate::Encode(Saturate(Value)) + 0.5f); };
	return {Byte(Color.X), Byte(Color.Y), Byte(Color.Z)};
}

float SceneDither(int X, int Y)
{
	const float Wave = 52.9829189f * std::fmod(0.06711056f * static_cast<float>(X) + 0.00583715f * static_cast<float>(Y), 1.0f);
	return Wave - std::floor(Wave) - 0.5f;
}
}
