// Copyright The Tintmill authors. All rights reserved.

#include "Input/HittestGrid.h"
#include "Widgets/SWidget.h"

void FHittestGrid::Clear()
{
	Records.Reset();
}

int32 FHittestGrid::AddWidget(const TSharedRef<SWidget>& InWidget, int32 ParentIndex, const FGeometry& InGeometry,
	const FSlateRect& InClipRect, int32 InLayerId, bool bIsHittable)
{
	FRecord Record;
	Record.Widget = InWidget;
	Record.ParentIndex = ParentIndex;
	Record.Geometry = InGeometry;
	Record.ClipRect = InClipRect;
	Record.LayerId = InLayerId;
	Record.bIsHittable = bIsHittable;
	return Records.Add(Record);
}

TArray<FArrangedWidget> FHittestGrid::GetBubblePath(const FVector2D& DesktopSpaceCoordinate, bool bIgnoreEnabledStatus) const
{
	int32 Best = INDEX_NONE;
	for (int32 Index = 0; Index < Records.Num(); ++Index)
	{
		const FRecord& Record = Records[Index];
		if (Record.bIsHittable && (Best == INDEX_NONE || Record.LayerId >= Records[Best].LayerId)
			&& Record.Geometry.IsUnderLocation(DesktopSpaceCoordinate) && Record.ClipRect.ContainsPoint(DesktopSpaceCoordinate)
			&& Record.Widget.IsValid())
		{
			Best = Index;
		}
	}

	TArray<FArrangedWidget> Path;
	for (int32 Index = Best; Index != INDEX_NONE; Index = Records[Index].ParentIndex)
	{
		const TSharedPtr<SWidget> Widget = Records[Index].Widget.Pin();
		if (!Widget.IsValid())
		{
			// A parent has gone since the last paint: nothing below it can be reached.
			Path.Reset();
			continue;
		}
		Path.Insert(FArrangedWidget(Widget.ToSharedRef(), Records[Index].Geometry), 0);
	}

	if (!bIgnoreEnabledStatus)
	{
		for (int32 Index = 0; Index < Path.Num(); ++Index)
		{
			if (!Path[Index].Widget->IsEnabled())
			{
				Path.RemoveAt(Index, Path.Num() - Index);
				break;
			}
		}
	}
	return Path;
}
