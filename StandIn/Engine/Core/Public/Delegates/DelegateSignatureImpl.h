// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Delegates/DelegateInstances.h"
#include "Delegates/IDelegateInstance.h"
#include "Templates/SharedPointer.h"
#include "Templates/UniquePtr.h"
#include "UObject/NameTypes.h"

// Delegates and multicast delegates. Left out: dynamic (reflected) delegates, and bindings to a reflected function by name,
// which are refused. Multicast calls run from the binding added last to the one added first; a removal outside of a call moves the last binding
// into the hole. Both are what 4.27 does without promising it.

template <typename DelegateSignature>
class TDelegate;
template <typename DelegateSignature>
class TMulticastDelegate;

/** A reference to at most one function to call. */
template <typename RetValType, typename... ParamTypes>
class TDelegate<RetValType(ParamTypes...)>
{
	typedef RetValType FSignature(ParamTypes...);
	typedef UE4Delegates_Private::IBinding<RetValType, ParamTypes...> FBinding;
	template <bool bConst, typename Class, typename... VarTypes>
	using TMethod = typename UE4Delegates_Private::TMemFunPtr<bConst, Class,
		typename UE4Delegates_Private::TWithPayload<FSignature, typename std::decay<VarTypes>::type...>::Type>::Type;

public:
	typedef RetValType RetValueType;

	TDelegate() = default;
	TDelegate(TYPE_OF_NULLPTR) {}
	TDelegate(TDelegate&&) = default;
	TDelegate& operator=(TDelegate&&) = default;
	TDelegate(const TDelegate& Other) : Binding(Other.Binding.IsValid() ? Other.Binding->Clone() : nullptr) {}
	TDelegate& operator=(const TDelegate& Other)
	{
		if (&Other != this)
		{
			Binding.Reset(Other.Binding.IsValid() ? Other.Binding->Clone() : nullptr);
		}
		return *this;
	}

	/** A delegate that calls a free function. */
	template <typename... VarTypes>
	static TDelegate CreateStatic(
		typename UE4Delegates_Private::TWithPayload<FSignature, typename std::decay<VarTypes>::type...>::Type* InFunc, VarTypes&&... Vars)
	{
		check(InFunc != nullptr);
		return CreateLambda(InFunc, Forward<VarTypes>(Vars)...);
	}

	/** A delegate that calls a functor. */
	template <typename FunctorType, typename... VarTypes>
	static TDelegate CreateLambda(FunctorType&& InFunctor, VarTypes&&... Vars)
	{
		typedef UE4Delegates_Private::TFunctorBinding<typename std::decay<FunctorType>::type, FSignature,
			typename std::decay<VarTypes>::type...>
			FImpl;
		return TDelegate(new FImpl(Forward<FunctorType>(InFunctor), Forward<VarTypes>(Vars)...));
	}

	/** A delegate that calls a functor while the object lives. */
	template <typename UserClass, typename FunctorType, typename... VarTypes>
	static TDelegate CreateWeakLambda(UserClass* InUserObject, FunctorType&& InFunctor, VarTypes&&... Vars)
	{
		typedef UE4Delegates_Private::TWeakFunctorBinding<UserClass, typename std::decay<FunctorType>::type, FSignature,
			typename std::decay<VarTypes>::type...>
			FImpl;
		return TDelegate(new FImpl(InUserObject, Forward<FunctorType>(InFunctor), Forward<VarTypes>(Vars)...));
	}

	/** A delegate that calls a member function on an address; the caller answers for the object's life. */
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateRaw(UserClass* InUserObject, TMethod<false, UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		UE4Delegates_Private::CheckUserObject(InUserObject, InFunc);
		return MakeMethod(UE4Delegates_Private::TRawHolder<UserClass>(InUserObject), InFunc, Forward<VarTypes>(Vars)...);
	}
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateRaw(const UserClass* InUserObject, TMethod<true, UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		UE4Delegates_Private::CheckUserObject(InUserObject, InFunc);
		return MakeMethod(UE4Delegates_Private::TRawHolder<const UserClass>(InUserObject), InFunc, Forward<VarTypes>(Vars)...);
	}

