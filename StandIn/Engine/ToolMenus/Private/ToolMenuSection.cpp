// Copyright The Tintmill authors. All rights reserved.

#include "ToolMenuSection.h"

FToolMenuSection::FToolMenuSection()
	: ToolMenuSectionDynamic(nullptr)
	, bIsRegistering(false)
	, bAddedDuringRegister(false)
{}

FToolMenuEntry& FToolMenuSection::AddEntry(const FToolMenuEntry& Args)
{
	int32 Index = Args.Name.IsNone() ? INDEX_NONE
									 : Blocks.IndexOfByPredicate([&Args](const FToolMenuEntry& Entry) { return Entry.Name == Args.Name; });
	if (Index == INDEX_NONE)
	{
		Index = Blocks.Add(Args);
	}
	else
	{
		Blocks[Index] = Args;
	}
	Blocks[Index].bAddedDuringRegister = bIsRegistering;
	return Blocks[Index];
}

FToolMenuEntry& FToolMenuSection::AddMenuEntry(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip,
	const TAttribute<FSlateIcon>& InIcon, const FToolUIActionChoice& InAction, const EUserInterfaceActionType UserInterfaceActionType,
	const FName InTutorialHighlightName)
{
	return AddEntry(
		FToolMenuEntry::InitMenuEntry(InName, InLabel, InToolTip, InIcon, InAction, UserInterfaceActionType, InTutorialHighlightName));
}

FToolMenuEntry& FToolMenuSection::AddMenuEntry(const TSharedPtr<const FUICommandInfo>& InCommand, const TAttribute<FText>& InLabelOverride,
	const TAttribute<FText>& InToolTipOverride, const TAttribute<FSlateIcon>& InIconOverride, const FName InTutorialHighlightName,
	const TOptional<FName> InNameOverride)
{
	return AddEntry(FToolMenuEntry::InitMenuEntry(
		InCommand, InLabelOverride, InToolTipOverride, InIconOverride, InTutorialHighlightName, InNameOverride));
}

FToolMenuEntry& FToolMenuSection::AddMenuEntry(const FName InNameOverride, const TSharedPtr<const FUICommandInfo>& InCommand,
	const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride, const TAttribute<FSlateIcon>& InIconOverride,
	const FName InTutorialHighlightName)
{
	return AddEntry(FToolMenuEntry::InitMenuEntry(
		InNameOverride, InCommand, InLabelOverride, InToolTipOverride, InIconOverride, InTutorialHighlightName));
}

FToolMenuEntry& FToolMenuSection::AddMenuEntryWithCommandList(const TSharedPtr<const FUICommandInfo>& InCommand,
	const TSharedPtr<const FUICommandList>& InCommandList, const TAttribute<FText>& InLabelOverride,
	const TAttribute<FText>& InToolTipOverride, const TAttribute<FSlateIcon>& InIconOverride, const FName InTutorialHighlightName,
	const TOptional<FName> InNameOverride)
{
	return AddEntry(FToolMenuEntry::InitMenuEntryWithCommandList(
		InCommand, InCommandList, InLabelOverride, InToolTipOverride, InIconOverride, InTutorialHighlightName, InNameOverride));
}

FToolMenuEntry& FToolMenuSection::AddDynamicEntry(const FName InName, const FNewToolMenuSectionDelegate& InConstruct)
{
	return AddEntry(FToolMenuEntry::InitDynamicEntry(InName, InConstruct));
}

FToolMenuEntry& FToolMenuSection::AddDynamicEntry(const FName InName, const FNewToolMenuDelegateLegacy& InConstruct)
{
	return AddEntry(FToolMenuEntry::InitDynamicEntry(InName, InConstruct));
}

FToolMenuEntry& FToolMenuSection::AddSeparator(const FName InName)
{
	return AddEntry(FToolMenuEntry::InitSeparator(InName));
}

FToolMenuEntry& FToolMenuSection::AddSubMenu(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip,
	const FNewToolMenuChoice& InMakeMenu, const FToolUIActionChoice& InAction, const EUserInterfaceActionType InUserInterfaceActionType,
	bool bInOpenSubMenuOnClick, const TAttribute<FSlateIcon>& InIcon, const bool bShouldCloseWindowAfterMenuSelection)
{
	return AddEntry(FToolMenuEntry::InitSubMenu(InName, InLabel, InToolTip, InMakeMenu, InAction, InUserInterfaceActionType,
		bInOpenSubMenuOnClick, InIcon, bShouldCloseWindowAfterMenuSelection));
}

FToolMenuEntry& FToolMenuSection::AddSubMenu(const FName InName, const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip,
	const FNewToolMenuChoice& InMakeMenu, bool bInOpenSubMenuOnClick, const TAttribute<FSlateIcon>& InIcon,
	const bool bShouldCloseWindowAfterMenuSelection)
{
	return AddEntry(FToolMenuEntry::InitSubMenu(
		InName, InLabel, InToolTip, InMakeMenu, bInOpenSubMenuOnClick, InIcon, bShouldCloseWindowAfterMenuSelection));
}

FToolMenuEntry& FToolMenuSection::AddSubMenu(const FName InName, const FToolUIActionChoice& InAction, const TSharedRef<SWidget>& InWidget,
	const FNewToolMenuChoice& InMakeMenu, bool bShouldCloseWindowAfterMenuSelection)
{
	return AddEntry(FToolMenuEntry::InitSubMenu(InName, InAction, InWidget, InMakeMenu, bShouldCloseWindowAfterMenuSelection));
}

FToolMenuEntry* FToolMenuSection::FindEntry(const FName InName)
{
	return Blocks.FindByPredicate([InName](const FToolMenuEntry& Entry) { return Entry.Name == InName; });
}

const FToolMenuEntry* FToolMenuSection::FindEntry(const FName InName) const
{
	return Blocks.FindByPredicate([InName](const FToolMenuEntry& Entry) { return Entry.Name == InName; });
}

int32 FToolMenuSection::FindInsertIndex(const FToolMenuEntry& InEntry) const
{
	if (InEntry.InsertPosition.IsDefault())
	{
		return Blocks.Num();
	}
	int32 Index = 0;
	if (InEntry.InsertPosition.IsBeforeOrAfter())
	{
		const FName Target = InEntry.InsertPosition.Name;
		Index = Blocks.IndexOfByPredicate([Target](const FToolMenuEntry& Entry) { return Entry.Name == Target; });
		if (Index == INDEX_NONE)
		{
			return INDEX_NONE;
		}
		Index += InEntry.InsertPosition.Position == EToolMenuInsertType::After ? 1 : 0;
	}
	// Entries for one and the same position keep the order in which they were added.
	while (Index < Blocks.Num() && Blocks[Index].InsertPosition == InEntry.InsertPosition)
	{
		++Index;
	}
	return Index;
}
