// Copyright The Tintmill authors. All rights reserved.

#include "Host/TourRun/TourTimes.h"

#include "Host/Gallery/HtmlText.h"

#include <algorithm>
#include <iomanip>

namespace TintmillHost
{
void PrintTourTimes(std::ostream& Output, const std::vector<FGalleryCommand>& Commands)
{
	if (Commands.empty())
	{
		return;
	}
	size_t PlaceWidth = 0;
	double Sum = 0.0;
	for (const FGalleryCommand& Command : Commands)
	{
		PlaceWidth = std::max(PlaceWidth, Command.Place.size());
		Sum += Command.Seconds;
	}
	for (const FGalleryCommand& Command : Commands)
	{
		Output << "  " << std::right << std::setw(8) << DescribeSeconds(Command.Seconds) << "  " << std::left
			   << std::setw(static_cast<int>(PlaceWidth)) << Command.Place << (PlaceWidth > 0 ? "  " : "") << Command.Text << '\n';
	}
	const FGalleryCommand& Slowest = *std::max_element(
		Commands.begin(), Commands.end(), [](const FGalleryCommand& A, const FGalleryCommand& B) { return A.Seconds < B.Seconds; });
	Output << "  " << std::right << std::setw(8) << DescribeSeconds(Sum) << "  in all, " << Commands.size()
		   << (Commands.size() == 1 ? " command" : " commands") << "; the slowest: " << Slowest.Text << '\n';
}
}
