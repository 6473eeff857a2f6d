// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/ContentStyle.h"
#include "Host/ContentBrowser/SContentBrowser.h"
#include "Host/ContentBrowser/SContentTile.h"
#include "Host/ContentBrowser/SFolderTree.h"

#include <algorithm>
#include <cmath>

// Where things are in the content browser.

namespace TintmillHost
{
namespace
{
/** What one notch of the wheel scrolls by. */
constexpr float NotchHeight = 32.0f;
}

TArray<FTilePlace> SContentBrowser::GetPlaces() const
{
	TArray<FTilePlace> Places;
	const FGeometry& Geometry = Tiles->GetCachedGeometry();
	const int32 LineLength = Tiles->GetLineLength();
	const float FirstLine = static_cast<float>(Tiles->GetScrollOffset()) / static_cast<float>(LineLength);
	const float Width = GetTileWidth();
	const float Height = GetTileHeight();
	for (int32 Index = 0; Index < Items.Num(); ++Index)
	{
		FTilePlace Place;
		Place.Item = Items[Index];
		Place.bSelected = Tiles->IsItemSelected(Items[Index]);
		const FVector2D Local(
			(static_cast<float>(Index % LineLength) + 0.5f) * Width, (static_cast<float>(Index / LineLength) - FirstLine + 0.5f) * Height);
		Place.Center = Geometry.LocalToAbsolute(Local);
		const float View = Geometry.GetLocalSize().Y;
		Place.bInSight = Local.Y + Height * 0.5f > 0.0f && Local.Y - Height * 0.5f < View;
		if (Local.Y < 0.0f || Local.Y >= View)
		{
			Place.Notches = static_cast<int32>(std::lround((View * 0.5f - Local.Y) / NotchHeight));
		}
		Places.Add(Place);
	}
	return Places;
}

FVector2D SContentBrowser::GetTilesCenter() const
{
	return Tiles->GetCachedGeometry().GetAbsolutePositionAtCoordinates(FVector2D(0.5f, 0.5f));
}

FVector2D SContentBrowser::GetEmptyPlace() const
{
	// Right of the last tile of the last line, or in the strip that no tile reaches.
	const FGeometry& Geometry = Tiles->GetCachedGeometry();
	const int32 LineLength = Tiles->GetLineLength();
	const bool bFullLine = Items.Num() % LineLength == 0;
	const float Lines = std::ceil(static_cast<float>(Items.Num()) / static_cast<float>(LineLength));
	const FVector2D Size = Geometry.GetLocalSize();
	const float Y = bFullLine ? (Lines + 0.5f) * GetTileHeight() : (Lines - 0.5f) * GetTileHeight();
	return Geometry.LocalToAbsolute(FVector2D(Size.X - 20.0f, std::min(Y, Size.Y - 4.0f)));
}

TSharedPtr<SFolderRow> SContentBrowser::FindFolderRow(const FString& Path) const
{
	return Tree->FindRow(Path);
}

FMargin SContentBrowser::GetNameProblemPlace() const
{
	const TSharedPtr<SContentTile> Tile = FindNewTile();
	if (!Tile.IsValid())
	{
		return FMargin(0.0f);
	}
	// Below the tile, or above it where there is no room.
	const FGeometry& Area = TileArea->GetCachedGeometry();
	const FVector2D Size = Area.GetLocalSize();
	const FVector2D Place = Area.AbsoluteToLocal(Tile->GetCachedGeometry().GetAbsolutePosition());
	const float Left = std::max(0.0f, std::min(Place.X, Size.X - ContentStyle::ProblemWidth - 12.0f));
	constexpr float Room = 42.0f;
	const float Below = Place.Y + GetTileHeight();
	return FMargin(Left, Below + Room <= Size.Y ? Below : std::max(0.0f, Place.Y - Room * 0.5f), 0.0f, 0.0f);
}
}
