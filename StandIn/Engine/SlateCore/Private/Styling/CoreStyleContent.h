// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateStyle.h"

// The colours, sizes and fonts of the dark theme.

namespace CoreStyleContent
{
/** Text and icons. */
FLinearColor GetForeground();

/** Text on a selection. */
FLinearColor GetInvertedForeground();

/** Selection and hover: amber. */
FLinearColor GetSelection();

/** Selection while pressed or checked. */
FLinearColor GetPressedSelection();

/** Selection without the focus. */
FLinearColor GetInactiveSelection();

/** Makes a colour of the sRGB values 0xRRGGBB. */
FLinearColor MakeColor(uint32 Rgb, float Alpha = 1.0f);

/** Adds colours, fonts, texts and simple brushes. */
void AddBasics(FSlateStyleSet& Style);

/** Adds the styles of buttons, check boxes, text boxes, lists, bars, windows and tool tips. */
void AddControls(FSlateStyleSet& Style);

/** Adds what menus are made of. */
void AddMenus(FSlateStyleSet& Style);

/** Adds what menu bars and tool bars are made of. */
void AddToolBars(FSlateStyleSet& Style);
}
