// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// The kinds of views a viewport offers. The enumeration is not reflected here.

/** From where a viewport looks at the world. */
enum ELevelViewportType
{
	/** Top. */
	LVT_OrthoXY = 0,
	/** Front. */
	LVT_OrthoXZ = 1,
	/** Left. */
	LVT_OrthoYZ = 2,
	LVT_Perspective = 3,
	LVT_OrthoFreelook = 4,
	/** Bottom. */
	LVT_OrthoNegativeXY = 5,
	/** Back. */
	LVT_OrthoNegativeXZ = 6,
	/** Right. */
	LVT_OrthoNegativeYZ = 7,
	LVT_MAX,

	LVT_None = 255,
};
