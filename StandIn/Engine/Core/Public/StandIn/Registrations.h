// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "Delegates/DelegateBase.h"
#include "Templates/Function.h"

// Lists what is registered anywhere, so that "what is left after shut-down, bound to this object?" is one question.

namespace StandIn
{
/** One thing that is registered somewhere. */
struct FRegistration
{
	/** The registry, such as "Delegates" or "Modules". */
	FString Registry;

	/** The thing's name in it. */
	FString Name;

	/** Whose it is: a binding's user object, an owner's address; null if nobody's. */
	const void* Owner;
};

/** Adds a registry: a function that appends what is in it; a second one of the same name replaces the first. */
CORE_API void AddRegistry(const TCHAR* Registry, TFunction<void(TArray<FRegistration>&)> List);

/** Removes a registry, as a module must before it is unloaded. */
CORE_API void RemoveRegistry(const TCHAR* Registry);

/** All that is registered now, by registry in order of AddRegistry. */
CORE_API TArray<FRegistration> ListRegistrations();

/** Appends one entry for each live binding of a delegate: Registry "Delegates", Name as given, Owner the binding's user object. */
CORE_API void ListBindings(const TCHAR* Name, const FMulticastDelegateBase& Delegate, TArray<FRegistration>& OutRegistrations);

/** Lets ListRegistrations report a delegate that lives as long as the process, such as "FCoreDelegates::OnPreExit". */
CORE_API void AddDelegate(const TCHAR* Name, const FMulticastDelegateBase& Delegate);
}
