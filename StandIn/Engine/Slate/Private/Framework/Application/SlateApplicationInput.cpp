// Copyright The Tintmill authors. All rights reserved.

#include "Framework/Application/SlateApplication.h"

namespace
{
/** Calls a handler with the widgets of a path from the deepest up until one handles the event. */
template <typename HandlerType>
FReply Bubble(const FWidgetPath& Path, HandlerType Handler)
{
	for (int32 Index = Path.Widgets.Num() - 1; Index >= 0; --Index)
	{
		FReply Reply = Handler(Path.Widgets[Index]);
		if (Reply.IsEventHandled())
		{
			Reply.SetHandler(Path.Widgets[Index].Widget);
			return Reply;
		}
	}
	return FReply::Unhandled();
}

/** Calls a handler with the widgets of a path from the window down until one handles the event. */
template <typename HandlerType>
FReply Tunnel(const FWidgetPath& Path, HandlerType Handler)
{
	for (int32 Index = 0; Index < Path.Widgets.Num(); ++Index)
	{
		FReply Reply = Handler(Path.Widgets[Index]);
		if (Reply.IsEventHandled())
		{
			Reply.SetHandler(Path.Widgets[Index].Widget);
			return Reply;
		}
	}
	return FReply::Unhandled();
}

/** Calls a handler with the deepest widget of a path alone, as a captured mouse asks for. */
template <typename HandlerType>
FReply Leafmost(const FWidgetPath& Path, HandlerType Handler)
{
	FReply Reply = Handler(Path.Widgets.Last());
	Reply.SetHandler(Path.Widgets.Last().Widget);
	return Reply;
}
}

void FSlateApplication::NotePointer(const FPointerEvent& MouseEvent)
{
	LastCursorPos = CursorPos;
	CursorPos = MouseEvent.GetScreenSpacePosition();
	ModifierKeys = MouseEvent.GetModifierKeys();
	bPointerInside = true;
}

FWidgetPath FSlateApplication::LocateWindowUnderMouse(
	FVector2D ScreenspaceMouseCoordinate, const TArray<TSharedRef<SWindow>>& InWindows, bool bIgnoreEnabledStatus, int32 /*UserIndex*/)
{
	for (int32 WindowIndex = InWindows.Num() - 1; WindowIndex >= 0; --WindowIndex)
	{
		const TSharedRef<SWindow> Window = InWindows[WindowIndex];
		if (Window->IsVisible() && Window->GetVisibility().AreChildrenHitTestVisible()
			&& Window->GetRectInScreen().ContainsPoint(ScreenspaceMouseCoordinate))
		{
			const TArray<FArrangedWidget> Widgets =
				Window->GetHittestGrid().GetBubblePath(ScreenspaceMouseCoordinate, bIgnoreEnabledStatus);
			if (Widgets.Num() == 0)
			{
				// Not painted yet, or disabled: what lies below is covered all the same.
				return FWidgetPath();
			}
			FArrangedChildren Path(EVisibility::All);
			for (int32 Index = 0; Index < Widgets.Num(); ++Index)
			{
				Path.AddWidget(EVisibility::Visible, Widgets[Index]);
			}
			return FWidgetPath(Window, Path);
		}
	}
	return FWidgetPath();
}

FWidgetPath FSlateApplication::GetPathUnderPointer(const FVector2D& Position, bool bIgnoreEnabledStatus)
{
	TArray<TSharedRef<SWindow>> VisibleWindows;
	GetAllVisibleWindowsOrdered(VisibleWindows);
	return LocateWindowUnderMouse(Position, VisibleWindows, bIgnoreEnabledStatus);
}

FWidgetPath FSlateApplication::GetPathToCaptor()
{
	if (!MouseCaptor.IsValid())
	{
		return FWidgetPath();
	}
	const FWidgetPath Path = MouseCaptorPath.ToWidgetPath(FWeakWidgetPath::EInterruptedPathHandling::ReturnInvalid);
	if (!Path.IsValid())
	{
		// The captor is no longer shown.
		ReleaseAllPointerCapture();
	}
	return Path;
}

