// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Input/ReplyBase.h"

// How pop-ups are shown. Both methods lead to a window of its own on the host's one surface here.

/** How a pop-up is shown. */
enum class EPopupMethod : uint8
{
	CreateNewWindow,
	UseCurrentWindow
};

/** A widget's answer to the question how pop-ups are shown. */
class FPopupMethodReply : public FReplyBase
{
public:
	/** Makes the answer that leaves the choice to the parent. */
	static FPopupMethodReply Unhandled() { return FPopupMethodReply(false, EPopupMethod::CreateNewWindow); }

	/** Makes the answer of a method. */
	static FPopupMethodReply UseMethod(EPopupMethod WithMethod) { return FPopupMethodReply(true, WithMethod); }

	/** Returns the method. */
	EPopupMethod GetPopupMethod() const { return PopupMethod; }

private:
	FPopupMethodReply(bool bInIsHandled, EPopupMethod InMethod)
		: FReplyBase(bInIsHandled)
		, PopupMethod(InMethod)
	{}

	EPopupMethod PopupMethod;
};
