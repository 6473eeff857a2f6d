// Copyright The Tintmill authors. All rights reserved.

#include "ToolMenus.h"
#include "Framework/MultiBox/MultiBox.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "StandIn/FatalHandler.h"
#include "StandIn/MenuEntryArguments.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "ToolMenuActions.h"

namespace
{
FUIAction BindContext(const FToolUIAction& Source, const FToolMenuContext& Context)
{
	FUIAction Action;
	if (Source.ExecuteAction.IsBound())
	{
		const FToolMenuExecuteAction Execute = Source.ExecuteAction;
		Action.ExecuteAction = FExecuteAction::CreateLambda([Execute, Context]() { Execute.ExecuteIfBound(Context); });
	}
	if (Source.CanExecuteAction.IsBound())
	{
		const FToolMenuCanExecuteAction CanExecute = Source.CanExecuteAction;
		Action.CanExecuteAction =
			FCanExecuteAction::CreateLambda([CanExecute, Context]() { return !CanExecute.IsBound() || CanExecute.Execute(Context); });
	}
	if (Source.GetActionCheckState.IsBound())
	{
		const FToolMenuGetActionCheckState GetState = Source.GetActionCheckState;
		Action.GetActionCheckState = FGetActionCheckState::CreateLambda(
			[GetState, Context]() { return GetState.IsBound() ? GetState.Execute(Context) : ECheckBoxState::Unchecked; });
	}
	if (Source.IsActionVisibleDelegate.IsBound())
	{
		const FToolMenuIsActionButtonVisible IsVisible = Source.IsActionVisibleDelegate;
		Action.IsActionVisibleDelegate =
			FIsActionButtonVisible::CreateLambda([IsVisible, Context]() { return !IsVisible.IsBound() || IsVisible.Execute(Context); });
	}
	return Action;
}
}

FUIAction ToolMenuActions::Bind(const FToolUIActionChoice& Choice, const FToolMenuContext& Context)
{
	if (const FUIAction* Action = Choice.GetUIAction())
	{
		return *Action;
	}
	const FToolUIAction* ToolAction = Choice.GetToolUIAction();
	return ToolAction ? BindContext(*ToolAction, Context) : FUIAction();
}

TSharedRef<SWidget> UToolMenus::GenerateWidget(const FName Name, const FToolMenuContext& InMenuContext)
{
	return GenerateWidget(GenerateMenu(Name, InMenuContext));
}

TSharedRef<SWidget> UToolMenus::GenerateWidget(const TArray<UToolMenu*>& Hierarchy, const FToolMenuContext& InMenuContext)
{
	const FName Name = Hierarchy.Num() > 0 ? Hierarchy.Last()->MenuName : FName();
	return GenerateWidget(Assemble(Hierarchy, Name, InMenuContext));
}

TSharedRef<SWidget> UToolMenus::GenerateWidget(UToolMenu* GeneratedMenu)
{
	check(GeneratedMenu);
	const TSharedRef<FMultiBox> MultiBox = MakeMultiBox(GeneratedMenu);
	const TSharedRef<SMultiBoxWidget> Widget = MultiBox->MakeWidget();
	AddLiveMenu(GeneratedMenu, MultiBox, Widget, FindMenu(GeneratedMenu->MenuName) != nullptr);
	return Widget;
}

TSharedRef<FMultiBox> UToolMenus::MakeMultiBox(UToolMenu* GeneratedMenu)
{
	const ISlateStyle* Found = GeneratedMenu->StyleName.IsNone() ? nullptr : FSlateStyleRegistry::FindSlateStyle(GeneratedMenu->StyleName);
	const ISlateStyle& Style = Found ? *Found : FCoreStyle::Get();
	if (GeneratedMenu->MenuType == EMultiBoxType::MenuBar)
	{
		return MakeMenuBar(GeneratedMenu, Style);
	}
	if (GeneratedMenu->MenuType == EMultiBoxType::ToolBar)
	{
		return MakeToolBar(GeneratedMenu, Style);
	}
	if (GeneratedMenu->MenuType != EMultiBoxType::Menu)
	{
		STANDIN_MISSING(TEXT("UToolMenus::GenerateWidget of a menu that is of another type than Menu, MenuBar and ToolBar"));
	}
	FMenuBuilder MenuBuilder(GeneratedMenu->bShouldCloseWindowAfterMenuSelection, TSharedPtr<const FUICommandList>(),
		GeneratedMenu->Context.GetAllExtenders(), GeneratedMenu->bCloseSelfOnly, &Style, GeneratedMenu->bSearchable,
		GeneratedMenu->MenuName);
	PopulateMenuBuilder(MenuBuilder, GeneratedMenu);
	return MenuBuilder.GetMultiBox();
}

