// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Templates/UnrealTemplate.h"

// Runs code when a scope is left.

namespace ScopeExitSupport
{
/** Calls a functor when it goes out of scope. */
template <typename FuncType>
class TScopeGuard : public FNoncopyable
{
public:
	explicit TScopeGuard(FuncType&& InFunc)
		: Func(static_cast<FuncType&&>(InFunc))
	{}
	TScopeGuard(TScopeGuard&& Other)
		: Func(static_cast<FuncType&&>(Other.Func))
		, bArmed(Other.bArmed)
	{
		Other.bArmed = false;
	}
	~TScopeGuard()
	{
		if (bArmed)
		{
			Func();
		}
	}

private:
	FuncType Func;
	bool bArmed = true;
};

struct FScopeGuardSyntaxSupport
{
	template <typename FuncType>
	TScopeGuard<FuncType> operator+(FuncType&& InFunc)
	{
		return TScopeGuard<FuncType>(static_cast<FuncType&&>(InFunc));
	}
};
}

/** Runs the block that follows when the scope is left. */
#define ON_SCOPE_EXIT const auto PREPROCESSOR_JOIN(ScopeGuard_, __LINE__) = ::ScopeExitSupport::FScopeGuardSyntaxSupport() + [&]()