	/** A delegate that calls a member function on a shared object while it lives. */
	template <typename UserClass, ESPMode Mode, typename... VarTypes>
	static TDelegate CreateSP(
		const TSharedRef<UserClass, Mode>& InUserObjectRef, TMethod<false, UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return MakeMethod(
			UE4Delegates_Private::TSharedHolder<UserClass, Mode>(InUserObjectRef), InFunc, Forward<VarTypes>(Vars)...);
	}
	template <typename UserClass, ESPMode Mode, typename... VarTypes>
	static TDelegate CreateSP(
		const TSharedRef<UserClass, Mode>& InUserObjectRef, TMethod<true, UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return MakeMethod(
			UE4Delegates_Private::TSharedHolder<const UserClass, Mode>(InUserObjectRef), InFunc, Forward<VarTypes>(Vars)...);
	}
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateSP(UserClass* InUserObject, TMethod<false, UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return CreateSP(StaticCastSharedRef<UserClass>(InUserObject->AsShared()), InFunc, Forward<VarTypes>(Vars)...);
	}
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateSP(const UserClass* InUserObject, TMethod<true, UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return CreateSP(StaticCastSharedRef<const UserClass>(InUserObject->AsShared()), InFunc, Forward<VarTypes>(Vars)...);
	}

	/** CreateSP for an object that is counted thread-safely. */
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateThreadSafeSP(const TSharedRef<UserClass, ESPMode::ThreadSafe>& InUserObjectRef,
		TMethod<false, UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return CreateSP(InUserObjectRef, InFunc, Forward<VarTypes>(Vars)...);
	}
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateThreadSafeSP(UserClass* InUserObject, TMethod<false, UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		return CreateSP(StaticCastSharedRef<UserClass>(InUserObject->AsShared()), InFunc, Forward<VarTypes>(Vars)...);
	}

	/** A delegate that calls a member function of an object of the object system while it lives. */
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateUObject(UserClass* InUserObject, TMethod<false, UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		UE4Delegates_Private::CheckUserObject(InUserObject, InFunc);
		return MakeMethod(UE4Delegates_Private::TObjectHolder<UserClass>(InUserObject), InFunc, Forward<VarTypes>(Vars)...);
	}
	template <typename UserClass, typename... VarTypes>
	static TDelegate CreateUObject(const UserClass* InUserObject, TMethod<true, UserClass, VarTypes...> InFunc, VarTypes&&... Vars)
	{
		UE4Delegates_Private::CheckUserObject(InUserObject, InFunc);
		return MakeMethod(UE4Delegates_Private::TObjectHolder<const UserClass>(InUserObject), InFunc, Forward<VarTypes>(Vars)...);
	}

	/** Binding to a reflected function by its name is refused. */
	template <typename UObjectTemplate, typename... VarTypes>
	static TDelegate CreateUFunction(UObjectTemplate*, const FName&, VarTypes&&...)
	{
		STANDIN_MISSING(TEXT("TDelegate::CreateUFunction"));
		return TDelegate();
	}

	/** Bind… replaces what is bound by what Create… of the same name makes. */
	template <typename... ArgTypes>
	void BindStatic(ArgTypes&&... Args)
	{
		*this = CreateStatic(Forward<ArgTypes>(Args)...);
	}
	template <typename... ArgTypes>
	void BindLambda(ArgTypes&&... Args)
	{
		*this = CreateLambda(Forward<ArgTypes>(Args)...);
	}
	template <typename... ArgTypes>
	void BindWeakLambda(ArgTypes&&... Args)
	{
		*this = CreateWeakLambda(Forward<ArgTypes>(Args)...);
	}
	template <typename UserClass, typename MethodType, typename... VarTypes>
	void BindRaw(UserClass* InUserObject, MethodType InFunc, VarTypes&&... Vars)
	{
		*this = CreateRaw(InUserObject, InFunc, Forward<VarTypes>(Vars)...);
	}
	template <typename ObjectType, typename MethodType, typename... VarTypes>
	void BindSP(ObjectType&& InUserObject, MethodType InFunc, VarTypes&&... Vars)
	{
		*this = CreateSP(Forward<ObjectType>(InUserObject), InFunc, Forward<VarTypes>(Vars)...);
	}
	template <typename ObjectType, typename MethodType, typename... VarTypes>
	void BindThreadSafeSP(ObjectType&& InUserObject, MethodType InFunc, VarTypes&&... Vars)
	{
		*this = CreateThreadSafeSP(Forward<ObjectType>(InUserObject), InFunc, Forward<VarTypes>(Vars)...);
	}
	template <typename UserClass, typename MethodType, typename... VarTypes>
	void BindUObject(UserClass* InUserObject, MethodType InFunc, VarTypes&&... Vars)
	{
		*this = CreateUObject(InUserObject, InFunc, Forward<VarTypes>(Vars)...);
	}

