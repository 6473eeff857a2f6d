// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Views/SListPanel.h"
#include "Layout/ArrangedChildren.h"

void SListPanel::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	float Position = FirstLineOffset;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const TSharedRef<SWidget> Child = Children[Index];
		if (bTiles)
		{
			const int32 Column = Index % ItemsPerLine;
			ArrangedChildren.AddWidget(
				AllottedGeometry.MakeChild(Child, FVector2D(TileSize.X * static_cast<float>(Column), Position), TileSize));
			Position += Column == ItemsPerLine - 1 ? TileSize.Y : 0.0f;
		}
		else
		{
			const float Height = Child->GetDesiredSize().Y;
			ArrangedChildren.AddWidget(
				AllottedGeometry.MakeChild(Child, FVector2D(0.0f, Position), FVector2D(AllottedGeometry.GetLocalSize().X, Height)));
			Position += Height;
		}
	}
}

FVector2D SListPanel::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	float Width = bTiles ? TileSize.X : 0.0f;
	for (int32 Index = 0; Index < Children.Num() && !bTiles; ++Index)
	{
		Width = FMath::Max(Width, Children[Index]->GetDesiredSize().X);
	}
	return FVector2D(Width, WantedHeight);
}
