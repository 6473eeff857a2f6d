// Copyright The Tintmill authors. All rights reserved.

#include "Host/Scene/SceneChart.h"

#include "Host/Scene/SceneContent.h"

namespace TintmillHost
{
namespace SceneChartPrivate
{
static FSceneByteColor Gray(float Value)
{
	const std::uint8_t Byte = static_cast<std::uint8_t>(255.0f * Saturate(Value) + 0.5f);
	return {Byte, Byte, Byte};
}

/** A pure hue, Turn from 0 to 1 around the wheel, at a brightness. */
static FSceneByteColor Hue(float Turn, float Brightness)
{
	const auto Channel = [Turn, Brightness](float Shift) {
		const float Around = std::fmod(Turn + Shift, 1.0f);
		const float Value = Saturate(std::fabs(Around * 6.0f - 3.0f) - 1.0f);
		return static_cast<std::uint8_t>(255.0f * Value * Brightness + 0.5f);
	};
	return {Channel(0.0f), Channel(2.0f / 3.0f), Channel(1.0f / 3.0f)};
}

static FSceneByteColor Skin(float Position)
{
	static const FSceneVector Tones[6] = {FromSrgb(250, 222, 200), FromSrgb(240, 196, 164), FromSrgb(214, 160, 118), FromSrgb(172, 114, 76),
		FromSrgb(112, 70, 46), FromSrgb(66, 42, 32)};
	return ToSrgb(Tones[std::min(static_cast<int>(Position * 6.0f), 5)]);
}

/** One of four ramps from black to a pure color. */
static FSceneByteColor Ramp(float Position, float Row)
{
	const std::uint8_t Byte = static_cast<std::uint8_t>(255.0f * Position + 0.5f);
	switch (std::min(static_cast<int>(Row * 4.0f), 3))
	{
	case 0:
		return {Byte, Byte, Byte};
	case 1:
		return {Byte, 0, 0};
	case 2:
		return {0, Byte, 0};
	default:
		return {0, 0, Byte};
	}
}

/** Color of a place on the chart, both coordinates from 0 to 1. */
static FSceneByteColor ColorAt(float X, float Y)
{
	static const FSceneByteColor Frame = {28, 28, 29};
	if (Y < 0.50f)
	{
		const float Column = X * 6.0f;
		const float Row = Y * 8.0f;
		const float InColumn = Column - std::floor(Column);
		const float InRow = Row - std::floor(Row);
		const bool bInside = InColumn > 0.04f && InColumn < 0.96f && InRow > 0.06f && InRow < 0.94f;
		return bInside ? ToSrgb(ScenePatch(static_cast<int>(Row) * 6 + static_cast<int>(Column))) : Frame;
	}
	if (Y < 0.60f)
	{
		return Skin(X);
	}
	if (Y < 0.68f)
	{
		return Gray(std::floor(X * 21.0f) / 20.0f);
	}
	if (Y < 0.84f)
	{
		return Ramp(X, (Y - 0.68f) / 0.16f);
	}
	return Hue(X, 1.0f - (Y - 0.84f) / 0.16f);
}
}

void PaintSceneChart(const FScenePicture& Picture)
{
	for (int Y = 0; Y < Picture.Height; ++Y)
	{
		for (int X = 0; X < Picture.Width; ++X)
		{
			const float Across = (static_cast<float>(X) + 0.5f) / static_cast<float>(Picture.Width);
			const float Down = (static_cast<float>(Y) + 0.5f) / static_cast<float>(Picture.Height);
			Picture.Set(X, Y, SceneChartPrivate::ColorAt(Across, Down));
		}
	}
}
}
