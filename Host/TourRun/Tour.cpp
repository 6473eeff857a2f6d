// Copyright The Tintmill authors. All rights reserved.

#include "Host/TourRun/Tour.h"

#include <fstream>
#include <iterator>
#include <system_error>

namespace TintmillHost
{
std::string FTour::GetPlace(size_t Index) const
{
	return Name.empty() ? std::string() : Name + ":" + std::to_string(Commands[Index].Line);
}

FTour MakeTour(const std::string& Name, const std::string& Text)
{
	return {Name, SplitLines(Text)};
}

FTour MakeTourOfCommands(const std::string& Text)
{
	FTour Tour;
	for (const std::string& Command : SplitCommands(Text))
	{
		Tour.Commands.push_back({0, Command});
	}
	return Tour;
}

std::string ReadTour(const std::filesystem::path& File, FTour& OutTour)
{
	std::error_code Error;
	std::ifstream Stream(File, std::ios::binary);
	if (!Stream || std::filesystem::is_directory(File, Error))
	{
		return "The tour " + File.string() + " cannot be read; give a text file of console commands with --tour.";
	}
	const std::string Text((std::istreambuf_iterator<char>(Stream)), std::istreambuf_iterator<char>());
	OutTour = MakeTour(File.string(), Text);
	return {};
}

std::string ShortenPath(const std::filesystem::path& File)
{
	std::error_code Error;
	const std::filesystem::path Relative = std::filesystem::relative(File, Error);
	const bool bBelow = !Error && !Relative.empty() && *Relative.begin() != "..";
	return bBelow ? Relative.string() : File.string();
}
}
