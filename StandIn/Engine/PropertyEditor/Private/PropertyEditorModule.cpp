// Copyright The Tintmill authors. All rights reserved.

#include "Modules/ModuleManager.h"

IMPLEMENT_MODULE(FDefaultModuleImpl, PropertyEditor)
