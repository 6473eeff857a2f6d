// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Layout/Visibility.h"

struct FKeyEvent;

// Maps commands to the actions they run. A missing mapping means: cannot execute.

/** Table of commands and their actions, with appended tables behind it. */
class SLATE_API FUICommandList : public TSharedFromThis<FUICommandList>
{
public:
	virtual ~FUICommandList() {}

	/** Maps a command to an execute delegate; asserts if it is mapped already. */
	virtual void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
		EUIActionRepeatMode RepeatMode = EUIActionRepeatMode::RepeatDisabled);

	/** Maps a command with a can-execute query; asserts if it is mapped already. */
	virtual void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
		FCanExecuteAction CanExecuteAction, EUIActionRepeatMode RepeatMode = EUIActionRepeatMode::RepeatDisabled);

	/** Maps a command with can-execute and checked queries; asserts if it is mapped already. */
	virtual void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, FExecuteAction ExecuteAction,
		FCanExecuteAction CanExecuteAction, FIsActionChecked IsCheckedDelegate,
		EUIActionRepeatMode RepeatMode = EUIActionRepeatMode::RepeatDisabled);

	/** Maps a command to a whole action; asserts if it is mapped already. */
	virtual void MapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo, const FUIAction& InUIAction);

	/** Removes a command's mapping from this table. */
	virtual void UnmapAction(const TSharedPtr<const FUICommandInfo> InUICommandInfo);

	/** True if this table or one behind it maps the command. */
	virtual bool IsActionMapped(const TSharedPtr<const FUICommandInfo> InUICommandInfo) const;

	/** Puts another table behind this one; it is asked for what this one does not map. */
	void Append(const TSharedRef<FUICommandList>& InCommandsToAppend);

	/** Runs a command; false if it is not mapped or may not run. */
	bool ExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const;

	/** Runs a command if it may run; false otherwise. */
	bool TryExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const { return ExecuteAction(InUICommandInfo); }

	/** True if the command is mapped and may run now. */
	bool CanExecuteAction(const TSharedRef<const FUICommandInfo> InUICommandInfo) const;

	/** Visible, or collapsed if the command's action hides itself. */
	EVisibility GetVisibility(const TSharedRef<const FUICommandInfo> InUICommandInfo) const;

	/** The command's check state; Unchecked if it is not mapped. */
	ECheckBoxState GetCheckState(const TSharedRef<const FUICommandInfo> InUICommandInfo) const;

	/** Runs the command whose chord was pressed; false if there is none that may run. */
	bool ProcessCommandBindings(const FKeyEvent& InKeyEvent) const;

	/** The action mapped to a command here or behind, or null. */
	const FUIAction* GetActionForCommand(TSharedPtr<const FUICommandInfo> Command) const;

private:
	struct FMapping
	{
		TSharedPtr<const FUICommandInfo> Command;
		FUIAction Action;
	};

	TArray<FMapping> Mappings;
	TArray<TWeakPtr<FUICommandList>> ChildCommandLists;
};
