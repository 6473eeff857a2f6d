// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Delegates/IDelegateInstance.h"
#include "Misc/AssertionMacros.h"
#include "StandIn/FatalHandler.h"
#include "Templates/SharedPointer.h"
#include "Templates/UnrealTemplate.h"
#include "UObject/UObjectHierarchyFwd.h"

#include <tuple>
#include <type_traits>
#include <utility>

// The kinds of binding that a delegate can hold. A binding never changes once it is made. Payload values are copied at the
// binding and handed over after the call's own arguments.

struct FWeakObjectPtr;
template <class T, class TWeakObjectPtrBase>
struct TWeakObjectPtr;

namespace UE4Delegates_Private
{
/** What every binding can do. */
template <typename RetValType, typename... ParamTypes>
class IBinding
{
public:
	IBinding() : Handle(FDelegateHandle::GenerateNewHandle) {}
	IBinding(const IBinding&) = default;
	IBinding& operator=(const IBinding&) = delete;
	virtual ~IBinding() {}

	/** Calls the bound function. */
	virtual RetValType Execute(ParamTypes... Params) const = 0;

	/** Makes a binding that calls the same and has the same handle. */
	virtual IBinding* Clone() const = 0;

	/** Says whether the object is still there, as far as the kind of binding can tell. */
	virtual bool IsSafeToExecute() const { return true; }

	/** The bound object's address; null for bindings without one and for objects that are gone. */
	virtual const void* GetUserObject() const { return nullptr; }

	/** The bound object when it is a UObject. */
	virtual UObject* GetUObject() const { return nullptr; }

	/** The handle by which the binding is known. */
	FDelegateHandle GetHandle() const { return Handle; }

private:
	FDelegateHandle Handle;
};

/** A member function pointer's type for a class that may be const. */
template <bool bConst, typename Class, typename Signature>
struct TMemFunPtr;
template <typename Class, typename Ret, typename... Args>
struct TMemFunPtr<false, Class, Ret(Args...)>
{
	typedef Ret (Class::*Type)(Args...);
};
template <typename Class, typename Ret, typename... Args>
struct TMemFunPtr<true, Class, Ret(Args...)>
{
	typedef Ret (Class::*Type)(Args...) const;
};

/** Adds the payload's types to the end of a signature's. */
template <typename FuncType, typename... VarTypes>
struct TWithPayload;
template <typename Ret, typename... Params, typename... VarTypes>
struct TWithPayload<Ret(Params...), VarTypes...>
{
	typedef Ret Type(Params..., VarTypes...);
};

/** A functor (lambda, function pointer) with payload. */
template <typename Functor, typename Signature, typename... VarTypes>
class TFunctorBinding;
template <typename Functor, typename Ret, typename... Params, typename... VarTypes>
class TFunctorBinding<Functor, Ret(Params...), VarTypes...> : public IBinding<Ret, Params...>
{
public:
	template <typename InFunctor, typename... InVars>
	explicit TFunctorBinding(InFunctor&& InFunc, InVars&&... Vars)
		: Func(Forward<InFunctor>(InFunc))
		, Payload(Forward<InVars>(Vars)...)
	{
	}

	virtual Ret Execute(Params... InParams) const override
	{
		return Call(std::index_sequence_for<VarTypes...>(), Forward<Params>(InParams)...);
	}
	virtual IBinding<Ret, Params...>* Clone() const override { return new TFunctorBinding(*this); }

private:
	template <size_t... Indices>
	Ret Call(std::index_sequence<Indices...>, Params... InParams) const
	{
		return Func(Forward<Params>(InParams)..., std::get<Indices>(Payload)...);
	}