void FSlateApplication::UpdateHover(const FWidgetPath& NewPath, const FPointerEvent& MouseEvent)
{
	// While the mouse is captured only the captor and its parents can be entered.
	const TSharedPtr<SWidget> Captor = MouseCaptor.Pin();
	FArrangedChildren Entered(EVisibility::All);
	for (int32 Index = 0; Index < NewPath.Widgets.Num(); ++Index)
	{
		if (!Captor.IsValid() || MouseCaptorPath.ContainsWidget(NewPath.Widgets[Index].Widget))
		{
			Entered.AddWidget(EVisibility::Visible, NewPath.Widgets[Index]);
		}
	}
	const FWidgetPath HoverPath(NewPath.TopLevelWindow, Entered);

	const FWeakWidgetPath OldPath = WidgetsUnderPointer;
	WidgetsUnderPointer = FWeakWidgetPath(HoverPath);
	for (int32 Index = OldPath.Widgets.Num() - 1; Index >= 0; --Index)
	{
		const TSharedPtr<SWidget> Widget = OldPath.Widgets[Index].Pin();
		if (Widget.IsValid() && !HoverPath.ContainsWidget(Widget.Get()))
		{
			Widget->SetHovered(false);
			Widget->OnMouseLeave(MouseEvent);
		}
	}
	for (int32 Index = 0; Index < HoverPath.Widgets.Num(); ++Index)
	{
		const FArrangedWidget& Arranged = HoverPath.Widgets[Index];
		if (!OldPath.ContainsWidget(Arranged.Widget))
		{
			Arranged.Widget->SetHovered(true);
			Arranged.Widget->OnMouseEnter(Arranged.Geometry, MouseEvent);
		}
	}
}

bool FSlateApplication::ProcessMouseMoveEvent(const FPointerEvent& MouseEvent, bool /*bIsSynthetic*/)
{
	NotePointer(MouseEvent);
	const FWidgetPath UnderPointer = GetPathUnderPointer(CursorPos, false);
	UpdateHover(UnderPointer, MouseEvent);
	const auto Handler = [&MouseEvent](
							 const FArrangedWidget& Arranged) { return Arranged.Widget->OnMouseMove(Arranged.Geometry, MouseEvent); };
	const FWidgetPath CaptorPath = GetPathToCaptor();
	const FWidgetPath& Path = CaptorPath.IsValid() ? CaptorPath : UnderPointer;
	const FReply Reply = CaptorPath.IsValid() ? Leafmost(Path, Handler) : Bubble(Path, Handler);
	ProcessReply(Path, Reply);
	return Reply.IsEventHandled();
}

void FSlateApplication::ProcessMouseLeft()
{
	bPointerInside = false;
	const FPointerEvent MouseEvent(0, CursorPos, CursorPos, PressedMouseButtons, FKey(), 0.0f, ModifierKeys);
	UpdateHover(FWidgetPath(), MouseEvent);
	CloseToolTip();
}

FReply FSlateApplication::RoutePointerDown(const FWidgetPath& Path, const FPointerEvent& MouseEvent, bool bDoubleClick)
{
	FReply Reply = FReply::Unhandled();
	if (bDoubleClick)
	{
		Reply = Bubble(Path, [&MouseEvent](const FArrangedWidget& Arranged) {
			return Arranged.Widget->OnMouseButtonDoubleClick(Arranged.Geometry, MouseEvent);
		});
	}
	if (!Reply.IsEventHandled())
	{
		Reply = Tunnel(Path, [&MouseEvent](const FArrangedWidget& Arranged) {
			return Arranged.Widget->OnPreviewMouseButtonDown(Arranged.Geometry, MouseEvent);
		});
	}
	if (!Reply.IsEventHandled())
	{
		Reply = Bubble(Path,
			[&MouseEvent](const FArrangedWidget& Arranged) { return Arranged.Widget->OnMouseButtonDown(Arranged.Geometry, MouseEvent); });
	}
	return Reply;
}

bool FSlateApplication::ProcessMouseButtonDownEvent(const TSharedPtr<FGenericWindow>& /*PlatformWindow*/, const FPointerEvent& InMouseEvent)
{
	NotePointer(InMouseEvent);
	PressedMouseButtons.Add(InMouseEvent.GetEffectingButton());
	CloseToolTip();
	bToolTipSuppressed = true;

	const FWidgetPath CaptorPath = GetPathToCaptor();
	if (CaptorPath.IsValid())
	{
		const FReply Reply = Leafmost(CaptorPath, [&InMouseEvent](const FArrangedWidget& Arranged) {
			return Arranged.Widget->OnMouseButtonDown(Arranged.Geometry, InMouseEvent);
		});
		ProcessReply(CaptorPath, Reply);
		return Reply.IsEventHandled();
	}

	const FWidgetPath Path = GetPathUnderPointer(CursorPos, false);
	if (MenuStack.HasMenus() && !MenuStack.FindMenuInWidgetPath(GetPathUnderPointer(CursorPos, true)).IsValid())
	{
		DismissAllMenus();
	}
	if (Path.IsValid() && Path.GetWindow()->IsRegularWindow())
	{
		ActivateWindow(Path.GetWindow());
	}
	const uint32 FocusBefore = FocusChanges;
	const FReply Reply = RoutePointerDown(Path, InMouseEvent, false);
	ProcessReply(Path, Reply);

	// A press gives the focus to what lies under it, unless a handler moved it.
	if (FocusBefore == FocusChanges && Path.IsValid() && !Path.GetWindow()->IsDestroyed()
		&& InMouseEvent.GetEffectingButton() == EKeys::LeftMouseButton)
	{
		SetFocusPath(Path, EFocusCause::Mouse);
	}
	return Reply.IsEventHandled();
}

