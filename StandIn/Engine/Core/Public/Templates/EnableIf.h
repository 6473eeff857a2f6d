// Copyright The Tintmill authors. All rights reserved.

#pragma once

// Chooses overloads by a compile-time condition.

/** Has a member Type only if Predicate is true. */
template <bool Predicate, typename Result = void>
class TEnableIf;

template <typename Result>
class TEnableIf<true, Result>
{
public:
	typedef Result Type;
};

template <typename Result>
class TEnableIf<false, Result>
{};
