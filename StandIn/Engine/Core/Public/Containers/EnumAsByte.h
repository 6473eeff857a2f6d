// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"

// An enumerator kept in one byte, for enumerations without a fixed underlying type.

/** An enumerator kept in one byte. */
template <class TEnum>
class TEnumAsByte
{
public:
	typedef TEnum EnumType;

	/** Makes an unset value. */
	TEnumAsByte() = default;

	/** Makes a value of an enumerator. */
	TEnumAsByte(TEnum InValue) : Value(static_cast<uint8>(InValue)) {}

	/** Makes a value of a number. */
	explicit TEnumAsByte(int32 InValue) : Value(static_cast<uint8>(InValue)) {}

	/** Makes a value of a byte. */
	explicit TEnumAsByte(uint8 InValue) : Value(InValue) {}

	/** Compares with an enumerator. */
	bool operator==(TEnum InValue) const { return static_cast<TEnum>(Value) == InValue; }

	/** Compares with another value. */
	bool operator==(TEnumAsByte InValue) const { return Value == InValue.Value; }

	/** Converts to the enumerator. */
	operator TEnum() const { return static_cast<TEnum>(Value); }

	/** Returns the enumerator. */
	TEnum GetValue() const { return static_cast<TEnum>(Value); }

private:
	uint8 Value;
};
