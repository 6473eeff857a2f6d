// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Delegates/DelegateBase.h"
#include "Delegates/DelegateInstances.h"
#include "UObject/NameTypes.h"
#include "StandIn/FatalHandler.h"

// TDelegate and TMulticastDelegate. User policies are left out. Binding a UFUNCTION by name is refused.

template <typename DelegateSignature>
class TMulticastDelegate;

/** Calls one function: plain, functor or member. */
template <typename DelegateSignature>
class TDelegate;

template <typename RetValType, typename... ParamTypes>
class TDelegate<RetValType(ParamTypes...)> : public FDelegateBase
{
	typedef RetValType FuncType(ParamTypes...);
	typedef IBaseDelegateInstance<FuncType> FInstance;
	template <bool bConst, typename UserClass, typename... VarTypes>
	using TMethod = typename TMemFunPtrType<bConst, UserClass, RetValType(ParamTypes..., VarTypes...)>::Type;

public:
	typedef RetValType RetValType_;
	typedef TDelegate TFuncType;

	/** Unbound. */
	TDelegate() {}
	TDelegate(TYPE_OF_NULLPTR) {}
	TDelegate(TDelegate&&) = default;
	TDelegate(const TDelegate& Other)
		: FDelegateBase()
	{
		*this = Other;
	}
	TDelegate& operator=(TDelegate&&) = default;
	TDelegate& operator=(const TDelegate& Other)
	{
		if (this != &Other)
		{
			const FInstance* OtherInstance = Other.GetTyped();
			FInstance* Copy = OtherInstance != nullptr ? OtherInstance->CreateCopy() : nullptr;
			Unbind();
			this->Instance = Copy;
		}
		return *this;
	}

	/** Binds a plain function; payload values are copied and passed after the call's own arguments. */
	template <typename... VarTypes>
	static TDelegate CreateStatic(RetValType (*InFunc)(ParamTypes..., typename TDecay<VarTypes>::Type...), VarTypes... Vars)
	{
		return Make(new TBaseStaticDelegateInstance<FuncType, VarTypes...>(InFunc, Vars...));
	}

	/** Binds a functor. */
	template <typename FunctorType, typename... VarTypes>
	static TDelegate CreateLambda(FunctorType&& InFunctor, VarTypes... Vars)
	{
		return Make(new TBaseFunctorDelegateInstance<FuncType, typename TDecay<FunctorType>::Type, VarTypes...>(
			Forward<FunctorType>(InFunctor), Vars...));
	}

	/** Binds a functor that is called only while a UObject lives. */
	template <typename UserClass, typename FunctorType, typename... VarTypes>
	static TDelegate CreateWeakLambda(UserClass* InUserObject, FunctorType&& InFunctor, VarTypes... Vars)
	{
		return Make(new TWeakBaseFunctorDelegateInstance<FuncType, UserClass, typename TDecay<FunctorType>::Type, VarTypes...>(
			InUserObject, Forward<FunctorType>(InFunctor), Vars...));
	}

	/** Binds a member function of an object that nobody watches; null is fatal. */
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateRaw(UserClass* InUserObject, TMethod<false, UserClass, VarTypes...> InFunc, VarTypes... Vars)
	{
		static_assert(
			!TIsConst<UserClass>::Value, "Attempting to bind a delegate with a const object pointer and non-const member function.");
		return Make(new TBaseRawMethodDelegateInstance<false, UserClass, FuncType, VarTypes...>(InUserObject, InFunc, Vars...));
	}

	/** Binds a const member function of an object that nobody watches; null is fatal. */
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateRaw(const UserClass* InUserObject, TMethod<true, UserClass, VarTypes...> InFunc, VarTypes... Vars)
	{
		return Make(new TBaseRawMethodDelegateInstance<true, const UserClass, FuncType, VarTypes...>(InUserObject, InFunc, Vars...));
	}

	/** Binds a member function of a shared object, held weakly. */
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateSP(const TSharedRef<UserClass>& InUserObjectRef, TMethod<false, UserClass, VarTypes...> InFunc, VarTypes... Vars)
	{
		return Make(
			new TBaseSPMethodDelegateInstance<false, UserClass, ESPMode::Fast, FuncType, VarTypes...>(InUserObjectRef, InFunc, Vars...));
	}

	/** Binds a const member function of a shared object, held weakly. */
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateSP(const TSharedRef<UserClass>& InUserObjectRef, TMethod<true, UserClass, VarTypes...> InFunc, VarTypes... Vars)
	{
		return Make(new TBaseSPMethodDelegateInstance<true, const UserClass, ESPMode::Fast, FuncType, VarTypes...>(
			TSharedRef<const UserClass>(InUserObjectRef), InFunc, Vars...));
	}

