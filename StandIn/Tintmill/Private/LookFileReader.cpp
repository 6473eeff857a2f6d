// Copyright The Tintmill authors. All rights reserved.

#include "LookFileReader.h"

#include <fstream>
#include <system_error>

namespace LookFileReaderPrivate
{
static std::string TooLarge()
{
	return "the file is larger than " + std::to_string(LookFile::MaxFileBytes / (1024 * 1024)) + " MiB, too large for a look";
}

static std::string StatusReason(const std::error_code& Error)
{
	if (Error == std::errc::too_many_symbolic_link_levels)
	{
		return "the file is a link that leads to itself";
	}
	if (Error == std::errc::permission_denied)
	{
		return "the file's folder may not be read; check its permissions";
	}
	return "the file cannot be reached (" + Error.message() + ")";
}

/** Refuses everything that is not a regular file of a sensible size, without opening it. */
static bool CheckStatus(const std::filesystem::path& Path, LookFile::FProblem& OutProblem)
{
	std::error_code Error;
	const std::filesystem::file_status Status = std::filesystem::status(Path, Error);
	if (Status.type() == std::filesystem::file_type::not_found)
	{
		return LookFile::Refuse(OutProblem, 0, "the file does not exist");
	}
	if (Error)
	{
		return LookFile::Refuse(OutProblem, 0, StatusReason(Error));
	}
	if (Status.type() == std::filesystem::file_type::directory)
	{
		return LookFile::Refuse(OutProblem, 0, "this is a folder, not a file");
	}
	if (Status.type() != std::filesystem::file_type::regular)
	{
		return LookFile::Refuse(OutProblem, 0, "this is not an ordinary file");
	}
	const std::uintmax_t Size = std::filesystem::file_size(Path, Error);
	if (Error)
	{
		return LookFile::Refuse(OutProblem, 0, StatusReason(Error));
	}
	if (Size == 0)
	{
		return LookFile::Refuse(OutProblem, 0, "the file is empty");
	}
	if (Size > LookFile::MaxFileBytes)
	{
		return LookFile::Refuse(OutProblem, 0, TooLarge());
	}
	return true;
}
}

namespace LookFile
{
bool ReadWholeFile(const std::filesystem::path& Path, std::string& OutBytes, FProblem& OutProblem)
{
	OutBytes.clear();
	if (!LookFileReaderPrivate::CheckStatus(Path, OutProblem))
	{
		return false;
	}
	std::ifstream Stream(Path, std::ios::binary);
	if (!Stream)
	{
		return Refuse(OutProblem, 0, "the file cannot be opened; check its permissions");
	}
	char Block[64 * 1024];
	while (Stream.read(Block, sizeof(Block)) || Stream.gcount() > 0)
	{
		OutBytes.append(Block, static_cast<std::size_t>(Stream.gcount()));
		if (OutBytes.size() > MaxFileBytes)
		{
			return Refuse(OutProblem, 0, LookFileReaderPrivate::TooLarge());
		}
	}
	if (Stream.bad())
	{
		return Refuse(OutProblem, 0, "the file cannot be read to its end");
	}
	if (OutBytes.empty())
	{
		return Refuse(OutProblem, 0, "the file is empty");
	}
	return true;
}
}
