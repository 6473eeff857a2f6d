// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Layout/SSplitter.h"
#include "Layout/ArrangedChildren.h"
#include "Rendering/DrawElements.h"

SSplitter::SSplitter()
	: Children(this)
	, Style(nullptr)
	, Orientation(Orient_Horizontal)
	, HandleSize(5.0f)
	, MinSlotLength(20.0f)
	, DraggedHandle(INDEX_NONE)
	, HoveredHandle(INDEX_NONE)
{}

void SSplitter::Construct(const FArguments& InArgs)
{
	check(InArgs._Style != nullptr);
	Style = InArgs._Style;
	Orientation = InArgs._Orientation;
	HandleSize = InArgs._PhysicalSplitterHandleSize;
	MinSlotLength = InArgs._MinimumSlotHeight;
	OnFinishedResizing = InArgs._OnSplitterFinishedResizing;
	for (int32 Index = 0; Index < InArgs.Slots.Num(); ++Index)
	{
		Children.Add(InArgs.Slots[Index]);
	}
}

SSplitter::FSlot& SSplitter::AddSlot(int32 AtIndex)
{
	FSlot* NewSlot = new FSlot();
	if (AtIndex == INDEX_NONE)
	{
		Children.Add(NewSlot);
	}
	else
	{
		Children.Insert(NewSlot, AtIndex);
	}
	return *NewSlot;
}

void SSplitter::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	int32 NumShown = 0;
	float Fixed = 0.0f;
	float WeightTotal = 0.0f;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FSlot& Slot = Children[Index];
		if (Slot.GetWidget()->GetVisibility() != EVisibility::Collapsed)
		{
			++NumShown;
			if (Slot.SizingRule == SizeToContent)
			{
				Fixed += GetAlong(Slot.GetWidget()->GetDesiredSize());
			}
			else
			{
				WeightTotal += Slot.SizeValue.Get();
			}
		}
	}
	const FVector2D Size = AllottedGeometry.GetLocalSize();
	const float Shared = FMath::Max(0.0f, GetAlong(Size) - Fixed - HandleSize * static_cast<float>(FMath::Max(0, NumShown - 1)));
	float Position = 0.0f;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FSlot& Slot = Children[Index];
		if (Slot.GetWidget()->GetVisibility() == EVisibility::Collapsed)
		{
			continue;
		}
		const float Length = Slot.SizingRule == SizeToContent ? GetAlong(Slot.GetWidget()->GetDesiredSize())
			: WeightTotal > 0.0f                              ? Shared * Slot.SizeValue.Get() / WeightTotal
															  : 0.0f;
		const bool bHorizontal = Orientation == Orient_Horizontal;
		ArrangedChildren.AddWidget(
			AllottedGeometry.MakeChild(Slot.GetWidget(), bHorizontal ? FVector2D(Position, 0.0f) : FVector2D(0.0f, Position),
				bHorizontal ? FVector2D(Length, Size.Y) : FVector2D(Size.X, Length)));
		Position += Length + HandleSize;
	}
}

FVector2D SSplitter::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	float Along = 0.0f;
	float Across = 0.0f;
	int32 NumShown = 0;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		if (Children[Index].GetWidget()->GetVisibility() != EVisibility::Collapsed)
		{
			const FVector2D Size = Children[Index].GetWidget()->GetDesiredSize();
			Along += GetAlong(Size);
			Across = FMath::Max(Across, Orientation == Orient_Horizontal ? Size.Y : Size.X);
			++NumShown;
		}
	}
	Along += HandleSize * static_cast<float>(FMath::Max(0, NumShown - 1));
	return Orientation == Orient_Horizontal ? FVector2D(Along, Across) : FVector2D(Across, Along);
}

int32 SSplitter::FindHandle(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) const
{
	FArrangedChildren Arranged(EVisibility::Visible);
	ArrangeChildren(MyGeometry, Arranged);
	const float Position = GetAlong(MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition()));
	for (int32 Index = 0; Index + 1 < Arranged.Num(); ++Index)
	{
		const float End = GetAlong(Arranged[Index].Geometry.Position) + GetAlong(Arranged[Index].Geometry.GetLocalSize());
		if (Position >= End && Position < End + HandleSize)
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

FReply SSplitter::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() == EKeys::LeftMouseButton)
	{
		DraggedHandle = FindHandle(MyGeometry, MouseEvent);
		if (DraggedHandle != INDEX_NONE)
		{
			return FReply::Handled().CaptureMouse(AsShared());
		}
	}
	return FReply::Unhandled();
}

