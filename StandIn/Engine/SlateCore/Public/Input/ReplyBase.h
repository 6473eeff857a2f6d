// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

class SWidget;

// What answers to events share.

/** An answer to an event: handled or not, and by whom. */
class FReplyBase
{
public:
	/** Says whether the event was handled. */
	bool IsEventHandled() const { return bIsHandled; }

	/** Returns the widget that handled the event, if the router set it. */
	const TSharedPtr<SWidget> GetHandler() const { return EventHandler; }

protected:
	/** Makes an answer. */
	FReplyBase(bool InIsHandled)
		: bIsHandled(InIsHandled)
	{}

	/** Whether the event was handled. */
	bool bIsHandled;

	/** Who handled it. */
	TSharedPtr<SWidget> EventHandler;
};
