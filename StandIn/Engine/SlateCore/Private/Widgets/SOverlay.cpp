// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/SOverlay.h"
#include "Layout/ArrangedChildren.h"
#include "Layout/LayoutUtils.h"

SOverlay::SOverlay()
	: Children(this)
{
	SetCanTick(false);
}

void SOverlay::Construct(const FArguments& InArgs)
{
	for (int32 SlotIndex = 0; SlotIndex < InArgs.Slots.Num(); ++SlotIndex)
	{
		InArgs.Slots[SlotIndex]->ZOrder = SlotIndex;
		Children.Add(InArgs.Slots[SlotIndex]);
	}
}

SOverlay::FOverlaySlot& SOverlay::AddSlot(int32 ZOrder)
{
	FOverlaySlot* NewSlot = new FOverlaySlot();
	if (ZOrder == INDEX_NONE)
	{
		NewSlot->ZOrder = Children.Num() == 0 ? 0 : Children[Children.Num() - 1].ZOrder + 1;
		Children.Add(NewSlot);
	}
	else
	{
		int32 Index = 0;
		while (Index < Children.Num() && Children[Index].ZOrder <= ZOrder)
		{
			++Index;
		}
		NewSlot->ZOrder = ZOrder;
		Children.Insert(NewSlot, Index);
	}
	return *NewSlot;
}

bool SOverlay::RemoveSlot(int32 ZOrder)
{
	for (int32 Index = Children.Num() - 1; Index >= 0; --Index)
	{
		if (ZOrder == INDEX_NONE || Children[Index].ZOrder == ZOrder)
		{
			Children.RemoveAt(Index);
			return true;
		}
	}
	return false;
}

bool SOverlay::RemoveSlot(TSharedRef<SWidget> Widget)
{
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		if (Children[Index].GetWidget() == Widget)
		{
			Children.RemoveAt(Index);
			return true;
		}
	}
	return false;
}

void SOverlay::ClearChildren()
{
	Children.Empty();
}

int32 SOverlay::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	FArrangedChildren ArrangedChildren(EVisibility::Visible);
	ArrangeChildren(AllottedGeometry, ArrangedChildren);
	int32 MaxLayerId = LayerId;
	for (int32 ChildIndex = 0; ChildIndex < ArrangedChildren.Num(); ++ChildIndex)
	{
		const FArrangedWidget& CurArrangedWidget = ArrangedChildren[ChildIndex];
		if (!IsChildWidgetCulled(MyCullingRect, CurArrangedWidget))
		{
			// Each child lies wholly above the one before.
			MaxLayerId = FMath::Max(MaxLayerId,
				CurArrangedWidget.Widget->Paint(Args, CurArrangedWidget.Geometry, MyCullingRect, OutDrawElements, MaxLayerId + 1,
					InWidgetStyle, ShouldBeEnabled(bParentEnabled)));
		}
	}
	return MaxLayerId;
}

void SOverlay::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const FVector2D Size = AllottedGeometry.GetLocalSize();
	for (int32 ChildIndex = 0; ChildIndex < Children.Num(); ++ChildIndex)
	{
		const FOverlaySlot& CurChild = Children[ChildIndex];
		const FMargin Padding = CurChild.SlotPadding.Get();
		const AlignmentArrangeResult X = AlignChild<Orient_Horizontal>(Size.X, CurChild, Padding);
		const AlignmentArrangeResult Y = AlignChild<Orient_Vertical>(Size.Y, CurChild, Padding);
		ArrangedChildren.AddWidget(
			AllottedGeometry.MakeChild(CurChild.GetWidget(), FVector2D(X.Offset, Y.Offset), FVector2D(X.Size, Y.Size)));
	}
}

FVector2D SOverlay::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	FVector2D MaxSize(0.0f, 0.0f);
	for (int32 ChildIndex = 0; ChildIndex < Children.Num(); ++ChildIndex)
	{
		const FOverlaySlot& CurSlot = Children[ChildIndex];
		if (CurSlot.GetWidget()->GetVisibility() != EVisibility::Collapsed)
		{
			const FVector2D ChildSize = CurSlot.GetWidget()->GetDesiredSize() + CurSlot.SlotPadding.Get().GetDesiredSize();
			MaxSize = FVector2D(FMath::Max(MaxSize.X, ChildSize.X), FMath::Max(MaxSize.Y, ChildSize.Y));
		}
	}
	return MaxSize;
}
