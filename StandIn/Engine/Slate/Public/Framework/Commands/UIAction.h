// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "Styling/SlateTypes.h"

// What a menu entry or button does and how it shows its state: execute, can-execute, check state, visibility.
// The one-argument constructor is the older form: it needs a running FSlateApplication and asserts without one.

DECLARE_DELEGATE(FExecuteAction);
DECLARE_DELEGATE_RetVal(bool, FCanExecuteAction);
DECLARE_DELEGATE_RetVal(bool, FIsActionChecked);
DECLARE_DELEGATE_RetVal(ECheckBoxState, FGetActionCheckState);
DECLARE_DELEGATE_RetVal(bool, FIsActionButtonVisible);

/** Whether an action runs again while its key is held. */
enum class EUIActionRepeatMode
{
	RepeatDisabled,
	RepeatEnabled
};

/** Delegates of one action of the user interface. */
struct SLATE_API FUIAction
{
	/** Runs the action. */
	FExecuteAction ExecuteAction;

	/** Tells whether the action may run; unbound means yes. */
	FCanExecuteAction CanExecuteAction;

	/** Tells the check state; unbound means unchecked. */
	FGetActionCheckState GetActionCheckState;

	/** Tells whether the entry is shown; unbound means yes. */
	FIsActionButtonVisible IsActionVisibleDelegate;

	/** Whether a held key repeats the action. */
	EUIActionRepeatMode RepeatMode;

	/** Makes an action that does nothing. */
	FUIAction();

	/** Makes an action that may run while Slate is in normal execution; asserts without a Slate application. */
	FUIAction(FExecuteAction InitExecuteAction, EUIActionRepeatMode InitRepeatMode = EUIActionRepeatMode::RepeatDisabled);

	/** Makes an action with a can-execute query. */
	FUIAction(FExecuteAction InitExecuteAction, FCanExecuteAction InitCanExecuteAction,
		EUIActionRepeatMode InitRepeatMode = EUIActionRepeatMode::RepeatDisabled);

	/** Makes an action with a checked query of two states. */
	FUIAction(FExecuteAction InitExecuteAction, FCanExecuteAction InitCanExecuteAction, FIsActionChecked InitIsCheckedDelegate,
		EUIActionRepeatMode InitRepeatMode = EUIActionRepeatMode::RepeatDisabled);

	/** Makes an action with a check state query of three states. */
	FUIAction(FExecuteAction InitExecuteAction, FCanExecuteAction InitCanExecuteAction,
		FGetActionCheckState InitGetActionCheckStateDelegate, EUIActionRepeatMode InitRepeatMode = EUIActionRepeatMode::RepeatDisabled);

	/** Makes an action with a checked query of two states and a visibility query. */
	FUIAction(FExecuteAction InitExecuteAction, FCanExecuteAction InitCanExecuteAction, FIsActionChecked InitIsCheckedDelegate,
		FIsActionButtonVisible InitIsActionVisibleDelegate, EUIActionRepeatMode InitRepeatMode = EUIActionRepeatMode::RepeatDisabled);

	/** Makes an action with a check state query of three states and a visibility query. */
	FUIAction(FExecuteAction InitExecuteAction, FCanExecuteAction InitCanExecuteAction,
		FGetActionCheckState InitGetActionCheckStateDelegate, FIsActionButtonVisible InitIsActionVisibleDelegate,
		EUIActionRepeatMode InitRepeatMode = EUIActionRepeatMode::RepeatDisabled);

	/** True if the action may run now. */
	bool CanExecute() const;

	/** Runs the action if it may run; returns whether it did. */
	bool Execute() const;

	/** The check state now. */
	ECheckBoxState GetCheckState() const;

	/** True if the check state is Checked now. */
	bool IsChecked() const { return GetCheckState() == ECheckBoxState::Checked; }

	/** True if the entry is to be shown now. */
	bool IsVisible() const;

	/** True if there is something to execute. */
	bool IsBound() const { return ExecuteAction.IsBound(); }

	/** True if a held key repeats the action. */
	bool CanRepeat() const { return RepeatMode == EUIActionRepeatMode::RepeatEnabled; }
};
