// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Application/SlateApplicationBase.h"
#include "Framework/Application/MenuStack.h"
#include "Framework/SlateDelegates.h"
#include "GenericPlatform/ICursor.h"
#include "Input/CursorReply.h"
#include "Input/Events.h"
#include "Input/Reply.h"
#include "Layout/WidgetPath.h"
#include "Widgets/SWindow.h"

class FGenericWindow;
class SToolTip;

// The application: windows, routing of input, focus, tool tips, menus. One user, one pointer. Time is given to Tick, no clock is
// read. Left out: native windows and message pumps, modal windows, gamepads, touch, drag and drop, throttling, input processors.

DECLARE_DELEGATE_RetVal_OneParam(FReply, FOnKeyEvent, const FKeyEvent&);

/** The application: windows, routing of input, focus, tool tips, menus. */
class SLATE_API FSlateApplication : public FSlateApplicationBase
{
public:
	/** Makes the application; it must not exist yet. */
	static void Create();

	/** Destroys the application with its windows; without one nothing happens. */
	static void Shutdown(bool bShutdownPlatform = true);

	/** Returns the application; without one it is a fatal error. */
	static FSlateApplication& Get();

	/** Says whether there is an application. */
	static bool IsInitialized() { return CurrentApplication.IsValid(); }

	/** Destroys the application. */
	~FSlateApplication() override;

	/** Goes on in time by DeltaTime seconds: tool tips, then layout and painting of all windows. */
	void Tick(float DeltaTime);

	double GetCurrentTime() const override { return CurrentTime; }
	float GetDeltaTime() const override { return LastDeltaTime; }

	// Windows.

	/** Adds a window and shows it if wanted. */
	TSharedRef<SWindow> AddWindow(TSharedRef<SWindow> InSlateWindow, const bool bShowImmediately = true);

	/** Adds a window above another one, which it dies with. */
	TSharedRef<SWindow> AddWindowAsNativeChild(
		TSharedRef<SWindow> InSlateWindow, TSharedRef<SWindow> InParentWindow, const bool bShowImmediately = true);

	/** Destroys a window and its children now. */
	void DestroyWindowImmediately(TSharedRef<SWindow> WindowToDestroy);

	void RequestDestroyWindow(TSharedRef<SWindow> WindowToDestroy) override;
	void BringWindowToFront(TSharedRef<SWindow> Window) override;
	TSharedPtr<SWindow> GetActiveTopLevelWindow() const override { return ActiveWindow.Pin(); }

	/** Returns the windows without parents, the topmost last. */
	const TArray<TSharedRef<SWindow>>& GetInteractiveTopLevelWindows() const { return Windows; }

	/** Returns all shown windows in the order in which they are drawn, the topmost last: regular ones, menus, tool tips. */
	void GetAllVisibleWindowsOrdered(TArray<TSharedRef<SWindow>>& OutWindows) const;

	/** Returns the window that a widget is in, or null. */
	TSharedPtr<SWindow> FindWidgetWindow(TSharedRef<const SWidget> InWidget) const;

	/** Sets the area that pop-ups stay in; without one it is the window that they come from. */
	void SetWorkArea(const FSlateRect& InWorkArea) { WorkArea = InWorkArea; }

	/** Returns the area that pop-ups near a rectangle stay in. */
	FSlateRect GetWorkArea(const FSlateRect& InRect) const;

	/** Returns pixels a Slate unit, for all windows. */
	float GetApplicationScale() const { return ApplicationScale; }

	/** Sets pixels a Slate unit, for all windows. */
	void SetApplicationScale(float InScale) { ApplicationScale = InScale; }

	// Menus.

	/** Opens a pop-up menu of a content for a widget. An invalid owner path is looked up from the widget; null if it is in no
	    window. */
	TSharedPtr<IMenu> PushMenu(const TSharedRef<SWidget>& InParentWidget, const FWidgetPath& InOwnerPath,
		const TSharedRef<SWidget>& InContent, const FVector2D& SummonLocation, const FPopupTransitionEffect& TransitionEffect,
		const bool bFocusImmediately = true, const FVector2D& SummonLocationSize = FVector2D(0.0f, 0.0f),
		TOptional<EPopupMethod> Method = TOptional<EPopupMethod>(), const bool bIsCollapsedByParent = true);

