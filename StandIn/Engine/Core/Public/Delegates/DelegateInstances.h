// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Delegates/IDelegateInstance.h"
#include "Misc/AssertionMacros.h"
#include "Templates/Invoke.h"
#include "Templates/SharedPointer.h"
#include <tuple>
#include <utility>

// The kinds of bindings: static function, functor, weak functor, raw, shared-pointer and UObject member. The UObject kinds need
// "UObject/WeakObjectPtrTemplates.h" where they are used.

struct FWeakObjectPtr;
template <class T, class TWeakObjectPtrBase>
struct TWeakObjectPtr;

namespace UE4Delegates_Private
{
/** Calls a callable with arguments followed by a tuple's values. */
template <typename RetType, typename Callable, typename TupleType, std::size_t... Indices, typename... ArgTypes>
RetType CallWithPayload(Callable&& Func, TupleType& Payload, std::index_sequence<Indices...>, ArgTypes&&... Args)
{
	return Invoke(Func, static_cast<ArgTypes&&>(Args)..., std::get<Indices>(Payload)...);
}
}

/** A binding of a given signature. */
template <typename FuncType>
class IBaseDelegateInstance;

template <typename RetType, typename... ArgTypes>
class IBaseDelegateInstance<RetType(ArgTypes...)> : public IDelegateInstance
{
public:
	/** A copy with the same handle. */
	virtual IBaseDelegateInstance* CreateCopy() const = 0;

	/** Calls the function; its object must live. */
	virtual RetType Execute(ArgTypes... Args) const = 0;

	/** Calls the function if its object lives; yields whether it did. */
	virtual bool ExecuteIfSafe(ArgTypes... Args) const = 0;
};

/** What the bindings share: handle and payload. */
template <typename FuncType, typename... VarTypes>
class TCommonDelegateInstanceState;

template <typename RetType, typename... ArgTypes, typename... VarTypes>
class TCommonDelegateInstanceState<RetType(ArgTypes...), VarTypes...> : public IBaseDelegateInstance<RetType(ArgTypes...)>
{
public:
	explicit TCommonDelegateInstanceState(VarTypes... Vars)
		: Payload(Vars...)
		, Handle(FDelegateHandle::GenerateNewHandle)
	{}

	virtual UObject* GetUObject() const override { return nullptr; }
	virtual const void* GetObjectForTimerManager() const override { return nullptr; }
	virtual bool HasSameObject(const void*) const override { return false; }
	virtual bool IsSafeToExecute() const override { return true; }
	virtual FDelegateHandle GetHandle() const override { return Handle; }

protected:
	/** Calls Func (and, for members, an object) with the arguments and the payload. */
	template <typename Callable, typename... CallArgTypes>
	RetType Call(Callable&& Func, CallArgTypes&&... Args) const
	{
		return UE4Delegates_Private::CallWithPayload<RetType>(
			Func, Payload, std::index_sequence_for<VarTypes...>(), static_cast<CallArgTypes&&>(Args)...);
	}

private:
	mutable std::tuple<VarTypes...> Payload;
	FDelegateHandle Handle;
};

/** Binding of a plain function. */
template <typename FuncType, typename... VarTypes>
class TBaseStaticDelegateInstance;

template <typename RetType, typename... ArgTypes, typename... VarTypes>
class TBaseStaticDelegateInstance<RetType(ArgTypes...), VarTypes...>
	: public TCommonDelegateInstanceState<RetType(ArgTypes...), VarTypes...>
{
public:
	typedef RetType (*FFuncPtr)(ArgTypes..., VarTypes...);

	explicit TBaseStaticDelegateInstance(FFuncPtr InStaticFuncPtr, VarTypes... Vars)
		: TCommonDelegateInstanceState<RetType(ArgTypes...), VarTypes...>(Vars...)
		, StaticFuncPtr(InStaticFuncPtr)
	{
		check(StaticFuncPtr != nullptr);
	}

	virtual TBaseStaticDelegateInstance* CreateCopy() const override { return new TBaseStaticDelegateInstance(*this); }
	virtual RetType Execute(ArgTypes... Args) const override { return this->Call(StaticFuncPtr, static_cast<ArgTypes&&>(Args)...); }
	virtual bool ExecuteIfSafe(ArgTypes... Args) const override
	{
		this->Call(StaticFuncPtr, static_cast<ArgTypes&&>(Args)...);
		return true;
	}

private:
	FFuncPtr StaticFuncPtr;
};

/** Binding of a functor. */
template <typename FuncType, typename FunctorType, typename... VarTypes>
class TBaseFunctorDelegateInstance;

