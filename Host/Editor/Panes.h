// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/Picture/Picture.h"
#include "Templates/SharedPointer.h"

#include <string>

class SLevelViewport;
struct FTintmillDisplayConfiguration;

// The level editor's panes as people speak of them: by number, by name ("Viewport1"), or by the key of their place in the layout.

namespace TintmillHost
{
/** The pane of a number, name or key in the first tab. Throws FCommandError, with the panes there are, when there is none. */
TSharedRef<SLevelViewport> FindPane(const std::string& Word);

/** The pane that is worked in. Throws FCommandError when there is none. */
TSharedRef<SLevelViewport> GetActivePane();

/** The middle of a pane's picture on the desktop. Throws FCommandError when the pane is not in sight. */
FVector2D FindPaneCenter(const std::string& Word);

/** Gives every pane the same size in pixels, whatever the window's; 0 by 0 lets panes follow their widgets. */
void SetPaneSize(const FIntPoint& Size);

/** Asks for a new picture of every pane that would look different now, as those that are not drawn all the time have to be asked for. */
void RedrawChangedPanes();

/** Draws now those panes whose picture has another size than they have; a frame resizes them after it has drawn them. */
void DrawResizedPanes();

/** The pane's live display configuration. */
FTintmillDisplayConfiguration& GetPaneRecord(SLevelViewport& Pane);

/** Draws the pane and reads its picture. */
FPicture DrawPane(SLevelViewport& Pane);

/** Draws the pane once with its look switched on or off; the record is as before afterwards. */
FPicture DrawPaneWithLook(SLevelViewport& Pane, bool bEnable);

/** "Monochrome at 0.8", "Monochrome (off)", "no look" …: the record in words. */
std::string DescribeRecord(const FTintmillDisplayConfiguration& Record);
}
