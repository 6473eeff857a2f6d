// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "UObject/UObjectGlobals.h"

// The holders of references outside of the object system.

namespace StandInPrivate
{
/** Lets every FGCObject report its references. */
void ReportGCObjects(FReferenceCollector& Collector);
}
