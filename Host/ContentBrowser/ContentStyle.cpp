// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/ContentStyle.h"

#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateNoResource.h"
#include "StandIn/BrushShape.h"
#include "Styling/CoreStyle.h"

#include <algorithm>
#include <cmath>

namespace TintmillHost::ContentStyle
{
namespace
{
using StandIn::EBrushShape;
using StandIn::FShapeBrush;

FShapeBrush Rounded(const FLinearColor& Color, float Radius)
{
	return FShapeBrush(EBrushShape::RoundedBox, FVector2D(16.0f, 16.0f), Color, Radius);
}
}

float GetStripHeight(float Thumbnail)
{
	return std::max(3.0f, std::round(Thumbnail * 0.025f));
}

FLinearColor Srgb(uint32 Rgb, float Alpha)
{
	return FLinearColor(FColor(static_cast<uint8>(Rgb >> 16), static_cast<uint8>(Rgb >> 8), static_cast<uint8>(Rgb), 255))
		.CopyWithNewOpacity(Alpha);
}

FLinearColor GetTextColor()
{
	return FLinearColor(0.72f, 0.72f, 0.72f);
}

FLinearColor GetDimTextColor()
{
	return FLinearColor(0.35f, 0.35f, 0.35f);
}

const FSlateBrush* GetPanelBrush()
{
	static const FSlateColorBrush Brush(Srgb(0x3E3E3E));
	return &Brush;
}

const FSlateBrush* GetViewBrush()
{
	static const FSlateColorBrush Brush(Srgb(0x282828));
	return &Brush;
}

const FSlateBrush* GetThumbnailGround()
{
	static const FSlateColorBrush Brush(Srgb(0x161616));
	return &Brush;
}

const FSlateBrush* GetWhiteBrush()
{
	static const FSlateColorBrush Brush(FLinearColor::White);
	return &Brush;
}

const FSlateBrush* GetErrorBrush()
{
	static const FShapeBrush Brush = Rounded(Srgb(0x8E1B12), 3.0f);
	return &Brush;
}

const FSlateBrush* GetTipPartBrush()
{
	static const FShapeBrush Brush = Rounded(Srgb(0x2C2C2C), 3.0f);
	return &Brush;
}

const FSlateBrush* GetFolderBrush()
{
	static const FShapeBrush Brush(EBrushShape::Folder, FVector2D(16.0f, 16.0f), Srgb(0xB79B6C));
	return &Brush;
}

const FSlateBrush* GetWarningBrush()
{
	static const FShapeBrush Brush(EBrushShape::Warning, FVector2D(20.0f, 20.0f), Srgb(0xF0C020));
	return &Brush;
}

const FSlateBrush* GetTileBrush(bool bSelected, bool bHovered)
{
	static const FShapeBrush Normal = Rounded(Srgb(0x393939), 4.0f);
	static const FShapeBrush Hovered = Rounded(Srgb(0x565656), 4.0f);
	static const FShapeBrush Selected = Rounded(FLinearColor(0.728f, 0.364f, 0.003f), 4.0f);
	static const FShapeBrush SelectedHovered = Rounded(Srgb(0xEDB73A), 4.0f);
	return bSelected ? (bHovered ? &SelectedHovered : &Selected) : (bHovered ? &Hovered : &Normal);
}

const FSlateBrush* GetArrowBrush(bool bExpanded)
{
	static const FShapeBrush Right(EBrushShape::TriangleRight, FVector2D(10.0f, 10.0f), FSlateColor::UseForeground());
	static const FShapeBrush Down(EBrushShape::TriangleDown, FVector2D(10.0f, 10.0f), FSlateColor::UseForeground());
	return bExpanded ? &Down : &Right;
}

const FTableRowStyle* GetTileRowStyle()
{
	static const FSlateNoResource Nothing;
	static const FTableRowStyle Style = FTableRowStyle()
											.SetEvenRowBackgroundBrush(Nothing)
											.SetEvenRowBackgroundHoveredBrush(Nothing)
											.SetOddRowBackgroundBrush(Nothing)
											.SetOddRowBackgroundHoveredBrush(Nothing)
											.SetActiveBrush(Nothing)
											.SetActiveHoveredBrush(Nothing)
											.SetInactiveBrush(Nothing)
											.SetInactiveHoveredBrush(Nothing)
											.SetTextColor(FSlateColor(GetTextColor()))
											.SetSelectedTextColor(FSlateColor(FLinearColor::Black));
	return &Style;
}

const FButtonStyle* GetAddButtonStyle()
{
	static const FButtonStyle Style = FButtonStyle()
										  .SetNormal(Rounded(Srgb(0x4F9E4F), 3.0f))
										  .SetHovered(Rounded(Srgb(0x62B562), 3.0f))
										  .SetPressed(Rounded(Srgb(0x3D803D), 3.0f))
										  .SetDisabled(Rounded(Srgb(0x48604A), 3.0f))
										  .SetNormalPadding(FMargin(2.0f, 2.0f, 2.0f, 2.0f))
										  .SetPressedPadding(FMargin(2.0f, 3.0f, 2.0f, 1.0f));
	return &Style;
}

FSlateFontInfo GetFont(int32 Size, bool bBold)
{
	return FCoreStyle::GetDefaultFontStyle(bBold ? TEXT("Bold") : TEXT("Regular"), Size);
}
}
