// Copyright The Tintmill authors. All rights reserved.

#include "Misc/Guid.h"

#include <random>

FString FGuid::ToString() const
{
	return FString::Printf(TEXT("%08X%08X%08X%08X"), A, B, C, D);
}

FGuid FGuid::NewGuid()
{
	std::random_device Random;
	FGuid Result(Random(), Random(), Random(), Random());
	// The marks of a random identifier, which also keep it from being all zero.
	Result.B = (Result.B & 0xffff0fffu) | 0x00004000u;
	Result.C = (Result.C & 0x3fffffffu) | 0x80000000u;
	return Result;
}

bool FGuid::Parse(const FString& GuidString, FGuid& OutGuid)
{
	if (GuidString.Len() != 32)
	{
		return false;
	}
	for (const TCHAR Char : GuidString)
	{
		if (!FChar::IsHexDigit(Char))
		{
			return false;
		}
	}
	uint32 Parts[4];
	for (int32 Part = 0; Part < 4; ++Part)
	{
		Parts[Part] = (uint32)FCString::Strtoui64(*GuidString.Mid(8 * Part, 8), nullptr, 16);
	}
	OutGuid = FGuid(Parts[0], Parts[1], Parts[2], Parts[3]);
	return true;
}
