// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxDefs.h"
#include "Framework/SlateDelegates.h"
#include "Textures/SlateIcon.h"

class SWidget;

// Full description of a menu entry, as the menu builder and the tool menus hand it on. Plug-ins have no use for it.

/** Everything that a menu entry can be described with. */
struct FMenuEntryArguments
{
	FMenuEntryArguments()
		: UserInterfaceActionType(EUserInterfaceActionType::Button)
		, bIsSubMenu(false)
		, bOpenSubMenuOnClick(false)
		, bShouldCloseWindowAfterMenuSelection(true)
	{}

	/** Name that extenders know the entry by. */
	FName ExtensionHook;

	/** Label; for a command the override. */
	TAttribute<FText> Label;

	/** Tool tip; for a command the override. */
	TAttribute<FText> ToolTip;

	/** Icon; for a command the override. */
	FSlateIcon Icon;

	/** Action of an entry without command. */
	FUIAction Action;

	/** Command, or null. */
	TSharedPtr<const FUICommandInfo> Command;

	/** List that maps the command; may be null. */
	TSharedPtr<const FUICommandList> CommandList;

	/** Kind of the entry. */
	EUserInterfaceActionType UserInterfaceActionType;

	/** Widget shown in place of icon and label, or null. */
	TSharedPtr<SWidget> Contents;

	/** True if the entry opens a submenu. */
	bool bIsSubMenu;

	/** True if only a click opens it. */
	bool bOpenSubMenuOnClick;

	/** Whether choosing the entry, or one in its submenu, closes the menu. */
	bool bShouldCloseWindowAfterMenuSelection;

	/** Fills the submenu at each opening. */
	FNewMenuDelegate FillSubMenu;

	/** Makes the submenu's widget at each opening, in place of filling one. */
	FOnGetContent MakeSubMenu;
};