	/** Binds a member function of an object that knows its shared pointer, held weakly. */
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateSP(UserClass* InUserObject, TMethod<false, UserClass, VarTypes...> InFunc, VarTypes... Vars)
	{
		return CreateSP(StaticCastSharedRef<UserClass>(InUserObject->AsShared()), InFunc, Vars...);
	}

	/** Binds a const member function of an object that knows its shared pointer, held weakly. */
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateSP(const UserClass* InUserObject, TMethod<true, UserClass, VarTypes...> InFunc, VarTypes... Vars)
	{
		return Make(new TBaseSPMethodDelegateInstance<true, const UserClass, ESPMode::Fast, FuncType, VarTypes...>(
			StaticCastSharedRef<const UserClass>(InUserObject->AsShared()), InFunc, Vars...));
	}

	/** Binds a member function of an object with thread-safe counts, held weakly. */
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateThreadSafeSP(
		const TSharedRef<UserClass, ESPMode::ThreadSafe>& InUserObjectRef, TMethod<false, UserClass, VarTypes...> InFunc, VarTypes... Vars)
	{
		return Make(new TBaseSPMethodDelegateInstance<false, UserClass, ESPMode::ThreadSafe, FuncType, VarTypes...>(
			InUserObjectRef, InFunc, Vars...));
	}

	/** Binds a const member function of an object with thread-safe counts, held weakly. */
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateThreadSafeSP(
		const TSharedRef<UserClass, ESPMode::ThreadSafe>& InUserObjectRef, TMethod<true, UserClass, VarTypes...> InFunc, VarTypes... Vars)
	{
		return Make(new TBaseSPMethodDelegateInstance<true, const UserClass, ESPMode::ThreadSafe, FuncType, VarTypes...>(
			TSharedRef<const UserClass, ESPMode::ThreadSafe>(InUserObjectRef), InFunc, Vars...));
	}

	/** Binds a member function of an object that knows its thread-safe pointer, held weakly. */
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateThreadSafeSP(UserClass* InUserObject, TMethod<false, UserClass, VarTypes...> InFunc, VarTypes... Vars)
	{
		return CreateThreadSafeSP(StaticCastSharedRef<UserClass>(InUserObject->AsShared()), InFunc, Vars...);
	}

	/** Binds a member function of a UObject, held weakly; null is fatal. */
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateUObject(UserClass* InUserObject, TMethod<false, UserClass, VarTypes...> InFunc, VarTypes... Vars)
	{
		return Make(new TBaseUObjectMethodDelegateInstance<false, UserClass, FuncType, VarTypes...>(InUserObject, InFunc, Vars...));
	}

	/** Binds a const member function of a UObject, held weakly; null is fatal. */
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateUObject(const UserClass* InUserObject, TMethod<true, UserClass, VarTypes...> InFunc, VarTypes... Vars)
	{
		return Make(new TBaseUObjectMethodDelegateInstance<true, const UserClass, FuncType, VarTypes...>(InUserObject, InFunc, Vars...));
	}

	/** Refused: binding a UFUNCTION by name. */
	template <typename UObjectTemplate, typename... VarTypes>
	static TDelegate CreateUFunction(UObjectTemplate*, const FName&, VarTypes...)
	{
		STANDIN_MISSING(TEXT("TDelegate::CreateUFunction"));
	}

	/** Replaces the binding by a plain function. */
	template <typename... ArgTypes>
	void BindStatic(RetValType (*InFunc)(ParamTypes..., typename TDecay<ArgTypes>::Type...), ArgTypes... Args)
	{
		*this = CreateStatic(InFunc, Args...);
	}

	/** Replaces the binding by a functor. */
	template <typename FunctorType, typename... VarTypes>
	void BindLambda(FunctorType&& InFunctor, VarTypes... Vars)
	{
		*this = CreateLambda(Forward<FunctorType>(InFunctor), Vars...);
	}

