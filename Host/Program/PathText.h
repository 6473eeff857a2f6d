// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <filesystem>
#include <string>

// Paths as text: UTF-8, whatever the system speaks.

namespace TintmillHost
{
/** A path as UTF-8, with the system's own slashes. */
std::string PathToUtf8(const std::filesystem::path& Path);

/** UTF-8 as a path; the standard library alone would take it for the system's old encoding on Windows. */
std::filesystem::path PathFromUtf8(const std::string& String);

/** Whether two paths lead to one folder; the standard library's own answer fails for folders on Windows. */
bool IsSameFolder(const std::filesystem::path& One, const std::filesystem::path& Other);
}
