// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "Model.h"

#include <string>

namespace HeaderTool
{

/** Returns the text of "<Leaf>.gen.cpp": what registers and constructs the header's types. */
std::string WriteSource(const FHeader& Header);

/** What an enum needs in a source. */
std::string WriteEnumSource(const FReflectedType& Type);

/** What a struct needs in a source. */
std::string WriteStructSource(const FReflectedType& Type);

/** What a class needs in a source. */
std::string WriteClassSource(const FReflectedType& Type);

}
