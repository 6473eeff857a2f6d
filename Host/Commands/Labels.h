// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Ui/Sight.h"

#include <string>
#include <vector>

// Finding on the screen what a command names.

namespace TintmillHost
{
class FPerson;

/** The words with a blank between them. */
std::string JoinWords(const std::vector<std::string>& Words);

/** The same for the words from an index on; empty if there are none. */
std::string JoinWordsFrom(const std::vector<std::string>& Words, size_t Index);

/** What a label names among things. Throws FCommandError, with the labels there are, when it names nothing. */
FSeen FindOrComplain(const std::vector<FSeen>& Things, const std::string& Label);

/** Rests on all labels of a path "View > Tintmill" but the last, so that their submenus open, and returns what the last one names. What
 * its list has to be scrolled for is brought into sight. Throws FCommandError when a label names nothing. */
FSeen FollowPath(FPerson& Person, const std::string& Path);

/** Throws FCommandError if the thing is grayed out. */
void CheckEnabled(const FSeen& Thing);
}
