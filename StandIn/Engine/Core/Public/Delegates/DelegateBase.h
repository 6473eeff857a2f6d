// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Delegates/IDelegateInstance.h"
#include "Containers/Array.h"
#include "Misc/AssertionMacros.h"

// What delegates of all signatures share: one binding, and the list of bindings with its rules of removal.

class FMulticastDelegateBase;

namespace StandIn
{
struct FDelegateAccess;
}

/** Holds one binding. */
class FDelegateBase
{
	friend class FMulticastDelegateBase;
	friend struct StandIn::FDelegateAccess;

public:
	FDelegateBase() {}
	FDelegateBase(FDelegateBase&& Other)
		: Instance(Other.Instance)
	{
		Other.Instance = nullptr;
	}
	FDelegateBase& operator=(FDelegateBase&& Other)
	{
		if (this != &Other)
		{
			IDelegateInstance* OldInstance = Instance;
			Instance = Other.Instance;
			Other.Instance = nullptr;
			delete OldInstance;
		}
		return *this;
	}
	FDelegateBase(const FDelegateBase&) = delete;
	FDelegateBase& operator=(const FDelegateBase&) = delete;
	~FDelegateBase() { Unbind(); }

	/** The bound UObject, or null. */
	UObject* GetUObject() const { return Instance != nullptr ? Instance->GetUObject() : nullptr; }

	/** The bound object's address, or null. */
	const void* GetObjectForTimerManager() const { return Instance != nullptr ? Instance->GetObjectForTimerManager() : nullptr; }

	/** Whether the binding's object is at this address. */
	bool IsBoundToObject(const void* InUserObject) const
	{
		return InUserObject != nullptr && Instance != nullptr && Instance->HasSameObject(InUserObject);
	}

	/** Drops the binding. */
	void Unbind()
	{
		IDelegateInstance* OldInstance = Instance;
		Instance = nullptr;
		delete OldInstance;
	}

	/** The binding's handle, invalid if there is none. */
	FDelegateHandle GetHandle() const { return Instance != nullptr ? Instance->GetHandle() : FDelegateHandle(); }

protected:
	/** The binding, or null. */
	IDelegateInstance* GetDelegateInstanceProtected() const { return Instance; }

	IDelegateInstance* Instance = nullptr;
};

/** Holds a list of bindings; removal swaps the last one into the hole, and only marks while a broadcast runs. */
class CORE_API FMulticastDelegateBase
{
public:
	~FMulticastDelegateBase() {}

	/** Removes all bindings. */
	void Clear();

	/** Whether any binding can be called. */
	bool IsBound() const;

	/** Whether any binding's object is at this address. */
	bool IsBoundToObject(const void* InUserObject) const;

	/** Not in the engine: one address for each live binding, in order of adding: its user object, null if it has none. */
	TArray<const void*> ListUserObjects() const;

	/** Removes every binding whose object is at this address; lambdas and functions have none; yields how many. */
	int32 RemoveAll(const void* InUserObject);

protected:
	FMulticastDelegateBase() {}
	FMulticastDelegateBase(const FMulticastDelegateBase&) = delete;
	FMulticastDelegateBase& operator=(const FMulticastDelegateBase&) = delete;

	FDelegateHandle AddInternal(FDelegateBase&& NewDelegate);
	bool RemoveInternal(FDelegateHandle Handle);
	void CompactInvocationList(bool bCheckThreshold = false);
	void LockInvocationList() const { ++InvocationListLockCount; }
	void UnlockInvocationList() const { --InvocationListLockCount; }
	IDelegateInstance* GetInstance(int32 Index) const { return InvocationList[Index].GetDelegateInstanceProtected(); }

	TArray<FDelegateBase> InvocationList;

private:
	int32 CompactionThreshold = 2;
	mutable int32 InvocationListLockCount = 0;
};
