// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Delegates/DelegateCombinations.h"
#include "Delegates/DelegateSignatureImpl.h"
#include "Delegates/IDelegateInstance.h"

// Everything about delegates in one include, with the two types that the engine itself uses everywhere.

/** A delegate without parameters. */
DECLARE_DELEGATE(FSimpleDelegate);

/** A multicast delegate without parameters. */
DECLARE_MULTICAST_DELEGATE(FSimpleMulticastDelegate);
