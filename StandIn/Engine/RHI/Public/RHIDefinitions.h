// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"

// The enumerations of the rendering interface that an editor plug-in names. Nothing else of the engine's header is here.

namespace ERHIFeatureLevel
{
/** What a renderer can do, in ascending order; the removed levels keep their places. */
enum Type
{
	ES2_REMOVED,
	ES3_1,
	SM4_REMOVED,
	SM5,
	Num
};
}

/** How a read maps the values of a surface to the values it returns. */
enum ERangeCompressionMode
{
	RCM_UNorm,
	RCM_SNorm,
	RCM_MinMaxNorm,
	RCM_MinMax,
};

/** A face of a cube map; CubeFace_MAX stands for a surface that is no cube. */
enum ECubeFace
{
	CubeFace_PosX = 0,
	CubeFace_NegX,
	CubeFace_PosY,
	CubeFace_NegY,
	CubeFace_PosZ,
	CubeFace_NegZ,
	CubeFace_MAX
};