bool FSlateApplication::ProcessMouseButtonDoubleClickEvent(
	const TSharedPtr<FGenericWindow>& PlatformWindow, const FPointerEvent& InMouseEvent)
{
	if (MouseCaptor.IsValid())
	{
		return ProcessMouseButtonDownEvent(PlatformWindow, InMouseEvent);
	}
	NotePointer(InMouseEvent);
	PressedMouseButtons.Add(InMouseEvent.GetEffectingButton());
	CloseToolTip();
	const FWidgetPath Path = GetPathUnderPointer(CursorPos, false);
	const FReply Reply = RoutePointerDown(Path, InMouseEvent, true);
	ProcessReply(Path, Reply);
	return Reply.IsEventHandled();
}

bool FSlateApplication::ProcessMouseButtonUpEvent(const FPointerEvent& MouseEvent)
{
	NotePointer(MouseEvent);
	PressedMouseButtons.Remove(MouseEvent.GetEffectingButton());
	const auto Handler = [&MouseEvent](
							 const FArrangedWidget& Arranged) { return Arranged.Widget->OnMouseButtonUp(Arranged.Geometry, MouseEvent); };
	const FWidgetPath CaptorPath = GetPathToCaptor();
	const FWidgetPath Path = CaptorPath.IsValid() ? CaptorPath : GetPathUnderPointer(CursorPos, false);
	const FReply Reply = CaptorPath.IsValid() ? Leafmost(Path, Handler) : Bubble(Path, Handler);
	ProcessReply(Path, Reply);
	if (CaptorPath.IsValid() && !MouseCaptor.IsValid())
	{
		// Those that could not be entered during the capture can now.
		UpdateHover(GetPathUnderPointer(CursorPos, false), MouseEvent);
	}
	return Reply.IsEventHandled();
}

bool FSlateApplication::ProcessMouseWheelOrGestureEvent(const FPointerEvent& InWheelEvent, const FPointerEvent* /*InGestureEvent*/)
{
	NotePointer(InWheelEvent);
	const FWidgetPath Path = GetPathUnderPointer(CursorPos, false);
	const FReply Reply = Bubble(
		Path, [&InWheelEvent](const FArrangedWidget& Arranged) { return Arranged.Widget->OnMouseWheel(Arranged.Geometry, InWheelEvent); });
	ProcessReply(Path, Reply);
	return Reply.IsEventHandled();
}

bool FSlateApplication::ProcessKeyDownEvent(const FKeyEvent& InKeyEvent)
{
	ModifierKeys = InKeyEvent.GetModifierKeys();
	const FWidgetPath Path = FocusPath.ToWidgetPath();
	FReply Reply = Tunnel(
		Path, [&InKeyEvent](const FArrangedWidget& Arranged) { return Arranged.Widget->OnPreviewKeyDown(Arranged.Geometry, InKeyEvent); });
	if (!Reply.IsEventHandled())
	{
		Reply = Bubble(
			Path, [&InKeyEvent](const FArrangedWidget& Arranged) { return Arranged.Widget->OnKeyDown(Arranged.Geometry, InKeyEvent); });
	}
	ProcessReply(Path, Reply);
	if (Reply.IsEventHandled())
	{
		return true;
	}

	const FKey Key = InKeyEvent.GetKey();
	if (Key == EKeys::Escape && MenuStack.HasMenus())
	{
		MenuStack.DismissFrom(MenuStack.GetNumStackLevels() - 1);
		return true;
	}
	if (UnhandledKeyDownEventHandler.IsBound() && UnhandledKeyDownEventHandler.Execute(InKeyEvent).IsEventHandled())
	{
		return true;
	}
	if (InKeyEvent.IsControlDown() || InKeyEvent.IsAltDown() || InKeyEvent.IsCommandDown())
	{
		return false;
	}
	const EUINavigation Direction = Key == EKeys::Tab ? (InKeyEvent.IsShiftDown() ? EUINavigation::Previous : EUINavigation::Next)
		: Key == EKeys::Left                          ? EUINavigation::Left
		: Key == EKeys::Right                         ? EUINavigation::Right
		: Key == EKeys::Up                            ? EUINavigation::Up
		: Key == EKeys::Down                          ? EUINavigation::Down
													  : EUINavigation::Invalid;
	return Direction != EUINavigation::Invalid && NavigateFocus(Direction);
}

