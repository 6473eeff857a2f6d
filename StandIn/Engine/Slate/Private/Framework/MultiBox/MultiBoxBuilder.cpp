// Copyright The Tintmill authors. All rights reserved.

#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Framework/MultiBox/MenuDecorationBlocks.h"
#include "Framework/MultiBox/MenuEntryBlock.h"

FMultiBoxBuilder::FMultiBoxBuilder(const EMultiBoxType InType, const bool bInShouldCloseWindowAfterMenuSelection,
	const TSharedPtr<const FUICommandList>& InCommandList, TSharedPtr<FExtender> InExtender, FName InMenuName)
	: MultiBox(FMultiBox::Create(InType, bInShouldCloseWindowAfterMenuSelection))
	, MenuName(InMenuName)
{
	CommandListStack.Push(InCommandList);
	ExtenderStack.Push(InExtender);
}

TSharedRef<SWidget> FMultiBoxBuilder::MakeWidget()
{
	return MultiBox->MakeWidget();
}

void FMultiBoxBuilder::PopCommandList()
{
	check(CommandListStack.Num() > 1);
	CommandListStack.Pop();
}

TSharedPtr<const FUICommandList> FMultiBoxBuilder::GetTopCommandList() const
{
	return CommandListStack.Last();
}

void FMultiBoxBuilder::PopExtender()
{
	check(ExtenderStack.Num() > 1);
	ExtenderStack.Pop();
}

FMenuBuilder::FMenuBuilder(const bool bInShouldCloseWindowAfterMenuSelection, TSharedPtr<const FUICommandList> InCommandList,
	TSharedPtr<FExtender> InExtender, const bool bInCloseSelfOnly, const ISlateStyle* InStyleSet, bool bInSearchable, FName InMenuName)
	: FMultiBoxBuilder(EMultiBoxType::Menu, bInShouldCloseWindowAfterMenuSelection, InCommandList, InExtender, InMenuName)
	, bCloseSelfOnly(bInCloseSelfOnly)
	, bSearchable(bInSearchable)
	, bSectionNeedsToBeApplied(false)
	, StyleSet(InStyleSet)
{}

void FMenuBuilder::AddMenuEntry(const TSharedPtr<const FUICommandInfo> InCommand, FName InExtensionHook,
	const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride, const FSlateIcon& InIconOverride, FName)
{
	check(InCommand.IsValid());
	FMenuEntryArguments Arguments;
	Arguments.ExtensionHook = InExtensionHook;
	Arguments.Label = InLabelOverride;
	Arguments.ToolTip = InToolTipOverride;
	Arguments.Icon = InIconOverride;
	Arguments.Command = InCommand;
	Arguments.CommandList = GetTopCommandList();
	Arguments.UserInterfaceActionType = InCommand->GetUserInterfaceType();
	AddEntry(Arguments);
}

void FMenuBuilder::AddMenuEntry(const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip, const FSlateIcon& InIcon,
	const FUIAction& UIAction, FName InExtensionHook, const EUserInterfaceActionType UserInterfaceActionType, FName)
{
	FMenuEntryArguments Arguments;
	Arguments.ExtensionHook = InExtensionHook;
	Arguments.Label = InLabel;
	Arguments.ToolTip = InToolTip;
	Arguments.Icon = InIcon;
	Arguments.Action = UIAction;
	Arguments.UserInterfaceActionType = UserInterfaceActionType;
	AddEntry(Arguments);
}

void FMenuBuilder::AddMenuEntry(const FUIAction& UIAction, const TSharedRef<SWidget> Contents, const FName& InExtensionHook,
	const TAttribute<FText>& InToolTip, const EUserInterfaceActionType UserInterfaceActionType, FName)
{
	FMenuEntryArguments Arguments;
	Arguments.ExtensionHook = InExtensionHook;
	Arguments.ToolTip = InToolTip;
	Arguments.Action = UIAction;
	Arguments.Contents = Contents;
	Arguments.UserInterfaceActionType = UserInterfaceActionType;
	AddEntry(Arguments);
}

void FMenuBuilder::AddSubMenu(const TAttribute<FText>& InMenuLabel, const TAttribute<FText>& InToolTip, const FNewMenuDelegate& InSubMenu,
	const bool bInOpenSubMenuOnClick, const FSlateIcon& InIcon, const bool bInShouldCloseWindowAfterMenuSelection, FName InExtensionHook,
	FName)
{
	AddSubMenu(InMenuLabel, InToolTip, InSubMenu, FUIAction(), InExtensionHook, EUserInterfaceActionType::Button, bInOpenSubMenuOnClick,
		InIcon, bInShouldCloseWindowAfterMenuSelection);
}

