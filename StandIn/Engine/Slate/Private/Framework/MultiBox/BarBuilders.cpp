// Copyright The Tintmill authors. All rights reserved.

#include "Framework/MultiBox/MenuBarHeadBlock.h"
#include "Framework/MultiBox/MenuDecorationBlocks.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Framework/MultiBox/ToolBarBlocks.h"

FMenuBarBuilder::FMenuBarBuilder(
	TSharedPtr<const FUICommandList> InCommandList, TSharedPtr<FExtender> InExtender, const ISlateStyle* InStyleSet, FName InMenuName)
	: FMultiBoxBuilder(EMultiBoxType::MenuBar, true, InCommandList, InExtender, InMenuName)
	, StyleSet(InStyleSet)
{}

void FMenuBarBuilder::AddPullDownMenu(const TAttribute<FText>& InMenuLabel, const TAttribute<FText>& InToolTip,
	const FNewMenuDelegate& InPullDownMenu, FName InExtensionHook, FName)
{
	FMenuEntryArguments Arguments;
	Arguments.ExtensionHook = InExtensionHook;
	Arguments.Label = InMenuLabel;
	Arguments.ToolTip = InToolTip;
	Arguments.FillSubMenu = InPullDownMenu;
	AddHead(Arguments);
}

void FMenuBarBuilder::AddPullDownMenu(const TAttribute<FText>& InMenuLabel, const TAttribute<FText>& InToolTip,
	const FOnGetContent& InMenuContentGenerator, FName InExtensionHook, FName)
{
	FMenuEntryArguments Arguments;
	Arguments.ExtensionHook = InExtensionHook;
	Arguments.Label = InMenuLabel;
	Arguments.ToolTip = InToolTip;
	Arguments.MakeSubMenu = InMenuContentGenerator;
	AddHead(Arguments);
}

void FMenuBarBuilder::AddHead(FMenuEntryArguments& Arguments)
{
	Arguments.bIsSubMenu = true;
	Arguments.CommandList = GetTopCommandList();
	ApplyHook(Arguments.ExtensionHook, EExtensionHook::Before);
	MultiBox->AddMultiBlock(
		MakeShared<FMenuBarHeadBlock>(MakeShared<FMenuEntryBlock>(Arguments, false, ExtenderStack.Last(), StyleSet, MenuName)));
	ApplyHook(Arguments.ExtensionHook, EExtensionHook::After);
}

void FMenuBarBuilder::ApplyHook(FName InExtensionHook, EExtensionHook::Position HookPosition)
{
	const TSharedPtr<FExtender> Extender = ExtenderStack.Last();
	if (!InExtensionHook.IsNone() && Extender.IsValid())
	{
		Extender->Apply(InExtensionHook, HookPosition, *this);
	}
}

FToolBarBuilder::FToolBarBuilder(TSharedPtr<const FUICommandList> InCommandList, FMultiBoxCustomization InCustomization,
	TSharedPtr<FExtender> InExtender, const bool InForceSmallIcons)
	: FMultiBoxBuilder(EMultiBoxType::ToolBar, true, InCommandList, InExtender, InCustomization.GetCustomizationName())
	, StyleSet(&FCoreStyle::Get())
	, LabelVisibility(EVisibility::Visible)
	, bForceSmallIcons(InForceSmallIcons)
	, bIsFocusable(false)
	, bSectionNeedsToBeApplied(false)
{}

void FToolBarBuilder::SetStyle(const ISlateStyle* InStyleSet, const FName&)
{
	check(InStyleSet);
	StyleSet = InStyleSet;
}

void FToolBarBuilder::AddToolBarButton(const TSharedPtr<const FUICommandInfo> InCommand, FName InExtensionHook,
	const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride, const TAttribute<FSlateIcon>& InIconOverride,
	FName InTutorialHighlightName)
{
	check(InCommand.IsValid());
	FMenuEntryArguments Arguments;
	Arguments.ExtensionHook = InExtensionHook;
	Arguments.Label = InLabelOverride;
	Arguments.ToolTip = InToolTipOverride;
	Arguments.Command = InCommand;
	Arguments.UserInterfaceActionType = InCommand->GetUserInterfaceType();
	AddButton(Arguments, InIconOverride, false, false, InTutorialHighlightName);
}

