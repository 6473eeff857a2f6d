// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/SBoxPanel.h"
#include "Layout/ArrangedChildren.h"
#include "Layout/LayoutUtils.h"
#include "Widgets/SNullWidget.h"

SBoxPanel::SBoxPanel(EOrientation InOrientation)
	: Children(this)
	, Orientation(InOrientation)
{}

int32 SBoxPanel::RemoveSlot(const TSharedRef<SWidget>& SlotWidget)
{
	for (int32 SlotIndex = 0; SlotIndex < Children.Num(); ++SlotIndex)
	{
		if (SlotWidget == Children[SlotIndex].GetWidget())
		{
			Children.RemoveAt(SlotIndex);
			return SlotIndex;
		}
	}
	return INDEX_NONE;
}

void SBoxPanel::ClearChildren()
{
	Children.Empty();
}

void SBoxPanel::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const bool bHorizontal = Orientation == Orient_Horizontal;
	const FVector2D AllottedSize = AllottedGeometry.GetLocalSize();
	const float AllottedLength = bHorizontal ? AllottedSize.X : AllottedSize.Y;

	// What the slots of fixed length take, and the weights of those that share what is left.
	float FixedTotal = 0.0f;
	float StretchTotal = 0.0f;
	for (int32 ChildIndex = 0; ChildIndex < Children.Num(); ++ChildIndex)
	{
		const FSlot& CurChild = Children[ChildIndex];
		if (CurChild.GetWidget()->GetVisibility() == EVisibility::Collapsed)
		{
			continue;
		}
		FixedTotal += CurChild.SlotPadding.Get().GetTotalSpaceAlong(Orientation);
		if (CurChild.SizeParam.SizeRule == FSizeParam::SizeRule_Stretch)
		{
			StretchTotal += CurChild.SizeParam.Value.Get();
		}
		else
		{
			const FVector2D Desired = CurChild.GetWidget()->GetDesiredSize();
			const float Length = bHorizontal ? Desired.X : Desired.Y;
			const float MaxSize = CurChild.MaxSize.Get();
			FixedTotal += MaxSize > 0.0f ? FMath::Min(MaxSize, Length) : Length;
		}
	}

	const float NonFixedSpace = FMath::Max(0.0f, AllottedLength - FixedTotal);
	float PositionSoFar = 0.0f;
	for (int32 ChildIndex = 0; ChildIndex < Children.Num(); ++ChildIndex)
	{
		const FSlot& CurChild = Children[ChildIndex];
		const EVisibility ChildVisibility = CurChild.GetWidget()->GetVisibility();
		if (ChildVisibility == EVisibility::Collapsed)
		{
			ArrangedChildren.AddWidget(ChildVisibility,
				AllottedGeometry.MakeChild(CurChild.GetWidget(),
					bHorizontal ? FVector2D(PositionSoFar, 0.0f) : FVector2D(0.0f, PositionSoFar), FVector2D(0.0f, 0.0f)));
			continue;
		}
		const FVector2D Desired = CurChild.GetWidget()->GetDesiredSize();
		float ChildLength = bHorizontal ? Desired.X : Desired.Y;
		if (CurChild.SizeParam.SizeRule == FSizeParam::SizeRule_Stretch)
		{
			ChildLength = StretchTotal > 0.0f ? NonFixedSpace * CurChild.SizeParam.Value.Get() / StretchTotal : 0.0f;
		}
		const float MaxSize = CurChild.MaxSize.Get();
		if (MaxSize > 0.0f)
		{
			ChildLength = FMath::Min(MaxSize, ChildLength);
		}

		const FMargin Margin = CurChild.SlotPadding.Get();
		const float SlotLength = ChildLength + Margin.GetTotalSpaceAlong(Orientation);
		const FVector2D SlotSize = bHorizontal ? FVector2D(SlotLength, AllottedSize.Y) : FVector2D(AllottedSize.X, SlotLength);
		const AlignmentArrangeResult X = AlignChild<Orient_Horizontal>(SlotSize.X, CurChild, Margin);
		const AlignmentArrangeResult Y = AlignChild<Orient_Vertical>(SlotSize.Y, CurChild, Margin);
		const FVector2D Offset =
			bHorizontal ? FVector2D(PositionSoFar + X.Offset, Y.Offset) : FVector2D(X.Offset, PositionSoFar + Y.Offset);
		ArrangedChildren.AddWidget(ChildVisibility, AllottedGeometry.MakeChild(CurChild.GetWidget(), Offset, FVector2D(X.Size, Y.Size)));
		PositionSoFar += SlotLength;
	}
}

FVector2D SBoxPanel::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	const bool bHorizontal = Orientation == Orient_Horizontal;
	float Along = 0.0f;
	float Across = 0.0f;
	for (int32 ChildIndex = 0; ChildIndex < Children.Num(); ++ChildIndex)
	{
		const FSlot& CurChild = Children[ChildIndex];
		if (CurChild.GetWidget()->GetVisibility() == EVisibility::Collapsed)
		{
			continue;
		}
		const FVector2D Desired = CurChild.GetWidget()->GetDesiredSize();
		const FMargin Margin = CurChild.SlotPadding.Get();
		const float MaxSize = CurChild.MaxSize.Get();
		const float Length = bHorizontal ? Desired.X : Desired.Y;
		Along += (MaxSize > 0.0f ? FMath::Min(MaxSize, Length) : Length) + Margin.GetTotalSpaceAlong(Orientation);
		Across = FMath::Max(
			Across, (bHorizontal ? Desired.Y : Desired.X) + Margin.GetTotalSpaceAlong(bHorizontal ? Orient_Vertical : Orient_Horizontal));
	}
	return bHorizontal ? FVector2D(Along, Across) : FVector2D(Across, Along);
}

SHorizontalBox::FSlot& SHorizontalBox::InsertSlot(int32 Index)
{
	FSlot* NewSlot = new FSlot();
	if (Index == INDEX_NONE)
	{
		Children.Add(NewSlot);
	}
	else
	{
		Children.Insert(NewSlot, Index);
	}
	return *NewSlot;
}

void SHorizontalBox::Construct(const FArguments& InArgs)
{
	for (int32 SlotIndex = 0; SlotIndex < InArgs.Slots.Num(); ++SlotIndex)
	{
		Children.Add(InArgs.Slots[SlotIndex]);
	}
}

SVerticalBox::FSlot& SVerticalBox::InsertSlot(int32 Index)
{
	FSlot* NewSlot = new FSlot();
	if (Index == INDEX_NONE)
	{
		Children.Add(NewSlot);
	}
	else
	{
		Children.Insert(NewSlot, Index);
	}
	return *NewSlot;
}

void SVerticalBox::Construct(const FArguments& InArgs)
{
	for (int32 SlotIndex = 0; SlotIndex < InArgs.Slots.Num(); ++SlotIndex)
	{
		Children.Add(InArgs.Slots[SlotIndex]);
	}
}
