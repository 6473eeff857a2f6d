// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Templates/Invoke.h"
#include "Misc/AssertionMacros.h"

// Type-erased callables: TFunction (copied), TUniqueFunction (moved), TFunctionRef (borrowed). Calling an empty one is fatal.
// Callables live on the heap; there is no inline storage.

template <typename FuncType>
class TFunctionRef;
template <typename FuncType>
class TFunction;
template <typename FuncType>
class TUniqueFunction;

namespace UE4Function_Private
{
/** A callable of unknown type. */
template <typename Ret, typename... Args>
struct ICallable
{
	virtual ~ICallable() {}
	virtual Ret Call(Args&... InArgs) = 0;
	virtual ICallable* Clone() const = 0;
};

template <bool bVoid>
struct TCaller
{
	template <typename Ret, typename Functor, typename... Args>
	static Ret Call(Functor& Func, Args&&... InArgs)
	{
		return Invoke(Func, static_cast<Args&&>(InArgs)...);
	}
};

template <>
struct TCaller<true>
{
	template <typename Ret, typename Functor, typename... Args>
	static void Call(Functor& Func, Args&&... InArgs)
	{
		Invoke(Func, static_cast<Args&&>(InArgs)...);
	}
};

/** Whether a callable can be compared with null and is. */
template <typename T>
bool IsNull(const T&)
{
	return false;
}
template <typename T>
bool IsNull(T* const& Func)
{
	return Func == nullptr;
}
template <typename Ret, typename Class>
bool IsNull(Ret Class::*const& Func)
{
	return Func == nullptr;
}
template <typename FuncType>
bool IsNull(const TFunction<FuncType>& Func)
{
	return !Func;
}
template <typename FuncType>
bool IsNull(const TUniqueFunction<FuncType>& Func)
{
	return !Func;
}

template <bool bCopyable, typename Functor, typename Ret, typename... Args>
struct TCallable : ICallable<Ret, Args...>
{
	template <typename T>
	explicit TCallable(T&& InFunc)
		: Func(Forward<T>(InFunc))
	{}
	virtual Ret Call(Args&... InArgs) override
	{
		return TCaller<TIsVoidType<Ret>::Value>::template Call<Ret>(Func, static_cast<Args&&>(InArgs)...);
	}
	virtual ICallable<Ret, Args...>* Clone() const override { return CloneImpl(std::integral_constant<bool, bCopyable>()); }

	ICallable<Ret, Args...>* CloneImpl(std::true_type) const { return new TCallable(Func); }
	ICallable<Ret, Args...>* CloneImpl(std::false_type) const { return nullptr; }

	Functor Func;
};

/** Value tells whether Functor can be called with Args and yields something that converts to Ret. */
template <typename Functor, typename Ret, typename... Args>
struct TIsCallable
{
	template <typename F>
	static auto Test(int) ->
		typename TEnableIf<TIsVoidType<Ret>::Value || std::is_convertible<decltype(Invoke(DeclVal<F&>(), DeclVal<Args>()...)), Ret>::value,
			std::true_type>::Type;
	template <typename F>
	static std::false_type Test(...);
	enum
	{
		Value = decltype(Test<Functor>(0))::value
	};
};
}

/** A callable that is copied with its captures. */
template <typename Ret, typename... Args>
class TFunction<Ret(Args...)>
{
	template <typename OtherType>
	friend class TUniqueFunction;

public:
	/** An empty function. */
	TFunction(TYPE_OF_NULLPTR = nullptr) {}

	/** Holds a copy of the callable; a null function pointer makes an empty function. */
	template <typename Functor,
		typename = typename TEnableIf<!TIsSame<typename TDecay<Functor>::Type, TFunction>::Value
			&& UE4Function_Private::TIsCallable<typename TDecay<Functor>::Type, Ret, Args...>::Value>::Type>
	TFunction(Functor&& InFunc)
	{
		typedef typename TDecay<Functor>::Type FunctorType;
		if (!UE4Function_Private::IsNull(InFunc))
		{
			Callable = new UE4Function_Private::TCallable<true, FunctorType, Ret, Args...>(Forward<Functor>(InFunc));
		}
	}

	TFunction(const TFunction& Other)
		: Callable(Other.Callable != nullptr ? Other.Callable->Clone() : nullptr)
	{}

	TFunction(TFunction&& Other)
		: Callable(Other.Callable)
	{
		Other.Callable = nullptr;
	}

	TFunction& operator=(TFunction Other)
	{
		Swap(Callable, Other.Callable);
		return *this;
	}

	~TFunction() { delete Callable; }

	/** Calls; an empty function is fatal. */
	Ret operator()(Args... InArgs) const
	{
		checkf(IsSet(), TEXT("Attempting to call an unbound TFunction!"));
		return Callable->Call(InArgs...);
	}

