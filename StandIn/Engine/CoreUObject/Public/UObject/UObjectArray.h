// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "UObject/ObjectMacros.h"

// The array of all objects. Left out: permanent objects, listeners, clusters, threads.

class UObjectBase;

/** One place of the object array. */
struct FUObjectItem
{
	UObjectBase* Object = nullptr;
	/** EInternalObjectFlags. */
	int32 Flags = 0;
	/** Serial number that weak pointers compare, 0 until one was made. */
	int32 SerialNumber = 0;

	bool HasAnyFlags(EInternalObjectFlags InFlag) const { return (Flags & int32(InFlag)) != 0; }
	void SetFlags(EInternalObjectFlags InFlag) { Flags |= int32(InFlag); }
	void ClearFlags(EInternalObjectFlags InFlag) { Flags &= ~int32(InFlag); }
	bool IsPendingKill() const { return HasAnyFlags(EInternalObjectFlags::PendingKill); }
	bool IsUnreachable() const { return HasAnyFlags(EInternalObjectFlags::Unreachable); }
	bool IsRootSet() const { return HasAnyFlags(EInternalObjectFlags::RootSet); }
};

/** The array of all objects; places are reused. */
class COREUOBJECT_API FUObjectArray
{
public:
	/** Number of places, empty ones included. */
	int32 GetObjectArrayNum() const;
	/** Number of objects. */
	int32 GetObjectArrayNumMinusAvailable() const;
	/** A place, or null for a bad index. */
	FUObjectItem* IndexToObject(int32 Index);
	/** The place of an object; null for one that is not in the array. */
	FUObjectItem* ObjectToObjectItem(const UObjectBase* Object);
	/** Puts an object in. */
	void AllocateUObjectIndex(UObjectBase* Object, int32& OutIndex);
	/** Takes an object out. */
	void FreeUObjectIndex(int32 Index);
	/** The serial number of a place, made if there is none. */
	int32 AllocateSerialNumber(int32 Index);
};

/** All objects. */
extern COREUOBJECT_API FUObjectArray GUObjectArray;
