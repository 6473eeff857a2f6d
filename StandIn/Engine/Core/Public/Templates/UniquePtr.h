// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Templates/UnrealTemplate.h"

// A pointer that owns its object alone. Dereferencing is not checked, as in the engine. No array form.

/** Deletes an object. */
template <typename T>
struct TDefaultDelete
{
	TDefaultDelete() = default;

	/** Converts from the deleter of a derived class. */
	template <typename U, typename = typename TEnableIf<TPointerIsConvertibleFromTo<U, T>::Value>::Type>
	TDefaultDelete(const TDefaultDelete<U>&)
	{}

	/** Deletes the object; its type must be complete. */
	void operator()(T* Ptr) const
	{
		static_assert(sizeof(T) > 0, "The type of a deleted object must be complete.");
		delete Ptr;
	}
};

/** Owns one object and deletes it; can be moved, not copied. */
template <typename T, typename Deleter = TDefaultDelete<T>>
class TUniquePtr : private Deleter
{
	template <typename OtherT, typename OtherDeleter>
	friend class TUniquePtr;

public:
	using ElementType = T;

	TUniquePtr()
		: Ptr(nullptr)
	{}

	/** Takes the object over. */
	explicit TUniquePtr(T* InPtr)
		: Ptr(InPtr)
	{}

	/** Takes the object over, with a deleter. */
	TUniquePtr(T* InPtr, Deleter&& InDeleter)
		: Deleter(MoveTemp(InDeleter))
		, Ptr(InPtr)
	{}

	TUniquePtr(TYPE_OF_NULLPTR)
		: Ptr(nullptr)
	{}

	TUniquePtr(TUniquePtr&& Other)
		: Deleter(MoveTemp(Other.GetDeleter()))
		, Ptr(Other.Release())
	{}

	/** Takes over the object of a pointer to a derived class. */
	template <typename OtherT, typename OtherDeleter, typename = typename TEnableIf<TPointerIsConvertibleFromTo<OtherT, T>::Value>::Type>
	TUniquePtr(TUniquePtr<OtherT, OtherDeleter>&& Other)
		: Deleter(MoveTemp(Other.GetDeleter()))
		, Ptr(Other.Release())
	{}

	TUniquePtr& operator=(TUniquePtr&& Other)
	{
		if (this != &Other)
		{
			Reset(Other.Release());
			GetDeleter() = MoveTemp(Other.GetDeleter());
		}
		return *this;
	}

	/** Takes over the object of a pointer to a derived class. */
	template <typename OtherT, typename OtherDeleter>
	typename TEnableIf<TPointerIsConvertibleFromTo<OtherT, T>::Value, TUniquePtr&>::Type operator=(TUniquePtr<OtherT, OtherDeleter>&& Other)
	{
		Reset(Other.Release());
		GetDeleter() = MoveTemp(Other.GetDeleter());
		return *this;
	}

	TUniquePtr& operator=(TYPE_OF_NULLPTR)
	{
		Reset();
		return *this;
	}

	TUniquePtr(const TUniquePtr&) = delete;
	TUniquePtr& operator=(const TUniquePtr&) = delete;

	~TUniquePtr()
	{
		if (Ptr != nullptr)
		{
			GetDeleter()(Ptr);
		}
	}

	/** Whether an object is owned. */
	bool IsValid() const { return Ptr != nullptr; }

	/** Whether an object is owned. */
	explicit operator bool() const { return IsValid(); }

	/** Whether no object is owned. */
	bool operator!() const { return !IsValid(); }

	/** The owned object, unchecked. */
	T* operator->() const { return Ptr; }

	/** The owned object, unchecked. */
	T& operator*() const { return *Ptr; }

	/** The owned object or null. */
	T* Get() const { return Ptr; }

	/** Gives the object up without deleting it. */
	T* Release()
	{
		T* Result = Ptr;
		Ptr = nullptr;
		return Result;
	}

	/** Deletes the owned object and takes another over. */
	void Reset(T* InPtr = nullptr)
	{
		T* OldPtr = Ptr;
		Ptr = InPtr;
		if (OldPtr != nullptr)
		{
			GetDeleter()(OldPtr);
		}
	}

	/** The deleter. */
	Deleter& GetDeleter() { return static_cast<Deleter&>(*this); }

	/** The deleter. */
	const Deleter& GetDeleter() const { return static_cast<const Deleter&>(*this); }

private:
	T* Ptr;
};

/** Whether two pointers own the same object (that is, none). */
template <typename LhsT, typename LhsDeleter, typename RhsT, typename RhsDeleter>
bool operator==(const TUniquePtr<LhsT, LhsDeleter>& Lhs, const TUniquePtr<RhsT, RhsDeleter>& Rhs)
{
	return Lhs.Get() == Rhs.Get();
}

/** Whether two pointers own different objects. */
template <typename LhsT, typename LhsDeleter, typename RhsT, typename RhsDeleter>
bool operator!=(const TUniquePtr<LhsT, LhsDeleter>& Lhs, const TUniquePtr<RhsT, RhsDeleter>& Rhs)
{
	return Lhs.Get() != Rhs.Get();
}

/** Whether the pointer is empty. */
template <typename T, typename Deleter>
bool operator==(const TUniquePtr<T, Deleter>& Lhs, TYPE_OF_NULLPTR)
{
	return !Lhs.IsValid();
}

/** Whether the pointer owns an object. */
template <typename T, typename Deleter>
bool operator!=(const TUniquePtr<T, Deleter>& Lhs, TYPE_OF_NULLPTR)
{
	return Lhs.IsValid();
}

/** Hash of the object's address. */
template <typename T, typename Deleter>
uint32 GetTypeHash(const TUniquePtr<T, Deleter>& Ptr)
{
	return PointerHash(Ptr.Get());
}

/** Makes an object and a pointer that owns it. */
template <typename T, typename... TArgs>
TUniquePtr<T> MakeUnique(TArgs&&... Args)
{
	return TUniquePtr<T>(new T(Forward<TArgs>(Args)...));
}
