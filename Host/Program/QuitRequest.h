// Copyright The Tintmill authors. All rights reserved.

#pragma once

// Somebody wants the program to end: Ctrl-C or SIGTERM, on Windows also the console's close button, logging off, shutting down.
// The first request is only noted, so that the program can leave in the engine's order; a second one ends it at once.

namespace TintmillHost
{
/** Notes requests while it lives; one object at a time. */
class FQuitRequest
{
public:
	FQuitRequest();
	~FQuitRequest();
	FQuitRequest(const FQuitRequest&) = delete;
	FQuitRequest& operator=(const FQuitRequest&) = delete;

	/** Whether somebody wants the program to end; never false again once it was true. */
	static bool IsRequested();

	/** The exit code that tells a caller why the program ended, 128 and the signal's number; 0 without a request. */
	static int GetExitCode();
};
}
