// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Delegates/Delegate.h"
#include "UObject/NameTypes.h"

// Not in the engine: what the module manager needs so that one process can load, unload and load a library again.

namespace StandIn
{
DECLARE_MULTICAST_DELEGATE_OneParam(FOnModuleBinaryUnloading, FName);

/** Fires with the module's name after its object is gone and before its library is unmapped: drop all that points into it. */
CORE_API FOnModuleBinaryUnloading& OnModuleBinaryUnloading();

/** Takes a folder out of the module manager's search again; modules loaded from it stay. */
CORE_API void RemoveBinariesDirectory(const FString& Directory);

/** Says whether a delegate's binding was made by the code of a module's library, which it cannot outlive; false for statically
    linked modules. */
CORE_API bool IsBoundByModule(const FDelegateBase& Delegate, FName ModuleName);

/** Says whether a module's library is mapped, loaded or not; false for statically linked modules. */
CORE_API bool IsModuleBinaryMapped(FName ModuleName);
}