void FMenuBuilder::AddSubMenu(const TAttribute<FText>& InMenuLabel, const TAttribute<FText>& InToolTip, const FNewMenuDelegate& InSubMenu,
	const FUIAction& InUIAction, FName InExtensionHook, const EUserInterfaceActionType InUserInterfaceActionType,
	const bool bInOpenSubMenuOnClick, const FSlateIcon& InIcon, const bool bInShouldCloseWindowAfterMenuSelection)
{
	FMenuEntryArguments Arguments;
	Arguments.ExtensionHook = InExtensionHook;
	Arguments.Label = InMenuLabel;
	Arguments.ToolTip = InToolTip;
	Arguments.Icon = InIcon;
	Arguments.Action = InUIAction;
	Arguments.UserInterfaceActionType = InUserInterfaceActionType;
	Arguments.bIsSubMenu = true;
	Arguments.bOpenSubMenuOnClick = bInOpenSubMenuOnClick;
	Arguments.bShouldCloseWindowAfterMenuSelection = bInShouldCloseWindowAfterMenuSelection;
	Arguments.FillSubMenu = InSubMenu;
	AddEntry(Arguments);
}

void FMenuBuilder::AddSubMenu(const FUIAction& UIAction, const TSharedRef<SWidget> Contents, const FNewMenuDelegate& InSubMenu,
	const bool bInShouldCloseWindowAfterMenuSelection)
{
	FMenuEntryArguments Arguments;
	Arguments.Action = UIAction;
	Arguments.Contents = Contents;
	Arguments.bIsSubMenu = true;
	Arguments.bShouldCloseWindowAfterMenuSelection = bInShouldCloseWindowAfterMenuSelection;
	Arguments.FillSubMenu = InSubMenu;
	AddEntry(Arguments);
}

void FMenuBuilder::AddWrapperSubMenu(const TAttribute<FText>& InMenuLabel, const TAttribute<FText>& InToolTip,
	const FOnGetContent& InSubMenu, const FSlateIcon& InIcon, const bool bInShouldCloseWindowAfterMenuSelection)
{
	FMenuEntryArguments Arguments;
	Arguments.Label = InMenuLabel;
	Arguments.ToolTip = InToolTip;
	Arguments.Icon = InIcon;
	Arguments.bIsSubMenu = true;
	Arguments.bShouldCloseWindowAfterMenuSelection = bInShouldCloseWindowAfterMenuSelection;
	Arguments.MakeSubMenu = InSubMenu;
	AddEntry(Arguments);
}

void FMenuBuilder::AddEntry(FMenuEntryArguments& Arguments)
{
	// A submenu's entries take their commands from the list in force here.
	if (!Arguments.CommandList.IsValid())
	{
		Arguments.CommandList = GetTopCommandList();
	}
	AddBlock(MakeShared<FMenuEntryBlock>(Arguments, bCloseSelfOnly, ExtenderStack.Last(), StyleSet, MenuName));
}

void FMenuBuilder::AddMenuSeparator(FName InExtensionHook)
{
	AddBlock(MakeShared<FSeparatorBlock>(InExtensionHook));
}

void FMenuBuilder::AddWidget(TSharedRef<SWidget> InWidget, const FText& Label, bool bNoIndent, bool)
{
	AddBlock(MakeShared<FWidgetBlock>(InWidget, Label, bNoIndent));
}

void FMenuBuilder::BeginSection(FName InExtensionHook, const TAttribute<FText>& InHeadingText)
{
	checkf(CurrentSectionExtensionHook.IsNone() && !bSectionNeedsToBeApplied, TEXT("Did you forget to call EndSection()?"));
	ApplyHook(InExtensionHook, EExtensionHook::Before);
	CurrentSectionExtensionHook = InExtensionHook;
	CurrentSectionHeadingText = InHeadingText;
	bSectionNeedsToBeApplied = true;
	ApplyHook(InExtensionHook, EExtensionHook::First);
}

void FMenuBuilder::EndSection()
{
	const FName SectionHook = CurrentSectionExtensionHook;
	CurrentSectionExtensionHook = NAME_None;
	bSectionNeedsToBeApplied = false;
	CurrentSectionHeadingText = TAttribute<FText>();
	ApplyHook(SectionHook, EExtensionHook::After);
}

void FMenuBuilder::AddBlock(const TSharedRef<const FMultiBlock>& InBlock)
{
	ApplySectionBeginning();
	ApplyHook(InBlock->GetExtensionHook(), EExtensionHook::Before);
	MultiBox->AddMultiBlock(InBlock);
	ApplyHook(InBlock->GetExtensionHook(), EExtensionHook::After);
}

void FMenuBuilder::ApplySectionBeginning()
{
	if (!bSectionNeedsToBeApplied)
	{
		return;
	}
	bSectionNeedsToBeApplied = false;
	if (MultiBox->GetBlocks().Num() > 0)
	{
		MultiBox->AddMultiBlock(MakeShared<FSeparatorBlock>(CurrentSectionExtensionHook));
	}
	if (!CurrentSectionHeadingText.Get().IsEmpty())
	{
		MultiBox->AddMultiBlock(MakeShared<FHeadingBlock>(CurrentSectionExtensionHook, CurrentSectionHeadingText));
	}
}

void FMenuBuilder::ApplyHook(FName InExtensionHook, EExtensionHook::Position HookPosition)
{
	const TSharedPtr<FExtender> Extender = ExtenderStack.Last();
	if (!InExtensionHook.IsNone() && Extender.IsValid())
	{
		Extender->Apply(InExtensionHook, HookPosition, *this);
	}
}