	/** Whether there is something to call. */
	bool IsSet() const { return Callable != nullptr; }

	/** Whether there is something to call. */
	explicit operator bool() const { return IsSet(); }

	/** Makes the function empty. */
	void Reset() { *this = TFunction(); }

	/** Whether the function is empty. */
	friend bool operator==(const TFunction& Func, TYPE_OF_NULLPTR) { return !Func; }

	/** Whether there is something to call. */
	friend bool operator!=(const TFunction& Func, TYPE_OF_NULLPTR) { return (bool)Func; }

private:
	UE4Function_Private::ICallable<Ret, Args...>* Callable = nullptr;
};

/** A callable that is moved, never copied. */
template <typename Ret, typename... Args>
class TUniqueFunction<Ret(Args...)>
{
public:
	/** An empty function. */
	TUniqueFunction(TYPE_OF_NULLPTR = nullptr) {}

	/** Holds the callable; a null function pointer makes an empty function. */
	template <typename Functor,
		typename = typename TEnableIf<!TIsSame<typename TDecay<Functor>::Type, TUniqueFunction>::Value
			&& UE4Function_Private::TIsCallable<typename TDecay<Functor>::Type, Ret, Args...>::Value>::Type>
	TUniqueFunction(Functor&& InFunc)
	{
		typedef typename TDecay<Functor>::Type FunctorType;
		if (!UE4Function_Private::IsNull(InFunc))
		{
			Callable = new UE4Function_Private::TCallable<false, FunctorType, Ret, Args...>(Forward<Functor>(InFunc));
		}
	}

	TUniqueFunction(TUniqueFunction&& Other)
		: Callable(Other.Callable)
	{
		Other.Callable = nullptr;
	}

	TUniqueFunction& operator=(TUniqueFunction&& Other)
	{
		TUniqueFunction Temp(MoveTemp(Other));
		Swap(Callable, Temp.Callable);
		return *this;
	}

	TUniqueFunction(const TUniqueFunction&) = delete;
	TUniqueFunction& operator=(const TUniqueFunction&) = delete;
	~TUniqueFunction() { delete Callable; }

	/** Calls; an empty function is fatal. */
	Ret operator()(Args... InArgs) const
	{
		checkf(IsSet(), TEXT("Attempting to call an unbound TFunction!"));
		return Callable->Call(InArgs...);
	}

	/** Whether there is something to call. */
	bool IsSet() const { return Callable != nullptr; }

	/** Whether there is something to call. */
	explicit operator bool() const { return IsSet(); }

	/** Makes the function empty. */
	void Reset() { *this = TUniqueFunction(); }

private:
	UE4Function_Private::ICallable<Ret, Args...>* Callable = nullptr;
};

/** Borrows a callable for the length of a call; cannot be assigned. */
template <typename Ret, typename... Args>
class TFunctionRef<Ret(Args...)>
{
public:
	/** Borrows the callable, which must outlive this; a null function pointer is fatal. */
	template <typename Functor,
		typename = typename TEnableIf<!TIsSame<typename TDecay<Functor>::Type, TFunctionRef>::Value
			&& UE4Function_Private::TIsCallable<typename TRemoveReference<Functor>::Type, Ret, Args...>::Value>::Type>
	TFunctionRef(Functor&& InFunc)
	{
		typedef typename TRemoveReference<Functor>::Type FunctorType;
		Bind(InFunc, std::is_function<FunctorType>());
	}

	TFunctionRef(const TFunctionRef&) = default;
	TFunctionRef& operator=(const TFunctionRef&) = delete;

	/** Calls. */
	Ret operator()(Args... InArgs) const { return Caller(Object, InArgs...); }

private:
	template <typename FunctorType>
	void Bind(FunctorType& InFunc, std::false_type)
	{
		checkf(!UE4Function_Private::IsNull(InFunc), TEXT("Cannot bind a null/unbound callable to a TFunctionRef"));
		Object = const_cast<void*>(static_cast<const void*>(&InFunc));
		Caller = [](void* InObject, Args&... InArgs) -> Ret {
			return UE4Function_Private::TCaller<TIsVoidType<Ret>::Value>::template Call<Ret>(
				*static_cast<FunctorType*>(InObject), static_cast<Args&&>(InArgs)...);
		};
	}

	template <typename FunctorType>
	void Bind(FunctorType& InFunc, std::true_type)
	{
		Object = reinterpret_cast<void*>(&InFunc);
		Caller = [](void* InObject, Args&... InArgs) -> Ret {
			return UE4Function_Private::TCaller<TIsVoidType<Ret>::Value>::template Call<Ret>(
				*reinterpret_cast<FunctorType*>(InObject), static_cast<Args&&>(InArgs)...);
		};
	}

	void* Object;
	Ret (*Caller)(void*, Args&...);
};
