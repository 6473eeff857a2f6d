// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <string>

// Words of commands as values.

namespace TintmillHost
{
/** The word as a number within the limits. Throws FCommandError; What says what the number is for. */
double ParseNumber(const std::string& Word, double Min, double Max, const std::string& What);

/** "on", "true", "1" and "off", "false", "0". Throws FCommandError for any other word. */
bool ParseSwitch(const std::string& Word);
}
