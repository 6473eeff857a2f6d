// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <string>
#include <vector>

class UTintmillObject;

// The project's looks by their names.

namespace TintmillHost
{
/** The look assets as package names, in the order of their names. */
std::vector<std::string> ListLooks();

/** The look of a package name, or of a short name that is the end of just one; null for "none". Throws FCommandError, with the looks there are, when it is none or not clear which. */
UTintmillObject* LoadLook(const std::string& Word);
}
