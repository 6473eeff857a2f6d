// Copyright The Tintmill authors. All rights reserved.

#include "Framework/Application/SlateApplication.h"

namespace
{
/** Collects the widgets of a window that Tab goes through: enabled ones that take the focus and have none such below them. */
bool CollectFocusable(const FArrangedWidget& Parent, bool bParentEnabled, TArray<FArrangedWidget>& OutWidgets)
{
	if (!bParentEnabled || !Parent.Widget->IsEnabled())
	{
		return false;
	}
	FArrangedChildren Children(EVisibility::Visible);
	Parent.Widget->ArrangeChildren(Parent.Geometry, Children);
	bool bFoundBelow = false;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		bFoundBelow = CollectFocusable(Children[Index], true, OutWidgets) || bFoundBelow;
	}
	if (!bFoundBelow && Parent.Widget->SupportsKeyboardFocus())
	{
		OutWidgets.Add(Parent);
		return true;
	}
	return bFoundBelow;
}

/** Says how far a rectangle lies from another in a direction, less than zero if it does not. */
float GetDistance(const FSlateRect& From, const FSlateRect& To, EUINavigation Direction)
{
	const FVector2D Delta = To.GetCenter() - From.GetCenter();
	const float Along = Direction == EUINavigation::Left ? -Delta.X
		: Direction == EUINavigation::Right              ? Delta.X
		: Direction == EUINavigation::Up                 ? -Delta.Y
														 : Delta.Y;
	const bool bHorizontal = Direction == EUINavigation::Left || Direction == EUINavigation::Right;
	const float Across = FMath::Abs(bHorizontal ? Delta.Y : Delta.X);
	return Along > 0.5f ? Along + 2.0f * Across : -1.0f;
}
}

bool FSlateApplication::SetUserFocus(uint32 /*UserIndex*/, const TSharedPtr<SWidget>& WidgetToFocus, EFocusCause ReasonFocusIsChanging)
{
	return SetKeyboardFocus(WidgetToFocus, ReasonFocusIsChanging);
}

bool FSlateApplication::SetUserFocus(const uint32 /*InUserIndex*/, const FWidgetPath& InFocusPath, const EFocusCause InCause)
{
	return SetFocusPath(InFocusPath, InCause);
}

void FSlateApplication::SetAllUserFocus(const TSharedPtr<SWidget>& WidgetToFocus, EFocusCause ReasonFocusIsChanging)
{
	SetKeyboardFocus(WidgetToFocus, ReasonFocusIsChanging);
}

bool FSlateApplication::SetKeyboardFocus(const TSharedPtr<SWidget>& OptionalWidgetToFocus, EFocusCause ReasonFocusIsChanging)
{
	if (!OptionalWidgetToFocus.IsValid())
	{
		ClearKeyboardFocus(ReasonFocusIsChanging);
		return false;
	}
	FWidgetPath Path;
	if (!OptionalWidgetToFocus->SupportsKeyboardFocus() || !GeneratePathToWidgetUnchecked(OptionalWidgetToFocus.ToSharedRef(), Path))
	{
		return false;
	}
	return SetFocusPath(Path, ReasonFocusIsChanging);
}

void FSlateApplication::SetKeyboardFocus(const FWidgetPath& InFocusPath, const EFocusCause InCause)
{
	SetFocusPath(InFocusPath, InCause);
}

