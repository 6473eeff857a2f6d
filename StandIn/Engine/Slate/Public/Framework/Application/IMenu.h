// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

class SWidget;
class SWindow;

// One open pop-up menu.

DECLARE_MULTICAST_DELEGATE_OneParam(FOnMenuDismissed, TSharedRef<class IMenu>);

/** One open pop-up menu. */
class IMenu : public TSharedFromThis<IMenu>
{
public:
	/** Destroys the menu. */
	virtual ~IMenu() {}

	/** Closes this menu and all menus opened from it. */
	virtual void Dismiss() = 0;

	/** Returns the window that the menu came from, or null. */
	virtual TSharedPtr<SWindow> GetParentWindow() const = 0;

	/** Returns the menu's content, or null when it is closed. */
	virtual TSharedPtr<SWidget> GetContent() const = 0;

	/** Returns the menu's own window, or null when it is closed. */
	virtual TSharedPtr<SWindow> GetOwnedWindow() const = 0;

	/** Says whether the menu is closed when a menu before it is. */
	virtual bool IsCollapsedByParent() const = 0;

	/** Returns the event of the menu having been closed. */
	virtual FOnMenuDismissed& GetOnMenuDismissed() = 0;
};
