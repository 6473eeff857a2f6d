// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"

// What the engine puts into every module's library. The engine replaces operator new and delete by its own allocator and
// adds globals for debuggers; here all libraries share the C++ allocator, so nothing is needed.

#define PER_MODULE_BOILERPLATE
#define PER_MODULE_BOILERPLATE_ANYLINK(ModuleImplClass, ModuleName)
#define REPLACEMENT_OPERATOR_NEW_AND_DELETE
