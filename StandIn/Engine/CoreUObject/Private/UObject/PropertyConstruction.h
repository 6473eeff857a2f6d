// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "StandIn/CodeGenParams.h"
#include "UObject/Class.h"

// Makes properties from the records of generated code.

namespace StandInPrivate
{
/** Adds properties to a type; the record of an array's element or of an enumeration's integer stands before its owner's. */
void ConstructProperties(UStruct* Outer, const UE4CodeGen_Private::FPropertyParamsBase* const* Properties, int32 NumProperties);
}
