// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/TourRun/TourRun.h"

// What the program does around the commands of a tour.

namespace TintmillHost
{
class FHostProgram;

/** Ends the tour when somebody wants the program to end, and takes a picture of the window where a command fails. */
FTourListener MakeTourListener(FHostProgram& Program);
}
