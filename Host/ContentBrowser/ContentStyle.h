// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Styling/SlateTypes.h"

// Colors, brushes and lengths of the content browser. Lengths are in Slate units.

namespace TintmillHost
{
namespace ContentStyle
{
/** Length of a thumbnail's edge with the colored strip, at a scale of one. */
constexpr float ThumbnailSize = 80.0f;

/** Space around a tile's plate. */
constexpr float TileGap = 3.0f;

/** Space between the plate's edge and the thumbnail. */
constexpr float PlatePadding = 4.0f;

/** Room for two lines of a name. */
constexpr float NameHeight = 30.0f;

/** The widest that what is wrong with a name is before it is broken into lines. */
constexpr float ProblemWidth = 260.0f;

/** Height of the strip in the color of the type. */
float GetStripHeight(float Thumbnail);

/** An sRGB color as Slate speaks of it. */
FLinearColor Srgb(uint32 Rgb, float Alpha = 1.0f);

/** Normal text, and text that steps back. */
FLinearColor GetTextColor();
FLinearColor GetDimTextColor();

const FSlateBrush* GetPanelBrush();
const FSlateBrush* GetViewBrush();
const FSlateBrush* GetThumbnailGround();
const FSlateBrush* GetWhiteBrush();
const FSlateBrush* GetErrorBrush();
const FSlateBrush* GetTipPartBrush();
const FSlateBrush* GetFolderBrush();
const FSlateBrush* GetWarningBrush();
const FSlateBrush* GetTileBrush(bool bSelected, bool bHovered);
const FSlateBrush* GetArrowBrush(bool bExpanded);

/** Style of table rows that paint nothing: tiles have plates of their own. */
const FTableRowStyle* GetTileRowStyle();

/** The green button. */
const FButtonStyle* GetAddButtonStyle();

/** Roboto in a size in points. */
FSlateFontInfo GetFont(int32 Size, bool bBold = false);
}
}
