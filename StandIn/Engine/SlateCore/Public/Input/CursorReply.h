// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/ICursor.h"
#include "Input/ReplyBase.h"

// A widget's answer to the question for the cursor's shape. Left out: cursors drawn by widgets.

/** A widget's answer to the question for the cursor's shape. */
class FCursorReply : public FReplyBase
{
public:
	/** Makes the answer that leaves the choice to the parent. */
	static FCursorReply Unhandled() { return FCursorReply(); }

	/** Makes the answer of a shape. */
	static FCursorReply Cursor(EMouseCursor::Type InCursor) { return FCursorReply(InCursor); }

	/** Returns the shape. */
	EMouseCursor::Type GetCursorType() const { return MouseCursor; }

private:
	FCursorReply()
		: FReplyBase(false)
		, MouseCursor(EMouseCursor::Default)
	{}

	FCursorReply(EMouseCursor::Type InCursorType)
		: FReplyBase(true)
		, MouseCursor(InCursorType)
	{}

	EMouseCursor::Type MouseCursor;
};