	mutable typename std::decay<Functor>::type Func;
	mutable std::tuple<VarTypes...> Payload;
};

/** Holds a raw address: the owner answers for the object's life. */
template <typename UserClass>
class TRawHolder
{
public:
	explicit TRawHolder(UserClass* InObject) : Object(InObject) {}
	bool IsAlive() const { return true; }
	const void* Identity() const { return Object; }
	UObject* AsUObject() const { return nullptr; }
	UserClass* Pin() const { return Object; }

private:
	UserClass* Object;
};

/** Holds a shared object weakly. */
template <typename UserClass, ESPMode Mode>
class TSharedHolder
{
public:
	explicit TSharedHolder(const TSharedRef<UserClass, Mode>& InObject) : Object(InObject) {}
	bool IsAlive() const { return Object.IsValid(); }
	const void* Identity() const { return Object.Pin().Get(); }
	UObject* AsUObject() const { return nullptr; }
	TSharedPtr<UserClass, Mode> Pin() const { return Object.Pin(); }

private:
	TWeakPtr<UserClass, Mode> Object;
};

/** Holds an object of the object system weakly. */
template <typename UserClass>
class TObjectHolder
{
public:
	explicit TObjectHolder(UserClass* InObject) : Object(InObject) {}
	bool IsAlive() const { return Object.IsValid(); }
	const void* Identity() const { return Object.Get(); }
	UObject* AsUObject() const { return (UObject*)Object.Get(); }
	UserClass* Pin() const { return Object.Get(); }

private:
	TWeakObjectPtr<UserClass, FWeakObjectPtr> Object;
};

/** A member function of a held object, with payload. */
template <typename Holder, typename MethodPtrType, typename Signature, typename... VarTypes>
class TMethodBinding;
template <typename Holder, typename MethodPtrType, typename Ret, typename... Params, typename... VarTypes>
class TMethodBinding<Holder, MethodPtrType, Ret(Params...), VarTypes...> : public IBinding<Ret, Params...>
{
public:
	template <typename... InVars>
	TMethodBinding(const Holder& InObject, MethodPtrType InMethod, InVars&&... Vars)
		: Object(InObject)
		, Method(InMethod)
		, Payload(Forward<InVars>(Vars)...)
	{
	}

	virtual Ret Execute(Params... InParams) const override
	{
		return Call(std::index_sequence_for<VarTypes...>(), Forward<Params>(InParams)...);
	}
	virtual IBinding<Ret, Params...>* Clone() const override { return new TMethodBinding(*this); }
	virtual bool IsSafeToExecute() const override { return Object.IsAlive(); }
	virtual const void* GetUserObject() const override { return Object.Identity(); }
	virtual UObject* GetUObject() const override { return Object.AsUObject(); }

private:
	template <size_t... Indices>
	Ret Call(std::index_sequence<Indices...>, Params... InParams) const
	{
		// A shared object is kept alive for the length of the call.
		const auto Pinned = Object.Pin();
		return ((*Pinned).*Method)(Forward<Params>(InParams)..., std::get<Indices>(Payload)...);
	}

	Holder Object;
	MethodPtrType Method;
	mutable std::tuple<VarTypes...> Payload;
};

/** A functor that is called only while an object of the object system lives. */
template <typename UserClass, typename Functor, typename Signature, typename... VarTypes>
class TWeakFunctorBinding;
template <typename UserClass, typename Functor, typename Ret, typename... Params, typename... VarTypes>
class TWeakFunctorBinding<UserClass, Functor, Ret(Params...), VarTypes...>
	: public TFunctorBinding<Functor, Ret(Params...), VarTypes...>
{
public:
	template <typename InFunctor, typename... InVars>
	TWeakFunctorBinding(UserClass* InObject, InFunctor&& InFunc, InVars&&... Vars)
		: TFunctorBinding<Functor, Ret(Params...), VarTypes...>(Forward<InFunctor>(InFunc), Forward<InVars>(Vars)...)
		, Object(InObject)
	{
	}

	virtual IBinding<Ret, Params...>* Clone() const override { return new TWeakFunctorBinding(*this); }
	virtual bool IsSafeToExecute() const override { return Object.IsAlive(); }
	virtual const void* GetUserObject() const override { return Object.Identity(); }
	virtual UObject* GetUObject() const override { return Object.AsUObject(); }

private:
	TObjectHolder<UserClass> Object;
};

/** Fails as the engine does when a member function is bound to nothing. */
template <typename UserClass, typename MethodPtrType>
inline void CheckUserObject(UserClass* InUserObject, MethodPtrType MethodPtr)
{
	check(InUserObject != nullptr && MethodPtr != nullptr);
}
}
