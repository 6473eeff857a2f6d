// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Commands/Labels.h"

#include <string>

// What tours state about the window.

namespace TintmillHost
{
/** Checks one statement about the window or a pane; see the command expect. Throws FCommandError, with what is there instead, when it does not hold. */
void CheckExpectation(const std::string& What, const std::string& Value);
}
