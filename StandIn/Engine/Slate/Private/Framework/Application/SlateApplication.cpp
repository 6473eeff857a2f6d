// Copyright The Tintmill authors. All rights reserved.

#include "Framework/Application/SlateApplication.h"
#include "Framework/Application/SWindowTitleBar.h"
#include "Framework/Notifications/NotificationManager.h"
#include "StandIn/ModuleHooks.h"
#include "Styling/CoreStyle.h"

TSharedPtr<FSlateApplication> FSlateApplication::CurrentApplication;

FSlateApplication::FSlateApplication()
	: ApplicationScale(1.0f)
	, CurrentTime(0.0)
	, LastDeltaTime(0.0f)
	, FocusCause(EFocusCause::SetDirectly)
	, FocusChanges(0)
	, CursorPos(0.0f, 0.0f)
	, LastCursorPos(0.0f, 0.0f)
	, bPointerInside(false)
	, PendingToolTipSince(0.0)
	, ToolTipShownAt(0.0)
	, bAllowToolTips(true)
	, bToolTipSuppressed(false)
	, bToolTipFollowsHover(false)
{}

FSlateApplication::~FSlateApplication() {}

void FSlateApplication::Create()
{
	check(!CurrentApplication.IsValid());
	FCoreStyle::Get();
	CurrentApplication = MakeShareable(new FSlateApplication());
	CurrentBaseApplication = CurrentApplication;
	StandIn::OnModuleBinaryUnloading().AddRaw(CurrentApplication.Get(), &FSlateApplication::OnModuleBinaryUnloading);
}

void FSlateApplication::Shutdown(bool /*bShutdownPlatform*/)
{
	if (CurrentApplication.IsValid())
	{
		FSlateApplication& Application = *CurrentApplication;
		StandIn::OnModuleBinaryUnloading().RemoveAll(&Application);
		Application.CloseToolTip();
		Application.DismissAllMenus();
		Application.ClearAllUserFocus();
		Application.ReleaseAllPointerCapture();
		while (Application.Windows.Num() > 0)
		{
			Application.DestroyWindowImmediately(Application.Windows.Last());
		}
		CurrentBaseApplication.Reset();
		CurrentApplication.Reset();
	}
}

FSlateApplication& FSlateApplication::Get()
{
	check(IsInitialized());
	return *CurrentApplication;
}

void FSlateApplication::OnModuleBinaryUnloading(FName /*ModuleName*/)
{
	// Menus may show widgets of the library. The weak pointers to what is gone then are let go of too: what counts references to a
	// widget came from whoever made it.
	CloseToolTip();
	DismissAllMenus();
	const FPointerEvent MouseEvent(0, CursorPos, CursorPos, PressedMouseButtons, FKey(), 0.0f, ModifierKeys);
	UpdateHover(FWidgetPath(), MouseEvent);
	PendingToolTipSource.Reset();
	if (!MouseCaptor.IsValid())
	{
		ReleaseAllPointerCapture();
	}
	if (!GetKeyboardFocusedWidget().IsValid())
	{
		FocusPath = FWeakWidgetPath();
	}
}

void FSlateApplication::Tick(float DeltaTime)
{
	check(DeltaTime >= 0.0f);
	CurrentTime += static_cast<double>(DeltaTime);
	LastDeltaTime = DeltaTime;
	MenuStack.UpdatePlacement();
	UpdateToolTip(true);
	FSlateNotificationManager::Get().Tick();
	DrawWindows();

	// What lies under a resting mouse may have changed.
	if (bPointerInside)
	{
		const FPointerEvent MouseEvent(0, CursorPos, CursorPos, PressedMouseButtons, FKey(), 0.0f, ModifierKeys);
		UpdateHover(GetPathUnderPointer(CursorPos, false), MouseEvent);
	}
}

void FSlateApplication::DrawWindows()
{
	TArray<TSharedRef<SWindow>> VisibleWindows;
	GetAllVisibleWindowsOrdered(VisibleWindows);
	for (int32 Index = 0; Index < VisibleWindows.Num(); ++Index)
	{
		const TSharedRef<SWindow> Window = VisibleWindows[Index];
		if (Window->IsRegularWindow())
		{
			Window->SetDPIScaleFactor(ApplicationScale);
		}
		Window->LayoutWindow();
		// A widget may close windows while it is painted.
		if (Window->IsVisible())
		{
			Window->PaintWindow(CurrentTime, LastDeltaTime);
		}
	}
}