	/** Opens a pop-up menu as the child of an open one. */
	TSharedPtr<IMenu> PushMenu(const TSharedPtr<IMenu>& InParentMenu, const TSharedRef<SWidget>& InContent, const FVector2D& SummonLocation,
		const FPopupTransitionEffect& TransitionEffect, const bool bFocusImmediately = true,
		const FVector2D& SummonLocationSize = FVector2D(0.0f, 0.0f), const bool bIsCollapsedByParent = true);

	/** Says whether a menu is open that was opened from the given one. */
	bool HasOpenSubMenus(TSharedPtr<IMenu> InMenu) const { return MenuStack.HasOpenSubMenus(InMenu); }

	/** Says whether any menu is open. */
	bool AnyMenusVisible() const { return MenuStack.HasMenus(); }

	/** Returns the innermost open menu that a path goes through, or null. */
	TSharedPtr<IMenu> FindMenuInWidgetPath(const FWidgetPath& InWidgetPath) const { return MenuStack.FindMenuInWidgetPath(InWidgetPath); }

	/** Returns the window of the last opened menu, or null. */
	TSharedPtr<SWindow> GetVisibleMenuWindow() const;

	/** Closes all menus. */
	void DismissAllMenus();

	/** Closes a menu and its children. */
	void DismissMenu(const TSharedPtr<IMenu>& InFromMenu);

	/** Closes the menu that a widget is in and that menu's children, not its parents; without one nothing happens. */
	void DismissMenuByWidget(const TSharedRef<SWidget>& InWidgetInMenu);

	/** Returns the open menus. */
	FMenuStack& GetMenuStack() { return MenuStack; }

	/** Computes where a pop-up of a size opens beside an anchor so that it stays in the work area; sizes in desktop space. */
	FVector2D CalculatePopupWindowPosition(const FSlateRect& InAnchor, const FVector2D& InSize, bool bAutoAdjustForDPIScale = true,
		const FVector2D& InProposedPlacement = FVector2D(0.0f, 0.0f), const EOrientation Orientation = Orient_Vertical) const;

	// Focus.

	/** Gives a widget the focus; says whether it took it: it must be in a shown window and support the focus. */
	bool SetUserFocus(
		uint32 UserIndex, const TSharedPtr<SWidget>& WidgetToFocus, EFocusCause ReasonFocusIsChanging = EFocusCause::SetDirectly);

	/** Gives the focus to the deepest widget of a path that supports it. */
	bool SetUserFocus(const uint32 InUserIndex, const FWidgetPath& InFocusPath, const EFocusCause InCause);

	/** Gives a widget the focus of every user. */
	void SetAllUserFocus(const TSharedPtr<SWidget>& WidgetToFocus, EFocusCause ReasonFocusIsChanging = EFocusCause::SetDirectly);

	/** Gives a widget the focus. */
	bool SetKeyboardFocus(const TSharedPtr<SWidget>& OptionalWidgetToFocus, EFocusCause ReasonFocusIsChanging = EFocusCause::SetDirectly);

	/** Gives the focus to the deepest widget of a path that supports it. */
	void SetKeyboardFocus(const FWidgetPath& InFocusPath, const EFocusCause InCause = EFocusCause::SetDirectly);

	/** Takes the focus away. */
	void ClearUserFocus(uint32 UserIndex, EFocusCause ReasonFocusIsChanging = EFocusCause::SetDirectly);

	/** Takes the focus away. */
	void ClearKeyboardFocus(const EFocusCause ReasonFocusIsChanging = EFocusCause::SetDirectly);

	/** Takes every user's focus away. */
	void ClearAllUserFocus(EFocusCause ReasonFocusIsChanging = EFocusCause::SetDirectly);

	/** Returns the widget that has a user's focus, or null. */
	TSharedPtr<SWidget> GetUserFocusedWidget(uint32 UserIndex) const;

	TSharedPtr<SWidget> GetKeyboardFocusedWidget() const override;
	TOptional<EFocusCause> HasAnyUserFocus(const TSharedPtr<const SWidget> Widget) const override;
	bool HasFocusedDescendants(const TSharedRef<const SWidget>& Widget) const override;

