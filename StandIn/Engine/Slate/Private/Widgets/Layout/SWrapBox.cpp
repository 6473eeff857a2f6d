// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Layout/SWrapBox.h"
#include "Layout/ArrangedChildren.h"

SWrapBox::SWrapBox()
	: Children(this)
	, InnerSlotPadding(0.0f, 0.0f)
	, AllottedWidth(0.0f)
	, bUseAllottedWidth(false)
{}

void SWrapBox::Construct(const FArguments& InArgs)
{
	PreferredWidth = InArgs._PreferredWidth;
	bUseAllottedWidth = InArgs._UseAllottedWidth;
	InnerSlotPadding = InArgs._InnerSlotPadding;
	for (int32 Index = 0; Index < InArgs.Slots.Num(); ++Index)
	{
		Children.Add(InArgs.Slots[Index]);
	}
}

SWrapBox::FSlot& SWrapBox::AddSlot()
{
	FSlot* NewSlot = new FSlot();
	Children.Add(NewSlot);
	return *NewSlot;
}

void SWrapBox::Tick(const FGeometry& AllottedGeometry, const double /*InCurrentTime*/, const float /*InDeltaTime*/)
{
	// The height asked for follows the width given, one tick later.
	AllottedWidth = AllottedGeometry.GetLocalSize().X;
}

FVector2D SWrapBox::LayOut(float Width, TArray<FVector2D>& OutOffsets) const
{
	FVector2D Position(0.0f, 0.0f);
	FVector2D Extent(0.0f, 0.0f);
	float LineHeight = 0.0f;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FSlot& Slot = Children[Index];
		if (Slot.GetWidget()->GetVisibility() != EVisibility::Collapsed)
		{
			const FVector2D Size = Slot.GetWidget()->GetDesiredSize() + Slot.SlotPadding.Get().GetDesiredSize();
			if (Position.X > 0.0f && Position.X + Size.X > Width)
			{
				Position = FVector2D(0.0f, Position.Y + LineHeight + InnerSlotPadding.Y);
				LineHeight = 0.0f;
			}
			OutOffsets.Add(Position);
			LineHeight = FMath::Max(LineHeight, Size.Y);
			Extent = FVector2D(FMath::Max(Extent.X, Position.X + Size.X), FMath::Max(Extent.Y, Position.Y + LineHeight));
			Position.X += Size.X + InnerSlotPadding.X;
		}
		else
		{
			OutOffsets.Add(Position);
		}
	}
	return Extent;
}

void SWrapBox::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	TArray<FVector2D> Offsets;
	LayOut(bUseAllottedWidth ? AllottedGeometry.GetLocalSize().X : PreferredWidth.Get(), Offsets);
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FSlot& Slot = Children[Index];
		ArrangedChildren.AddWidget(AllottedGeometry.MakeChild(
			Slot.GetWidget(), Offsets[Index] + Slot.SlotPadding.Get().GetTopLeft(), Slot.GetWidget()->GetDesiredSize()));
	}
}

FVector2D SWrapBox::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	TArray<FVector2D> Offsets;
	return LayOut(GetWidth(), Offsets);
}
