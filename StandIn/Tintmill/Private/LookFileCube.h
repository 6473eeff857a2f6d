// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "LookFileProblem.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The .cube format, both its forms: one table with a domain, or a one-dimensional table before a three-dimensional one.

namespace LookFile
{
/** The longest one-dimensional table, in entries. */
constexpr std::int64_t MaxCubeSize1D = 65536;

/** The largest three-dimensional table, in entries an axis. */
constexpr std::int64_t MaxCubeSize3D = 129;

/** What a .cube file says; a size of 0 means that there is no such table. */
struct FCube
{
	/** Entries of the one-dimensional table. */
	std::int64_t Size1D = 0;

	/** Entries an axis of the three-dimensional table. */
	std::int64_t Size3D = 0;

	/** Input range of the one-dimensional table, one value a channel. */
	float Min1D[3] = {0.0f, 0.0f, 0.0f};
	float Max1D[3] = {1.0f, 1.0f, 1.0f};

	/** Input range of the three-dimensional table, one value a channel. */
	float Min3D[3] = {0.0f, 0.0f, 0.0f};
	float Max3D[3] = {1.0f, 1.0f, 1.0f};

	/** Red, green, blue of each entry; the one-dimensional table first, then the other one with red fastest. */
	std::vector<float> Values;
};

/** Reads the text of a .cube file, its line ends already "\n"; false with line and reason when it breaks the format. */
bool ParseCube(std::string_view Text, FCube& OutCube, FProblem& OutProblem);

/** The same tables as the plainest text that every reader of the format understands. */
std::string WriteCube(const FCube& Cube);
}
