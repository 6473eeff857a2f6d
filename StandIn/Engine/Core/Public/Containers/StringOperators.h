// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "Templates/TypeHash.h"

// Joining, path joining, comparison (without regard to case) and hashing of strings; LexToString and LexFromString.

#define STANDIN_JOIN_STRINGS(Left, Right) \
	inline FString operator+(Left Lhs, Right Rhs) \
	{ \
		FString Result; \
		Result += Lhs; \
		Result += Rhs; \
		return Result; \
	}
STANDIN_JOIN_STRINGS(const FString&, const FString&)
STANDIN_JOIN_STRINGS(const FString&, const TCHAR*)
STANDIN_JOIN_STRINGS(const TCHAR*, const FString&)
STANDIN_JOIN_STRINGS(const FString&, TCHAR)
STANDIN_JOIN_STRINGS(TCHAR, const FString&)
#undef STANDIN_JOIN_STRINGS

/** Appends to a string that is about to go. */
inline FString operator+(FString&& Lhs, const FString& Rhs)
{
	Lhs += Rhs;
	return MoveTemp(Lhs);
}
/** Appends to a string that is about to go. */
inline FString operator+(FString&& Lhs, FString&& Rhs)
{
	Lhs += Rhs;
	return MoveTemp(Lhs);
}
/** Appends to a string that is about to go. */
inline FString operator+(FString&& Lhs, const TCHAR* Rhs)
{
	Lhs += Rhs;
	return MoveTemp(Lhs);
}
/** Appends to a string that is about to go. */
inline FString operator+(FString&& Lhs, TCHAR Rhs)
{
	Lhs += Rhs;
	return MoveTemp(Lhs);
}

/** Joins two strings. */
inline FString operator+(const TCHAR* Lhs, FString&& Rhs)
{
	FString Result(Lhs);
	Result += Rhs;
	return Result;
}

/** Joins paths with exactly one '/' between. */
inline FString operator/(const FString& Lhs, const TCHAR* Rhs)
{
	FString Result(Lhs);
	Result /= Rhs;
	return Result;
}
/** Joins paths with exactly one '/' between. */
inline FString operator/(const FString& Lhs, const FString& Rhs)
{
	return Lhs / *Rhs;
}
/** Joins paths with exactly one '/' between. */
inline FString operator/(const TCHAR* Lhs, const FString& Rhs)
{
	return FString(Lhs) / *Rhs;
}

#define STANDIN_COMPARE_STRINGS(Operator) \
	inline bool operator Operator(const FString& Lhs, const FString& Rhs) \
	{ \
		return FCString::Stricmp(*Lhs, *Rhs) Operator 0; \
	} \
	inline bool operator Operator(const FString& Lhs, const TCHAR* Rhs) \
	{ \
		return FCString::Stricmp(*Lhs, Rhs) Operator 0; \
	} \
	inline bool operator Operator(const TCHAR* Lhs, const FString& Rhs) \
	{ \
		return FCString::Stricmp(Lhs, *Rhs) Operator 0; \
	}
STANDIN_COMPARE_STRINGS(==)
STANDIN_COMPARE_STRINGS(!=)
STANDIN_COMPARE_STRINGS(<)
STANDIN_COMPARE_STRINGS(<=)
STANDIN_COMPARE_STRINGS(>)
STANDIN_COMPARE_STRINGS(>=)
#undef STANDIN_COMPARE_STRINGS

/** Hash without regard to case. */
CORE_API uint32 GetTypeHash(const FString& S);

/** Number of characters. */
inline int32 GetNum(const FString& String)
{
	return String.Len();
}

/** Text of a value. */
inline FString LexToString(const FString& Str)
{
	return Str;
}
/** Text of a value. */
inline FString LexToString(const TCHAR* Str)
{
	return FString(Str);
}
/** Text of a value: true or false. */
inline FString LexToString(bool Value)
{
	return Value ? FString(TEXT("true")) : FString(TEXT("false"));
}
/** Text of a value. */
inline FString LexToString(int32 Value)
{
	return FString::Printf(TEXT("%d"), Value);
}
/** Text of a value. */
inline FString LexToString(uint32 Value)
{
	return FString::Printf(TEXT("%u"), Value);
}
/** Text of a value. */
inline FString LexToString(int64 Value)
{
	return FString::Printf(TEXT("%lld"), Value);
}
/** Text of a value. */
inline FString LexToString(uint64 Value)
{
	return FString::Printf(TEXT("%llu"), Value);
}
/** Text of a value with six decimals. */
inline FString LexToString(float Value)
{
	return FString::Printf(TEXT("%f"), Value);
}
/** Text of a value with six decimals. */
inline FString LexToString(double Value)
{
	return FString::Printf(TEXT("%f"), Value);
}
/** Text of a value without trailing zeros. */
inline FString LexToSanitizedString(double Value)
{
	return FString::SanitizeFloat(Value);
}

/** Reads a value. */
inline void LexFromString(int32& OutValue, const TCHAR* Buffer)
{
	OutValue = FCString::Atoi(Buffer);
}
/** Reads a value. */
inline void LexFromString(uint32& OutValue, const TCHAR* Buffer)
{
	OutValue = (uint32)FCString::Atoi64(Buffer);
}
/** Reads a value. */
inline void LexFromString(int64& OutValue, const TCHAR* Buffer)
{
	OutValue = FCString::Atoi64(Buffer);
}
/** Reads a value. */
inline void LexFromString(uint64& OutValue, const TCHAR* Buffer)
{
	OutValue = FCString::Strtoui64(Buffer, nullptr, 0);
}
/** Reads a value. */
inline void LexFromString(float& OutValue, const TCHAR* Buffer)
{
	OutValue = FCString::Atof(Buffer);
}
/** Reads a value. */
inline void LexFromString(double& OutValue, const TCHAR* Buffer)
{
	OutValue = FCString::Atod(Buffer);
}
/** Reads a value. */
inline void LexFromString(bool& OutValue, const TCHAR* Buffer)
{
	OutValue = FCString::ToBool(Buffer);
}
/** Reads a value. */
inline void LexFromString(FString& OutValue, const TCHAR* Buffer)
{
	OutValue = Buffer;
}

namespace StandIn
{
/** Formats like printf into a string. */
CORE_API FString FormatVString(const TCHAR* Format, va_list Args);
}
