// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "UObject/UObjectHierarchyFwd.h"

// Not in the engine under these names: starting and tearing down the object system, and what tests ask of it.

class FName;

namespace StandIn
{
/**
 * Starts the object system (UObjectInitialized becomes true), constructs the compiled-in types, makes default objects, and
 * from then on does the same for each module that is loaded. Tear-down is bound to FCoreDelegates::OnExit. A second call
 * does nothing; a start after a tear-down is allowed and finds the compiled-in types with fresh default objects.
 */
COREUOBJECT_API void StartObjectSystem();

/** Destroys all objects, default objects included; UObjectInitialized is false afterwards. A second call does nothing. */
COREUOBJECT_API void ShutdownObjectSystem();

/** Number of objects in the object array. */
COREUOBJECT_API int32 GetNumObjects();

/** All objects that are no types, packages, metadata or default objects, in the order of the object array. */
COREUOBJECT_API TArray<UObject*> ListObjects();

/** Drops the objects, default objects and registrations of a module's classes; its types sleep until the module is loaded again. */
COREUOBJECT_API void DropModuleTypes(const FName& ModuleName);
}
