// Copyright The Tintmill authors. All rights reserved.

#include "Host/Frame/FrameCommands.h"

#define LOCTEXT_NAMESPACE "TintmillHost"

namespace TintmillHost
{
FFrameCommands::FFrameCommands()
	: Context(MakeShared<FBindingContext>(
		TEXT("TintmillHost"), LOCTEXT("Commands", "Commands of the editor's window"), NAME_None, TEXT("TintmillHostStyle")))
{
	Add(ToggleLook, TEXT("ToggleLook"), LOCTEXT("ToggleLook", "Toggle Look of Active Viewport"),
		LOCTEXT("ToggleLook_ToolTip", "Clicks 'Enable Display' in the View menu of the active viewport"),
		FInputChord(EModifierKey::Alt, EKeys::L));
	Add(OpenViewMenu, TEXT("OpenViewMenu"), LOCTEXT("OpenViewMenu", "View Menu of Active Viewport"),
		LOCTEXT("OpenViewMenu_ToolTip", "Opens the View menu of the active viewport; the arrow keys go through it"),
		FInputChord(EModifierKey::Alt, EKeys::V));
	Add(NextPane, TEXT("NextPane"), LOCTEXT("NextPane", "Next Viewport"),
		LOCTEXT("NextPane_ToolTip", "Makes the next viewport the active one"), FInputChord(EKeys::F6));
	Add(PreviousPane, TEXT("PreviousPane"), LOCTEXT("PreviousPane", "Previous Viewport"),
		LOCTEXT("PreviousPane_ToolTip", "Makes the previous viewport the active one"), FInputChord(EModifierKey::Shift, EKeys::F6));
	Add(Maximize, TEXT("Maximize"), LOCTEXT("Maximize", "Maximize or Restore Viewport"),
		LOCTEXT("Maximize_ToolTip", "Lets the active viewport fill its tab, or shows all viewports of the tab again"),
		FInputChord(EModifierKey::Alt, EKeys::M));
	Add(Play, TEXT("RepeatLastPlay"), LOCTEXT("Play", "Play"), LOCTEXT("Play_ToolTip", "Plays in the mode that was last used"),
		FInputChord(EModifierKey::Alt, EKeys::P));
	Add(Simulate, TEXT("Simulate"), LOCTEXT("Simulate", "Simulate"), LOCTEXT("Simulate_ToolTip", "Simulates in the active viewport"),
		FInputChord(EModifierKey::Alt, EKeys::S), EUserInterfaceActionType::RadioButton);
	Add(Stop, TEXT("StopPlaySession"), LOCTEXT("Stop", "Stop"), LOCTEXT("Stop_ToolTip", "Stops playing or simulating"),
		FInputChord(EKeys::Escape));
	Add(PlayInPane, TEXT("PlayInViewport"), LOCTEXT("PlayInViewport", "Selected Viewport"),
		LOCTEXT("PlayInViewport_ToolTip", "Plays in the active viewport"), FInputChord(), EUserInterfaceActionType::RadioButton);
	Add(PlayInWindow, TEXT("PlayInEditorFloating"), LOCTEXT("PlayInEditorFloating", "New Editor Window (PIE)"),
		LOCTEXT("PlayInEditorFloating_ToolTip", "Plays in a new window"), FInputChord(), EUserInterfaceActionType::RadioButton);
	Add(NewLevel, TEXT("NewLevel"), LOCTEXT("NewLevel", "New Level"), LOCTEXT("NewLevel_ToolTip", "Opens an empty level"),
		FInputChord(EModifierKey::Control, EKeys::N));
	Add(OpenLevel, TEXT("OpenLevel"), LOCTEXT("OpenLevel", "Open Level"), LOCTEXT("OpenLevel_ToolTip", "Shows the levels of the project"),
		FInputChord(EModifierKey::Control, EKeys::O));
	Add(ContentBrowser, TEXT("OpenContentBrowser"), LOCTEXT("ContentBrowser", "Content Browser"),
		LOCTEXT("ContentBrowser_ToolTip", "Goes to the content browser"),
		FInputChord(EModifierKey::FromBools(true, false, true, false), EKeys::F));
	Add(OutputLog, TEXT("OpenOutputLog"), LOCTEXT("OutputLog", "Output Log"), LOCTEXT("OutputLog_ToolTip", "Goes to the output log"),
		FInputChord(EModifierKey::FromBools(true, false, true, false), EKeys::L));
	Add(Shortcuts, TEXT("KeyboardShortcuts"), LOCTEXT("Shortcuts", "Keyboard Shortcuts"),
		LOCTEXT("Shortcuts_ToolTip", "Lists the keys of the editor's window"), FInputChord(EKeys::F1));
	Add(Exit, TEXT("Exit"), LOCTEXT("Exit", "Exit"), LOCTEXT("Exit_ToolTip", "Saves the settings and closes the editor"));
}

void FFrameCommands::Add(TSharedPtr<FUICommandInfo>& Command, const TCHAR* Name, const FText& Label, const FText& Description,
	const FInputChord& Chord, EUserInterfaceActionType Type)
{
	FUICommandInfo::MakeCommandInfo(Context, Command, Name, Label, Description, FSlateIcon(), Type, Chord);
	if (Chord.IsValidChord())
	{
		WithKeys.push_back(Command);
	}
}
}

#undef LOCTEXT_NAMESPACE
