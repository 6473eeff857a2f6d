// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Layout/SScrollPanel.h"
#include "Layout/ArrangedChildren.h"
#include "Layout/LayoutUtils.h"

void SScrollPanel::Construct(const FArguments& /*InArgs*/, EOrientation InOrientation)
{
	Orientation = InOrientation;
}

float SScrollPanel::GetContentLength() const
{
	const FVector2D Size = ComputeDesiredSize(1.0f);
	return Orientation == Orient_Vertical ? Size.Y : Size.X;
}

void SScrollPanel::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const bool bVertical = Orientation == Orient_Vertical;
	const FVector2D Size = AllottedGeometry.GetLocalSize();
	float Position = -Offset;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const SScrollBox::FSlot& Slot = Children[Index];
		if (Slot.GetWidget()->GetVisibility() == EVisibility::Collapsed)
		{
			continue;
		}
		const FMargin Padding = Slot.SlotPadding.Get();
		const FVector2D Wanted = Slot.GetWidget()->GetDesiredSize() + Padding.GetDesiredSize();
		const FVector2D SlotSize = bVertical ? FVector2D(Size.X, Wanted.Y) : FVector2D(Wanted.X, Size.Y);
		const AlignmentArrangeResult X = AlignChild<Orient_Horizontal>(SlotSize.X, Slot, Padding);
		const AlignmentArrangeResult Y = AlignChild<Orient_Vertical>(SlotSize.Y, Slot, Padding);
		const FVector2D ChildOffset = bVertical ? FVector2D(X.Offset, Position + Y.Offset) : FVector2D(Position + X.Offset, Y.Offset);
		ArrangedChildren.AddWidget(AllottedGeometry.MakeChild(Slot.GetWidget(), ChildOffset, FVector2D(X.Size, Y.Size)));
		Position += bVertical ? SlotSize.Y : SlotSize.X;
	}
}

FVector2D SScrollPanel::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	FVector2D Size(0.0f, 0.0f);
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const SScrollBox::FSlot& Slot = Children[Index];
		if (Slot.GetWidget()->GetVisibility() != EVisibility::Collapsed)
		{
			const FVector2D Wanted = Slot.GetWidget()->GetDesiredSize() + Slot.SlotPadding.Get().GetDesiredSize();
			Size = Orientation == Orient_Vertical ? FVector2D(FMath::Max(Size.X, Wanted.X), Size.Y + Wanted.Y)
												  : FVector2D(Size.X + Wanted.X, FMath::Max(Size.Y, Wanted.Y));
		}
	}
	return Size;
}
