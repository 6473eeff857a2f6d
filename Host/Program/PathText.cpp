// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/PathText.h"

#include <system_error>

namespace TintmillHost
{
std::string PathToUtf8(const std::filesystem::path& Path)
{
	const std::u8string Text = Path.u8string();
	return std::string(Text.begin(), Text.end());
}

std::filesystem::path PathFromUtf8(const std::string& String)
{
	return std::filesystem::path(std::u8string(String.begin(), String.end()));
}

bool IsSameFolder(const std::filesystem::path& One, const std::filesystem::path& Other)
{
	std::error_code Error;
	const std::filesystem::path Real = std::filesystem::canonical(One, Error);
	return !Error && Real == std::filesystem::canonical(Other, Error) && !Error;
}
}