	/** Replaces the binding by a functor that is called only while a UObject lives. */
	template <typename UserClass, typename FunctorType, typename... VarTypes>
	void BindWeakLambda(UserClass* InUserObject, FunctorType&& InFunctor, VarTypes... Vars)
	{
		*this = CreateWeakLambda(InUserObject, Forward<FunctorType>(InFunctor), Vars...);
	}

#define STANDIN_BIND_MEMBER(Name, NonConstObject, ConstObject) \
	template <typename UserClass, typename... VarTypes> \
	void Bind##Name(NonConstObject, TMethod<false, UserClass, VarTypes...> InFunc, VarTypes... Vars) \
	{ \
		*this = Create##Name(InUserObject, InFunc, Vars...); \
	} \
	template <typename UserClass, typename... VarTypes> \
	void Bind##Name(ConstObject, TMethod<true, UserClass, VarTypes...> InFunc, VarTypes... Vars) \
	{ \
		*this = Create##Name(InUserObject, InFunc, Vars...); \
	}
	STANDIN_BIND_MEMBER(Raw, UserClass* InUserObject, const UserClass* InUserObject)
	STANDIN_BIND_MEMBER(SP, const TSharedRef<UserClass>& InUserObject, const TSharedRef<UserClass>& InUserObject)
	STANDIN_BIND_MEMBER(SP, UserClass* InUserObject, const UserClass* InUserObject)
	STANDIN_BIND_MEMBER(UObject, UserClass* InUserObject, const UserClass* InUserObject)
#undef STANDIN_BIND_MEMBER

	/** Replaces the binding by a member function of an object with thread-safe counts. */
	template <typename UserClass, typename... VarTypes>
	void BindThreadSafeSP(
		const TSharedRef<UserClass, ESPMode::ThreadSafe>& InUserObjectRef, TMethod<false, UserClass, VarTypes...> InFunc, VarTypes... Vars)
	{
		*this = CreateThreadSafeSP(InUserObjectRef, InFunc, Vars...);
	}

	/** Refused: binding a UFUNCTION by name. */
	template <typename UObjectTemplate, typename... VarTypes>
	void BindUFunction(UObjectTemplate*, const FName&, VarTypes...)
	{
		STANDIN_MISSING(TEXT("TDelegate::BindUFunction"));
	}

	/** Whether there is a binding and its object lives. */
	bool IsBound() const
	{
		return this->Instance != nullptr && this->Instance->IsSafeToExecute();
	}

	/** Calls the function; unbound is fatal. */
	RetValType Execute(ParamTypes... Params) const
	{
		const FInstance* LocalDelegateInstance = GetTyped();
		check(LocalDelegateInstance != nullptr);
		return LocalDelegateInstance->Execute(static_cast<ParamTypes&&>(Params)...);
	}

	/** Calls the function if there is one whose object lives; yields whether it did. */
	template <typename DummyRetValType = RetValType, typename = typename TEnableIf<TIsVoidType<DummyRetValType>::Value>::Type>
	bool ExecuteIfBound(ParamTypes... Params) const
	{
		const FInstance* LocalDelegateInstance = GetTyped();
		return LocalDelegateInstance != nullptr && LocalDelegateInstance->ExecuteIfSafe(static_cast<ParamTypes&&>(Params)...);
	}

private:
	static TDelegate Make(FInstance* InInstance)
	{
		TDelegate Result;
		Result.Instance = InInstance;
		return Result;
	}

	const FInstance* GetTyped() const
	{
		return static_cast<const FInstance*>(this->Instance);
	}
};

/** Calls any number of functions, the last added first. */
template <typename DelegateSignature>
class TMulticastDelegate;

template <typename RetValType, typename... ParamTypes>
class TMulticastDelegate<RetValType(ParamTypes...)> : public FMulticastDelegateBase
{
	static_assert(TIsVoidType<RetValType>::Value, "The return type of a multicast delegate must be void");
	template <bool bConst, typename UserClass, typename... VarTypes>
	using TMethod = typename TMemFunPtrType<bConst, UserClass, void(ParamTypes..., VarTypes...)>::Type;

public:
	typedef TDelegate<RetValType(ParamTypes...)> FDelegate;

	TMulticastDelegate() {}
	TMulticastDelegate(const TMulticastDelegate& Other)
		: FMulticastDelegateBase()
	{
		*this = Other;
	}
	TMulticastDelegate(TMulticastDelegate&& Other) { InvocationList = MoveTemp(Other.InvocationList); }
	TMulticastDelegate& operator=(const TMulticastDelegate& Other)
	{
		if (this != &Other)
		{
			Clear();
			for (int32 Index = 0; Index < Other.InvocationList.Num(); ++Index)
			{
				if (Other.GetInstance(Index) != nullptr)
				{
					FDelegate Copy(static_cast<const FDelegate&>(Other.InvocationList[Index]));
					AddInternal(MoveTemp(Copy));
				}
			}
		}
		return *this;
	}
	TMulticastDelegate& operator=(TMulticastDelegate&& Other)
	{
		if (this != &Other)
		{
			InvocationList = MoveTemp(Other.InvocationList);
		}
		return *this;
	}

