// Copyright The Tintmill authors. All rights reserved.

#include "Host/TourRun/KeptSettings.h"

#include "Host/Gallery/Packing.h"
#include "Host/Program/Strings.h"

#include "StandIn/AtomicFile.h"

#include <fstream>
#include <iterator>
#include <system_error>

namespace TintmillHost
{
namespace
{
std::optional<std::string> ReadFile(const std::filesystem::path& File)
{
	std::ifstream Stream(File, std::ios::binary);
	if (!Stream)
	{
		return std::nullopt;
	}
	return std::string((std::istreambuf_iterator<char>(Stream)), std::istreambuf_iterator<char>());
}
}

void FKeptSettings::Keep(const std::filesystem::path& InFile)
{
	// Where nothing is saved there is nothing to put back, and others may save meanwhile.
	FString Why;
	if (!bKept && !StandIn::AreSavesRefused(PathToEngine(InFile), Why))
	{
		bKept = true;
		File = InFile;
		Bytes = ReadFile(File);
	}
}

std::string FKeptSettings::PutBack() const
{
	if (!bKept || ReadFile(File) == Bytes)
	{
		return {};
	}
	std::error_code Error;
	if (!Bytes)
	{
		std::filesystem::remove(File, Error);
		return Error ? "The settings " + File.string() + " cannot be taken away again: " + Error.message() + "." : std::string();
	}
	std::filesystem::path Unfinished = File;
	Unfinished += ".new";
	bool bWritten = false;
	{
		std::ofstream Stream(Unfinished, std::ios::binary);
		Stream << *Bytes;
		bWritten = static_cast<bool>(Stream.flush());
	}
	if (bWritten)
	{
		std::filesystem::rename(Unfinished, File, Error);
	}
	if (!bWritten || Error)
	{
		std::error_code Ignored;
		std::filesystem::remove(Unfinished, Ignored);
		return "The settings " + File.string() + " cannot be put back as they were before the tour: "
			+ (Error ? Error.message() : std::string("the folder cannot be written")) + ".";
	}
	return {};
}

void FKeptSettings::Save(std::ostream& Stream) const
{
	PackNumber(Stream, bKept ? 1.0 : 0.0);
	PackText(Stream, File.string());
	PackNumber(Stream, Bytes ? 1.0 : 0.0);
	PackText(Stream, Bytes.value_or(""));
}

void FKeptSettings::Load(std::istream& Stream)
{
	bKept = UnpackNumber(Stream) > 0.0;
	File = PathFromUtf8(UnpackText(Stream));
	const bool bHasBytes = UnpackNumber(Stream) > 0.0;
	Bytes = UnpackText(Stream);
	if (!bHasBytes)
	{
		Bytes.reset();
	}
}
}
