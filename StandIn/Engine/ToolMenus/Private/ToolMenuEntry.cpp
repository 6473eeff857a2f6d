// Copyright The Tintmill authors. All rights reserved.

#include "ToolMenuEntry.h"
#include "ToolMenus.h"

namespace ToolMenuEntryPrivate
{
FToolMenuEntry MakeEntry(const FName InName, const EMultiBlockType InType)
{
	return FToolMenuEntry(UToolMenus::Get()->CurrentOwner(), InName, InType);
}
}

FToolMenuEntry::FToolMenuEntry()
	: FToolMenuEntry(FToolMenuOwner(), NAME_None, EMultiBlockType::None)
{}

FToolMenuEntry::FToolMenuEntry(const FToolMenuOwner InOwner, const FName InName, EMultiBlockType InType)
	: Name(InName)
	, Owner(InOwner)
	, Type(InType)
	, UserInterfaceActionType(EUserInterfaceActionType::Button)
	, bShouldCloseWindowAfterMenuSelection(true)
	, ScriptObject(nullptr)
	, bAddedDuringRegister(false)
{}

FToolMenuEntry FToolMenuEntry::InitMenuEntry(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip,
	const TAttribute<FSlateIcon>& InIcon, const FToolUIActionChoice& InAction, const EUserInterfaceActionType UserInterfaceActionType,
	const FName InTutorialHighlightName)
{
	FToolMenuEntry Entry = ToolMenuEntryPrivate::MakeEntry(InName, EMultiBlockType::MenuEntry);
	Entry.Label = InLabel;
	Entry.ToolTip = InToolTip;
	Entry.Icon = InIcon;
	Entry.Action = InAction;
	Entry.UserInterfaceActionType = UserInterfaceActionType;
	Entry.TutorialHighlightName = InTutorialHighlightName;
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitMenuEntry(const TSharedPtr<const FUICommandInfo>& InCommand, const TAttribute<FText>& InLabelOverride,
	const TAttribute<FText>& InToolTipOverride, const TAttribute<FSlateIcon>& InIconOverride, const FName InTutorialHighlightName,
	const TOptional<FName> InNameOverride)
{
	check(InCommand.IsValid());
	const FName EntryName = InNameOverride.IsSet() ? InNameOverride.GetValue() : InCommand->GetCommandName();
	FToolMenuEntry Entry = ToolMenuEntryPrivate::MakeEntry(EntryName, EMultiBlockType::MenuEntry);
	Entry.Command = InCommand;
	Entry.UserInterfaceActionType = InCommand->GetUserInterfaceType();
	Entry.Label = InLabelOverride;
	Entry.ToolTip = InToolTipOverride;
	Entry.Icon = InIconOverride;
	Entry.TutorialHighlightName = InTutorialHighlightName;
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitMenuEntry(const FName InNameOverride, const TSharedPtr<const FUICommandInfo>& InCommand,
	const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride, const TAttribute<FSlateIcon>& InIconOverride,
	const FName InTutorialHighlightName)
{
	return InitMenuEntry(
		InCommand, InLabelOverride, InToolTipOverride, InIconOverride, InTutorialHighlightName, TOptional<FName>(InNameOverride));
}

FToolMenuEntry FToolMenuEntry::InitMenuEntry(const FName InName, const FToolUIActionChoice& InAction, const TSharedRef<SWidget>& Widget)
{
	FToolMenuEntry Entry = ToolMenuEntryPrivate::MakeEntry(InName, EMultiBlockType::MenuEntry);
	Entry.Action = InAction;
	Entry.MakeWidget = FNewToolMenuWidget::CreateLambda([Widget](const FToolMenuContext&) { return Widget; });
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitMenuEntryWithCommandList(const TSharedPtr<const FUICommandInfo>& InCommand,
	const TSharedPtr<const FUICommandList>& InCommandList, const TAttribute<FText>& InLabelOverride,
	const TAttribute<FText>& InToolTipOverride, const TAttribute<FSlateIcon>& InIconOverride, const FName InTutorialHighlightName,
	const TOptional<FName> InNameOverride)
{
	FToolMenuEntry Entry =
		InitMenuEntry(InCommand, InLabelOverride, InToolTipOverride, InIconOverride, InTutorialHighlightName, InNameOverride);
	Entry.SetCommandList(InCommandList);
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitSubMenu(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip,
	const FNewToolMenuChoice& InMakeMenu, const FToolUIActionChoice& InAction, const EUserInterfaceActionType InUserInterfaceActionType,
	bool bInOpenSubMenuOnClick, const TAttribute<FSlateIcon>& InIcon, const bool bShouldCloseWindowAfterMenuSelection)
{
	FToolMenuEntry Entry = InitMenuEntry(InName, InLabel, InToolTip, InIcon, InAction, InUserInterfaceActionType);
	Entry.SubMenuData.bIsSubMenu = true;
	Entry.SubMenuData.bOpenSubMenuOnClick = bInOpenSubMenuOnClick;
	Entry.SubMenuData.ConstructMenu = InMakeMenu;
	Entry.bShouldCloseWindowAfterMenuSelection = bShouldCloseWindowAfterMenuSelection;
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitSubMenu(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip,
	const FNewToolMenuChoice& InMakeMenu, bool bInOpenSubMenuOnClick, const TAttribute<FSlateIcon>& InIcon,
	const bool bShouldCloseWindowAfterMenuSelection)
{
	return InitSubMenu(InName, InLabel, InToolTip, InMakeMenu, FToolUIActionChoice(), EUserInterfaceActionType::Button,
		bInOpenSubMenuOnClick, InIcon, bShouldCloseWindowAfterMenuSelection);
}

FToolMenuEntry FToolMenuEntry::InitSubMenu(const FName InName, const FToolUIActionChoice& InAction, const TSharedRef<SWidget>& InWidget,
	const FNewToolMenuChoice& InMakeMenu, bool bShouldCloseWindowAfterMenuSelection)
{
	FToolMenuEntry Entry = InitMenuEntry(InName, InAction, InWidget);
	Entry.SubMenuData.bIsSubMenu = true;
	Entry.SubMenuData.ConstructMenu = InMakeMenu;
	Entry.bShouldCloseWindowAfterMenuSelection = bShouldCloseWindowAfterMenuSelection;
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitDynamicEntry(const FName InName, const FNewToolMenuSectionDelegate& InConstruct)
{
	FToolMenuEntry Entry = ToolMenuEntryPrivate::MakeEntry(InName, EMultiBlockType::None);
	Entry.Construct = InConstruct;
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitDynamicEntry(const FName InName, const FNewToolMenuDelegateLegacy& InConstruct)
{
	FToolMenuEntry Entry = ToolMenuEntryPrivate::MakeEntry(InName, EMultiBlockType::None);
	Entry.ConstructLegacy = InConstruct;
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitToolBarButton(const FName InName, const FToolUIActionChoice& InAction, const TAttribute<FText>& InLabel,
	const TAttribute<FText>& InToolTip, const TAttribute<FSlateIcon>& InIcon, const EUserInterfaceActionType InUserInterfaceActionType,
	FName InTutorialHighlightName)
{
	FToolMenuEntry Entry = InitMenuEntry(InName, InLabel, InToolTip, InIcon, InAction, InUserInterfaceActionType, InTutorialHighlightName);
	Entry.Type = EMultiBlockType::ToolBarButton;
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitComboButton(const FName InName, const FToolUIActionChoice& InAction,
	const FNewToolMenuChoice& InMenuContentGenerator, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip,
	const TAttribute<FSlateIcon>& InIcon, bool bInSimpleComboBox, FName InTutorialHighlightName)
{
	FToolMenuEntry Entry =
		InitMenuEntry(InName, InLabel, InToolTip, InIcon, InAction, EUserInterfaceActionType::Button, InTutorialHighlightName);
	Entry.Type = EMultiBlockType::ToolBarComboButton;
	Entry.ToolBarData.bSimpleComboBox = bInSimpleComboBox;
	Entry.ToolBarData.ComboButtonContextMenuGenerator = InMenuContentGenerator;
	return Entry;
}

FToolMenuEntry FToolMenuEntry::InitSeparator(const FName InName)
{
	return ToolMenuEntryPrivate::MakeEntry(InName, EMultiBlockType::Separator);
}

FToolMenuEntry FToolMenuEntry::InitWidget(
	const FName InName, const TSharedRef<SWidget>& InWidget, const FText& Label, bool bNoIndent, bool bSearchable)
{
	FToolMenuEntry Entry = ToolMenuEntryPrivate::MakeEntry(InName, EMultiBlockType::Widget);
	Entry.Label = Label;
	Entry.MakeWidget = FNewToolMenuWidget::CreateLambda([InWidget](const FToolMenuContext&) { return InWidget; });
	Entry.WidgetData.bNoIndent = bNoIndent;
	Entry.WidgetData.bSearchable = bSearchable;
	return Entry;
}

const FUIAction* FToolMenuEntry::GetActionForCommand(
	const FToolMenuContext& InContext, TSharedPtr<const FUICommandList>& OutCommandList) const
{
	if (!Command.IsValid())
	{
		return nullptr;
	}
	if (CommandList.IsValid())
	{
		OutCommandList = CommandList;
		return CommandList->GetActionForCommand(Command);
	}
	return InContext.GetActionForCommand(Command, OutCommandList);
}
