// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <chrono>
#include <thread>

// Files that other programs hold: virus scanners and indexers do it for moments.

namespace StandInPrivate
{
/** Tries up to five times within some 185 ms; Try returns whether another program was in the way, and so whether to try again. */
template <typename TryType>
void TryWhileHeld(const TryType& Try)
{
	for (const int Pause : {5, 20, 50, 110})
	{
		if (!Try())
		{
			return;
		}
		std::this_thread::sleep_for(std::chrono::milliseconds(Pause));
	}
	Try();
}
}
