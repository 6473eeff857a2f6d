// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "UObject/UObjectGlobals.h"

// Objects whose memory is there and whose constructors have not come as far as UObjectBase.

namespace StandInPrivate
{
/** What UObjectBase takes over when its constructor runs. */
struct FPendingObject
{
	void* Memory = nullptr;
	UClass* Class = nullptr;
	UObject* Outer = nullptr;
	FName Name;
	EObjectFlags Flags = RF_NoFlags;
	EInternalObjectFlags InternalFlags = EInternalObjectFlags::None;
};

/** Announces an object that is about to be constructed. */
void PushPendingObject(const FPendingObject& Pending);
/** Takes the announcement of an object away; false when there is none. */
bool PopPendingObject(const void* Memory, FPendingObject& OutPending);
/** The announcement of an object, or null once it was taken. */
const FPendingObject* FindPendingObject(const void* Memory);

/** The innermost initializer, or null. */
FObjectInitializer* GetTopInitializer();
/** Objects that are under construction, innermost last. */
TArray<UObject*> GetObjectsUnderConstruction();

/** Prepares memory for an object, ending an existing one of the same name and class. */
UObject* AllocateObject(const UClass* Class, UObject* Outer, FName Name, EObjectFlags Flags, EInternalObjectFlags InternalFlags);
/** Ends an object whose destruction was begun and finished, and frees its memory. */
void DestructObject(UObject* Object, bool bFreeMemory);
/** Begins and finishes destruction. */
void FinishObject(UObject* Object);
}
