// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <istream>
#include <ostream>
#include <string>

// Values one after the other in a stream, for the same program to read.

namespace TintmillHost
{
/** Writes a text of any bytes. */
void PackText(std::ostream& Stream, const std::string& Text);

/** Writes a number. */
void PackNumber(std::ostream& Stream, double Number);

/** Reads a text; the stream fails where there is none. */
std::string UnpackText(std::istream& Stream);

/** Reads a number; the stream fails where there is none. */
double UnpackNumber(std::istream& Stream);
}
