// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "UObject/UObjectBase.h"

// Objects by outer and name.

namespace StandInPrivate
{
/** Makes an object findable by its outer and name. */
void HashObject(UObjectBase* Object);
/** Undoes HashObject; outer and name must still be those of then. */
void UnhashObject(UObjectBase* Object);
/** The object of a name in an outer (null for packages), or null. */
UObject* FindInOuter(const UObject* Outer, FName Name);
/** The first object of a name that fits, of any outer, or null. */
UObject* FindAnywhere(FName Name, const UClass* Class, bool bExactClass);
/** The next number for a new name in an outer. */
int32 NextNumber(const UObject* Outer, FName BaseName);
}
