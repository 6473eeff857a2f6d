// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Layout/ArrangedChildren.h"
#include "Misc/Optional.h"

class SWidget;
class SWindow;

// Paths from a window down to a widget. Left out: virtual pointer positions and moving the focus along a path.

/** The widgets from a window, which is the first, down to one widget, each with its geometry. */
class SLATECORE_API FWidgetPath
{
public:
	/** Makes an invalid path. */
	FWidgetPath();

	/** Makes a path of a window and the widgets from it downwards, the window included. */
	FWidgetPath(TSharedPtr<SWindow> InTopLevelWindow, const FArrangedChildren& InWidgetPath);

	/** Returns the path cut off below a widget; invalid if the widget is not on it. */
	FWidgetPath GetPathDownTo(TSharedRef<const SWidget> MarkerWidget) const;

	/** Says whether a widget is on the path. */
	bool ContainsWidget(TSharedRef<const SWidget> WidgetToFind) const;

	/** Says whether a widget is on the path. */
	bool ContainsWidget(const SWidget* WidgetToFind) const;

	/** Returns a widget of the path with its geometry, if it is on it. */
	TOptional<FArrangedWidget> FindArrangedWidget(TSharedRef<const SWidget> WidgetToFind) const;

	/** Returns the deepest widget; the path must be valid. */
	TSharedRef<SWidget> GetLastWidget() const;

	/** Returns the window; the path must be valid. */
	TSharedRef<SWindow> GetWindow() const;

	/** Returns the deepest window on the path; the path must be valid. */
	TSharedRef<SWindow> GetDeepestWindow() const { return GetWindow(); }

	/** Says whether the path has any widgets. */
	bool IsValid() const { return Widgets.Num() > 0; }

	/** Returns the types of the widgets, the deepest first, a line each. */
	FString ToString() const;

	/** The widgets, the window first. */
	FArrangedChildren Widgets;

	/** The window. */
	TSharedPtr<SWindow> TopLevelWindow;
};

/** A path that keeps nothing alive. */
class SLATECORE_API FWeakWidgetPath
{
public:
	/** What to do when part of the path is gone. */
	struct EInterruptedPathHandling
	{
		/** The two ways. */
		enum Type
		{
			Truncate,
			ReturnInvalid
		};
	};

	/** Makes the weak form of a path. */
	FWeakWidgetPath(const FWidgetPath& InWidgetPath = FWidgetPath());

	/** Returns the path as arranged now, cut off or invalid from the first widget that is gone or no longer a child. */
	FWidgetPath ToWidgetPath(EInterruptedPathHandling::Type InterruptedPathHandling = EInterruptedPathHandling::Truncate) const;

	/** Says whether a living widget is on the path. */
	bool ContainsWidget(const TSharedRef<const SWidget>& SomeWidget) const;

	/** Says whether the path has any widgets, living or not. */
	bool IsValid() const { return Widgets.Num() > 0; }

	/** Returns the deepest widget, or none. */
	TWeakPtr<SWidget> GetLastWidget() const { return Widgets.Num() > 0 ? Widgets.Last() : TWeakPtr<SWidget>(); }

	/** The widgets, the window first. */
	TArray<TWeakPtr<SWidget>> Widgets;

	/** The window. */
	TWeakPtr<SWindow> Window;
};