	/** Adds a binding; an unbound one is not added and gives an invalid handle. */
	FDelegateHandle Add(FDelegate&& InNewDelegate)
	{
		return InNewDelegate.GetHandle().IsValid() ? AddInternal(MoveTemp(InNewDelegate)) : FDelegateHandle();
	}

	/** Adds a copy of a binding; an unbound one is not added and gives an invalid handle. */
	FDelegateHandle Add(const FDelegate& InNewDelegate) { return Add(FDelegate(InNewDelegate)); }

	/** Adds a plain function. */
	template <typename... VarTypes>
	FDelegateHandle AddStatic(void (*InFunc)(ParamTypes..., typename TDecay<VarTypes>::Type...), VarTypes... Vars)
	{
		return Add(FDelegate::CreateStatic(InFunc, Vars...));
	}

	/** Adds a functor. */
	template <typename FunctorType, typename... VarTypes>
	FDelegateHandle AddLambda(FunctorType&& InFunctor, VarTypes... Vars)
	{
		return Add(FDelegate::CreateLambda(Forward<FunctorType>(InFunctor), Vars...));
	}

	/** Adds a functor that is called only while a UObject lives. */
	template <typename UserClass, typename FunctorType, typename... VarTypes>
	FDelegateHandle AddWeakLambda(UserClass* InUserObject, FunctorType&& InFunctor, VarTypes... Vars)
	{
		return Add(FDelegate::CreateWeakLambda(InUserObject, Forward<FunctorType>(InFunctor), Vars...));
	}

#define STANDIN_ADD_MEMBER(Name, NonConstObject, ConstObject) \
	template <typename UserClass, typename... VarTypes> \
	FDelegateHandle Add##Name(NonConstObject, TMethod<false, UserClass, VarTypes...> InFunc, VarTypes... Vars) \
	{ \
		return Add(FDelegate::Create##Name(InUserObject, InFunc, Vars...)); \
	} \
	template <typename UserClass, typename... VarTypes> \
	FDelegateHandle Add##Name(ConstObject, TMethod<true, UserClass, VarTypes...> InFunc, VarTypes... Vars) \
	{ \
		return Add(FDelegate::Create##Name(InUserObject, InFunc, Vars...)); \
	}
	STANDIN_ADD_MEMBER(Raw, UserClass* InUserObject, const UserClass* InUserObject)
	STANDIN_ADD_MEMBER(SP, const TSharedRef<UserClass>& InUserObject, const TSharedRef<UserClass>& InUserObject)
	STANDIN_ADD_MEMBER(SP, UserClass* InUserObject, const UserClass* InUserObject)
	STANDIN_ADD_MEMBER(UObject, UserClass* InUserObject, const UserClass* InUserObject)
#undef STANDIN_ADD_MEMBER

	/** Adds a member function of an object with thread-safe counts. */
	template <typename UserClass, typename... VarTypes>
	FDelegateHandle AddThreadSafeSP(
		const TSharedRef<UserClass, ESPMode::ThreadSafe>& InUserObjectRef, TMethod<false, UserClass, VarTypes...> InFunc, VarTypes... Vars)
	{
		return Add(FDelegate::CreateThreadSafeSP(InUserObjectRef, InFunc, Vars...));
	}

	/** Refused: adding a UFUNCTION by name. */
	template <typename UObjectTemplate, typename... VarTypes>
	FDelegateHandle AddUFunction(UObjectTemplate*, const FName&, VarTypes...)
	{
		STANDIN_MISSING(TEXT("TMulticastDelegate::AddUFunction"));
	}

	/** Removes a binding; yields whether it was there. */
	bool Remove(FDelegateHandle Handle)
	{
		return Handle.IsValid() && RemoveInternal(Handle);
	}

	/** Calls the bindings, the last added first; those added meanwhile are not called, those removed meanwhile neither. */
	void Broadcast(ParamTypes... Params) const
	{
		bool bNeedsCompaction = false;
		LockInvocationList();
		for (int32 Index = InvocationList.Num() - 1; Index >= 0; --Index)
		{
			const auto* DelegateInstance = static_cast<const IBaseDelegateInstance<void(ParamTypes...)>*>(GetInstance(Index));
			if (DelegateInstance == nullptr || !DelegateInstance->ExecuteIfSafe(Params...))
			{
				bNeedsCompaction = true;
			}
		}
		UnlockInvocationList();
		if (bNeedsCompaction)
		{
			const_cast<TMulticastDelegate*>(this)->CompactInvocationList();
		}
	}
};
