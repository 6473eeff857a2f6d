// Copyright The Tintmill authors. All rights reserved.

#include "Framework/Commands/UICommandList.h"
#include "Input/Events.h"

void FUICommandList::MapAction(
	const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction, EUIActionRepeatMode RepeatMode)
{
	MapAction(InUICommandInfo, ExecuteAction, FCanExecuteAction(), RepeatMode);
}

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
	FCanExecuteAction CanExecuteAction, EUIActionRepeatMode RepeatMode)
{
	MapAction(InUICommandInfo, FUIAction(ExecuteAction, CanExecuteAction, RepeatMode));
}

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
	FCanExecuteAction CanExecuteAction, FIsActionChecked IsCheckedDelegate, EUIActionRepeatMode RepeatMode)
{
	MapAction(InUICommandInfo, FUIAction(ExecuteAction, CanExecuteAction, IsCheckedDelegate, RepeatMode));
}

void FUICommandList::MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, const FUIAction& InUIAction)
{
	check(InUICommandInfo.IsValid());
	for (const FMapping& Mapping : Mappings)
	{
		checkf(Mapping.Command != InUICommandInfo, TEXT("%s is already mapped"), *InUICommandInfo->GetCommandName().ToString());
	}
	FMapping Mapping;
	Mapping.Command = InUICommandInfo;
	Mapping.Action = InUIAction;
	Mappings.Add(Mapping);
}

void FUICommandList::UnmapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo)
{
	Mappings.RemoveAll([&InUICommandInfo](const FMapping& Mapping) { return Mapping.Command == InUICommandInfo; });
}

bool FUICommandList::IsActionMapped(const TSharedPtr<const FUICommandInfo> InUICommandInfo) const
{
	return GetActionForCommand(InUICommandInfo) != nullptr;
}

void FUICommandList::Append(const TSharedRef<FUICommandList>& InCommandsToAppend)
{
	check(&InCommandsToAppend.Get() != this);
	ChildCommandLists.AddUnique(InCommandsToAppend);
}

bool FUICommandList::ExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const
{
	const FUIAction* Action = GetActionForCommand(InUICommandInfo);
	if (!Action)
	{
		return false;
	}
	// A copy, because the action may change the table.
	const FUIAction ActionCopy = *Action;
	return ActionCopy.Execute();
}

bool FUICommandList::CanExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const
{
	const FUIAction* Action = GetActionForCommand(InUICommandInfo);
	return Action && Action->CanExecute();
}

EVisibility FUICommandList::GetVisibility(const TSharedRef<const FUICommandInfo> InUICommandInfo) const
{
	const FUIAction* Action = GetActionForCommand(InUICommandInfo);
	return !Action || Action->IsVisible() ? EVisibility::Visible : EVisibility::Collapsed;
}

ECheckBoxState FUICommandList::GetCheckState(const TSharedRef<const FUICommandInfo> InUICommandInfo) const
{
	const FUIAction* Action = GetActionForCommand(InUICommandInfo);
	return Action ? Action->GetCheckState() : ECheckBoxState::Unchecked;
}

bool FUICommandList::ProcessCommandBindings(const FKeyEvent& InKeyEvent) const
{
	const FInputChord Chord(
		InKeyEvent.GetKey(), InKeyEvent.IsShiftDown(), InKeyEvent.IsControlDown(), InKeyEvent.IsAltDown(), InKeyEvent.IsCommandDown());
	for (const FMapping& Mapping : Mappings)
	{
		if (Mapping.Command->HasActiveChord(Chord) && (!InKeyEvent.IsRepeat() || Mapping.Action.CanRepeat()))
		{
			return ExecuteAction(Mapping.Command.ToSharedRef());
		}
	}
	for (const TWeakPtr<FUICommandList>& Child : ChildCommandLists)
	{
		const TSharedPtr<FUICommandList> Pinned = Child.Pin();
		if (Pinned.IsValid() && Pinned->ProcessCommandBindings(InKeyEvent))
		{
			return true;
		}
	}
	return false;
}

const FUIAction* FUICommandList::GetActionForCommand(TSharedPtr<const FUICommandInfo> Command) const
{
	for (const FMapping& Mapping : Mappings)
	{
		if (Mapping.Command == Command)
		{
			return &Mapping.Action;
		}
	}
	for (const TWeakPtr<FUICommandList>& Child : ChildCommandLists)
	{
		const TSharedPtr<FUICommandList> Pinned = Child.Pin();
		const FUIAction* Action = Pinned.IsValid() ? Pinned->GetActionForCommand(Command) : nullptr;
		if (Action)
		{
			return Action;
		}
	}
	return nullptr;
}
