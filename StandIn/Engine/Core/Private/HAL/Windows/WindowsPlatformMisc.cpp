// Copyright The Tintmill authors. All rights reserved.

#include "HAL/PlatformMisc.h"

#include <cwchar>
#include <stdlib.h>

FString FPlatformMisc::GetEnvironmentVariable(const TCHAR* VariableName)
{
	const wchar_t* const Value = _wgetenv(VariableName);
	return Value ? FString(Value) : FString();
}

const TCHAR* FPlatformMisc::GetUBTPlatform()
{
	return TEXT("Win64");
}

const TCHAR* FPlatformMisc::GetIniPlatform()
{
	return TEXT("Windows");
}