void FToolBarBuilder::AddToolBarButton(const FUIAction& InAction, FName InExtensionHook, const TAttribute<FText>& InLabelOverride,
	const TAttribute<FText>& InToolTipOverride, const TAttribute<FSlateIcon>& InIconOverride,
	const EUserInterfaceActionType UserInterfaceActionType, FName InTutorialHighlightName)
{
	FMenuEntryArguments Arguments;
	Arguments.ExtensionHook = InExtensionHook;
	Arguments.Label = InLabelOverride;
	Arguments.ToolTip = InToolTipOverride;
	Arguments.Action = InAction;
	Arguments.UserInterfaceActionType = UserInterfaceActionType;
	AddButton(Arguments, InIconOverride, false, false, InTutorialHighlightName);
}

void FToolBarBuilder::AddComboButton(const FUIAction& InAction, const FOnGetContent& InMenuContentGenerator,
	const TAttribute<FText>& InLabelOverride, const TAttribute<FText>& InToolTipOverride, const TAttribute<FSlateIcon>& InIconOverride,
	bool bInSimpleComboBox, FName InTutorialHighlightName)
{
	FMenuEntryArguments Arguments;
	Arguments.Label = InLabelOverride;
	Arguments.ToolTip = InToolTipOverride;
	Arguments.Action = InAction;
	Arguments.bIsSubMenu = true;
	Arguments.MakeSubMenu = InMenuContentGenerator;
	AddButton(Arguments, InIconOverride, true, bInSimpleComboBox, InTutorialHighlightName);
}

void FToolBarBuilder::AddButton(
	FMenuEntryArguments& Arguments, const TAttribute<FSlateIcon>& Icon, const bool bCombo, const bool bSimpleCombo, const FName InTag)
{
	if (!Arguments.CommandList.IsValid())
	{
		Arguments.CommandList = GetTopCommandList();
	}
	FToolBarButtonLook Look;
	Look.Icon = Icon;
	Look.StyleSet = StyleSet;
	Look.LabelVisibility = LabelVisibility;
	Look.bSmallIcons = bForceSmallIcons || FMultiBoxSettings::UseSmallToolBarIcons.Get();
	Look.bFocusable = bIsFocusable;
	Look.bCombo = bCombo;
	Look.bSimpleCombo = bSimpleCombo;
	Look.Tag = InTag;
	AddBlock(
		MakeShared<FToolBarButtonBlock>(MakeShared<FMenuEntryBlock>(Arguments, false, ExtenderStack.Last(), StyleSet, MenuName), Look));
}

void FToolBarBuilder::AddToolBarWidget(TSharedRef<SWidget> InWidget, const TAttribute<FText>& InLabel, FName, bool)
{
	AddBlock(MakeShared<FToolBarWidgetBlock>(InWidget, InLabel));
}

void FToolBarBuilder::AddWidget(TSharedRef<SWidget> InWidget, FName, bool)
{
	AddToolBarWidget(InWidget);
}

void FToolBarBuilder::AddSeparator(FName InExtensionHook)
{
	AddBlock(MakeShared<FSeparatorBlock>(InExtensionHook));
}

void FToolBarBuilder::BeginSection(FName InExtensionHook)
{
	checkf(CurrentSectionExtensionHook.IsNone() && !bSectionNeedsToBeApplied, TEXT("Did you forget to call EndSection()?"));
	ApplyHook(InExtensionHook, EExtensionHook::Before);
	CurrentSectionExtensionHook = InExtensionHook;
	bSectionNeedsToBeApplied = true;
	ApplyHook(InExtensionHook, EExtensionHook::First);
}

void FToolBarBuilder::EndSection()
{
	const FName SectionHook = CurrentSectionExtensionHook;
	CurrentSectionExtensionHook = NAME_None;
	bSectionNeedsToBeApplied = false;
	ApplyHook(SectionHook, EExtensionHook::After);
}

void FToolBarBuilder::AddBlock(const TSharedRef<const FMultiBlock>& InBlock)
{
	if (bSectionNeedsToBeApplied)
	{
		bSectionNeedsToBeApplied = false;
		if (MultiBox->GetBlocks().Num() > 0)
		{
			MultiBox->AddMultiBlock(MakeShared<FSeparatorBlock>(CurrentSectionExtensionHook));
		}
	}
	ApplyHook(InBlock->GetExtensionHook(), EExtensionHook::Before);
	MultiBox->AddMultiBlock(InBlock);
	ApplyHook(InBlock->GetExtensionHook(), EExtensionHook::After);
}

void FToolBarBuilder::ApplyHook(FName InExtensionHook, EExtensionHook::Position HookPosition)
{
	const TSharedPtr<FExtender> Extender = ExtenderStack.Last();
	if (!InExtensionHook.IsNone() && Extender.IsValid())
	{
		Extender->Apply(InExtensionHook, HookPosition, *this);
	}
}
