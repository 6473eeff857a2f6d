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

FString PathToEngine(const std::filesystem::path& Path)
{
	const std::u8string Text = Path.generic_u8string();
	return FromUtf8(std::string(Text.begin(), Text.end()));
}

std::string ToLowerCase(const std::string& String)
{
	std::string Lowered = String;
	for (char& Character : Lowered)
	{
		Character = Character >= 'A' && Character <= 'Z' ? static_cast<char>(Character + ('a' - 'A')) : Character;
	}
	return Lowered;
}
}
