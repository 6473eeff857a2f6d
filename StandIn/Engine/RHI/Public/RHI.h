// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "RHIDefinitions.h"

// The description of a read from a surface and the highest feature level. There is no device, no resource and no command
// list: a viewport's surface lives in ordinary memory.

/** The highest feature level the renderer offers; SM5 here. */
extern RHI_API ERHIFeatureLevel::Type GMaxRHIFeatureLevel;

/** Says which part of a surface a read takes and how it converts the values. */
class FReadSurfaceDataFlags
{
public:
	/** Describes a read of the whole surface with conversion to display gamma, from mip 0 of array index 0. */
	FReadSurfaceDataFlags(ERangeCompressionMode InCompressionMode = RCM_UNorm, ECubeFace InCubeFace = CubeFace_MAX)
		: CubeFace(InCubeFace)
		, CompressionMode(InCompressionMode)
		, bLinearToGamma(true)
		, MaxDepthRange(16000.0f)
		, bOutputStencil(false)
		, MipLevel(0)
		, ArrayIndex(0)
	{}

	/** Returns the cube face, CubeFace_MAX when the surface is no cube. */
	ECubeFace GetCubeFace() const { return CubeFace; }

	/** Returns how values are mapped. */
	ERangeCompressionMode GetCompressionMode() const { return CompressionMode; }

	/** Switches the conversion of float surfaces from linear to display gamma. */
	void SetLinearToGamma(bool bValue) { bLinearToGamma = bValue; }

	/** Tells whether float surfaces are converted to display gamma. */
	bool GetLinearToGamma() const { return bLinearToGamma; }

	/** Asks for the stencil instead of the colour. */
	void SetOutputStencil(bool bValue) { bOutputStencil = bValue; }

	/** Tells whether the stencil is asked for. */
	bool GetOutputStencil() const { return bOutputStencil; }

	/** Chooses the mip level; 0 is the full size. */
	void SetMip(uint8 InMipLevel) { MipLevel = InMipLevel; }

	/** Returns the mip level. */
	uint8 GetMip() const { return MipLevel; }

	/** Sets the depth, in world units, that maps to 1. */
	void SetMaxDepthRange(float Value) { MaxDepthRange = Value; }

	/** Returns the depth, in world units, that maps to 1. */
	float GetMaxDepthRange() const { return MaxDepthRange; }

	/** Chooses the slice of an array surface. */
	void SetArrayIndex(int32 InArrayIndex) { ArrayIndex = InArrayIndex; }

	/** Returns the slice of an array surface. */
	int32 GetArrayIndex() const { return ArrayIndex; }

private:
	ECubeFace CubeFace;
	ERangeCompressionMode CompressionMode;
	bool bLinearToGamma;
	float MaxDepthRange;
	bool bOutputStencil;
	uint8 MipLevel;
	int32 ArrayIndex;
};
