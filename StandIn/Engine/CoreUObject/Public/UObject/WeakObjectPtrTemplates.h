// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "UObject/WeakObjectPtr.h"
#include <type_traits>

// Typed weak pointers. There is no conversion to bool: write IsValid(). Left out: automatic weak pointers, TMap keys by index.

template <class T = UObject, class TWeakObjectPtrBase = FWeakObjectPtr>
struct TWeakObjectPtr;

/** Weak pointer to an object of a class. */
template <class T, class TWeakObjectPtrBase>
struct TWeakObjectPtr : private TWeakObjectPtrBase
{
	template <class OtherT, class OtherBase>
	friend struct TWeakObjectPtr;

	TWeakObjectPtr() = default;
	TWeakObjectPtr(const TWeakObjectPtr&) = default;
	TWeakObjectPtr& operator=(const TWeakObjectPtr&) = default;
	TWeakObjectPtr(TYPE_OF_NULLPTR)
		: TWeakObjectPtrBase(nullptr)
	{}
	/** Points at an object of the class or of a child of it. */
	template <class U, typename = typename std::enable_if<std::is_convertible<U*, T*>::value>::type>
	TWeakObjectPtr(U* Object)
		: TWeakObjectPtrBase((const UObject*)Object)
	{}
	template <class OtherT, typename = typename std::enable_if<std::is_convertible<OtherT*, T*>::value>::type>
	TWeakObjectPtr(const TWeakObjectPtr<OtherT, TWeakObjectPtrBase>& Other)
		: TWeakObjectPtrBase(static_cast<const TWeakObjectPtrBase&>(Other))
	{}
	template <class U>
	TWeakObjectPtr& operator=(U* Object)
	{
		TWeakObjectPtr Temporary(Object);
		return *this = Temporary;
	}
	TWeakObjectPtr& operator=(TYPE_OF_NULLPTR)
	{
		Reset();
		return *this;
	}

	void Reset() { TWeakObjectPtrBase::Reset(); }
	T* Get(bool bEvenIfPendingKill) const { return (T*)TWeakObjectPtrBase::Get(bEvenIfPendingKill); }
	T* Get() const { return (T*)TWeakObjectPtrBase::Get(); }
	T* GetEvenIfUnreachable() const { return (T*)TWeakObjectPtrBase::GetEvenIfUnreachable(); }
	T& operator*() const { return *Get(); }
	T* operator->() const { return Get(); }
	bool IsValid(bool bEvenIfPendingKill, bool bThreadsafeTest = false) const
	{
		return TWeakObjectPtrBase::IsValid(bEvenIfPendingKill, bThreadsafeTest);
	}
	bool IsValid() const { return TWeakObjectPtrBase::IsValid(); }
	bool IsStale(bool bIncludingIfPendingKill = true, bool bThreadsafeTest = false) const
	{
		return TWeakObjectPtrBase::IsStale(bIncludingIfPendingKill, bThreadsafeTest);
	}
	bool IsExplicitlyNull() const { return TWeakObjectPtrBase::IsExplicitlyNull(); }
	template <class OtherT>
	bool HasSameIndexAndSerialNumber(const TWeakObjectPtr<OtherT, TWeakObjectPtrBase>& Other) const
	{
		return TWeakObjectPtrBase::HasSameIndexAndSerialNumber(static_cast<const TWeakObjectPtrBase&>(Other));
	}
	uint32 GetWeakPtrTypeHash() const { return TWeakObjectPtrBase::GetTypeHash(); }
	/** True for the same object, and for two pointers that are both invalid. */
	template <class OtherT>
	bool IsEqualTo(const TWeakObjectPtr<OtherT, TWeakObjectPtrBase>& Other) const
	{
		return TWeakObjectPtrBase::operator==(static_cast<const TWeakObjectPtrBase&>(Other));
	}
};

template <class T, class U, class Base>
FORCEINLINE bool operator==(const TWeakObjectPtr<T, Base>& Lhs, const TWeakObjectPtr<U, Base>& Rhs)
{
	return Lhs.IsEqualTo(Rhs);
}
template <class T, class U, class Base>
FORCEINLINE bool operator!=(const TWeakObjectPtr<T, Base>& Lhs, const TWeakObjectPtr<U, Base>& Rhs)
{
	return !Lhs.IsEqualTo(Rhs);
}
template <class T, class U, class Base>
FORCEINLINE bool operator==(const TWeakObjectPtr<T, Base>& Lhs, const U* Rhs)
{
	return (const void*)Lhs.Get() == (const void*)Rhs;
}
template <class T, class U, class Base>
FORCEINLINE bool operator!=(const TWeakObjectPtr<T, Base>& Lhs, const U* Rhs)
{
	return !(Lhs == Rhs);
}
template <class T, class U, class Base>
FORCEINLINE bool operator==(const U* Lhs, const TWeakObjectPtr<T, Base>& Rhs)
{
	return Rhs == Lhs;
}
template <class T, class U, class Base>
FORCEINLINE bool operator!=(const U* Lhs, const TWeakObjectPtr<T, Base>& Rhs)
{
	return !(Rhs == Lhs);
}
template <class T, class Base>
FORCEINLINE bool operator==(const TWeakObjectPtr<T, Base>& Lhs, TYPE_OF_NULLPTR)
{
	return !Lhs.IsValid();
}
template <class T, class Base>
FORCEINLINE bool operator!=(const TWeakObjectPtr<T, Base>& Lhs, TYPE_OF_NULLPTR)
{
	return Lhs.IsValid();
}
template <class T, class Base>
FORCEINLINE bool operator==(TYPE_OF_NULLPTR, const TWeakObjectPtr<T, Base>& Rhs)
{
	return !Rhs.IsValid();
}
template <class T, class Base>
FORCEINLINE bool operator!=(TYPE_OF_NULLPTR, const TWeakObjectPtr<T, Base>& Rhs)
{
	return Rhs.IsValid();
}
template <class T, class Base>
FORCEINLINE uint32 GetTypeHash(const TWeakObjectPtr<T, Base>& WeakObjectPtr)
{
	return WeakObjectPtr.GetWeakPtrTypeHash();
}

/** A weak pointer to an object. */
template <class T>
FORCEINLINE TWeakObjectPtr<T> MakeWeakObjectPtr(T* Ptr)
{
	return TWeakObjectPtr<T>(Ptr);
}
