// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Ui/Sight.h"

#include <string>
#include <vector>

// What tours state about the window, and complaints about what is not there.

namespace TintmillHost
{
/** The words with a blank between them. */
std::string JoinWords(const std::vector<std::string>& Words);

/** What a label names among things. Throws FCommandError, with the labels there are, when it names nothing. */
FSeen FindOrComplain(const std::vector<FSeen>& Things, const std::string& Label);

/** Checks one statement about the window or a pane; see the command expect. Throws FCommandError, with what is there instead, when it does not hold. */
void CheckExpectation(const std::string& What, const std::string& Value);
}
