// Copyright The Tintmill authors. All rights reserved.

#include "HAL/NativePath.h"

#include "Misc/TextCodec.h"

#include <exception>
#include <string>

namespace StandInPrivate
{
bool ToNativePath(const TCHAR* Filename, std::filesystem::path& OutPath)
{
	if (!Filename || !*Filename)
	{
		return false;
	}
	try
	{
		OutPath = std::filesystem::path(std::basic_string<TCHAR>(Filename));
		return true;
	}
	catch (const std::exception&)
	{
		return false;
	}
}

FString FromNativePath(const std::filesystem::path& Path)
{
	try
	{
		return FString(Path.generic_string<TCHAR>().c_str());
	}
	catch (const std::exception&)
	{
		const std::string Bytes(reinterpret_cast<const char*>(Path.c_str()));
		return DecodeText(reinterpret_cast<const uint8*>(Bytes.data()), int64(Bytes.size()));
	}
}
}
