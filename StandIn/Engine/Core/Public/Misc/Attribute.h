// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Delegates/Delegate.h"
#include "Misc/AssertionMacros.h"
#include "Templates/SharedPointer.h"
#include "Templates/UnrealTemplate.h"

#include <type_traits>

// A value or a getter that is asked anew at every Get. The getter's last answer is kept, and given again when its object is gone.
// The Create… and Bind… forms with an object and a method are those that 4.27 certainly has.

/** A value that may be computed each time it is asked for. */
template <typename ObjectType>
class TAttribute
{
public:
	DECLARE_DELEGATE_RetVal(ObjectType, FGetter);

	/** Neither value nor getter. */
	TAttribute() : Value(), bIsSet(false) {}

	/** A value. */
	template <typename OtherType,
		typename = typename std::enable_if<std::is_convertible<const OtherType&, ObjectType>::value
			&& !std::is_same<typename std::decay<OtherType>::type, TAttribute>::value>::type>
	TAttribute(const OtherType& InInitialValue) : Value(InInitialValue), bIsSet(true)
	{
	}
	TAttribute(ObjectType&& InInitialValue) : Value(MoveTemp(InInitialValue)), bIsSet(true) {}

	/** A getter: a const member function of a shared object, which is held weakly. */
	template <class SourceType>
	TAttribute(TSharedRef<SourceType> InUserObject, ObjectType (SourceType::*InMethodPtr)() const)
		: Value()
		, bIsSet(true)
		, Getter(FGetter::CreateSP(InUserObject, InMethodPtr))
	{
	}
	template <class SourceType, class MethodClass>
	TAttribute(SourceType* InUserObject, ObjectType (MethodClass::*InMethodPtr)() const)
		: Value()
		, bIsSet(true)
		, Getter(FGetter::CreateSP(InUserObject, InMethodPtr))
	{
	}

	/** An attribute with this getter; an unbound getter makes one that is set and not bound. */
	static TAttribute Create(const FGetter& InGetter) { return Create(FGetter(InGetter)); }
	static TAttribute Create(FGetter&& InGetter)
	{
		TAttribute Result;
		Result.bIsSet = true;
		Result.Getter = MoveTemp(InGetter);
		return Result;
	}

	/** An attribute that asks a free function. */
	static TAttribute Create(ObjectType (*InFunction)()) { return Create(FGetter::CreateStatic(InFunction)); }

	/** Gives it a value in place of a getter. */
	void Set(const ObjectType& InNewValue)
	{
		Value = InNewValue;
		Getter.Unbind();
		bIsSet = true;
	}

	/** Says whether it has a value or a getter. */
	bool IsSet() const { return bIsSet; }

	/** The value; asks the getter if there is one whose object lives. The reference holds until the next Get. */
	const ObjectType& Get() const
	{
		if (Getter.IsBound())
		{
			Value = Getter.Execute();
		}
		return Value;
	}

	/** The value, or the default when nothing is set. */
	const ObjectType& Get(const ObjectType& DefaultValue) const { return bIsSet ? Get() : DefaultValue; }

	/** Gives it a getter in place of a value. */
	void Bind(const FGetter& InGetter)
	{
		bIsSet = true;
		Getter = InGetter;
	}
	template <typename... ArgTypes>
	void BindStatic(ArgTypes&&... Args)
	{
		Bind(FGetter::CreateStatic(Forward<ArgTypes>(Args)...));
	}
	template <class SourceType, typename MethodType>
	void BindRaw(SourceType* InUserObject, MethodType InMethodPtr)
	{
		Bind(FGetter::CreateRaw(InUserObject, InMethodPtr));
	}
	template <class SourceType, typename MethodType>
	void BindUObject(SourceType* InUserObject, MethodType InMethodPtr)
	{
		Bind(FGetter::CreateUObject(InUserObject, InMethodPtr));
	}
	template <class SourceType, typename MethodType>
	void Bind(SourceType* InUserObject, MethodType InMethodPtr)
	{
		Bind(FGetter::CreateSP(InUserObject, InMethodPtr));
	}

	/** Says whether it has a getter whose object lives. */
	bool IsBound() const { return Getter.IsBound(); }

	/** The getter; unbound when there is none. */
	const FGetter& GetBinding() const { return Getter; }

	/** Says whether both have the same getter, or both none and equal values. */
	bool IdenticalTo(const TAttribute& InOther) const
	{
		const bool bBound = Getter.IsBound();
		if (bBound != InOther.Getter.IsBound())
		{
			return false;
		}
		return bBound ? Getter.GetHandle() == InOther.Getter.GetHandle() : bIsSet == InOther.bIsSet && Value == InOther.Value;
	}

private:
	mutable ObjectType Value;
	bool bIsSet;
	FGetter Getter;
};
