// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "UObject/UObjectGlobals.h"

// Keeps objects alive from outside of the object system. A copy is registered like the original.

/** Base of classes that hold references to objects. */
class COREUOBJECT_API FGCObject
{
public:
	FGCObject() { RegisterGCObject(); }
	FGCObject(FGCObject const&) { RegisterGCObject(); }
	FGCObject& operator=(const FGCObject&) { return *this; }
	virtual ~FGCObject();

	/** Reports the references to keep alive. */
	virtual void AddReferencedObjects(FReferenceCollector& Collector) = 0;
	/** Name of the holder in reports. */
	virtual FString GetReferencerName() const { return FString(TEXT("Unknown")); }

protected:
	void RegisterGCObject();
	void UnregisterGCObject();
};
