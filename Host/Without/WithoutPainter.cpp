// Copyright The Tintmill authors. All rights reserved.

#include "Host/Picture/IDesktopPainter.h"
#include "Host/Picture/PngFile.h"

// The program built without a painter, where its libraries are not at hand.

namespace TintmillHost
{
namespace
{
const char* const NoPainter = "This program was built without the libraries that pictures are written and read with.";
}

std::unique_ptr<IDesktopPainter> MakeDesktopPainter()
{
	return nullptr;
}

bool HasPngFiles()
{
	return false;
}

std::string WritePng(const FPicture&, const std::filesystem::path&)
{
	return NoPainter;
}

std::string ReadPng(const std::filesystem::path&, FPicture&)
{
	return NoPainter;
}

std::string EncodePng(const FPicture&)
{
	return {};
}

FPicture DecodePng(const std::string&)
{
	return {};
}
}
