// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "StandIn/Properties/ArrayProperty.h"
#include "StandIn/Properties/BoolProperty.h"
#include "StandIn/Properties/EnumProperties.h"
#include "StandIn/Properties/FieldIterator.h"
#include "StandIn/Properties/NumericProperties.h"
#include "StandIn/Properties/ObjectProperties.h"
#include "StandIn/Properties/StructProperty.h"
#include "StandIn/Properties/TextProperties.h"

// Properties: where a reflected value lies, how it is copied, compared, written as text and read back. Left out: sets, maps,
// soft and lazy references, interfaces, delegates, archives.

namespace EPropertyChangeType
{
/** How a property was changed. */
typedef uint32 Type;
const Type Unspecified = 1 << 0;
const Type ArrayAdd = 1 << 1;
const Type ArrayRemove = 1 << 2;
const Type ArrayClear = 1 << 3;
const Type ValueSet = 1 << 4;
const Type Interactive = 1 << 6;
}

/** What an editor changed. */
struct FPropertyChangedEvent
{
	/** The property, or null when it is not known, and how it was changed. */
	FPropertyChangedEvent(FProperty* InProperty, EPropertyChangeType::Type InChangeType = EPropertyChangeType::Unspecified)
		: Property(InProperty)
		, MemberProperty(InProperty)
		, ChangeType(InChangeType)
	{}
	/** Name of the property, or None. */
	FName GetPropertyName() const { return Property ? Property->GetFName() : FName(NAME_None); }

	FProperty* Property;
	FProperty* MemberProperty;
	EPropertyChangeType::Type ChangeType;
};
