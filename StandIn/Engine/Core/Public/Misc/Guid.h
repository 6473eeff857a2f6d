// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Containers/UnrealString.h"

// Globally unique identifiers; only the plain form of 32 digits as text.

/** 128 bits that are the same nowhere else. */
struct CORE_API FGuid
{
	uint32 A = 0;
	uint32 B = 0;
	uint32 C = 0;
	uint32 D = 0;

	/** All zero: invalid. */
	FGuid() {}

	/** From its parts. */
	FGuid(uint32 InA, uint32 InB, uint32 InC, uint32 InD)
		: A(InA)
		, B(InB)
		, C(InC)
		, D(InD)
	{}

	/** Equal parts. */
	friend bool operator==(const FGuid& X, const FGuid& Y) { return X.A == Y.A && X.B == Y.B && X.C == Y.C && X.D == Y.D; }

	/** Any part differs. */
	friend bool operator!=(const FGuid& X, const FGuid& Y) { return !(X == Y); }

	/** Whether any part is not zero. */
	bool IsValid() const { return (A | B | C | D) != 0; }

	/** Makes the identifier invalid. */
	void Invalidate() { *this = FGuid(); }

	/** 32 hexadecimal digits. */
	FString ToString() const;

	/** A fresh random identifier. */
	static FGuid NewGuid();

	/** Reads 32 hexadecimal digits; yields whether it could. */
	static bool Parse(const FString& GuidString, FGuid& OutGuid);

	/** Hash of all parts. */
	friend uint32 GetTypeHash(const FGuid& Guid) { return HashCombine(HashCombine(Guid.A, Guid.B), HashCombine(Guid.C, Guid.D)); }
};
