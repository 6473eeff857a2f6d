// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "UObject/Class.h"

// Destroying many objects at once, whatever refers to them.

namespace StandInPrivate
{
/** Destroys all objects of some classes and their children, the objects inside of them, and nulls what refers to them. */
void DestroyObjectsOfClasses(const TArray<UClass*>& Classes);
/** Destroys all objects that are no compiled-in types. */
void DestroyAllObjects();
/** Begins, finishes and ends destruction of objects; those that are not ready stay. */
void DestroyObjects(const TArray<UObject*>& Objects, bool bEvenIfNotReady);
}
