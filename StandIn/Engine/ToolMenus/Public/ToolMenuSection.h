// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "ToolMenuContext.h"
#include "ToolMenuDelegates.h"
#include "ToolMenuEntry.h"
#include "ToolMenuMisc.h"
#include "ToolMenuOwner.h"

class UToolMenuSectionDynamic;

// A section of a tool menu: entries under one heading. References to entries point into an array: adding another entry may
// invalidate them. Nothing can make a ToolMenuSectionDynamic object here, so it stays null.

/** Entries under one heading. */
struct TOOLMENUS_API FToolMenuSection
{
	/** Makes a section without a name. */
	FToolMenuSection();

	/** Adds an entry; one of the same name is overwritten in its place, entries without a name are always appended. */
	FToolMenuEntry& AddEntry(const FToolMenuEntry& Args);

	/** Adds an entry with texts, icon and action. */
	FToolMenuEntry& AddMenuEntry(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip,
		const TAttribute<FSlateIcon>& InIcon, const FToolUIActionChoice& InAction,
		const EUserInterfaceActionType UserInterfaceActionType = EUserInterfaceActionType::Button,
		const FName InTutorialHighlightName = NAME_None);

	/** Adds an entry for a command, named like it unless overridden. */
	FToolMenuEntry& AddMenuEntry(const TSharedPtr<const FUICommandInfo>& InCommand,
		const TAttribute<FText>& InLabelOverride = TAttribute<FText>(), const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(),
		const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(), const FName InTutorialHighlightName = NAME_None,
		const TOptional<FName> InNameOverride = TOptional<FName>());

	/** Adds an entry for a command under a name of its own. */
	FToolMenuEntry& AddMenuEntry(const FName InNameOverride, const TSharedPtr<const FUICommandInfo>& InCommand,
		const TAttribute<FText>& InLabelOverride = TAttribute<FText>(), const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(),
		const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(), const FName InTutorialHighlightName = NAME_None);

	/** Adds an entry for a command whose action comes from a given list. */
	FToolMenuEntry& AddMenuEntryWithCommandList(const TSharedPtr<const FUICommandInfo>& InCommand,
		const TSharedPtr<const FUICommandList>& InCommandList, const TAttribute<FText>& InLabelOverride = TAttribute<FText>(),
		const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(),
		const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(), const FName InTutorialHighlightName = NAME_None,
		const TOptional<FName> InNameOverride = TOptional<FName>());

	/** Adds an entry whose delegate adds entries each time the menu is generated. */
	FToolMenuEntry& AddDynamicEntry(const FName InName, const FNewToolMenuSectionDelegate& InConstruct);

	/** Adds an entry whose delegate adds to the menu builder each time the menu is generated. */
	FToolMenuEntry& AddDynamicEntry(const FName InName, const FNewToolMenuDelegateLegacy& InConstruct);

	/** Adds a separator. */
	FToolMenuEntry& AddSeparator(const FName InName);

	/** Adds an entry that opens a submenu and, when clicked, runs an action. */
	FToolMenuEntry& AddSubMenu(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip,
		const FNewToolMenuChoice& InMakeMenu, const FToolUIActionChoice& InAction, const EUserInterfaceActionType InUserInterfaceActionType,
		bool bInOpenSubMenuOnClick = false, const TAttribute<FSlateIcon>& InIcon = TAttribute<FSlateIcon>(),
		const bool bShouldCloseWindowAfterMenuSelection = true);

	/** Adds an entry that opens a submenu. */
	FToolMenuEntry& AddSubMenu(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip,
		const FNewToolMenuChoice& InMakeMenu, bool bInOpenSubMenuOnClick = false,
		const TAttribute<FSlateIcon>& InIcon = TAttribute<FSlateIcon>(), const bool bShouldCloseWindowAfterMenuSelection = true);

	/** Adds an entry that shows a widget, opens a submenu and, when clicked, runs an action. */
	FToolMenuEntry& AddSubMenu(const FName InName, const FToolUIActionChoice& InAction, const TSharedRef<SWidget>& InWidget,
		const FNewToolMenuChoice& InMakeMenu, bool bShouldCloseWindowAfterMenuSelection = true);

	/** The entry of a name, or null. */
	FToolMenuEntry* FindEntry(const FName InName);

	/** The entry of a name, or null. */
	const FToolMenuEntry* FindEntry(const FName InName) const;

	/** The first context object of a class, or null. */
	template <typename ContextType>
	ContextType* FindContext() const
	{
		return Context.FindContext<ContextType>();
	}

	FName Name;
	FToolMenuOwner Owner;
	TArray<FToolMenuEntry> Blocks;
	FToolMenuInsert InsertPosition;
	FToolMenuContext Context;
	UToolMenuSectionDynamic* ToolMenuSectionDynamic;
	TAttribute<FText> Label;
	FNewSectionConstructChoice Construct;

private:
	friend class UToolMenu;
	friend class UToolMenus;

	/** Index at which an entry is to be inserted, or INDEX_NONE if its target is not there. */
	int32 FindInsertIndex(const FToolMenuEntry& InEntry) const;

	/** True while the menu that the section belongs to is being registered. */
	bool bIsRegistering;

	bool bAddedDuringRegister;
};