template <typename RetType, typename... ArgTypes, typename FunctorType, typename... VarTypes>
class TBaseFunctorDelegateInstance<RetType(ArgTypes...), FunctorType, VarTypes...>
	: public TCommonDelegateInstanceState<RetType(ArgTypes...), VarTypes...>
{
public:
	template <typename InFunctorType>
	explicit TBaseFunctorDelegateInstance(InFunctorType&& InFunctor, VarTypes... Vars)
		: TCommonDelegateInstanceState<RetType(ArgTypes...), VarTypes...>(Vars...)
		, Functor(Forward<InFunctorType>(InFunctor))
	{}

	virtual TBaseFunctorDelegateInstance* CreateCopy() const override { return new TBaseFunctorDelegateInstance(*this); }
	virtual RetType Execute(ArgTypes... Args) const override { return this->Call(Functor, static_cast<ArgTypes&&>(Args)...); }
	virtual bool ExecuteIfSafe(ArgTypes... Args) const override
	{
		this->Call(Functor, static_cast<ArgTypes&&>(Args)...);
		return true;
	}

private:
	mutable FunctorType Functor;
};

/** Binding of a functor that is called only while a UObject lives. */
template <typename FuncType, typename UserClass, typename FunctorType, typename... VarTypes>
class TWeakBaseFunctorDelegateInstance;

template <typename RetType, typename... ArgTypes, typename UserClass, typename FunctorType, typename... VarTypes>
class TWeakBaseFunctorDelegateInstance<RetType(ArgTypes...), UserClass, FunctorType, VarTypes...>
	: public TCommonDelegateInstanceState<RetType(ArgTypes...), VarTypes...>
{
public:
	template <typename InFunctorType>
	TWeakBaseFunctorDelegateInstance(UserClass* InContextObject, InFunctorType&& InFunctor, VarTypes... Vars)
		: TCommonDelegateInstanceState<RetType(ArgTypes...), VarTypes...>(Vars...)
		, ContextObject(InContextObject)
		, Functor(Forward<InFunctorType>(InFunctor))
	{}

	virtual UObject* GetUObject() const override { return (UObject*)ContextObject.Get(); }
	virtual const void* GetObjectForTimerManager() const override { return ContextObject.Get(); }
	virtual bool HasSameObject(const void* InContextObject) const override { return ContextObject.Get() == InContextObject; }
	virtual bool IsCompactable() const override { return !ContextObject.Get(true); }
	virtual bool IsSafeToExecute() const override { return ContextObject.IsValid(); }
	virtual TWeakBaseFunctorDelegateInstance* CreateCopy() const override { return new TWeakBaseFunctorDelegateInstance(*this); }
	virtual RetType Execute(ArgTypes... Args) const override { return this->Call(Functor, static_cast<ArgTypes&&>(Args)...); }
	virtual bool ExecuteIfSafe(ArgTypes... Args) const override
	{
		if (!ContextObject.IsValid())
		{
			return false;
		}
		this->Call(Functor, static_cast<ArgTypes&&>(Args)...);
		return true;
	}

private:
	TWeakObjectPtr<UserClass, FWeakObjectPtr> ContextObject;
	mutable FunctorType Functor;
};

/** Binding of a member function of an object that nobody watches. */
template <bool bConst, class UserClass, typename FuncType, typename... VarTypes>
class TBaseRawMethodDelegateInstance;

template <bool bConst, class UserClass, typename RetType, typename... ArgTypes, typename... VarTypes>
class TBaseRawMethodDelegateInstance<bConst, UserClass, RetType(ArgTypes...), VarTypes...>
	: public TCommonDelegateInstanceState<RetType(ArgTypes...), VarTypes...>
{
	static_assert(!TPointerIsConvertibleFromTo<UserClass, const UObjectBase>::Value, "You cannot use raw method delegates with UObjects.");

public:
	typedef typename TMemFunPtrType<bConst, UserClass, RetType(ArgTypes..., VarTypes...)>::Type FMethodPtr;

	TBaseRawMethodDelegateInstance(UserClass* InUserObject, FMethodPtr InMethodPtr, VarTypes... Vars)
		: TCommonDelegateInstanceState<RetType(ArgTypes...), VarTypes...>(Vars...)
		, UserObject(InUserObject)
		, MethodPtr(InMethodPtr)
	{
		check(InUserObject != nullptr && MethodPtr != nullptr);
	}

	virtual const void* GetObjectForTimerManager() const override { return UserObject; }
	virtual bool HasSameObject(const void* InUserObject) const override { return UserObject == InUserObject; }
	virtual TBaseRawMethodDelegateInstance* CreateCopy() const override { return new TBaseRawMethodDelegateInstance(*this); }
	virtual RetType Execute(ArgTypes... Args) const override { return this->Call(MethodPtr, UserObject, static_cast<ArgTypes&&>(Args)...); }
	virtual bool ExecuteIfSafe(ArgTypes... Args) const override
	{
		this->Call(MethodPtr, UserObject, static_cast<ArgTypes&&>(Args)...);
		return true;
	}

private:
	UserClass* UserObject;
	FMethodPtr MethodPtr;
};

