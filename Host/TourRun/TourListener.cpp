// Copyright The Tintmill authors. All rights reserved.

#include "Host/TourRun/TourListener.h"

#include "Host/Picture/PngFile.h"
#include "Host/Program/HostProgram.h"
#include "Host/Program/QuitRequest.h"

namespace TintmillHost
{
namespace
{
void TakePictureOfTheEnd(FHostProgram& Program)
{
	if (!Program.IsWindowOpen())
	{
		return;
	}
	const std::filesystem::path File = Program.GetOutDir() / "where-it-ended.png";
	if (WritePng(Program.GetWindow().TakePicture(1.0), File).empty())
	{
		Program.GetGallery().AddPicture("The window when the run ended", File);
	}
}
}

FTourListener MakeTourListener(FHostProgram& Program)
{
	FTourListener Listener;
	Listener.OnProblem = [&Program](const FGalleryCommand&) { TakePictureOfTheEnd(Program); };
	Listener.ShouldEnd = [] { return FQuitRequest::IsRequested(); };
	return Listener;
}
}
