// Copyright The Tintmill authors. All rights reserved.

#include "HAL/PlatformMisc.h"

#include "Misc/TextCodec.h"

#include <cstdlib>
#include <cstring>

FString FPlatformMisc::GetEnvironmentVariable(const TCHAR* VariableName)
{
	const char* const Value = std::getenv(StandInPrivate::ToUtf8(FString(VariableName)).c_str());
	return Value ? StandInPrivate::DecodeText(reinterpret_cast<const uint8*>(Value), int64(std::strlen(Value))) : FString();
}

const TCHAR* FPlatformMisc::GetUBTPlatform()
{
	return TEXT("Linux");
}

const TCHAR* FPlatformMisc::GetIniPlatform()
{
	return TEXT("Linux");
}
