// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Framework/MultiBox/MultiBoxDefs.h"
#include "Misc/Attribute.h"
#include "Misc/Optional.h"
#include "Textures/SlateIcon.h"
#include "ToolMenuDelegates.h"
#include "ToolMenuMisc.h"
#include "ToolMenuOwner.h"
#include "Widgets/SWidget.h"

class UToolMenuEntryScript;

// One entry of a tool menu. Entries are described by value and copied into generated menus. Nothing can make a script object
// here, so ScriptObject stays null.

/** What an entry that opens a submenu needs. */
struct TOOLMENUS_API FToolMenuEntrySubMenuData
{
	FToolMenuEntrySubMenuData()
		: bIsSubMenu(false)
		, bOpenSubMenuOnClick(false)
	{}

	/** True if the entry opens a submenu. */
	bool bIsSubMenu;

	/** True if only a click opens it. */
	bool bOpenSubMenuOnClick;

	/** What makes the submenu. */
	FNewToolMenuChoice ConstructMenu;
};

/** What an entry of a tool bar needs. */
struct TOOLMENUS_API FToolMenuEntryToolBarData
{
	FToolMenuEntryToolBarData()
		: bSimpleComboBox(false)
		, bIsFocusable(false)
		, bForceSmallIcons(false)
	{}

	/** True if the combo button is drawn as an arrow only. */
	bool bSimpleComboBox;

	/** True if the button takes the keyboard focus. */
	bool bIsFocusable;

	/** True if the button shows its small icon. */
	bool bForceSmallIcons;

	/** What makes the combo button's menu. */
	FNewToolMenuChoice ComboButtonContextMenuGenerator;
};

/** What an entry that is a widget needs. */
struct TOOLMENUS_API FToolMenuEntryWidgetData
{
	FToolMenuEntryWidgetData()
		: bNoIndent(false)
		, bSearchable(false)
	{}

	/** True if the widget begins at the left edge of the menu. */
	bool bNoIndent;

	/** True if the menu's search looks into the entry. */
	bool bSearchable;
};

/** One entry of a tool menu. */
struct TOOLMENUS_API FToolMenuEntry
{
	/** Makes an entry of no type. */
	FToolMenuEntry();

	/** Makes an entry of a type for an owner. */
	FToolMenuEntry(const FToolMenuOwner InOwner, const FName InName, EMultiBlockType InType);

	/** Describes an entry with texts, icon and action. */
	static FToolMenuEntry InitMenuEntry(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip,
		const TAttribute<FSlateIcon>& InIcon, const FToolUIActionChoice& InAction,
		const EUserInterfaceActionType UserInterfaceActionType = EUserInterfaceActionType::Button,
		const FName InTutorialHighlightName = NAME_None);

	/** Describes an entry for a command, named like it unless overridden. */
	static FToolMenuEntry InitMenuEntry(const TSharedPtr<const FUICommandInfo>& InCommand,
		const TAttribute<FText>& InLabelOverride = TAttribute<FText>(), const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(),
		const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(), const FName InTutorialHighlightName = NAME_None,
		const TOptional<FName> InNameOverride = TOptional<FName>());

	/** Describes an entry for a command under a name of its own. */
	static FToolMenuEntry InitMenuEntry(const FName InNameOverride, const TSharedPtr<const FUICommandInfo>& InCommand,
		const TAttribute<FText>& InLabelOverride = TAttribute<FText>(), const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(),
		const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(), const FName InTutorialHighlightName = NAME_None);

	/** Describes an entry that shows a widget and runs an action. */
	static FToolMenuEntry InitMenuEntry(const FName InName, const FToolUIActionChoice& InAction, const TSharedRef<SWidget>& Widget);

	/** Describes an entry for a command whose action comes from a given list. */
	static FToolMenuEntry InitMenuEntryWithCommandList(const TSharedPtr<const FUICommandInfo>& InCommand,
		const TSharedPtr<const FUICommandList>& InCommandList, const TAttribute<FText>& InLabelOverride = TAttribute<FText>(),
		const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(),
		const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(), const FName InTutorialHighlightName = NAME_None,
		const TOptional<FName> InNameOverride = TOptional<FName>());

	/** Describes an entry that opens a submenu and, when clicked, runs an action. */
	static FToolMenuEntry InitSubMenu(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip,
		const FNewToolMenuChoice& InMakeMenu, const FToolUIActionChoice& InAction, const EUserInterfaceActionType InUserInterfaceActionType,
		bool bInOpenSubMenuOnClick = false, const TAttribute<FSlateIcon>& InIcon = TAttribute<FSlateIcon>(),
		const bool bShouldCloseWindowAfterMenuSelection = true);

