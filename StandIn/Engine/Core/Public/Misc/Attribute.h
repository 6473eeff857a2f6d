// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Delegates/Delegate.h"
#include "Misc/Optional.h"
#include "Templates/Function.h"

// A value, or a function that yields it. The static CreateSP, CreateRaw, CreateLambda and CreateUObject of later engines are left out:
// write TAttribute<T>::Create(TAttribute<T>::FGetter::CreateSP(...)), which compiles everywhere.

/** A value that is stored or asked for each time. */
template <typename ObjectType>
class TAttribute
{
	template <typename OtherType>
	friend class TAttribute;

public:
	/** Yields the value. */
	typedef TDelegate<ObjectType()> FGetter;

	/** Not set. */
	TAttribute()
		: Value()
		, bIsSet(false)
	{}

	/** Set to a value of any type that converts. */
	template <typename OtherType, typename = typename TEnableIf<std::is_convertible<const OtherType&, ObjectType>::value>::Type>
	TAttribute(const OtherType& InInitialValue)
		: Value(InInitialValue)
		, bIsSet(true)
	{}

	/** Set to a moved value. */
	TAttribute(ObjectType&& InInitialValue)
		: Value(MoveTempIfPossible(InInitialValue))
		, bIsSet(true)
	{}

	/** Bound to a const method of a shared object. */
	template <class SourceType>
	TAttribute(TSharedRef<SourceType> InUserObject, typename TMemFunPtrType<true, SourceType, ObjectType()>::Type InMethodPtr)
		: Value()
		, bIsSet(true)
		, Getter(FGetter::CreateSP(InUserObject, InMethodPtr))
	{}

	/** Bound to a const method of an object that knows its shared pointer. */
	template <class SourceType>
	TAttribute(SourceType* InUserObject, typename TMemFunPtrType<true, SourceType, ObjectType()>::Type InMethodPtr)
		: Value()
		, bIsSet(true)
		, Getter(FGetter::CreateSP(InUserObject, InMethodPtr))
	{}

	/** An attribute bound to a getter. */
	static TAttribute Create(const FGetter& InGetter)
	{
		TAttribute Result;
		Result.Bind(InGetter);
		return Result;
	}

	/** An attribute bound to a getter. */
	static TAttribute Create(FGetter&& InGetter)
	{
		TAttribute Result;
		Result.Bind(MoveTemp(InGetter));
		return Result;
	}

	/** An attribute bound to a plain function. */
	static TAttribute Create(ObjectType (*InFuncPtr)()) { return Create(FGetter::CreateStatic(InFuncPtr)); }

	/** Stores a value and drops the getter. */
	template <typename OtherType>
	void Set(const OtherType& InNewValue)
	{
		Getter.Unbind();
		Value = InNewValue;
		bIsSet = true;
	}

	/** Stores a value and drops the getter. */
	void Set(ObjectType&& InNewValue)
	{
		Getter.Unbind();
		Value = MoveTempIfPossible(InNewValue);
		bIsSet = true;
	}

	/** Whether a value or a getter was given. */
	bool IsSet() const { return bIsSet; }

	/** The value; a bound getter is asked and its answer kept; if its object is gone, the last answer. */
	const ObjectType& Get() const
	{
		if (Getter.IsBound())
		{
			Value = Getter.Execute();
		}
		return Value;
	}

	/** The value if one was given, else the default. */
	const ObjectType& Get(const ObjectType& DefaultValue) const { return bIsSet ? Get() : DefaultValue; }

	/** Binds a getter. */
	void Bind(const FGetter& InGetter)
	{
		bIsSet = true;
		Getter = InGetter;
	}

	/** Binds a getter. */
	void Bind(FGetter&& InGetter)
	{
		bIsSet = true;
		Getter = MoveTemp(InGetter);
	}

	/** Binds a plain function. */
	void BindStatic(ObjectType (*InFuncPtr)()) { Bind(FGetter::CreateStatic(InFuncPtr)); }

	/** Binds a const method of an object that nobody watches. */
	template <class SourceType>
	void BindRaw(SourceType* InUserObject, typename TMemFunPtrType<true, SourceType, ObjectType()>::Type InMethodPtr)
	{
		Bind(FGetter::CreateRaw(InUserObject, InMethodPtr));
	}

	/** Binds a const method of a shared object. */
	template <class SourceType>
	void BindSP(TSharedRef<SourceType> InUserObject, typename TMemFunPtrType<true, SourceType, ObjectType()>::Type InMethodPtr)
	{
		Bind(FGetter::CreateSP(InUserObject, InMethodPtr));
	}

	/** Binds a const method of an object that knows its shared pointer. */
	template <class SourceType>
	void BindSP(SourceType* InUserObject, typename TMemFunPtrType<true, SourceType, ObjectType()>::Type InMethodPtr)
	{
		Bind(FGetter::CreateSP(InUserObject, InMethodPtr));
	}

	/** Binds a const method of a UObject. */
	template <class SourceType>
	void BindUObject(SourceType* InUserObject, typename TMemFunPtrType<true, SourceType, ObjectType()>::Type InMethodPtr)
	{
		Bind(FGetter::CreateUObject(InUserObject, InMethodPtr));
	}

	/** Refused: binding a UFUNCTION by name. */
	template <class SourceType>
	void BindUFunction(SourceType*, const FName&)
	{
		STANDIN_MISSING(TEXT("TAttribute::BindUFunction"));
	}

	/** Whether a getter is bound and its object lives. */
	bool IsBound() const { return Getter.IsBound(); }

	/** The getter. */
	const FGetter& GetBinding() const { return Getter; }

	/** Whether both hold the same binding, or equal values. */
	bool IdenticalTo(const TAttribute& InOther) const
	{
		const bool bIsBound = IsBound();
		if (bIsBound != InOther.IsBound())
		{
			return false;
		}
		if (bIsBound)
		{
			return Getter.GetHandle() == InOther.Getter.GetHandle();
		}
		return IsSet() == InOther.IsSet() && (!IsSet() || Value == InOther.Value);
	}

private:
	mutable ObjectType Value;
	bool bIsSet;
	FGetter Getter;
};

/** An attribute set to a value. */
template <typename T>
TAttribute<typename TDecay<T>::Type> MakeAttribute(T&& InValue)
{
	return TAttribute<typename TDecay<T>::Type>(Forward<T>(InValue));
}