FReply SSplitter::OnMouseButtonUp(const FGeometry& /*MyGeometry*/, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() == EKeys::LeftMouseButton && DraggedHandle != INDEX_NONE)
	{
		DraggedHandle = INDEX_NONE;
		OnFinishedResizing.ExecuteIfBound();
		return FReply::Handled().ReleaseMouseCapture();
	}
	return FReply::Unhandled();
}

FReply SSplitter::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	HoveredHandle = DraggedHandle != INDEX_NONE ? DraggedHandle : FindHandle(MyGeometry, MouseEvent);
	if (DraggedHandle == INDEX_NONE)
	{
		return FReply::Unhandled();
	}
	FArrangedChildren Arranged(EVisibility::Visible);
	ArrangeChildren(MyGeometry, Arranged);
	if (DraggedHandle + 1 >= Arranged.Num())
	{
		return FReply::Handled();
	}
	const FGeometry& Before = Arranged[DraggedHandle].Geometry;
	const FGeometry& After = Arranged[DraggedHandle + 1].Geometry;
	FSlot* Slots[2] = {nullptr, nullptr};
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		for (int32 Side = 0; Side < 2; ++Side)
		{
			if (Children[Index].GetWidget() == Arranged[DraggedHandle + Side].Widget)
			{
				Slots[Side] = &Children[Index];
			}
		}
	}
	const float Total = GetAlong(Before.GetLocalSize()) + GetAlong(After.GetLocalSize());
	const float Position = GetAlong(MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition()));
	const float Wanted = Position - HandleSize / 2.0f - GetAlong(Before.Position);
	const float NewLength =
		FMath::Max(FMath::Min(MinSlotLength, Total / 2.0f), FMath::Min(Wanted, Total - FMath::Min(MinSlotLength, Total / 2.0f)));
	if (Total > 0.0f && Slots[0] != nullptr && Slots[1] != nullptr && Slots[0]->SizingRule == FractionOfParent
		&& Slots[1]->SizingRule == FractionOfParent)
	{
		const float Weights = Slots[0]->SizeValue.Get() + Slots[1]->SizeValue.Get();
		const float NewWeights[2] = {Weights * NewLength / Total, Weights * (Total - NewLength) / Total};
		for (int32 Side = 0; Side < 2; ++Side)
		{
			if (Slots[Side]->OnResized.IsBound())
			{
				Slots[Side]->OnResized.Execute(NewWeights[Side]);
			}
			else
			{
				Slots[Side]->SizeValue = NewWeights[Side];
			}
		}
	}
	return FReply::Handled();
}

FCursorReply SSplitter::OnCursorQuery(const FGeometry& MyGeometry, const FPointerEvent& CursorEvent) const
{
	if (DraggedHandle == INDEX_NONE && FindHandle(MyGeometry, CursorEvent) == INDEX_NONE)
	{
		return FCursorReply::Unhandled();
	}
	return FCursorReply::Cursor(Orientation == Orient_Horizontal ? EMouseCursor::ResizeLeftRight : EMouseCursor::ResizeUpDown);
}

void SSplitter::OnMouseCaptureLost(const FCaptureLostEvent& /*CaptureLostEvent*/)
{
	DraggedHandle = INDEX_NONE;
}

int32 SSplitter::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	FArrangedChildren Arranged(EVisibility::Visible);
	ArrangeChildren(AllottedGeometry, Arranged);
	const int32 MaxLayerId =
		PaintArrangedChildren(Args, Arranged, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled);
	const bool bHorizontal = Orientation == Orient_Horizontal;
	for (int32 Index = 0; Index + 1 < Arranged.Num(); ++Index)
	{
		const bool bHighlight = DraggedHandle == Index || (HoveredHandle == Index && IsHovered());
		const FSlateBrush& Brush = bHighlight ? Style->HandleHighlightBrush : Style->HandleNormalBrush;
		const float End = GetAlong(Arranged[Index].Geometry.Position) + GetAlong(Arranged[Index].Geometry.GetLocalSize());
		const FVector2D Size = AllottedGeometry.GetLocalSize();
		FSlateDrawElement::MakeBox(OutDrawElements, static_cast<uint32>(MaxLayerId),
			AllottedGeometry.ToPaintGeometry(bHorizontal ? FVector2D(End, 0.0f) : FVector2D(0.0f, End),
				bHorizontal ? FVector2D(HandleSize, Size.Y) : FVector2D(Size.X, HandleSize)),
			&Brush, ESlateDrawEffect::None, Brush.GetTint(InWidgetStyle) * InWidgetStyle.GetColorAndOpacityTint());
	}
	return MaxLayerId;
}
