// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"

// The interface of every module. Complete.

/** What the editor calls on a module's one object; all calls are made on the game thread. */
class IModuleInterface
{
public:
	virtual ~IModuleInterface() {}

	/** Called once right after the module has been loaded and its object made. */
	virtual void StartupModule() {}

	/** Called before the module is unloaded, right before the module object is shut down. */
	virtual void PreUnloadCallback() {}

	/** Called after the module has been reloaded. */
	virtual void PostLoadCallback() {}

	/** Called once before the module object is destroyed. */
	virtual void ShutdownModule() {}

	/** False for a module that must not be unloaded while the program runs. */
	virtual bool SupportsDynamicReloading() { return true; }

	/** False for a module that is not to be shut down with the others at exit. */
	virtual bool SupportsAutomaticShutdown() { return true; }

	/** True for a module with game code. */
	virtual bool IsGameModule() const { return false; }
};
