// Copyright The Tintmill authors. All rights reserved.

#include "Host/OutputLog/LogText.h"
#include "Host/OutputLog/SLogLines.h"

#include "Framework/Application/SlateApplication.h"
#include "InputCoreTypes.h"

#include <algorithm>
#include <cmath>

// What the mouse and the keyboard do to the text of the log.

namespace TintmillHost
{
namespace
{
constexpr double LinesPerNotch = 3.0;
constexpr float WidthPerNotch = 60.0f;
}

FReply SLogLines::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	const FKey Button = MouseEvent.GetEffectingButton();
	if (Button == EKeys::RightMouseButton)
	{
		return FReply::Handled().SetUserFocus(AsShared(), EFocusCause::Mouse);
	}
	if (Button != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}
	DragPlace = MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition());
	FollowDrag();
	if (!MouseEvent.IsShiftDown())
	{
		Anchor = Caret;
	}
	return FReply::Handled().CaptureMouse(AsShared()).SetUserFocus(AsShared(), EFocusCause::Mouse);
}

FReply SLogLines::OnMouseButtonUp(const FGeometry&, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() == EKeys::RightMouseButton && OnContextMenu.IsBound())
	{
		FSlateApplication::Get().PushMenu(AsShared(), FWidgetPath(), OnContextMenu.Execute(), MouseEvent.GetScreenSpacePosition(),
			FPopupTransitionEffect(FPopupTransitionEffect::ContextMenu));
		return FReply::Handled();
	}
	return HasMouseCapture() ? FReply::Handled().ReleaseMouseCapture() : FReply::Unhandled();
}

FReply SLogLines::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (!HasMouseCapture())
	{
		return FReply::Unhandled();
	}
	DragPlace = MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition());
	FollowDrag();
	return FReply::Handled();
}

FReply SLogLines::OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton || Lines->Num() == 0)
	{
		return FReply::Unhandled();
	}
	const FLogPlace Place = FindPlace(MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition()));
	const FString Text = Lines->GetText(Place.Line);
	Anchor = {Place.Line, FindLogWordEnd(Text, Place.Column, -1)};
	Caret = {Place.Line, FindLogWordEnd(Text, Place.Column, 1)};
	return FReply::Handled().SetUserFocus(AsShared(), EFocusCause::Mouse);
}

FReply SLogLines::OnMouseWheel(const FGeometry&, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.IsShiftDown())
	{
		ScrollX -= MouseEvent.GetWheelDelta() * WidthPerNotch;
		UpdateBars(GetCachedGeometry().GetLocalSize());
	}
	else
	{
		ScrollTo(ScrollLine - static_cast<double>(MouseEvent.GetWheelDelta()) * LinesPerNotch);
	}
	return FReply::Handled();
}

FReply SLogLines::OnKeyDown(const FGeometry&, const FKeyEvent& InKeyEvent)
{
	const FKey Key = InKeyEvent.GetKey();
	const double Page = std::max(1.0, std::floor(LinesInSight) - 1.0);
	if (InKeyEvent.IsControlDown() && (Key == EKeys::C || Key == EKeys::Insert))
	{
		CopySelection();
	}
	else if (InKeyEvent.IsControlDown() && Key == EKeys::A)
	{
		SelectAll();
	}
	else if (InKeyEvent.IsAltDown())
	{
		return FReply::Unhandled();
	}
	else if (Key == EKeys::Up || Key == EKeys::Down)
	{
		ScrollTo(ScrollLine + (Key == EKeys::Up ? -1.0 : 1.0));
	}
	else if (Key == EKeys::PageUp || Key == EKeys::PageDown)
	{
		ScrollTo(ScrollLine + (Key == EKeys::PageUp ? -Page : Page));
	}
	else if (Key == EKeys::Home || Key == EKeys::End)
	{
		ScrollTo(Key == EKeys::Home ? 0.0 : GetFurthest());
	}
	else if (Key == EKeys::Escape && HasSelection())
	{
		ClearSelection();
	}
	else
	{
		return FReply::Unhandled();
	}
	return FReply::Handled();
}

FCursorReply SLogLines::OnCursorQuery(const FGeometry&, const FPointerEvent&) const
{
	return FCursorReply::Cursor(EMouseCursor::TextEditBeam);
}

void SLogLines::FollowDrag()
{
	Caret = FindPlace(DragPlace);
}

FLogPlace SLogLines::FindPlace(const FVector2D& Local) const
{
	if (Lines->Num() == 0)
	{
		return FLogPlace();
	}
	const double Wanted = std::floor(ScrollLine + static_cast<double>(Local.Y / GetLogLineHeight()));
	if (Wanted >= Lines->Num())
	{
		return {Lines->Num() - 1, Lines->GetText(Lines->Num() - 1).Len()};
	}
	FLogPlace Place;
	Place.Line = static_cast<int32>(std::max(0.0, Wanted));
	const FString Text = Lines->GetText(Place.Line);
	const float X = Local.X - LogTextIndent + ScrollX;
	Place.Column = FindLogColumn(Text, X);
	return Place;
}
}
