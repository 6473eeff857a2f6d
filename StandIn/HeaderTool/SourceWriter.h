// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "Model.h"

#include <string>

namespace HeaderTool
{

/** Returns the text of "<Leaf>.gen.cpp": what registers and constructs the header's types. */
std::string WriteSource(const FHeader& Header);

/** The part of a source that an enum needs. */
std::string WriteEnumSource(const FReflectedType& Type);

/** The part of a source that a struct needs. */
std::string WriteStructSource(const FReflectedType& Type);

/** The part of a source that a class needs. */
std::string WriteClassSource(const FReflectedType& Type);

}
