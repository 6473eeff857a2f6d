// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Templates/Tuple.h"
#include "UObject/ObjectMacros.h"

// Not in the engine: reflection data as generated code declared it, for tests.

class FField;
class FProperty;

namespace StandIn
{
/** Metadata keys and values of a class, struct or enumeration in the order of their declaration. */
COREUOBJECT_API TArray<TPair<FString, FString>> GetMetaDataInOrder(const UField* Type);
/** Metadata keys and values of a property in the order of their declaration. */
COREUOBJECT_API TArray<TPair<FString, FString>> GetMetaDataInOrder(const FField* Field);
/** The property's flags without those that are worked out when its type is linked. */
COREUOBJECT_API EPropertyFlags GetDeclaredPropertyFlags(const FProperty* Property);
/** The struct's flags without those that are worked out when it is linked. */
COREUOBJECT_API EStructFlags GetDeclaredStructFlags(const UScriptStruct* Struct);
}
