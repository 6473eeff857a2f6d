// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "Manifest.h"

#include <string>

namespace HeaderTool
{

/** Returns the text of "<Module>.init.gen.cpp", which constructs the package; the module's other generated texts count in its checksums. */
std::string WritePackageSource(const FModule& Module, const std::string& Sources, const std::string& Headers);

}
