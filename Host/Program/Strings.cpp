// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/Strings.h"

namespace TintmillHost
{
std::string ToUtf8(const FString& String)
{
	const FTCHARToUTF8 Converted(*String);
	return std::string(Converted.Get(), Converted.Length());
}

FString FromUtf8(const std::string& String)
{
	return FString(UTF8_TO_TCHAR(String.c_str()));
}
}
