// Copyright The Tintmill authors. All rights reserved.

#include "LookPass/LookPassFile.h"

#include <fstream>
#include <random>
#include <system_error>

namespace LookPassFilePrivate
{
/** A folder that this call created; empty when there is none to be had. */
static std::filesystem::path MakeFolder()
{
	std::error_code Error;
	const std::filesystem::path Base = std::filesystem::temp_directory_path(Error);
	std::random_device Random;
	for (int Try = 0; !Error && Try < 16; ++Try)
	{
		const std::filesystem::path Folder = Base / ("tintmill-" + std::to_string(Random()) + std::to_string(Random()));
		// True only for who really created it, so a folder laid out by somebody else is never used.
		if (std::filesystem::create_directory(Folder, Error))
		{
			std::filesystem::permissions(Folder, std::filesystem::perms::owner_all, Error);
			return Folder;
		}
	}
	return {};
}
}

namespace LookPass
{
FLookPassFile::FLookPassFile(const std::string& Text, const std::string& Extension)
	: Folder(LookPassFilePrivate::MakeFolder())
{
	if (Folder.empty())
	{
		return;
	}
	File = Folder / ("look." + Extension);
	std::ofstream Stream(File, std::ios::binary);
	Stream << Text;
	Stream.close();
	bWritten = !Stream.fail();
}

FLookPassFile::~FLookPassFile()
{
	std::error_code Error;
	if (!Folder.empty())
	{
		std::filesystem::remove(File, Error);
		std::filesystem::remove(Folder, Error);
	}
}

bool FLookPassFile::IsWritten() const
{
	return bWritten;
}

const std::filesystem::path& FLookPassFile::GetPath() const
{
	return File;
}
}
