// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Scene/SceneDisplay.h"

#include "Math/Color.h"

#include <cstddef>

namespace TintmillHost
{
/** Pixels to be filled, rows packed from the top; borrowed. */
struct FScenePicture
{
	int Width = 0;
	int Height = 0;
	FColor* Pixels = nullptr;

	/** Sets one opaque pixel. */
	void Set(int X, int Y, const FSceneByteColor& Color) const
	{
		Pixels[static_cast<std::size_t>(Y) * static_cast<std::size_t>(Width) + static_cast<std::size_t>(X)] =
			FColor(Color.Red, Color.Green, Color.Blue, 255);
	}
};
}
