// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "HAL/Platform.h"

// Forward declarations of the containers, with their default arguments.

template <int IndexSize>
class TSizedDefaultAllocator;
typedef TSizedDefaultAllocator<32> FDefaultAllocator;
typedef FDefaultAllocator FHeapAllocator;
class FDefaultSetAllocator;

class FString;

template <typename T, typename Allocator = FDefaultAllocator>
class TArray;
template <typename InElementType>
class TArrayView;
template <typename T>
using TConstArrayView = TArrayView<const T>;

template <typename KeyType, typename ValueType, bool bInAllowDuplicateKeys>
struct TDefaultMapHashableKeyFuncs;
template <typename KeyType, typename ValueType, typename SetAllocator = FDefaultSetAllocator,
	typename KeyFuncs = TDefaultMapHashableKeyFuncs<KeyType, ValueType, false>>
class TMap;
template <typename KeyType, typename ValueType, typename SetAllocator = FDefaultSetAllocator,
	typename KeyFuncs = TDefaultMapHashableKeyFuncs<KeyType, ValueType, true>>
class TMultiMap;

template <typename ElementType, bool bInAllowDuplicateKeys = false>
struct DefaultKeyFuncs;
template <typename InElementType, typename KeyFuncs = DefaultKeyFuncs<InElementType>, typename Allocator = FDefaultSetAllocator>
class TSet;
