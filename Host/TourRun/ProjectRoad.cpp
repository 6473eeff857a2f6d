// Copyright The Tintmill authors. All rights reserved.

#include "Host/TourRun/ProjectRoad.h"

#include <algorithm>

namespace TintmillHost
{
namespace
{
/** A text as a caption that the console takes as it is. */
std::string MakeCaption(std::string Text)
{
	for (const char Special : {';', '#', '"', '\'', '\n', '\r'})
	{
		std::replace(Text.begin(), Text.end(), Special, ' ');
	}
	return Text;
}
}

std::string MakeProjectRoad(const std::string& ProjectName, const std::vector<std::string>& Looks)
{
	std::string Road = "title The looks of " + MakeCaption(ProjectName) + "\nkeep-settings\npanes\n";
	if (!Looks.empty())
	{
		Road += "chapter Every look, without it and with it\n";
	}
	for (size_t Index = 0; Index < std::min(Looks.size(), MaxRoadLooks); ++Index)
	{
		// The perspective pane sees the most.
		Road += "compare-look \"" + Looks[Index] + "\" 1\n";
	}
	if (Looks.size() > MaxRoadLooks)
	{
		Road += "chapter The first " + std::to_string(MaxRoadLooks) + " of " + std::to_string(Looks.size())
			+ " looks are shown, compare-look shows any other\n";
	}
	Road += "chapter The panes as they were left\npictures\nnotices\n";
	return Road;
}
}
