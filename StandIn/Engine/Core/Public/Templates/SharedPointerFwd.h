// Copyright The Tintmill authors. All rights reserved.

#pragma once

// Forward declarations of the shared pointers; the default mode is Fast.

/** How references are counted: Fast without, ThreadSafe with atomic counters. */
enum class ESPMode
{
	NotThreadSafe = 0,
	ThreadSafe = 1,
	Fast = 0
};

template <class ObjectType, ESPMode Mode = ESPMode::Fast>
class TSharedRef;
template <class ObjectType, ESPMode Mode = ESPMode::Fast>
class TSharedPtr;
template <class ObjectType, ESPMode Mode = ESPMode::Fast>
class TWeakPtr;
template <class ObjectType, ESPMode Mode = ESPMode::Fast>
class TSharedFromThis;
