// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "LookFileProblem.h"

#include <string_view>

// Checks that hold for every look file of numbers in rows that is not a .cube: .3dl, .spi1d, .spi3d, .csp.

namespace LookFile
{
/** Refuses lines and words that are too long and rows in which a word is not a finite number. */
bool CheckTable(std::string_view Text, FProblem& OutProblem);

/** Refuses a .spi1d file whose "Length" is missing or out of bounds. */
bool CheckSpi1D(std::string_view Text, FProblem& OutProblem);

/** Refuses a .spi3d file whose third line does not give three equal sizes within bounds. */
bool CheckSpi3D(std::string_view Text, FProblem& OutProblem);
}