/** Binding of a member function of an object that shared pointers own; holds it weakly. */
template <bool bConst, class UserClass, ESPMode SPMode, typename FuncType, typename... VarTypes>
class TBaseSPMethodDelegateInstance;

template <bool bConst, class UserClass, ESPMode SPMode, typename RetType, typename... ArgTypes, typename... VarTypes>
class TBaseSPMethodDelegateInstance<bConst, UserClass, SPMode, RetType(ArgTypes...), VarTypes...>
	: public TCommonDelegateInstanceState<RetType(ArgTypes...), VarTypes...>
{
public:
	typedef typename TMemFunPtrType<bConst, UserClass, RetType(ArgTypes..., VarTypes...)>::Type FMethodPtr;

	TBaseSPMethodDelegateInstance(const TSharedPtr<UserClass, SPMode>& InUserObject, FMethodPtr InMethodPtr, VarTypes... Vars)
		: TCommonDelegateInstanceState<RetType(ArgTypes...), VarTypes...>(Vars...)
		, UserObject(InUserObject)
		, MethodPtr(InMethodPtr)
	{
		check(MethodPtr != nullptr);
	}

	virtual const void* GetObjectForTimerManager() const override { return UserObject.Pin().Get(); }
	virtual bool HasSameObject(const void* InUserObject) const override { return UserObject.HasSameObject(InUserObject); }
	virtual bool IsSafeToExecute() const override { return UserObject.IsValid(); }
	virtual TBaseSPMethodDelegateInstance* CreateCopy() const override { return new TBaseSPMethodDelegateInstance(*this); }
	virtual RetType Execute(ArgTypes... Args) const override
	{
		const TSharedPtr<UserClass, SPMode> SharedUserObject(UserObject.Pin());
		check(SharedUserObject.IsValid());
		return this->Call(MethodPtr, SharedUserObject.Get(), static_cast<ArgTypes&&>(Args)...);
	}
	virtual bool ExecuteIfSafe(ArgTypes... Args) const override
	{
		const TSharedPtr<UserClass, SPMode> SharedUserObject(UserObject.Pin());
		if (!SharedUserObject.IsValid())
		{
			return false;
		}
		this->Call(MethodPtr, SharedUserObject.Get(), static_cast<ArgTypes&&>(Args)...);
		return true;
	}

private:
	TWeakPtr<UserClass, SPMode> UserObject;
	FMethodPtr MethodPtr;
};

/** Binding of a member function of a UObject; holds it weakly. */
template <bool bConst, class UserClass, typename FuncType, typename... VarTypes>
class TBaseUObjectMethodDelegateInstance;

template <bool bConst, class UserClass, typename RetType, typename... ArgTypes, typename... VarTypes>
class TBaseUObjectMethodDelegateInstance<bConst, UserClass, RetType(ArgTypes...), VarTypes...>
	: public TCommonDelegateInstanceState<RetType(ArgTypes...), VarTypes...>
{
	static_assert(
		TPointerIsConvertibleFromTo<UserClass, const UObjectBase>::Value, "You cannot use UObject method delegates with raw pointers.");

public:
	typedef typename TMemFunPtrType<bConst, UserClass, RetType(ArgTypes..., VarTypes...)>::Type FMethodPtr;

	TBaseUObjectMethodDelegateInstance(UserClass* InUserObject, FMethodPtr InMethodPtr, VarTypes... Vars)
		: TCommonDelegateInstanceState<RetType(ArgTypes...), VarTypes...>(Vars...)
		, UserObject(InUserObject)
		, MethodPtr(InMethodPtr)
	{
		check(InUserObject != nullptr && MethodPtr != nullptr);
	}

	virtual UObject* GetUObject() const override { return (UObject*)UserObject.Get(); }
	virtual const void* GetObjectForTimerManager() const override { return UserObject.Get(); }
	virtual bool HasSameObject(const void* InUserObject) const override { return UserObject.Get() == InUserObject; }
	virtual bool IsCompactable() const override { return !UserObject.Get(true); }
	virtual bool IsSafeToExecute() const override { return UserObject.IsValid(); }
	virtual TBaseUObjectMethodDelegateInstance* CreateCopy() const override { return new TBaseUObjectMethodDelegateInstance(*this); }
	virtual RetType Execute(ArgTypes... Args) const override
	{
		check(UserObject.IsValid());
		return this->Call(MethodPtr, UserObject.Get(), static_cast<ArgTypes&&>(Args)...);
	}
	virtual bool ExecuteIfSafe(ArgTypes... Args) const override
	{
		UserClass* ActualUserObject = UserObject.Get();
		if (ActualUserObject == nullptr)
		{
			return false;
		}
		this->Call(MethodPtr, ActualUserObject, static_cast<ArgTypes&&>(Args)...);
		return true;
	}

private:
	TWeakObjectPtr<UserClass, FWeakObjectPtr> UserObject;
	FMethodPtr MethodPtr;
};
