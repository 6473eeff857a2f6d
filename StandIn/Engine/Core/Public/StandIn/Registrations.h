// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Templates/Function.h"

// Not in the engine: every registry can be listed, so that "what is left after shut-down, and whose is it?" is one question.
// Game thread only.

namespace StandIn
{
/** One thing that stands in one registry. */
struct FRegistration
{
	/** The registry: "Modules", "Delegates", "ToolMenus" … */
	FString Registry;

	/** What it is, in the registry's own words; for a binding the delegate's name. */
	FString Name;

	/** Who registered it or is called, as far as known; null otherwise. Compare only, it may be gone. */
	const void* Owner;
};

/** Adds a registry; List appends what stands in it. A registry of the same name is replaced, so that libraries may come and go. */
CORE_API void AddRegistry(const TCHAR* Registry, TFunction<void(TArray<FRegistration>&)> List);

/** Takes a registry off the list, for libraries that are unloaded. */
CORE_API void RemoveRegistry(const TCHAR* Registry);

/** All that is registered, registry by registry in the order in which these were added. */
CORE_API TArray<FRegistration> ListRegistrations();

/** Adds a multicast delegate under its engine name as a registry of its own, each binding one entry of the registry "Delegates". */
template <typename DelegateType>
void AddDelegate(const TCHAR* DelegateName, const DelegateType& Delegate)
{
	const FString Name(DelegateName);
	AddRegistry(DelegateName,
		[Name, &Delegate](TArray<FRegistration>& OutRegistrations)
		{
			for (const void* const UserObject : Delegate.ListUserObjects())
			{
				OutRegistrations.Add(FRegistration{FString(TEXT("Delegates")), Name, UserObject});
			}
		});
}
}
