// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Picture/Picture.h"

#include <filesystem>
#include <string>

// Pictures as PNG files, for people to look at and for tests to compare with.

namespace TintmillHost
{
/** Whether the program was built with what pictures are written and read with. */
bool HasPngFiles();

/** Writes the picture as an opaque PNG, folders included; alpha is ignored. Returns an empty string, or one sentence why it could not. */
std::string WritePng(const FPicture& Picture, const std::filesystem::path& File);

/** The picture as the bytes of an opaque PNG; empty where the program was built without a painter or the picture has no pixels. */
std::string EncodePng(const FPicture& Picture);

/** The picture that a PNG's bytes hold; one without pixels if they hold none. */
FPicture DecodePng(const std::string& Bytes);

/** Reads a PNG. Returns an empty string and fills the picture, or returns one sentence why it could not. */
std::string ReadPng(const std::filesystem::path& File, FPicture& OutPicture);
}
