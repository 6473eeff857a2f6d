// Copyright The Tintmill authors. All rights reserved.

#include "AssetPicker/SAssetPickerList.h"
#include "AssetPicker/AssetPickerListPrivate.h"
#include "InputCoreTypes.h"

FReply SAssetPickerList::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Handled();
	}
	const FVector2D Local = MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition());
	if (NeedsScrollBar() && Local.X >= MyGeometry.GetLocalSize().X - AssetPickerListPrivate::ScrollBarWidth)
	{
		bDraggingScrollBar = true;
		DragScrollBar(MyGeometry, MouseEvent.GetScreenSpacePosition());
		return FReply::Handled().CaptureMouse(AsShared());
	}
	PressedIndex = GetRowAt(MyGeometry, MouseEvent.GetScreenSpacePosition());
	return FReply::Handled();
}

FReply SAssetPickerList::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (bDraggingScrollBar)
	{
		bDraggingScrollBar = false;
		return FReply::Handled().ReleaseMouseCapture();
	}
	const int32 Pressed = PressedIndex;
	PressedIndex = INDEX_NONE;
	if (Pressed != INDEX_NONE && Pressed == GetRowAt(MyGeometry, MouseEvent.GetScreenSpacePosition()))
	{
		SelectedIndex = Pressed;
		// The handler may close the menu that keeps the list.
		const TSharedRef<SWidget> KeptAlive = AsShared();
		const FAssetData Chosen = GetShownItem(Pressed).Asset;
		OnChosen.ExecuteIfBound(Chosen);
	}
	return FReply::Handled();
}

FReply SAssetPickerList::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (bDraggingScrollBar)
	{
		DragScrollBar(MyGeometry, MouseEvent.GetScreenSpacePosition());
		return FReply::Handled();
	}
	HoveredIndex = GetRowAt(MyGeometry, MouseEvent.GetScreenSpacePosition());
	Invalidate(EInvalidateWidgetReason::Paint);
	return FReply::Unhandled();
}

void SAssetPickerList::OnMouseLeave(const FPointerEvent& MouseEvent)
{
	SLeafWidget::OnMouseLeave(MouseEvent);
	HoveredIndex = INDEX_NONE;
	PressedIndex = INDEX_NONE;
	Invalidate(EInvalidateWidgetReason::Paint);
}

FReply SAssetPickerList::OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	const float OffsetBefore = Offset;
	SetOffset(Offset - MouseEvent.GetWheelDelta() * AssetPickerListPrivate::RowHeight);
	HoveredIndex = GetRowAt(MyGeometry, MouseEvent.GetScreenSpacePosition());
	// At its end the list leaves the wheel to the menu around it, which may have more to show.
	return Offset != OffsetBefore ? FReply::Handled() : FReply::Unhandled();
}

void SAssetPickerList::DragScrollBar(const FGeometry& MyGeometry, const FVector2D& ScreenPosition)
{
	const float Height = FMath::Max(1.0f, MyGeometry.GetLocalSize().Y);
	const float Fraction = MyGeometry.AbsoluteToLocal(ScreenPosition).Y / Height;
	SetOffset(Fraction * GetContentHeight() - Height * 0.5f);
}
