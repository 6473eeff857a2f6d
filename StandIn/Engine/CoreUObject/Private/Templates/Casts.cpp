// Copyright The Tintmill authors. All rights reserved.

#include "Templates/Casts.h"
#include "UObject/UObjectGlobals.h"

DEFINE_LOG_CATEGORY_STATIC(LogCasts, Log, All);

void CastLogError(const TCHAR* FromType, const TCHAR* ToType)
{
	UE_LOG(LogCasts, Fatal, TEXT("Cast of %s to %s failed"), FromType, ToType);
	for (;;)
	{}
}
