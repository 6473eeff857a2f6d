// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Framework/Commands/InputChord.h"

#include <string>

// Keys as people write them.

namespace TintmillHost
{
/** "Escape", "Ctrl+A", "shift+tab", "4" …: the key with its modifiers. Throws FCommandError for an unknown one. */
FInputChord ParseKeys(const std::string& Text);
}
