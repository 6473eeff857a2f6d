// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Input/Events.h"
#include "Layout/SlateRect.h"
#include "Layout/Visibility.h"
#include "Misc/Attribute.h"
#include "Misc/Optional.h"
#include "Rendering/SlateRenderer.h"

class FWidgetPath;
class IToolTip;
class SWidget;
class SWindow;

// What widgets of the core need of the application.

/** What widgets of the core need of the application. */
class SLATECORE_API FSlateApplicationBase
{
public:
	/** Destroys the application. */
	virtual ~FSlateApplicationBase() {}

	/** Returns the application; without one it is a fatal error. */
	static FSlateApplicationBase& Get();

	/** Says whether there is an application. */
	static bool IsInitialized() { return CurrentBaseApplication.IsValid(); }

	/** Returns the renderer. */
	FSlateRenderer* GetRenderer() const { return Renderer.Get(); }

	/** Returns the time of the current tick, in seconds since the application was made. */
	virtual double GetCurrentTime() const = 0;

	/** Returns the time between the last two ticks, in seconds. */
	virtual float GetDeltaTime() const = 0;

	/** Makes a tool tip of a text attribute. */
	virtual TSharedRef<IToolTip> MakeToolTip(const TAttribute<FText>& ToolTipText) = 0;

	/** Makes a tool tip of a text. */
	virtual TSharedRef<IToolTip> MakeToolTip(const FText& ToolTipText) = 0;

	/** Makes the bar with title and close button for a window; a center content takes the title's place. */
	virtual TSharedRef<SWidget> MakeWindowTitleBar(
		const TSharedRef<SWindow>& Window, const TSharedPtr<SWidget>& CenterContent, EHorizontalAlignment CenterContentAlignment) const = 0;

	/** Returns the active window, or null. */
	virtual TSharedPtr<SWindow> GetActiveTopLevelWindow() const = 0;

	/** Asks to destroy a window. */
	virtual void RequestDestroyWindow(TSharedRef<SWindow> WindowToDestroy) = 0;

	/** Puts a window above all others of its kind. */
	virtual void BringWindowToFront(TSharedRef<SWindow> Window) = 0;

	/** Returns the widget that has the focus, or null. */
	virtual TSharedPtr<SWidget> GetKeyboardFocusedWidget() const = 0;

	/** Says why the focus is on a widget, unset if it is not. */
	virtual TOptional<EFocusCause> HasAnyUserFocus(const TSharedPtr<const SWidget> Widget) const = 0;

	/** Says whether the focus is on a widget or below it. */
	virtual bool HasFocusedDescendants(const TSharedRef<const SWidget>& Widget) const = 0;

	/** Says whether all mouse events go to a widget. */
	virtual bool DoesWidgetHaveMouseCapture(const TSharedPtr<const SWidget> Widget) const = 0;

	/** Says whether the mouse is on a widget itself, not on one of its children. */
	virtual bool IsWidgetDirectlyHovered(const TSharedPtr<const SWidget> Widget) const = 0;

	/** Finds the path from a window known to the application down to a widget, all arranged as of now; false if there is none. */
	virtual bool GeneratePathToWidgetUnchecked(
		TSharedRef<const SWidget> InWidget, FWidgetPath& OutWidgetPath, EVisibility VisibilityFilter = EVisibility::Visible) const = 0;

	/** As GeneratePathToWidgetUnchecked, but not finding the widget is a fatal error. */
	virtual void GeneratePathToWidgetChecked(
		TSharedRef<const SWidget> InWidget, FWidgetPath& OutWidgetPath, EVisibility VisibilityFilter = EVisibility::Visible) const = 0;

protected:
	FSlateApplicationBase();

	/** The application. */
	static TSharedPtr<FSlateApplicationBase> CurrentBaseApplication;

	/** The renderer. */
	TSharedPtr<FSlateRenderer> Renderer;
};