TSharedRef<SWindow> FSlateApplication::AddWindow(TSharedRef<SWindow> InSlateWindow, const bool bShowImmediately)
{
	Windows.Add(InSlateWindow);
	if (InSlateWindow->IsRegularWindow())
	{
		InSlateWindow->SetDPIScaleFactor(ApplicationScale);
	}
	InSlateWindow->LayoutWindow();
	if (bShowImmediately)
	{
		InSlateWindow->ShowWindow();
		if (InSlateWindow->IsRegularWindow() && InSlateWindow->IsFocusedInitially())
		{
			ActivateWindow(InSlateWindow);
		}
	}
	return InSlateWindow;
}

TSharedRef<SWindow> FSlateApplication::AddWindowAsNativeChild(
	TSharedRef<SWindow> InSlateWindow, TSharedRef<SWindow> InParentWindow, const bool bShowImmediately)
{
	ensure(!InParentWindow->IsDestroyed());
	InParentWindow->AddChildWindow(InSlateWindow);
	InSlateWindow->LayoutWindow();
	if (bShowImmediately)
	{
		InSlateWindow->ShowWindow();
		if (InSlateWindow->IsRegularWindow() && InSlateWindow->IsFocusedInitially())
		{
			ActivateWindow(InSlateWindow);
		}
	}
	return InSlateWindow;
}

void FSlateApplication::DestroyWindowImmediately(TSharedRef<SWindow> WindowToDestroy)
{
	if (WindowToDestroy->IsDestroyed())
	{
		return;
	}
	MenuStack.OnWindowDestroyed(WindowToDestroy);
	while (WindowToDestroy->GetChildWindows().Num() > 0)
	{
		DestroyWindowImmediately(WindowToDestroy->GetChildWindows().Last());
	}
	if (HasFocusedDescendants(WindowToDestroy))
	{
		ClearAllUserFocus(EFocusCause::OtherWidgetLostFocus);
	}
	const TSharedPtr<SWidget> Captor = MouseCaptor.Pin();
	if (Captor.IsValid() && FindWidgetWindow(Captor.ToSharedRef()) == WindowToDestroy)
	{
		ReleaseAllPointerCapture();
	}
	if (const TSharedPtr<SWindow> Parent = WindowToDestroy->GetParentWindow())
	{
		Parent->RemoveDescendantWindow(WindowToDestroy);
	}
	Windows.Remove(WindowToDestroy);
	if (ActiveWindow.Pin() == WindowToDestroy)
	{
		ActiveWindow.Reset();
	}
	WindowToDestroy->NotifyWindowDestroyed();
}

void FSlateApplication::RequestDestroyWindow(TSharedRef<SWindow> WindowToDestroy)
{
	DestroyWindowImmediately(WindowToDestroy);
}

void FSlateApplication::BringWindowToFront(TSharedRef<SWindow> Window)
{
	if (const TSharedPtr<SWindow> Parent = Window->GetParentWindow())
	{
		TArray<TSharedRef<SWindow>>& Siblings = Parent->GetChildWindows();
		Siblings.Remove(Window);
		Siblings.Add(Window);
	}
	else if (Windows.Remove(Window) > 0)
	{
		Windows.Add(Window);
	}
}

TSharedRef<SWidget> FSlateApplication::MakeWindowTitleBar(
	const TSharedRef<SWindow>& Window, const TSharedPtr<SWidget>& CenterContent, EHorizontalAlignment CenterContentAlignment) const
{
	return SNew(SWindowTitleBar, Window, CenterContent, CenterContentAlignment);
}

void FSlateApplication::CollectWindows(const TSharedRef<SWindow>& Window, TArray<TSharedRef<SWindow>>& OutWindows) const
{
	if (Window->IsVisible())
	{
		OutWindows.Add(Window);
		const TArray<TSharedRef<SWindow>>& Children = Window->GetChildWindows();
		for (int32 Index = 0; Index < Children.Num(); ++Index)
		{
			CollectWindows(Children[Index], OutWindows);
		}
	}
}

void FSlateApplication::GetAllVisibleWindowsOrdered(TArray<TSharedRef<SWindow>>& OutWindows) const
{
	// Tool tips lie above everything.
	for (int32 Index = 0; Index < Windows.Num(); ++Index)
	{
		if (Windows[Index]->GetType() != EWindowType::ToolTip)
		{
			CollectWindows(Windows[Index], OutWindows);
		}
	}
	for (int32 Index = 0; Index < Windows.Num(); ++Index)
	{
		if (Windows[Index]->GetType() == EWindowType::ToolTip)
		{
			CollectWindows(Windows[Index], OutWindows);
		}
	}
}

