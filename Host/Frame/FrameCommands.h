// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UICommandInfo.h"

#include <vector>

// What the window's menus and keys do, as commands with their texts and keys. Keys that the editor has for the same are the
// editor's; the others are ours and free there.

namespace TintmillHost
{
/** The commands of the window. */
class FFrameCommands
{
public:
	FFrameCommands();

	TSharedPtr<FUICommandInfo> NewLevel;
	TSharedPtr<FUICommandInfo> OpenLevel;
	TSharedPtr<FUICommandInfo> Exit;

	/** Play as last time; in the pane; in a window; simulate; stop. */
	TSharedPtr<FUICommandInfo> Play;
	TSharedPtr<FUICommandInfo> PlayInPane;
	TSharedPtr<FUICommandInfo> PlayInWindow;
	TSharedPtr<FUICommandInfo> Simulate;
	TSharedPtr<FUICommandInfo> Stop;

	/** Of the active pane. */
	TSharedPtr<FUICommandInfo> ToggleLook;
	TSharedPtr<FUICommandInfo> OpenViewMenu;
	TSharedPtr<FUICommandInfo> Maximize;
	TSharedPtr<FUICommandInfo> NextPane;
	TSharedPtr<FUICommandInfo> PreviousPane;

	/** Show a panel, or go there. */
	TSharedPtr<FUICommandInfo> ContentBrowser;
	TSharedPtr<FUICommandInfo> OutputLog;

	TSharedPtr<FUICommandInfo> Shortcuts;

	/** All that have a key, in the order in which a person looks for them. */
	const std::vector<TSharedPtr<FUICommandInfo>>& GetWithKeys() const { return WithKeys; }

private:
	void Add(TSharedPtr<FUICommandInfo>& Command, const TCHAR* Name, const FText& Label, const FText& Description,
		const FInputChord& Chord = FInputChord(), EUserInterfaceActionType Type = EUserInterfaceActionType::Button);

	TSharedRef<FBindingContext> Context;
	std::vector<TSharedPtr<FUICommandInfo>> WithKeys;
};
}
