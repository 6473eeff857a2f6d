// Copyright The Tintmill authors. All rights reserved.

#include "Framework/MultiBox/MenuEntryBlock.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Framework/MultiBox/SMenuEntryRow.h"
#include "Widgets/SNullWidget.h"

FMenuEntryBlock::FMenuEntryBlock(const FMenuEntryArguments& InArguments, const bool bInCloseSelfOnly,
	const TSharedPtr<FExtender>& InExtender, const ISlateStyle* InStyleSet, const FName InMenuName)
	: FMultiBlock(EMultiBlockType::MenuEntry, InArguments.ExtensionHook)
	, Arguments(InArguments)
	, bCloseSelfOnly(bInCloseSelfOnly)
	, Extender(InExtender)
	, StyleSet(InStyleSet)
	, MenuName(InMenuName)
{}

TSharedRef<SWidget> FMenuEntryBlock::MakeWidget(const TSharedRef<SMultiBoxWidget>& InOwnerMultiBoxWidget) const
{
	return SNew(SMenuEntryRow, StaticCastSharedRef<const FMenuEntryBlock>(AsShared()), InOwnerMultiBoxWidget);
}

TSharedRef<SWidget> FMenuEntryBlock::MakeSubMenuWidget() const
{
	if (Arguments.MakeSubMenu.IsBound())
	{
		return Arguments.MakeSubMenu.Execute();
	}
	FMenuBuilder MenuBuilder(
		Arguments.bShouldCloseWindowAfterMenuSelection, Arguments.CommandList, Extender, bCloseSelfOnly, StyleSet, true, MenuName);
	Arguments.FillSubMenu.ExecuteIfBound(MenuBuilder);
	return MenuBuilder.MakeWidget();
}

FUIAction FMenuEntryBlock::GetAction() const
{
	if (!Arguments.Command.IsValid())
	{
		return Arguments.Action;
	}
	const FUIAction* Mapped = Arguments.CommandList.IsValid() ? Arguments.CommandList->GetActionForCommand(Arguments.Command) : nullptr;
	if (Mapped)
	{
		return *Mapped;
	}
	// A command that nothing maps cannot be executed.
	return FUIAction(FExecuteAction(), FCanExecuteAction::CreateLambda([]() { return false; }));
}

FText FMenuEntryBlock::GetLabel() const
{
	return Arguments.Label.IsSet() || !Arguments.Command.IsValid() ? Arguments.Label.Get() : Arguments.Command->GetLabel();
}

FText FMenuEntryBlock::GetToolTip() const
{
	return Arguments.ToolTip.IsSet() || !Arguments.Command.IsValid() ? Arguments.ToolTip.Get() : Arguments.Command->GetDescription();
}

FText FMenuEntryBlock::GetInputText() const
{
	return Arguments.Command.IsValid() ? Arguments.Command->GetInputText() : FText::GetEmpty();
}

FSlateIcon FMenuEntryBlock::GetIcon() const
{
	return Arguments.Icon.IsSet() || !Arguments.Command.IsValid() ? Arguments.Icon : Arguments.Command->GetIcon();
}
