// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Templates/UnrealTemplate.h"
#include "Misc/AssertionMacros.h"

// A value that may be missing. Reading a missing value is fatal.

/** A value that may be missing. */
template <typename OptionalType>
struct TOptional
{
	typedef OptionalType ElementType;

	TOptional()
		: bIsSet(false)
	{}

	/** Holds a copy. */
	TOptional(const OptionalType& InValue)
		: bIsSet(true)
	{
		new (static_cast<void*>(Storage)) OptionalType(InValue);
	}

	/** Holds the moved value. */
	TOptional(OptionalType&& InValue)
		: bIsSet(true)
	{
		new (static_cast<void*>(Storage)) OptionalType(MoveTempIfPossible(InValue));
	}

	/** Builds the value in place. */
	template <typename... ArgTypes>
	explicit TOptional(EInPlace, ArgTypes&&... Args)
		: bIsSet(true)
	{
		new (static_cast<void*>(Storage)) OptionalType(Forward<ArgTypes>(Args)...);
	}

	TOptional(const TOptional& Other)
		: bIsSet(false)
	{
		*this = Other;
	}

	TOptional(TOptional&& Other)
		: bIsSet(false)
	{
		*this = MoveTemp(Other);
	}

	TOptional& operator=(const TOptional& Other)
	{
		if (this != &Other)
		{
			Reset();
			if (Other.bIsSet)
			{
				Emplace(Other.Ref());
			}
		}
		return *this;
	}

	TOptional& operator=(TOptional&& Other)
	{
		if (this != &Other)
		{
			Reset();
			if (Other.bIsSet)
			{
				Emplace(MoveTemp(Other.Ref()));
			}
		}
		return *this;
	}

	TOptional& operator=(const OptionalType& InValue)
	{
		if (!bIsSet || &InValue != &Ref())
		{
			Emplace(InValue);
		}
		return *this;
	}

	TOptional& operator=(OptionalType&& InValue)
	{
		if (!bIsSet || &InValue != &Ref())
		{
			Emplace(MoveTempIfPossible(InValue));
		}
		return *this;
	}

	~TOptional() { Reset(); }

	/** Makes the value missing. */
	void Reset()
	{
		if (bIsSet)
		{
			bIsSet = false;
			Ref().~OptionalType();
		}
	}

	/** Replaces the value by one built in place. */
	template <typename... ArgTypes>
	OptionalType& Emplace(ArgTypes&&... Args)
	{
		Reset();
		OptionalType* Result = new (static_cast<void*>(Storage)) OptionalType(Forward<ArgTypes>(Args)...);
		bIsSet = true;
		return *Result;
	}

	/** Equal when both are missing, or both are set to equal values. */
	friend bool operator==(const TOptional& Lhs, const TOptional& Rhs)
	{
		return Lhs.bIsSet == Rhs.bIsSet && (!Lhs.bIsSet || Lhs.Ref() == Rhs.Ref());
	}

	/** The opposite of equal. */
	friend bool operator!=(const TOptional& Lhs, const TOptional& Rhs) { return !(Lhs == Rhs); }

	/** Whether there is a value. */
	bool IsSet() const { return bIsSet; }

	/** Whether there is a value. */
	explicit operator bool() const { return bIsSet; }

	/** The value; fatal when missing. */
	const OptionalType& GetValue() const
	{
		checkf(IsSet(),
			TEXT("It is an error to call GetValue() on an unset TOptional. Please either check IsSet() or use Get(DefaultValue) instead."));
		return Ref();
	}

	/** The value; fatal when missing. */
	OptionalType& GetValue()
	{
		checkf(IsSet(),
			TEXT("It is an error to call GetValue() on an unset TOptional. Please either check IsSet() or use Get(DefaultValue) instead."));
		return Ref();
	}

	/** The value; fatal when missing. */
	const OptionalType* operator->() const { return &GetValue(); }

	/** The value; fatal when missing. */
	OptionalType* operator->() { return &GetValue(); }

	/** The value; fatal when missing. */
	const OptionalType& operator*() const { return GetValue(); }

	/** The value; fatal when missing. */
	OptionalType& operator*() { return GetValue(); }

	/** The value, or the default when missing. */
	const OptionalType& Get(const OptionalType& DefaultValue) const { return bIsSet ? Ref() : DefaultValue; }

private:
	OptionalType& Ref() { return *reinterpret_cast<OptionalType*>(Storage); }
	const OptionalType& Ref() const { return *reinterpret_cast<const OptionalType*>(Storage); }

	alignas(OptionalType) unsigned char Storage[sizeof(OptionalType)];
	bool bIsSet;
};
