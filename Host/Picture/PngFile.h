// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Picture/Picture.h"

#include <filesystem>
#include <string>

// Pictures as PNG files, for people to look at and for tests to compare with.

namespace TintmillHost
{
/** Writes the picture as an opaque PNG, folders included; alpha is ignored. Returns an empty string, or one sentence why it could not. */
std::string WritePng(const FPicture& Picture, const std::filesystem::path& File);

/** Reads a PNG. Returns an empty string and fills the picture, or returns one sentence why it could not. */
std::string ReadPng(const std::filesystem::path& File, FPicture& OutPicture);
}