	/** Calls the bound function; unbound is a programming error that is fatal here. */
	RetValType Execute(ParamTypes... Params) const
	{
		check(Binding.IsValid());
		const TSharedPtr<FBinding> Running = Binding;
		return Running->Execute(Forward<ParamTypes>(Params)...);
	}

	/** Calls the bound function if there is one whose object lives; says whether it did. */
	template <typename DummyRetValType = RetValType>
	typename std::enable_if<std::is_void<DummyRetValType>::value, bool>::type ExecuteIfBound(ParamTypes... Params) const
	{
		if (!IsBound())
		{
			return false;
		}
		Execute(Forward<ParamTypes>(Params)...);
		return true;
	}

	/** Says whether something is bound whose object, as far as can be told, lives. */
	bool IsBound() const { return Binding.IsValid() && Binding->IsSafeToExecute(); }

	/** Says whether the living object at this address is bound. */
	bool IsBoundToObject(const void* InUserObject) const
	{
		return InUserObject && Binding.IsValid() && Binding->GetUserObject() == InUserObject;
	}

	/** Forgets what is bound. */
	void Unbind() { Binding.Reset(); }

	/** The binding's handle; invalid when nothing is bound. */
	FDelegateHandle GetHandle() const { return Binding.IsValid() ? Binding->GetHandle() : FDelegateHandle(); }

	/** The bound object of the object system, or null. */
	UObject* GetUObject() const { return Binding.IsValid() ? Binding->GetUObject() : nullptr; }

	/** The bound object's address; null for functors, free functions and objects that are gone. Not in the engine. */
	const void* GetUserObjectAddress() const { return Binding.IsValid() ? Binding->GetUserObject() : nullptr; }

private:
	explicit TDelegate(FBinding* InBinding) : Binding(InBinding) {}

	template <typename Holder, typename MethodType, typename... VarTypes>
	static TDelegate MakeMethod(const Holder& InHolder, MethodType InFunc, VarTypes&&... Vars)
	{
		typedef UE4Delegates_Private::TMethodBinding<Holder, MethodType, FSignature, typename std::decay<VarTypes>::type...> FImpl;
		return TDelegate(new FImpl(InHolder, InFunc, Forward<VarTypes>(Vars)...));
	}

	// Shared only with a call that is running, so that a binding may be taken away by what it calls.
	TSharedPtr<FBinding> Binding;
};

/** Any number of functions to call. Without a result, since there would be many. */
template <typename... ParamTypes>
class TMulticastDelegate<void(ParamTypes...)>
{
public:
	typedef TDelegate<void(ParamTypes...)> FDelegate;

	TMulticastDelegate() = default;
	TMulticastDelegate(const TMulticastDelegate& Other) { CopyFrom(Other); }
	TMulticastDelegate& operator=(const TMulticastDelegate& Other)
	{
		if (&Other != this)
		{
			Clear();
			CopyFrom(Other);
		}
		return *this;
	}

	/** Adds a binding; an unbound delegate adds nothing and gives an invalid handle. */
	FDelegateHandle Add(const FDelegate& InNewDelegate) { return Add(FDelegate(InNewDelegate)); }
	FDelegateHandle Add(FDelegate&& InNewDelegate)
	{
		const FDelegateHandle Handle = InNewDelegate.GetHandle();
		if (Handle.IsValid())
		{
			Compact();
			InvocationList.Add(MoveTemp(InNewDelegate));
		}
		return Handle;
	}

