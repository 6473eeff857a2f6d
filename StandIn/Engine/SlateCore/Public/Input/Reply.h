// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Input/Events.h"
#include "Input/ReplyBase.h"
#include "Misc/Optional.h"

class SWidget;

// A widget's answer to an input event. Left out: drag and drop, high-precision mouse movement, navigation replies.

/** A widget's answer to an input event and what it asks for: the mouse, the focus. */
class FReply : public FReplyBase
{
public:
	/** Makes the answer that stops the event here. */
	static FReply Handled() { return FReply(true); }

	/** Makes the answer that passes the event on. */
	static FReply Unhandled() { return FReply(false); }

	/** Asks that a widget receives all mouse events until it lets go. */
	FReply& CaptureMouse(TSharedRef<SWidget> InMouseCaptor)
	{
		MouseCaptor = InMouseCaptor;
		return Me();
	}

	/** Asks to let go of the mouse. */
	FReply& ReleaseMouseCapture()
	{
		MouseCaptor.Reset();
		bReleaseMouseCapture = true;
		return Me();
	}

	/** Asks to move the mouse; the host may decline. */
	FReply& SetMousePos(const FIntPoint& NewMousePos)
	{
		RequestedMousePos = NewMousePos;
		return Me();
	}

	/** Asks to give a widget the focus. */
	FReply& SetUserFocus(
		TSharedRef<SWidget> GiveMeFocus, EFocusCause ReasonFocusIsChanging = EFocusCause::SetDirectly, bool bInAllUsers = false)
	{
		bSetUserFocus = true;
		bReleaseUserFocus = false;
		bAllUsers = bInAllUsers;
		FocusRecipient = GiveMeFocus;
		FocusChangeReason = ReasonFocusIsChanging;
		return Me();
	}

	/** Asks to take the focus away. */
	FReply& ClearUserFocus(bool bInAllUsers = false) { return ClearUserFocus(EFocusCause::SetDirectly, bInAllUsers); }

	/** Asks to take the focus away for a reason. */
	FReply& ClearUserFocus(EFocusCause ReasonFocusIsChanging, bool bInAllUsers = false)
	{
		FocusRecipient.Reset();
		bSetUserFocus = false;
		bReleaseUserFocus = true;
		bAllUsers = bInAllUsers;
		FocusChangeReason = ReasonFocusIsChanging;
		return Me();
	}

	/** Asks to keep the mouse inside a widget; accepted and ignored. */
	FReply& LockMouseToWidget(TSharedRef<SWidget> /*InWidget*/) { return Me(); }

	/** Asks to end the lock; accepted and ignored. */
	FReply& ReleaseMouseLock() { return Me(); }

	/** Asks not to slow the editor down while the mouse is held; accepted and ignored. */
	FReply& PreventThrottling() { return Me(); }

	/** Returns the widget that asks for the mouse. */
	TSharedPtr<SWidget> GetMouseCaptor() const { return MouseCaptor; }

	/** Says whether the mouse shall be let go. */
	bool ShouldReleaseMouse() const { return bReleaseMouseCapture; }

	/** Says whether the focus shall be set. */
	bool ShouldSetUserFocus() const { return bSetUserFocus; }

	/** Says whether the focus shall be taken away. */
	bool ShouldReleaseUserFocus() const { return bReleaseUserFocus; }

	/** Says whether the focus of every user is meant. */
	bool AffectsAllUsers() const { return bAllUsers; }

	/** Returns the widget that asks for the focus. */
	TSharedPtr<SWidget> GetUserFocusRecepient() const { return FocusRecipient; }

	/** Returns why the focus shall change. */
	EFocusCause GetFocusCause() const { return FocusChangeReason; }

	/** Returns where the mouse shall be moved. */
	const TOptional<FIntPoint>& GetRequestedMousePos() const { return RequestedMousePos; }

	/** Names the widget that handled the event; for routers. */
	FReply& SetHandler(const TSharedRef<SWidget>& InHandler)
	{
		EventHandler = InHandler;
		return Me();
	}

private:
	explicit FReply(bool bInIsHandled)
		: FReplyBase(bInIsHandled)
	{}

	FReply& Me() { return *this; }

	TOptional<FIntPoint> RequestedMousePos;
	TSharedPtr<SWidget> MouseCaptor;
	TSharedPtr<SWidget> FocusRecipient;
	EFocusCause FocusChangeReason = EFocusCause::SetDirectly;
	bool bReleaseMouseCapture = false;
	bool bSetUserFocus = false;
	bool bReleaseUserFocus = false;
	bool bAllUsers = false;
};
