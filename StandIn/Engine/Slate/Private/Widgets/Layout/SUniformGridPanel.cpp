// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Layout/SUniformGridPanel.h"
#include "Layout/ArrangedChildren.h"
#include "Layout/LayoutUtils.h"

SUniformGridPanel::SUniformGridPanel()
	: Children(this)
{}

void SUniformGridPanel::Construct(const FArguments& InArgs)
{
	SlotPadding = InArgs._SlotPadding;
	MinDesiredSlotWidth = InArgs._MinDesiredSlotWidth;
	MinDesiredSlotHeight = InArgs._MinDesiredSlotHeight;
	for (int32 Index = 0; Index < InArgs.Slots.Num(); ++Index)
	{
		Children.Add(InArgs.Slots[Index]);
	}
}

SUniformGridPanel::FSlot& SUniformGridPanel::AddSlot(int32 Column, int32 Row)
{
	FSlot* NewSlot = new FSlot(Column, Row);
	Children.Add(NewSlot);
	return *NewSlot;
}

FIntPoint SUniformGridPanel::GetNumCells() const
{
	FIntPoint NumCells(0, 0);
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		if (Children[Index].GetWidget()->GetVisibility() != EVisibility::Collapsed)
		{
			NumCells.X = FMath::Max(NumCells.X, Children[Index].Column + 1);
			NumCells.Y = FMath::Max(NumCells.Y, Children[Index].Row + 1);
		}
	}
	return NumCells;
}

void SUniformGridPanel::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const FIntPoint NumCells = GetNumCells();
	if (NumCells.X == 0 || NumCells.Y == 0)
	{
		return;
	}
	const FVector2D Size = AllottedGeometry.GetLocalSize();
	const FVector2D CellSize(Size.X / static_cast<float>(NumCells.X), Size.Y / static_cast<float>(NumCells.Y));
	const FMargin Padding = SlotPadding.Get();
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FSlot& Slot = Children[Index];
		const AlignmentArrangeResult X = AlignChild<Orient_Horizontal>(CellSize.X, Slot, Padding);
		const AlignmentArrangeResult Y = AlignChild<Orient_Vertical>(CellSize.Y, Slot, Padding);
		ArrangedChildren.AddWidget(AllottedGeometry.MakeChild(Slot.GetWidget(),
			FVector2D(CellSize.X * static_cast<float>(Slot.Column) + X.Offset, CellSize.Y * static_cast<float>(Slot.Row) + Y.Offset),
			FVector2D(X.Size, Y.Size)));
	}
}

FVector2D SUniformGridPanel::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	const FMargin Padding = SlotPadding.Get();
	FVector2D CellSize(MinDesiredSlotWidth.Get(), MinDesiredSlotHeight.Get());
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		if (Children[Index].GetWidget()->GetVisibility() != EVisibility::Collapsed)
		{
			const FVector2D Wanted = Children[Index].GetWidget()->GetDesiredSize() + Padding.GetDesiredSize();
			CellSize = FVector2D(FMath::Max(CellSize.X, Wanted.X), FMath::Max(CellSize.Y, Wanted.Y));
		}
	}
	const FIntPoint NumCells = GetNumCells();
	return FVector2D(CellSize.X * static_cast<float>(NumCells.X), CellSize.Y * static_cast<float>(NumCells.Y));
}
