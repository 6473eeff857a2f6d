// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

#include <cstddef>

// The record in which a caller describes a picture to the look-editing interface. Its layout is fixed, byte for byte.

/** A picture of Height rows of RowLength pixels, each red, green, blue and alpha of 8 bits; borrowed for the time of the call. */
struct FTintmillAPI_ImageDesc
{
	/** Form of the pixels; 1 is 8 bits a channel in the order red, green, blue, alpha. */
	int32 Kind;

	/** First byte of the pixels; may be null when the picture is empty. */
	uint8* Pixels;

	/** Width in pixels. */
	int32 Width;

	/** Height in pixels. */
	int32 Height;

	/** Pixels from the start of one row to the start of the next. */
	int32 RowLength;

	/** Set to 1. */
	float UnitA;

	/** Set to 0. */
	int32 ZeroA;

	/** Set to 1. */
	float UnitB;

	/** Set to 0. */
	int32 ZeroB;

	/** Lower end of the values that the picture may take, -1000. */
	float RangeLow;

	/** Upper end of the values that the picture may take, 1000. */
	float RangeHigh;

	/** Set to 0. */
	int32 ZeroC;

	/** Set to false. */
	bool Flag;
};

static_assert(offsetof(FTintmillAPI_ImageDesc, Kind) == 0, "the layout of FTintmillAPI_ImageDesc is fixed");
static_assert(offsetof(FTintmillAPI_ImageDesc, Pixels) == 8, "the layout of FTintmillAPI_ImageDesc is fixed");
static_assert(offsetof(FTintmillAPI_ImageDesc, Width) == 16, "the layout of FTintmillAPI_ImageDesc is fixed");
static_assert(offsetof(FTintmillAPI_ImageDesc, Height) == 20, "the layout of FTintmillAPI_ImageDesc is fixed");
static_assert(offsetof(FTintmillAPI_ImageDesc, RowLength) == 24, "the layout of FTintmillAPI_ImageDesc is fixed");
static_assert(offsetof(FTintmillAPI_ImageDesc, UnitA) == 28, "the layout of FTintmillAPI_ImageDesc is fixed");
static_assert(offsetof(FTintmillAPI_ImageDesc, ZeroA) == 32, "the layout of FTintmillAPI_ImageDesc is fixed");
static_assert(offsetof(FTintmillAPI_ImageDesc, UnitB) == 36, "the layout of FTintmillAPI_ImageDesc is fixed");
static_assert(offsetof(FTintmillAPI_ImageDesc, ZeroB) == 40, "the layout of FTintmillAPI_ImageDesc is fixed");
static_assert(offsetof(FTintmillAPI_ImageDesc, RangeLow) == 44, "the layout of FTintmillAPI_ImageDesc is fixed");
static_assert(offsetof(FTintmillAPI_ImageDesc, RangeHigh) == 48, "the layout of FTintmillAPI_ImageDesc is fixed");
static_assert(offsetof(FTintmillAPI_ImageDesc, ZeroC) == 52, "the layout of FTintmillAPI_ImageDesc is fixed");
static_assert(offsetof(FTintmillAPI_ImageDesc, Flag) == 56, "the layout of FTintmillAPI_ImageDesc is fixed");
static_assert(sizeof(FTintmillAPI_ImageDesc) == 64, "the layout of FTintmillAPI_ImageDesc is fixed");
