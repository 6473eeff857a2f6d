// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Templates/TypeHash.h"

// An unscoped enumerator kept in one byte.

/** Holds an enumerator in one byte; converts to and from it. */
template <class TEnum>
class TEnumAsByte
{
public:
	typedef TEnum EnumType;

	TEnumAsByte() = default;

	/** Holds an enumerator. */
	TEnumAsByte(TEnum InValue)
		: Value((uint8)InValue)
	{}

	/** Holds the enumerator of a number. */
	explicit TEnumAsByte(int32 InValue)
		: Value((uint8)InValue)
	{}

	/** Holds the enumerator of a number. */
	explicit TEnumAsByte(uint8 InValue)
		: Value(InValue)
	{}

	/** Whether the enumerators are equal. */
	bool operator==(TEnum InValue) const { return (TEnum)Value == InValue; }

	/** Whether the enumerators are equal. */
	bool operator==(TEnumAsByte InValue) const { return Value == InValue.Value; }

	/** The enumerator. */
	operator TEnum() const { return (TEnum)Value; }

	/** The enumerator. */
	TEnum GetValue() const { return (TEnum)Value; }

	/** Hash of the enumerator. */
	friend uint32 GetTypeHash(const TEnumAsByte& Enum) { return Enum.Value; }

private:
	uint8 Value;
};
