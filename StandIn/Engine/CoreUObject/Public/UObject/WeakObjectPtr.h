// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "UObject/UObjectHierarchyFwd.h"

// An object's index and serial number: knows when the object is gone. Left out: serialisation, thread-safe tests (the flag is ignored).

/** Weak pointer to an object of any class. */
struct COREUOBJECT_API FWeakObjectPtr
{
	FWeakObjectPtr()
		: ObjectIndex(-1)
		, ObjectSerialNumber(0)
	{}
	FWeakObjectPtr(TYPE_OF_NULLPTR)
		: FWeakObjectPtr()
	{}
	FWeakObjectPtr(const UObject* Object)
		: FWeakObjectPtr()
	{
		operator=(Object);
	}
	FWeakObjectPtr(const FWeakObjectPtr& Other) = default;
	FWeakObjectPtr& operator=(const FWeakObjectPtr& Other) = default;
	void operator=(const UObject* Object);
	void operator=(TYPE_OF_NULLPTR) { Reset(); }

	/** Points at nothing. */
	void Reset()
	{
		ObjectIndex = -1;
		ObjectSerialNumber = 0;
	}
	/** True for the same object, and for two pointers that are both invalid. */
	bool operator==(const FWeakObjectPtr& Other) const
	{
		return (ObjectIndex == Other.ObjectIndex && ObjectSerialNumber == Other.ObjectSerialNumber) || (!IsValid() && !Other.IsValid());
	}
	bool operator!=(const FWeakObjectPtr& Other) const { return !operator==(Other); }
	/** True when both were made from the same object, alive or not. */
	bool HasSameIndexAndSerialNumber(const FWeakObjectPtr& Other) const
	{
		return ObjectIndex == Other.ObjectIndex && ObjectSerialNumber == Other.ObjectSerialNumber;
	}
	/** The object, or null when it is gone; one waiting for its collection only if asked for. */
	UObject* Get(bool bEvenIfPendingKill) const;
	/** The object, or null when it is gone or waiting for its collection. */
	UObject* Get() const { return Get(false); }
	/** The object even while the collector has found it unreachable. */
	UObject* GetEvenIfUnreachable() const;
	bool IsValid(bool bEvenIfPendingKill, bool bThreadsafeTest = false) const
	{
		(void)bThreadsafeTest;
		return Get(bEvenIfPendingKill) != nullptr;
	}
	bool IsValid() const { return Get(false) != nullptr; }
	/** True when it pointed at an object once and does not any more. */
	bool IsStale(bool bIncludingIfPendingKill = true, bool bThreadsafeTest = false) const;
	/** True when it was never set or was reset. */
	bool IsExplicitlyNull() const { return ObjectIndex == -1 && ObjectSerialNumber == 0; }
	uint32 GetTypeHash() const { return uint32(ObjectIndex ^ ObjectSerialNumber); }
	friend uint32 GetTypeHash(const FWeakObjectPtr& WeakObjectPtr) { return WeakObjectPtr.GetTypeHash(); }

private:
	int32 ObjectIndex;
	int32 ObjectSerialNumber;
};