	// Mouse capture.

	bool DoesWidgetHaveMouseCapture(const TSharedPtr<const SWidget> Widget) const override;

	/** Says whether any widget has the mouse. */
	bool HasAnyMouseCaptor() const { return MouseCaptor.IsValid(); }

	/** Returns the widget that has the mouse, or null. */
	TSharedPtr<SWidget> GetMouseCaptor() const { return MouseCaptor.Pin(); }

	/** Takes the mouse from the widget that has it. */
	void ReleaseAllPointerCapture();

	// Input from the host. All say whether a widget handled the event.

	/** Routes a moved mouse. */
	bool ProcessMouseMoveEvent(const FPointerEvent& MouseEvent, bool bIsSynthetic = false);

	/** Routes a pressed button. */
	bool ProcessMouseButtonDownEvent(const TSharedPtr<FGenericWindow>& PlatformWindow, const FPointerEvent& InMouseEvent);

	/** Routes a double click, as a press where no widget handles it. */
	bool ProcessMouseButtonDoubleClickEvent(const TSharedPtr<FGenericWindow>& PlatformWindow, const FPointerEvent& InMouseEvent);

	/** Routes a released button. */
	bool ProcessMouseButtonUpEvent(const FPointerEvent& MouseEvent);

	/** Routes a turned wheel; there are no gestures. */
	bool ProcessMouseWheelOrGestureEvent(const FPointerEvent& InWheelEvent, const FPointerEvent* InGestureEvent);

	/** Routes a pressed key; Tab and arrow keys that no widget handles move the focus. */
	bool ProcessKeyDownEvent(const FKeyEvent& InKeyEvent);

	/** Sets what is offered keys that no widget handled, before they move the focus; main windows keep their commands there. */
	void SetUnhandledKeyDownEventHandler(const FOnKeyEvent& NewHandler) { UnhandledKeyDownEventHandler = NewHandler; }

	/** Routes a released key. */
	bool ProcessKeyUpEvent(const FKeyEvent& InKeyEvent);

	/** Routes a typed character. */
	bool ProcessKeyCharEvent(const FCharacterEvent& InCharacterEvent);

	/** Activates or deactivates a window; deactivation closes its menus and gives up the mouse. */
	bool ProcessWindowActivatedEvent(const FWindowActivateEvent& ActivateEvent);

	/** Takes the hover off all widgets, as when the mouse leaves the host's surface. */
	void ProcessMouseLeft();

	/** Returns where the mouse is. */
	FVector2D GetCursorPos() const { return CursorPos; }

	/** Returns where the mouse was before. */
	FVector2D GetLastCursorPos() const { return LastCursorPos; }

	/** Moves the mouse; no event follows. */
	void SetCursorPos(const FVector2D& MouseCoordinate);

	/** Returns the cursor that the widgets under the mouse ask for. */
	EMouseCursor::Type QueryCursor();

	/** Returns the buttons held. */
	const TSet<FKey>& GetPressedMouseButtons() const { return PressedMouseButtons; }

	/** Returns the state of the modifier keys at the last event. */
	FModifierKeysState GetModifierKeys() const { return ModifierKeys; }

	/** Finds the path to the topmost widget under a point as painted last; invalid if there is none. */
	FWidgetPath LocateWindowUnderMouse(FVector2D ScreenspaceMouseCoordinate, const TArray<TSharedRef<SWindow>>& InWindows,
		bool bIgnoreEnabledStatus = false, int32 UserIndex = INDEX_NONE);

	bool IsWidgetDirectlyHovered(const TSharedPtr<const SWidget> Widget) const override;

	bool GeneratePathToWidgetUnchecked(
		TSharedRef<const SWidget> InWidget, FWidgetPath& OutWidgetPath, EVisibility VisibilityFilter = EVisibility::Visible) const override;
	void GeneratePathToWidgetChecked(
		TSharedRef<const SWidget> InWidget, FWidgetPath& OutWidgetPath, EVisibility VisibilityFilter = EVisibility::Visible) const override;

