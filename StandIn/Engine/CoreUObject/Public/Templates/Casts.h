// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Logging/LogMacros.h"
#include "UObject/Class.h"
#include "UObject/Field.h"

// Casts that ask the object's class. Left out: casts to interfaces.

/** What CastChecked does with null. */
namespace ECastCheckedType
{
enum Type
{
	NullAllowed,
	NullChecked
};
}

/** Ends the process with "Cast of FromType to ToType failed". */
[[noreturn]] COREUOBJECT_API void CastLogError(const TCHAR* FromType, const TCHAR* ToType);

/** The object as a To, or null. */
template <typename To, typename From>
FORCEINLINE To* Cast(From* Src)
{
	return Src && ((const UObject*)Src)->IsA(To::StaticClass()) ? (To*)Src : nullptr;
}
/** The object as a To, or null. */
template <typename To, typename From>
FORCEINLINE const To* Cast(const From* Src)
{
	return Src && ((const UObject*)Src)->IsA(To::StaticClass()) ? (const To*)Src : nullptr;
}
/** The object as a To if that is its very class, or null. */
template <typename To>
FORCEINLINE To* ExactCast(UObject* Src)
{
	return Src && Src->GetClass() == To::StaticClass() ? (To*)Src : nullptr;
}
/** The object as a To; fatal when it is none, or null where that is not allowed. */
template <typename To, typename From>
To* CastChecked(From* Src, ECastCheckedType::Type CheckType = ECastCheckedType::NullChecked)
{
	if (!Src)
	{
		if (CheckType == ECastCheckedType::NullChecked)
		{
			CastLogError(TEXT("nullptr"), *To::StaticClass()->GetName());
		}
		return nullptr;
	}
	To* Result = Cast<To>(Src);
	if (!Result)
	{
		CastLogError(*((const UObject*)Src)->GetFullName(), *To::StaticClass()->GetName());
	}
	return Result;
}
/** The object as a To; fatal when it is none, or null where that is not allowed. */
template <typename To, typename From>
const To* CastChecked(const From* Src, ECastCheckedType::Type CheckType = ECastCheckedType::NullChecked)
{
	return CastChecked<To>(const_cast<From*>(Src), CheckType);
}
