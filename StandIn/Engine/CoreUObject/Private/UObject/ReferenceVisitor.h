// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "UObject/UObjectGlobals.h"

// Walks the references of objects by their reflected properties.

namespace StandInPrivate
{
/** Reports the references in an object's properties, in structs and arrays, too, and those that its class reports itself. */
void VisitObjectReferences(UObject* Object, FReferenceCollector& Collector);
}
