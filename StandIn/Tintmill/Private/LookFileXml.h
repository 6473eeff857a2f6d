// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "LookFileProblem.h"

#include <string>
#include <string_view>

// Checks that hold for look files written as XML: .clf and .ctf.

namespace LookFile
{
/** Parts tags from words by blanks, so that words are as short as they look, and refuses sizes and numbers out of bounds; lines stay lines. */
bool CheckXml(std::string& InOutText, FProblem& OutProblem);
}
