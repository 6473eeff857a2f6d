// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Rendering/DrawElements.h"

#include <cstdint>
#include <cstring>

// Numbers that tell whether two things are painted alike.

namespace TintmillHost
{
/** A number that is made of many values one after the other. */
class FFingerprint
{
public:
	/** Takes a value of at most 8 bytes in. */
	template <typename ValueType>
	FFingerprint& Add(const ValueType& Value)
	{
		static_assert(sizeof(ValueType) <= sizeof(std::uint64_t), "Longer values are added part by part.");
		std::uint64_t Bits = 0;
		std::memcpy(&Bits, &Value, sizeof(ValueType));
		Hash = (Hash ^ Bits) * 0x9E3779B97F4A7C15ull;
		Hash ^= Hash >> 29;
		return *this;
	}

	/** Takes Count bytes in. */
	FFingerprint& AddBytes(const void* Bytes, size_t Count);

	/** The number. */
	std::uint64_t Get() const { return Hash; }

private:
	std::uint64_t Hash = 0xCBF29CE484222325ull;
};

/** The fingerprint of an element without the pictures that it shows and without its layer, which only orders it. */
FFingerprint FingerprintElement(const FSlateDrawElement& Element);
}