bool FSlateApplication::SetFocusPath(const FWidgetPath& InFocusPath, EFocusCause Cause)
{
	// The deepest widget that takes the focus; all of them up to the window must be enabled.
	FWidgetPath NewPath;
	for (int32 Index = InFocusPath.Widgets.Num() - 1; Index >= 0 && !NewPath.IsValid(); --Index)
	{
		if (InFocusPath.Widgets[Index].Widget->SupportsKeyboardFocus())
		{
			NewPath = InFocusPath.GetPathDownTo(InFocusPath.Widgets[Index].Widget);
		}
	}
	for (int32 Index = 0; Index < NewPath.Widgets.Num(); ++Index)
	{
		if (!NewPath.Widgets[Index].Widget->IsEnabled())
		{
			return false;
		}
	}
	if (InFocusPath.IsValid() && !NewPath.IsValid())
	{
		return false;
	}

	const TSharedPtr<SWidget> OldWidget = FocusPath.GetLastWidget().Pin();
	const TSharedPtr<SWidget> NewWidget = NewPath.IsValid() ? TSharedPtr<SWidget>(NewPath.GetLastWidget()) : TSharedPtr<SWidget>();
	if (OldWidget == NewWidget)
	{
		return NewWidget.IsValid();
	}

	const FWeakWidgetPath OldPath = FocusPath;
	const FFocusEvent FocusEvent(Cause, 0);
	const uint32 MyChange = ++FocusChanges;
	FocusPath = FWeakWidgetPath(NewPath);
	FocusCause = Cause;
	for (int32 Index = 0; Index < OldPath.Widgets.Num(); ++Index)
	{
		if (const TSharedPtr<SWidget> Widget = OldPath.Widgets[Index].Pin())
		{
			Widget->OnFocusChanging(OldPath, NewPath, FocusEvent);
		}
	}
	for (int32 Index = 0; Index < NewPath.Widgets.Num(); ++Index)
	{
		if (!OldPath.ContainsWidget(NewPath.Widgets[Index].Widget))
		{
			NewPath.Widgets[Index].Widget->OnFocusChanging(OldPath, NewPath, FocusEvent);
		}
	}
	if (OldWidget.IsValid())
	{
		OldWidget->OnFocusLost(FocusEvent);
	}
	if (MyChange != FocusChanges)
	{
		// One of those told moved the focus on.
		return GetKeyboardFocusedWidget() == NewWidget;
	}
	if (NewWidget.IsValid())
	{
		const FReply Reply = NewWidget->OnFocusReceived(NewPath.Widgets.Last().Geometry, FocusEvent);
		if (Reply.IsEventHandled())
		{
			ProcessReply(NewPath, Reply);
		}
	}
	return NewWidget.IsValid();
}

void FSlateApplication::ClearUserFocus(uint32 /*UserIndex*/, EFocusCause ReasonFocusIsChanging)
{
	ClearKeyboardFocus(ReasonFocusIsChanging);
}

void FSlateApplication::ClearKeyboardFocus(const EFocusCause ReasonFocusIsChanging)
{
	SetFocusPath(FWidgetPath(), ReasonFocusIsChanging);
}

void FSlateApplication::ClearAllUserFocus(EFocusCause ReasonFocusIsChanging)
{
	ClearKeyboardFocus(ReasonFocusIsChanging);
}

TSharedPtr<SWidget> FSlateApplication::GetUserFocusedWidget(uint32 /*UserIndex*/) const
{
	return GetKeyboardFocusedWidget();
}

TSharedPtr<SWidget> FSlateApplication::GetKeyboardFocusedWidget() const
{
	return FocusPath.GetLastWidget().Pin();
}

TOptional<EFocusCause> FSlateApplication::HasAnyUserFocus(const TSharedPtr<const SWidget> Widget) const
{
	return Widget.IsValid() && GetKeyboardFocusedWidget().Get() == Widget.Get() ? TOptional<EFocusCause>(FocusCause)
																				: TOptional<EFocusCause>();
}

bool FSlateApplication::HasFocusedDescendants(const TSharedRef<const SWidget>& Widget) const
{
	return FocusPath.ContainsWidget(Widget);
}

bool FSlateApplication::NavigateFocus(EUINavigation Direction)
{
	const TSharedPtr<SWidget> Focused = GetKeyboardFocusedWidget();
	const TSharedPtr<SWindow> Window = FocusPath.IsValid() ? FocusPath.Window.Pin() : ActiveWindow.Pin();
	if (!Window.IsValid() || Window->IsDestroyed())
	{
		return false;
	}
	TArray<FArrangedWidget> Candidates;
	CollectFocusable(FArrangedWidget(Window.ToSharedRef(), Window->GetWindowGeometryInScreen()), true, Candidates);
	if (Candidates.Num() == 0)
	{
		return false;
	}
	int32 Current = INDEX_NONE;
	for (int32 Index = 0; Index < Candidates.Num(); ++Index)
	{
		if (Candidates[Index].Widget == Focused)
		{
			Current = Index;
		}
	}

	int32 Next = INDEX_NONE;
	if (Direction == EUINavigation::Next)
	{
		Next = (Current + 1) % Candidates.Num();
	}
	else if (Direction == EUINavigation::Previous)
	{
		Next = Current <= 0 ? Candidates.Num() - 1 : Current - 1;
	}
	else if (Current != INDEX_NONE)
	{
		float BestDistance = 0.0f;
		for (int32 Index = 0; Index < Candidates.Num(); ++Index)
		{
			const float Distance = GetDistance(
				Candidates[Current].Geometry.GetLayoutBoundingRect(), Candidates[Index].Geometry.GetLayoutBoundingRect(), Direction);
			if (Distance > 0.0f && (Next == INDEX_NONE || Distance < BestDistance))
			{
				Next = Index;
				BestDistance = Distance;
			}
		}
	}
	return Next != INDEX_NONE && Next != Current && SetKeyboardFocus(TSharedPtr<SWidget>(Candidates[Next].Widget), EFocusCause::Navigation);
}
