// Copyright The Tintmill authors. All rights reserved.

#pragma once

// Forward declarations of the type-erased callables.

template <typename FuncType>
class TFunction;
template <typename FuncType>
class TUniqueFunction;
template <typename FuncType>
class TFunctionRef;
