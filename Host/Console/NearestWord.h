// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <string>
#include <vector>

// What somebody may have meant who mistyped a word.

namespace TintmillHost
{
/** How many letters have to be added, taken away, changed or swapped with their neighbor to make one word of the other. */
size_t CountTypos(const std::string& Word, const std::string& Other);

/** The known word that a mistyped one is nearest to, upper and lower case being the same; empty when none is near enough to be meant. */
std::string FindNearestWord(const std::string& Word, const std::vector<std::string>& KnownWords);
}