TSharedPtr<SWindow> FSlateApplication::FindWidgetWindow(TSharedRef<const SWidget> InWidget) const
{
	TSharedPtr<SWidget> Top = ConstCastSharedRef<SWidget>(InWidget);
	while (Top->IsParentValid())
	{
		Top = Top->GetParentWidget();
	}
	TArray<TSharedRef<SWindow>> Candidates;
	GetAllVisibleWindowsOrdered(Candidates);
	for (int32 Index = 0; Index < Candidates.Num(); ++Index)
	{
		if (Top.Get() == &Candidates[Index].Get())
		{
			return Candidates[Index];
		}
	}
	return TSharedPtr<SWindow>();
}

FSlateRect FSlateApplication::GetWorkArea(const FSlateRect& InRect) const
{
	if (WorkArea.IsSet())
	{
		return WorkArea.GetValue();
	}
	for (int32 Index = Windows.Num() - 1; Index >= 0; --Index)
	{
		if (Windows[Index]->IsRegularWindow() && Windows[Index]->IsVisible()
			&& Windows[Index]->GetRectInScreen().ContainsPoint(InRect.GetTopLeft()))
		{
			return Windows[Index]->GetRectInScreen();
		}
	}
	return Windows.Num() > 0 ? Windows[0]->GetRectInScreen() : InRect;
}

void FSlateApplication::ActivateWindow(const TSharedPtr<SWindow>& Window)
{
	const TSharedPtr<SWindow> OldWindow = ActiveWindow.Pin();
	if (OldWindow == Window)
	{
		return;
	}
	ActiveWindow = Window;
	if (OldWindow.IsValid())
	{
		MenuStack.OnWindowDeactivated(OldWindow.ToSharedRef());
		OldWindow->NotifyDeactivated();
	}
	if (Window.IsValid())
	{
		BringWindowToFront(Window.ToSharedRef());
		Window->NotifyActivated();
		if (const TSharedPtr<SWidget> WidgetToFocus = Window->GetWidgetToFocusOnActivate())
		{
			SetKeyboardFocus(WidgetToFocus, EFocusCause::WindowActivate);
		}
	}
}

bool FSlateApplication::ProcessWindowActivatedEvent(const FWindowActivateEvent& ActivateEvent)
{
	const TSharedRef<SWindow> Window = ActivateEvent.GetAffectedWindow();
	if (ActivateEvent.GetActivationType() != FWindowActivateEvent::EA_Deactivate)
	{
		ActivateWindow(Window);
		return true;
	}
	CloseToolTip();
	ReleaseAllPointerCapture();
	if (ActiveWindow.Pin() == Window)
	{
		ActivateWindow(TSharedPtr<SWindow>());
	}
	else
	{
		MenuStack.OnWindowDeactivated(Window);
	}
	return true;
}

bool FSlateApplication::GeneratePathToWidgetUnchecked(
	TSharedRef<const SWidget> InWidget, FWidgetPath& OutWidgetPath, EVisibility VisibilityFilter) const
{
	// Up by the parents, then down again, arranging as of now.
	TArray<TSharedRef<SWidget>> Chain;
	TSharedPtr<SWidget> Current = ConstCastSharedRef<SWidget>(InWidget);
	while (Current.IsValid())
	{
		Chain.Insert(Current.ToSharedRef(), 0);
		Current = Current->GetParentWidget();
	}
	OutWidgetPath = FWidgetPath();
	const TSharedPtr<SWindow> Window = FindWidgetWindow(InWidget);
	if (!Window.IsValid() || !EVisibility::DoesVisibilityPassFilter(Window->GetVisibility(), VisibilityFilter))
	{
		return false;
	}
	FArrangedChildren Path(EVisibility::All);
	Path.AddWidget(EVisibility::Visible, FArrangedWidget(Window.ToSharedRef(), Window->GetWindowGeometryInScreen()));
	for (int32 ChainIndex = 1; ChainIndex < Chain.Num(); ++ChainIndex)
	{
		FArrangedChildren Children(VisibilityFilter);
		Path.Last().Widget->ArrangeChildren(Path.Last().Geometry, Children);
		bool bFound = false;
		for (int32 ChildIndex = 0; ChildIndex < Children.Num() && !bFound; ++ChildIndex)
		{
			if (Children[ChildIndex].Widget == Chain[ChainIndex])
			{
				Path.AddWidget(EVisibility::Visible, Children[ChildIndex]);
				bFound = true;
			}
		}
		if (!bFound)
		{
			return false;
		}
	}
	OutWidgetPath = FWidgetPath(Window, Path);
	return true;
}

void FSlateApplication::GeneratePathToWidgetChecked(
	TSharedRef<const SWidget> InWidget, FWidgetPath& OutWidgetPath, EVisibility VisibilityFilter) const
{
	const bool bWasFound = GeneratePathToWidgetUnchecked(InWidget, OutWidgetPath, VisibilityFilter);
	check(bWasFound);
}
