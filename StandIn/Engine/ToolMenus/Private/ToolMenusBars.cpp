// Copyright The Tintmill authors. All rights reserved.

#include "Framework/MultiBox/MultiBox.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "StandIn/FatalHandler.h"
#include "StandIn/MenuEntryArguments.h"
#include "ToolMenuActions.h"
#include "ToolMenus.h"
#include "Widgets/SNullWidget.h"

TSharedRef<FMultiBox> UToolMenus::MakeMenuBar(UToolMenu* GeneratedMenu, const ISlateStyle& Style)
{
	FMenuBarBuilder MenuBarBuilder(
		TSharedPtr<const FUICommandList>(), GeneratedMenu->Context.GetAllExtenders(), &Style, GeneratedMenu->MenuName);
	for (const FToolMenuSection& Section : GeneratedMenu->Sections)
	{
		for (const FToolMenuEntry& Block : Section.Blocks)
		{
			if (Block.Type != EMultiBlockType::MenuEntry)
			{
				STANDIN_MISSING(TEXT("A tool menu entry in a menu bar that is no menu entry"));
			}
			MenuBarBuilder.AddPullDownMenu(Block.Label, Block.ToolTip,
				FNewMenuDelegate::CreateUObject(this, &UToolMenus::PopulateSubMenu, TWeakObjectPtr<UToolMenu>(GeneratedMenu), Block.Name),
				Block.Name, Block.TutorialHighlightName);
		}
	}
	return MenuBarBuilder.GetMultiBox();
}

TSharedRef<FMultiBox> UToolMenus::MakeToolBar(UToolMenu* GeneratedMenu, const ISlateStyle& Style)
{
	FToolBarBuilder ToolBarBuilder(TSharedPtr<const FUICommandList>(), FMultiBoxCustomization(GeneratedMenu->MenuName),
		GeneratedMenu->Context.GetAllExtenders(), GeneratedMenu->bToolBarForceSmallIcons);
	ToolBarBuilder.SetStyle(&Style, GeneratedMenu->StyleName);
	ToolBarBuilder.SetIsFocusable(GeneratedMenu->bToolBarIsFocusable);
	for (int32 Index = 0; Index < GeneratedMenu->Sections.Num(); ++Index)
	{
		const FToolMenuSection Section = GeneratedMenu->Sections[Index];
		if (Section.Construct.NewToolMenuDelegateLegacy.IsBound())
		{
			STANDIN_MISSING(TEXT("FNewToolMenuDelegateLegacy in a tool bar"));
		}
		if (Section.Construct.NewToolBarDelegateLegacy.IsBound())
		{
			Section.Construct.NewToolBarDelegateLegacy.Execute(ToolBarBuilder, GeneratedMenu);
			continue;
		}
		ToolBarBuilder.BeginSection(Section.Name);
		for (const FToolMenuEntry& Block : Section.Blocks)
		{
			PopulateToolBarEntry(ToolBarBuilder, GeneratedMenu, Block);
		}
		ToolBarBuilder.EndSection();
	}
	return ToolBarBuilder.GetMultiBox();
}

void UToolMenus::PopulateToolBarEntry(FToolBarBuilder& ToolBarBuilder, UToolMenu* MenuData, const FToolMenuEntry& Block)
{
	switch (Block.Type)
	{
	case EMultiBlockType::None:
		return;
	case EMultiBlockType::Separator:
		ToolBarBuilder.AddSeparator(Block.Name);
		return;
	case EMultiBlockType::Widget:
		if (Block.MakeWidget.IsBound())
		{
			ToolBarBuilder.AddToolBarWidget(Block.MakeWidget.Execute(MenuData->Context), Block.Label);
		}
		return;
	case EMultiBlockType::ToolBarButton:
	case EMultiBlockType::ToolBarComboButton:
		break;
	default:
		STANDIN_MISSING(TEXT("A tool menu entry in a tool bar that is neither a button, a separator nor a widget"));
	}

	const bool bCombo = Block.Type == EMultiBlockType::ToolBarComboButton;
	FMenuEntryArguments Arguments;
	Arguments.ExtensionHook = Block.Name;
	Arguments.Label = Block.Label;
	Arguments.ToolTip = Block.ToolTip;
	Arguments.Action = ToolMenuActions::Bind(Block.Action, MenuData->Context);
	Arguments.UserInterfaceActionType = Block.UserInterfaceActionType;
	if (Block.Command.IsValid())
	{
		Arguments.Command = Block.Command;
		Block.GetActionForCommand(MenuData->Context, Arguments.CommandList);
	}
	if (bCombo)
	{
		Arguments.bIsSubMenu = true;
		Arguments.MakeSubMenu =
			FOnGetContent::CreateUObject(this, &UToolMenus::MakeComboButtonMenu, TWeakObjectPtr<UToolMenu>(MenuData), Block.Name);
	}
	ToolBarBuilder.AddButton(Arguments, Block.Icon, bCombo, Block.ToolBarData.bSimpleComboBox, Block.TutorialHighlightName);
}

TSharedRef<SWidget> UToolMenus::MakeComboButtonMenu(TWeakObjectPtr<UToolMenu> InParent, FName InBlockName)
{
	const FToolMenuEntry* Block = InParent.IsValid() ? InParent->FindEntry(InBlockName) : nullptr;
	if (!Block)
	{
		return SNullWidget::NullWidget;
	}
	const FNewToolMenuChoice Choice = Block->ToolBarData.ComboButtonContextMenuGenerator;
	if (Choice.OnGetContent.IsBound())
	{
		return Choice.OnGetContent.Execute();
	}
	if (Choice.NewToolMenuWidget.IsBound())
	{
		return Choice.NewToolMenuWidget.Execute(InParent->Context);
	}
	if (Choice.NewMenuLegacy.IsBound())
	{
		FMenuBuilder MenuBuilder(true, TSharedPtr<const FUICommandList>());
		Choice.NewMenuLegacy.Execute(MenuBuilder);
		return MenuBuilder.MakeWidget();
	}
	UToolMenu* Menu = GenerateSubMenu(InParent.Get(), InBlockName);
	return Menu ? GenerateWidget(Menu) : SNullWidget::NullWidget;
}