	/** Describes an entry that opens a submenu. */
	static FToolMenuEntry InitSubMenu(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip,
		const FNewToolMenuChoice& InMakeMenu, bool bInOpenSubMenuOnClick = false,
		const TAttribute<FSlateIcon>& InIcon = TAttribute<FSlateIcon>(), const bool bShouldCloseWindowAfterMenuSelection = true);

	/** Describes an entry that shows a widget, opens a submenu and, when clicked, runs an action. */
	static FToolMenuEntry InitSubMenu(const FName InName, const FToolUIActionChoice& InAction, const TSharedRef<SWidget>& InWidget,
		const FNewToolMenuChoice& InMakeMenu, bool bShouldCloseWindowAfterMenuSelection = true);

	/** Describes an entry that is generated anew with every menu. */
	static FToolMenuEntry InitDynamicEntry(const FName InName, const FNewToolMenuSectionDelegate& InConstruct);

	/** Describes an entry that adds to a menu builder with every menu. */
	static FToolMenuEntry InitDynamicEntry(const FName InName, const FNewToolMenuDelegateLegacy& InConstruct);

	/** Describes a button of a tool bar. */
	static FToolMenuEntry InitToolBarButton(const FName InName, const FToolUIActionChoice& InAction,
		const TAttribute<FText>& InLabel = TAttribute<FText>(), const TAttribute<FText>& InToolTip = TAttribute<FText>(),
		const TAttribute<FSlateIcon>& InIcon = TAttribute<FSlateIcon>(),
		const EUserInterfaceActionType InUserInterfaceActionType = EUserInterfaceActionType::Button,
		FName InTutorialHighlightName = NAME_None);

	/** Describes a button of a tool bar that opens a menu. */
	static FToolMenuEntry InitComboButton(const FName InName, const FToolUIActionChoice& InAction,
		const FNewToolMenuChoice& InMenuContentGenerator, const TAttribute<FText>& InLabel = TAttribute<FText>(),
		const TAttribute<FText>& InToolTip = TAttribute<FText>(), const TAttribute<FSlateIcon>& InIcon = TAttribute<FSlateIcon>(),
		bool bInSimpleComboBox = false, FName InTutorialHighlightName = NAME_None);

	/** Describes a separator. */
	static FToolMenuEntry InitSeparator(const FName InName);

	/** Describes an entry that is a widget; the widget can be in one menu at a time. */
	static FToolMenuEntry InitWidget(
		const FName InName, const TSharedRef<SWidget>& InWidget, const FText& Label, bool bNoIndent = false, bool bSearchable = true);

	/** True if the entry opens a submenu. */
	bool IsSubMenu() const { return SubMenuData.bIsSubMenu; }

	/** Gives the entry the list that its command's action comes from. */
	void SetCommandList(const TSharedPtr<const FUICommandList>& InCommandList) { CommandList = InCommandList; }

	/** The command's action in the entry's list or the context's, or null; OutCommandList is that list. */
	const FUIAction* GetActionForCommand(const FToolMenuContext& InContext, TSharedPtr<const FUICommandList>& OutCommandList) const;

	FName Name;
	FToolMenuOwner Owner;
	EMultiBlockType Type;
	EUserInterfaceActionType UserInterfaceActionType;
	FName TutorialHighlightName;
	FToolMenuInsert InsertPosition;
	bool bShouldCloseWindowAfterMenuSelection;
	UToolMenuEntryScript* ScriptObject;
	TAttribute<FText> Label;
	TAttribute<FText> ToolTip;
	TAttribute<FSlateIcon> Icon;
	FToolMenuEntrySubMenuData SubMenuData;
	FToolMenuEntryToolBarData ToolBarData;
	FToolMenuEntryWidgetData WidgetData;
	FNewToolMenuWidget MakeWidget;

private:
	friend struct FToolMenuSection;
	friend class UToolMenus;

	bool bAddedDuringRegister;
	TSharedPtr<const FUICommandInfo> Command;
	TSharedPtr<const FUICommandList> CommandList;
	FToolUIActionChoice Action;
	FNewToolMenuSectionDelegate Construct;
	FNewToolMenuDelegateLegacy ConstructLegacy;
};
