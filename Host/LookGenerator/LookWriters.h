// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/LookGenerator/LookFormulas.h"

#include <string>

// Writes formulas as look files of the common formats.

namespace TintmillHost
{
/** A .cube with Size^3 entries over the domain Low..High, the same for every channel; 0..1 is not written out. */
std::string WriteCubeLook(const std::string& Title, FLookFormula Formula, int Size, double Low = 0.0, double High = 1.0);

/** A .cube with a curve of CurveSize entries before a table of Size^3 entries. */
std::string WriteCurveAndCubeLook(double (*Curve)(double), int CurveSize, FLookFormula Formula, int Size);

/** A .clf that holds one table of Size^3 entries. */
std::string WriteClfLook(const std::string& Identifier, const std::string& Description, FLookFormula Formula, int Size);

/** A .spi3d with Size^3 entries of three decimals. */
std::string WriteSpi3DLook(FLookFormula Formula, int Size);
}
