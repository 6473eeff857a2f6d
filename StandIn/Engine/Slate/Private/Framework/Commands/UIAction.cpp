// Copyright The Tintmill authors. All rights reserved.

#include "Framework/Commands/UIAction.h"
#include "Framework/Application/SlateApplication.h"

namespace UIActionPrivate
{
bool IsSlateInNormalExecution()
{
	return FSlateApplication::Get().IsNormalExecution();
}

FGetActionCheckState CheckStateOf(const FIsActionChecked& IsChecked)
{
	if (!IsChecked.IsBound())
	{
		return FGetActionCheckState();
	}
	return FGetActionCheckState::CreateLambda([IsChecked]() {
		const bool bChecked = IsChecked.IsBound() && IsChecked.Execute();
		return bChecked ? ECheckBoxState::Checked : ECheckBoxState::Unchecked;
	});
}
}

FUIAction::FUIAction()
	: RepeatMode(EUIActionRepeatMode::RepeatDisabled)
{}

FUIAction::FUIAction(FExecuteAction InitExecuteAction, EUIActionRepeatMode InitRepeatMode)
	: ExecuteAction(InitExecuteAction)
	, RepeatMode(InitRepeatMode)
{
	// The getter asserts when there is no Slate application.
	FSlateApplication::Get();
	CanExecuteAction = FCanExecuteAction::CreateStatic(&UIActionPrivate::IsSlateInNormalExecution);
}

FUIAction::FUIAction(FExecuteAction InitExecuteAction, FCanExecuteAction InitCanExecuteAction, EUIActionRepeatMode InitRepeatMode)
	: ExecuteAction(InitExecuteAction)
	, CanExecuteAction(InitCanExecuteAction)
	, RepeatMode(InitRepeatMode)
{}

FUIAction::FUIAction(FExecuteAction InitExecuteAction, FCanExecuteAction InitCanExecuteAction, FIsActionChecked InitIsCheckedDelegate,
	EUIActionRepeatMode InitRepeatMode)
	: FUIAction(InitExecuteAction, InitCanExecuteAction, UIActionPrivate::CheckStateOf(InitIsCheckedDelegate), InitRepeatMode)
{}

FUIAction::FUIAction(FExecuteAction InitExecuteAction, FCanExecuteAction InitCanExecuteAction,
	FGetActionCheckState InitGetActionCheckStateDelegate, EUIActionRepeatMode InitRepeatMode)
	: FUIAction(InitExecuteAction, InitCanExecuteAction, InitGetActionCheckStateDelegate, FIsActionButtonVisible(), InitRepeatMode)
{}

FUIAction::FUIAction(FExecuteAction InitExecuteAction, FCanExecuteAction InitCanExecuteAction, FIsActionChecked InitIsCheckedDelegate,
	FIsActionButtonVisible InitIsActionVisibleDelegate, EUIActionRepeatMode InitRepeatMode)
	: FUIAction(InitExecuteAction, InitCanExecuteAction, UIActionPrivate::CheckStateOf(InitIsCheckedDelegate), InitIsActionVisibleDelegate,
		InitRepeatMode)
{}

FUIAction::FUIAction(FExecuteAction InitExecuteAction, FCanExecuteAction InitCanExecuteAction,
	FGetActionCheckState InitGetActionCheckStateDelegate, FIsActionButtonVisible InitIsActionVisibleDelegate,
	EUIActionRepeatMode InitRepeatMode)
	: ExecuteAction(InitExecuteAction)
	, CanExecuteAction(InitCanExecuteAction)
	, GetActionCheckState(InitGetActionCheckStateDelegate)
	, IsActionVisibleDelegate(InitIsActionVisibleDelegate)
	, RepeatMode(InitRepeatMode)
{}

bool FUIAction::CanExecute() const
{
	return !CanExecuteAction.IsBound() || CanExecuteAction.Execute();
}

bool FUIAction::Execute() const
{
	return CanExecute() && ExecuteAction.ExecuteIfBound();
}

ECheckBoxState FUIAction::GetCheckState() const
{
	return GetActionCheckState.IsBound() ? GetActionCheckState.Execute() : ECheckBoxState::Unchecked;
}

bool FUIAction::IsVisible() const
{
	return !IsActionVisibleDelegate.IsBound() || IsActionVisibleDelegate.Execute();
}
