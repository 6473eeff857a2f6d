// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Delegates/Delegate.h"

// Core's global events, as far as the editor's start, frames and exit go; who fires them is the engine loop.
// All are plain static members, listed by StandIn/Registrations.h.

/** Core's global events. */
class CORE_API FCoreDelegates
{
public:
	/** At the very end of engine initialisation, before the first tick; not for commandlets. */
	static FSimpleMulticastDelegate OnFEngineLoopInitComplete;
	/** After the engine has been initialised, before modules of phase PostEngineInit. */
	static FSimpleMulticastDelegate OnPostEngineInit;
	static FSimpleMulticastDelegate OnAllModuleLoadingPhasesComplete;
	static FSimpleMulticastDelegate OnInit;
	/** Before the engine object shuts down. */
	static FSimpleMulticastDelegate OnEnginePreExit;
	/** When the application starts to exit. */
	static FSimpleMulticastDelegate OnPreExit;
	/** When the application exits, the last event before the object system is torn down. */
	static FSimpleMulticastDelegate OnExit;
	static FSimpleMulticastDelegate OnBeginFrame;
	static FSimpleMulticastDelegate OnEndFrame;
	/** When the configuration has been read for the first time. */
	static FSimpleMulticastDelegate ConfigReadyForUse;

private:
	// Global events only.
	FCoreDelegates() {}
};