	/** Add… adds what FDelegate::Create… of the same name makes. */
	template <typename... ArgTypes>
	FDelegateHandle AddStatic(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateStatic(Forward<ArgTypes>(Args)...));
	}
	template <typename... ArgTypes>
	FDelegateHandle AddLambda(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateLambda(Forward<ArgTypes>(Args)...));
	}
	template <typename... ArgTypes>
	FDelegateHandle AddWeakLambda(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateWeakLambda(Forward<ArgTypes>(Args)...));
	}
	template <typename UserClass, typename MethodType, typename... VarTypes>
	FDelegateHandle AddRaw(UserClass* InUserObject, MethodType InFunc, VarTypes&&... Vars)
	{
		return Add(FDelegate::CreateRaw(InUserObject, InFunc, Forward<VarTypes>(Vars)...));
	}
	template <typename ObjectType, typename MethodType, typename... VarTypes>
	FDelegateHandle AddSP(ObjectType&& InUserObject, MethodType InFunc, VarTypes&&... Vars)
	{
		return Add(FDelegate::CreateSP(Forward<ObjectType>(InUserObject), InFunc, Forward<VarTypes>(Vars)...));
	}
	template <typename ObjectType, typename MethodType, typename... VarTypes>
	FDelegateHandle AddThreadSafeSP(ObjectType&& InUserObject, MethodType InFunc, VarTypes&&... Vars)
	{
		return Add(FDelegate::CreateThreadSafeSP(Forward<ObjectType>(InUserObject), InFunc, Forward<VarTypes>(Vars)...));
	}
	template <typename UserClass, typename MethodType, typename... VarTypes>
	FDelegateHandle AddUObject(UserClass* InUserObject, MethodType InFunc, VarTypes&&... Vars)
	{
		return Add(FDelegate::CreateUObject(InUserObject, InFunc, Forward<VarTypes>(Vars)...));
	}

	/** Removes the binding with this handle; says whether there was one. */
	bool Remove(FDelegateHandle InHandle)
	{
		if (InHandle.IsValid())
		{
			for (int32 Index = 0; Index < InvocationList.Num(); ++Index)
			{
				if (InvocationList[Index].GetHandle() == InHandle)
				{
					InvocationList[Index].Unbind();
					Compact();
					return true;
				}
			}
		}
		return false;
	}

	/** Removes every binding whose object has this address; functors and free functions have none. */
	int32 RemoveAll(const void* InUserObject)
	{
		int32 Removed = 0;
		for (int32 Index = 0; Index < InvocationList.Num(); ++Index)
		{
			if (InvocationList[Index].IsBoundToObject(InUserObject))
			{
				InvocationList[Index].Unbind();
				++Removed;
			}
		}
		Compact();
		return Removed;
	}

	/** Removes every binding. */
	void Clear()
	{
		for (int32 Index = 0; Index < InvocationList.Num(); ++Index)
		{
			InvocationList[Index].Unbind();
		}
		Compact();
	}

	/** Says whether any binding would be called. */
	bool IsBound() const
	{
		for (int32 Index = 0; Index < InvocationList.Num(); ++Index)
		{
			if (InvocationList[Index].IsBound())
			{
				return true;
			}
		}
		return false;
	}

	/** Says whether a living object at this address is bound. */
	bool IsBoundToObject(const void* InUserObject) const
	{
		for (int32 Index = 0; Index < InvocationList.Num(); ++Index)
		{
			if (InvocationList[Index].IsBoundToObject(InUserObject))
			{
				return true;
			}
		}
		return false;
	}

	/** Calls every binding, the one added last first. Bindings added meanwhile wait for the next time. */
	void Broadcast(ParamTypes... Params) const
	{
		bool bStale = false;
		++BroadcastDepth;
		for (int32 Index = InvocationList.Num() - 1; Index >= 0; --Index)
		{
			// The delegate itself keeps what runs alive; its place in the list may move when bindings are added meanwhile.
			if (InvocationList[Index].IsBound())
			{
				InvocationList[Index].Execute(Params...);
			}
			bStale = bStale || !InvocationList[Index].IsBound();
		}
		--BroadcastDepth;
		if (bStale)
		{
			const_cast<TMulticastDelegate*>(this)->Compact();
		}
	}

	/** The bound objects' addresses in the order of the list, null for bindings without one. Not in the engine. */
	TArray<const void*> ListUserObjects() const
	{
		TArray<const void*> Result;
		for (int32 Index = 0; Index < InvocationList.Num(); ++Index)
		{
			if (InvocationList[Index].IsBound())
			{
				Result.Add(InvocationList[Index].GetUserObjectAddress());
			}
		}
		return Result;
	}

private:
	void CopyFrom(const TMulticastDelegate& Other)
	{
		for (int32 Index = 0; Index < Other.InvocationList.Num(); ++Index)
		{
			if (Other.InvocationList[Index].IsBound())
			{
				InvocationList.Add(Other.InvocationList[Index]);
			}
		}
	}

	/** Takes out what is unbound or stale; the last binding moves into the hole. Not while a call runs. */
	void Compact()
	{
		if (BroadcastDepth > 0)
		{
			return;
		}
		for (int32 Index = 0; Index < InvocationList.Num();)
		{
			if (InvocationList[Index].IsBound())
			{
				++Index;
			}
			else
			{
				InvocationList.RemoveAtSwap(Index, 1, false);
			}
		}
	}

	TArray<FDelegate> InvocationList;
	mutable int32 BroadcastDepth = 0;
};