void UToolMenus::PopulateMenuBuilder(FMenuBuilder& MenuBuilder, UToolMenu* MenuData)
{
	for (int32 Index = 0; Index < MenuData->Sections.Num(); ++Index)
	{
		const FToolMenuSection Section = MenuData->Sections[Index];
		if (Section.Construct.NewToolBarDelegateLegacy.IsBound())
		{
			STANDIN_MISSING(TEXT("FNewToolBarDelegateLegacy"));
		}
		if (Section.Construct.NewToolMenuDelegateLegacy.IsBound())
		{
			Section.Construct.NewToolMenuDelegateLegacy.Execute(MenuBuilder, MenuData);
			continue;
		}
		MenuBuilder.BeginSection(Section.Name, Section.Label);
		for (const FToolMenuEntry& Block : Section.Blocks)
		{
			PopulateEntry(MenuBuilder, MenuData, Block);
		}
		MenuBuilder.EndSection();
	}
}

void UToolMenus::PopulateEntry(FMenuBuilder& MenuBuilder, UToolMenu* MenuData, const FToolMenuEntry& Block)
{
	if (Block.ConstructLegacy.IsBound())
	{
		Block.ConstructLegacy.Execute(MenuBuilder, MenuData);
		return;
	}
	switch (Block.Type)
	{
	case EMultiBlockType::None:
		return;
	case EMultiBlockType::Separator:
		MenuBuilder.AddMenuSeparator(Block.Name);
		return;
	case EMultiBlockType::Widget:
		if (Block.MakeWidget.IsBound())
		{
			MenuBuilder.AddWidget(
				Block.MakeWidget.Execute(MenuData->Context), Block.Label.Get(), Block.WidgetData.bNoIndent, Block.WidgetData.bSearchable);
		}
		return;
	case EMultiBlockType::MenuEntry:
		break;
	default:
		STANDIN_MISSING(TEXT("A tool menu entry in a menu that is neither a menu entry, a separator nor a widget"));
	}

	FMenuEntryArguments Arguments;
	Arguments.ExtensionHook = Block.Name;
	Arguments.Label = Block.Label;
	Arguments.ToolTip = Block.ToolTip;
	Arguments.Icon = Block.Icon.IsSet() ? Block.Icon.Get() : FSlateIcon();
	Arguments.Action = ToolMenuActions::Bind(Block.Action, MenuData->Context);
	Arguments.UserInterfaceActionType = Block.UserInterfaceActionType;
	Arguments.bShouldCloseWindowAfterMenuSelection = Block.bShouldCloseWindowAfterMenuSelection;
	if (Block.MakeWidget.IsBound())
	{
		Arguments.Contents = Block.MakeWidget.Execute(MenuData->Context);
	}
	if (Block.Command.IsValid())
	{
		Arguments.Command = Block.Command;
		Block.GetActionForCommand(MenuData->Context, Arguments.CommandList);
	}
	if (Block.IsSubMenu())
	{
		const FNewToolMenuChoice& Choice = Block.SubMenuData.ConstructMenu;
		Arguments.bIsSubMenu = true;
		Arguments.bOpenSubMenuOnClick = Block.SubMenuData.bOpenSubMenuOnClick;
		if (Choice.NewMenuLegacy.IsBound())
		{
			Arguments.FillSubMenu = Choice.NewMenuLegacy;
		}
		else if (Choice.NewToolMenuWidget.IsBound())
		{
			const FNewToolMenuWidget NewWidget = Choice.NewToolMenuWidget;
			const FToolMenuContext Context = MenuData->Context;
			Arguments.MakeSubMenu = FOnGetContent::CreateLambda([NewWidget, Context]() { return NewWidget.Execute(Context); });
		}
		else if (Choice.OnGetContent.IsBound())
		{
			Arguments.MakeSubMenu = Choice.OnGetContent;
		}
		else
		{
			Arguments.FillSubMenu =
				FNewMenuDelegate::CreateUObject(this, &UToolMenus::PopulateSubMenu, TWeakObjectPtr<UToolMenu>(MenuData), Block.Name);
		}
	}
	MenuBuilder.AddEntry(Arguments);
}

void UToolMenus::PopulateSubMenu(FMenuBuilder& MenuBuilder, TWeakObjectPtr<UToolMenu> InParent, FName InBlockName)
{
	UToolMenu* SubMenu = InParent.IsValid() ? GenerateSubMenu(InParent.Get(), InBlockName) : nullptr;
	if (SubMenu)
	{
		AddLiveMenu(SubMenu, MenuBuilder.GetMultiBox(), nullptr, false);
		PopulateMenuBuilder(MenuBuilder, SubMenu);
	}
}