bool FSlateApplication::ProcessKeyUpEvent(const FKeyEvent& InKeyEvent)
{
	ModifierKeys = InKeyEvent.GetModifierKeys();
	const FWidgetPath Path = FocusPath.ToWidgetPath();
	const FReply Reply =
		Bubble(Path, [&InKeyEvent](const FArrangedWidget& Arranged) { return Arranged.Widget->OnKeyUp(Arranged.Geometry, InKeyEvent); });
	ProcessReply(Path, Reply);
	return Reply.IsEventHandled();
}

bool FSlateApplication::ProcessKeyCharEvent(const FCharacterEvent& InCharacterEvent)
{
	const FWidgetPath Path = FocusPath.ToWidgetPath();
	const FReply Reply = Bubble(Path,
		[&InCharacterEvent](const FArrangedWidget& Arranged) { return Arranged.Widget->OnKeyChar(Arranged.Geometry, InCharacterEvent); });
	ProcessReply(Path, Reply);
	return Reply.IsEventHandled();
}

void FSlateApplication::ProcessReply(const FWidgetPath& EventPath, const FReply& Reply)
{
	if (!Reply.IsEventHandled())
	{
		return;
	}
	if (Reply.ShouldReleaseMouse())
	{
		ReleaseAllPointerCapture();
	}
	if (const TSharedPtr<SWidget> NewCaptor = Reply.GetMouseCaptor())
	{
		FWidgetPath CaptorPath = EventPath.GetPathDownTo(NewCaptor.ToSharedRef());
		if (!CaptorPath.IsValid())
		{
			GeneratePathToWidgetUnchecked(NewCaptor.ToSharedRef(), CaptorPath);
		}
		if (CaptorPath.IsValid() && MouseCaptor.Pin() != NewCaptor)
		{
			ReleaseAllPointerCapture();
			MouseCaptor = NewCaptor;
			MouseCaptorPath = FWeakWidgetPath(CaptorPath);
		}
	}
	if (Reply.GetRequestedMousePos().IsSet())
	{
		const FIntPoint Position = Reply.GetRequestedMousePos().GetValue();
		SetCursorPos(FVector2D(static_cast<float>(Position.X), static_cast<float>(Position.Y)));
	}
	if (Reply.ShouldReleaseUserFocus())
	{
		ClearKeyboardFocus(Reply.GetFocusCause());
	}
	else if (Reply.ShouldSetUserFocus())
	{
		SetKeyboardFocus(Reply.GetUserFocusRecepient(), Reply.GetFocusCause());
	}
}

bool FSlateApplication::DoesWidgetHaveMouseCapture(const TSharedPtr<const SWidget> Widget) const
{
	return Widget.IsValid() && MouseCaptor.Pin().Get() == Widget.Get();
}

void FSlateApplication::ReleaseAllPointerCapture()
{
	const TSharedPtr<SWidget> OldCaptor = MouseCaptor.Pin();
	MouseCaptor.Reset();
	MouseCaptorPath = FWeakWidgetPath();
	if (OldCaptor.IsValid())
	{
		OldCaptor->OnMouseCaptureLost(FCaptureLostEvent(0, 0));
	}
}

void FSlateApplication::SetCursorPos(const FVector2D& MouseCoordinate)
{
	LastCursorPos = CursorPos;
	CursorPos = MouseCoordinate;
}

EMouseCursor::Type FSlateApplication::QueryCursor()
{
	const FPointerEvent CursorEvent(0, CursorPos, LastCursorPos, PressedMouseButtons, FKey(), 0.0f, ModifierKeys);
	const FWidgetPath CaptorPath = GetPathToCaptor();
	const FWidgetPath Path = CaptorPath.IsValid() ? CaptorPath : GetPathUnderPointer(CursorPos, false);
	for (int32 Index = Path.Widgets.Num() - 1; Index >= 0; --Index)
	{
		const FCursorReply Reply = Path.Widgets[Index].Widget->OnCursorQuery(Path.Widgets[Index].Geometry, CursorEvent);
		if (Reply.IsEventHandled())
		{
			return Reply.GetCursorType();
		}
	}
	return EMouseCursor::Default;
}

bool FSlateApplication::IsWidgetDirectlyHovered(const TSharedPtr<const SWidget> Widget) const
{
	return Widget.IsValid() && WidgetsUnderPointer.GetLastWidget().Pin().Get() == Widget.Get();
}
