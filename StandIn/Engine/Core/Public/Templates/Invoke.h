// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Templates/UnrealTemplate.h"

// Calls anything that can be called: functions, functors, pointers to members.

namespace StandIn
{
template <typename BaseType, typename CallableType>
auto DereferenceForInvoke(CallableType&& Callable, int) ->
	typename TEnableIf<TPointerIsConvertibleFromTo<typename TRemoveReference<CallableType>::Type, const BaseType>::Value,
		CallableType&&>::Type
{
	return static_cast<CallableType&&>(Callable);
}

template <typename BaseType, typename CallableType>
auto DereferenceForInvoke(CallableType&& Callable, long) -> decltype(*static_cast<CallableType&&>(Callable))
{
	return *static_cast<CallableType&&>(Callable);
}
}

/** Calls a function or functor. */
template <typename FuncType, typename... ArgTypes>
auto Invoke(FuncType&& Func, ArgTypes&&... Args) -> decltype(Forward<FuncType>(Func)(Forward<ArgTypes>(Args)...))
{
	return Forward<FuncType>(Func)(Forward<ArgTypes>(Args)...);
}

/** Reads a data member of an object or of what a pointer points at. */
template <typename ReturnType, typename ObjType, typename CallableType>
auto Invoke(ReturnType ObjType::*Member, CallableType&& Callable)
	-> decltype(StandIn::DereferenceForInvoke<ObjType>(Forward<CallableType>(Callable), 0).*Member)
{
	return StandIn::DereferenceForInvoke<ObjType>(Forward<CallableType>(Callable), 0).*Member;
}

/** Calls a member function of an object or of what a pointer points at. */
template <typename ReturnType, typename ObjType, typename... ParamTypes, typename CallableType, typename... ArgTypes>
auto Invoke(ReturnType (ObjType::*Func)(ParamTypes...), CallableType&& Callable, ArgTypes&&... Args)
	-> decltype((StandIn::DereferenceForInvoke<ObjType>(Forward<CallableType>(Callable), 0).*Func)(Forward<ArgTypes>(Args)...))
{
	return (StandIn::DereferenceForInvoke<ObjType>(Forward<CallableType>(Callable), 0).*Func)(Forward<ArgTypes>(Args)...);
}

/** Calls a const member function of an object or of what a pointer points at. */
template <typename ReturnType, typename ObjType, typename... ParamTypes, typename CallableType, typename... ArgTypes>
auto Invoke(ReturnType (ObjType::*Func)(ParamTypes...) const, CallableType&& Callable, ArgTypes&&... Args)
	-> decltype((StandIn::DereferenceForInvoke<ObjType>(Forward<CallableType>(Callable), 0).*Func)(Forward<ArgTypes>(Args)...))
{
	return (StandIn::DereferenceForInvoke<ObjType>(Forward<CallableType>(Callable), 0).*Func)(Forward<ArgTypes>(Args)...);
}
