// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

class SWidget;

// What a widget shows when the mouse rests on it.

/** What a widget shows when the mouse rests on it. */
class IToolTip
{
public:
	/** Destroys the tool tip. */
	virtual ~IToolTip() {}

	/** Returns the tool tip as a widget. */
	virtual TSharedRef<SWidget> AsWidget() = 0;

	/** Returns the content. */
	virtual TSharedRef<SWidget> GetContentWidget() = 0;

	/** Sets the content. */
	virtual void SetContentWidget(const TSharedRef<SWidget>& InContentWidget) = 0;

	/** Drops content made for one showing. */
	virtual void ResetContentWidget() {}

	/** Says whether there is nothing to show. */
	virtual bool IsEmpty() const = 0;

	/** Says whether the mouse may go into the tool tip; not supported beyond the answer. */
	virtual bool IsInteractive() const { return false; }

	/** Is called before the tool tip is shown. */
	virtual void OnOpening() {}

	/** Is called after the tool tip was closed. */
	virtual void OnClosed() {}
};
