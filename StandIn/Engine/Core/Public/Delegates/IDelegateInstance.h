// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Templates/TypeHash.h"
#include "UObject/UObjectHierarchyFwd.h"

// The handle of a binding, and what is common to bindings of every kind.

/** Identifies one binding; ids come from a counter of the process and are never used again. */
class FDelegateHandle
{
public:
	/** Chooses the constructor that makes a fresh handle. */
	enum EGenerateNewHandleType
	{
		GenerateNewHandle
	};

	/** An invalid handle. */
	FDelegateHandle()
		: ID(0)
	{}

	/** A fresh handle. */
	explicit FDelegateHandle(EGenerateNewHandleType)
		: ID(GenerateNewID())
	{}

	/** Whether the handle was ever given to a binding. */
	bool IsValid() const { return ID != 0; }

	/** Makes the handle invalid. */
	void Reset() { ID = 0; }

	/** Whether both are the same binding's. */
	bool operator==(const FDelegateHandle& Rhs) const { return ID == Rhs.ID; }

	/** Whether they are different bindings'. */
	bool operator!=(const FDelegateHandle& Rhs) const { return ID != Rhs.ID; }

	/** Hash of a handle. */
	friend uint32 GetTypeHash(const FDelegateHandle& Key) { return GetTypeHash(Key.ID); }

private:
	CORE_API static uint64 GenerateNewID();

	uint64 ID;
};

/** One binding of a delegate. */
class IDelegateInstance
{
public:
	virtual ~IDelegateInstance() {}

	/** The bound object if it is a UObject that lives, else null. */
	virtual UObject* GetUObject() const = 0;

	/** The bound object's address, null for functions, lambdas and objects that are gone. */
	virtual const void* GetObjectForTimerManager() const = 0;

	/** Whether the bound object is at this address. */
	virtual bool HasSameObject(const void* InUserObject) const = 0;

	/** Whether the binding can be dropped because its object is gone for good. */
	virtual bool IsCompactable() const { return !IsSafeToExecute(); }

	/** Whether the binding's object, if it has one that can be watched, still lives. */
	virtual bool IsSafeToExecute() const = 0;

	/** The binding's handle. */
	virtual FDelegateHandle GetHandle() const = 0;
};
