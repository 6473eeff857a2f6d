// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/Picture/Picture.h"

#include <string>

// Play as people start and stop it. It is asked for and comes with the editor's next frame.

namespace TintmillHost
{
/** The ways to play from the active pane. */
enum class EPlayWay
{
	InPane,
	InWindow,
	Simulate
};

/** Asks for play from the active pane; a session that runs ends first. Throws FCommandError when no pane is open. */
void AskForPlay(EPlayWay Way);

/** Whether play runs. */
bool IsPlaying();

/** Where play runs and what the game displays: "The game in a window: WarmPrint at 1". Throws FCommandError when nothing is played. */
std::string DescribeGame();

/** Draws the game and reads its picture, in the active pane's size when it has a window of its own. Throws FCommandError when nothing is played. */
FPicture DrawGame();
}
