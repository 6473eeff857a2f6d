// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Delegates/DelegateCombinations.h"
#include "Delegates/IDelegateInstance.h"

// Delegates: one or many bound functions. An unbound Execute is fatal here (the engine dereferences null outside Debug).

DECLARE_DELEGATE(FSimpleDelegate)
DECLARE_MULTICAST_DELEGATE(FSimpleMulticastDelegate)
