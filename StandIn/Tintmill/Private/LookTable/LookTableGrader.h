// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "LookFileCube.h"
#include "LookGrader.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

// The tables of a .cube applied to bytes without a detour over other libraries. There are only 256 inputs a channel, so
// everything that concerns one channel alone (domain, curve, place in the table) is worked out beforehand.

namespace LookTable
{
/** Applies one-dimensional tables: one output for each of 256 inputs a channel. */
class FLookCurveGrader final : public LookGrading::ILookGrader
{
public:
	/** Takes a cube with a one-dimensional table alone. */
	explicit FLookCurveGrader(const LookFile::FCube& Cube);

	virtual void Grade(const std::uint8_t* In, std::uint8_t* Out, std::size_t PixelCount, LookGrading::EByteOrder Order) const override;

private:
	std::array<std::array<std::uint8_t, 256>, 3> Outputs;
};

/** Applies a three-dimensional table tetrahedrally, after a one-dimensional one if there is any. */
class FLookTableGrader final : public LookGrading::ILookGrader
{
public:
	/** Takes a cube with a three-dimensional table. */
	explicit FLookTableGrader(const LookFile::FCube& Cube);

	virtual void Grade(const std::uint8_t* In, std::uint8_t* Out, std::size_t PixelCount, LookGrading::EByteOrder Order) const override;

private:
	/** Red, green, blue and nothing, times 255. */
	typedef float FEntry __attribute__((vector_size(16)));

	/** Where an input of one channel lies between the table's entries. */
	struct FPlace
	{
		std::uint32_t Entry = 0;
		float Part = 0.0f;
	};

	/** The two corners between the first and the last of a tetrahedron, as steps from the first. */
	struct FCorners
	{
		std::uint32_t First = 0;
		std::uint32_t Second = 0;
	};

	void GradePixel(const std::uint8_t* In, std::uint8_t* Out, std::size_t Red) const;

	std::array<std::array<FPlace, 256>, 3> Places;

	/** By the order of the three parts: bit 2 red >= green, bit 1 green >= blue, bit 0 red >= blue. */
	std::array<FCorners, 8> Corners;

	std::vector<FEntry> Entries;
	std::uint32_t LastCorner = 0;
};
}