	/** Says whether a widget can be reached from a shown window. */
	bool FindPathToWidget(
		TSharedRef<const SWidget> InWidget, FWidgetPath& OutWidgetPath, EVisibility VisibilityFilter = EVisibility::Visible) const
	{
		return GeneratePathToWidgetUnchecked(InWidget, OutWidgetPath, VisibilityFilter);
	}

	/** Says whether scripts run normally; there is no script debugger, so they always do. */
	bool IsNormalExecution() const { return true; }

	// Tool tips.

	TSharedRef<IToolTip> MakeToolTip(const TAttribute<FText>& ToolTipText) override;
	TSharedRef<IToolTip> MakeToolTip(const FText& ToolTipText) override;
	TSharedRef<SWidget> MakeWindowTitleBar(const TSharedRef<SWindow>& Window, const TSharedPtr<SWidget>& CenterContent,
		EHorizontalAlignment CenterContentAlignment) const override;

	/** Shows a tool tip at a place now. */
	void SpawnToolTip(const TSharedRef<IToolTip>& InToolTip, const FVector2D& InSpawnLocation);

	/** Closes the tool tip that is shown, if any. */
	void CloseToolTip();

	/** Looks for the tool tip under the mouse and shows or closes it by the delays; called by Tick. */
	void UpdateToolTip(bool bCanSpawnNewToolTip);

	/** Sets whether tool tips are shown. */
	void SetAllowTooltips(bool bInAllow) { bAllowToolTips = bInAllow; }

	/** Says whether tool tips are shown. */
	bool GetAllowTooltips() const { return bAllowToolTips; }

	/** Returns the tool tip that is shown, or null. */
	TSharedPtr<IToolTip> GetActiveToolTip() const;

private:
	FSlateApplication();

	void OnModuleBinaryUnloading(FName ModuleName);
	void DrawWindows();
	void CollectWindows(const TSharedRef<SWindow>& Window, TArray<TSharedRef<SWindow>>& OutWindows) const;
	void ActivateWindow(const TSharedPtr<SWindow>& Window);
	void CloseDestroyedMenus(const TSharedRef<SWindow>& Window);
	FWidgetPath GetPathUnderPointer(const FVector2D& Position, bool bIgnoreEnabledStatus);
	FWidgetPath GetPathToCaptor();
	void UpdateHover(const FWidgetPath& NewPath, const FPointerEvent& MouseEvent);
	FReply RoutePointerDown(const FWidgetPath& Path, const FPointerEvent& MouseEvent, bool bDoubleClick);
	void ProcessReply(const FWidgetPath& EventPath, const FReply& Reply);
	bool SetFocusPath(const FWidgetPath& InFocusPath, EFocusCause Cause);
	bool NavigateFocus(EUINavigation Direction);
	void PlaceToolTip(const FWidgetPath& HoveredPath);
	void ShowToolTip(const TSharedRef<IToolTip>& InToolTip, const FVector2D& Location);
	void NotePointer(const FPointerEvent& MouseEvent);

	static TSharedPtr<FSlateApplication> CurrentApplication;

	TArray<TSharedRef<SWindow>> Windows;
	TWeakPtr<SWindow> ActiveWindow;
	FMenuStack MenuStack;
	TOptional<FSlateRect> WorkArea;
	float ApplicationScale;
	double CurrentTime;
	float LastDeltaTime;
	FOnKeyEvent UnhandledKeyDownEventHandler;
	FWeakWidgetPath FocusPath;
	EFocusCause FocusCause;
	uint32 FocusChanges;
	TWeakPtr<SWidget> MouseCaptor;
	FWeakWidgetPath MouseCaptorPath;
	FWeakWidgetPath WidgetsUnderPointer;
	FVector2D CursorPos;
	FVector2D LastCursorPos;
	bool bPointerInside;
	TSet<FKey> PressedMouseButtons;
	FModifierKeysState ModifierKeys;
	TWeakPtr<IToolTip> ActiveToolTip;
	TWeakPtr<SWidget> ActiveToolTipSource;
	TWeakPtr<SWidget> PendingToolTipSource;
	double PendingToolTipSince;
	double ToolTipShownAt;
	TSharedPtr<SWindow> ToolTipWindow;
	bool bAllowToolTips;
	bool bToolTipSuppressed;
	bool bToolTipFollowsHover;
};
