// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxDefs.h"
#include "Framework/SlateDelegates.h"
#include "ToolMenuContext.h"

class UToolMenu;
struct FToolMenuSection;

// Delegates of tool menus, and the choices between them that entries and sections take. There are no dynamic (script) forms, so
// no FToolDynamicUIAction.

DECLARE_DELEGATE_OneParam(FNewToolMenuSectionDelegate, FToolMenuSection&);
DECLARE_DELEGATE_OneParam(FNewToolMenuDelegate, UToolMenu*);
DECLARE_DELEGATE_TwoParams(FNewToolMenuDelegateLegacy, class FMenuBuilder&, UToolMenu*);
DECLARE_DELEGATE_TwoParams(FNewToolBarDelegateLegacy, class FToolBarBuilder&, UToolMenu*);
DECLARE_DELEGATE_RetVal_OneParam(TSharedRef<SWidget>, FNewToolMenuWidget, const FToolMenuContext&);
DECLARE_DELEGATE_OneParam(FToolMenuExecuteAction, const FToolMenuContext&);
DECLARE_DELEGATE_RetVal_OneParam(bool, FToolMenuCanExecuteAction, const FToolMenuContext&);
DECLARE_DELEGATE_RetVal_OneParam(ECheckBoxState, FToolMenuGetActionCheckState, const FToolMenuContext&);
DECLARE_DELEGATE_RetVal_OneParam(bool, FToolMenuIsActionButtonVisible, const FToolMenuContext&);

/** The ways to make a submenu's content. */
struct TOOLMENUS_API FNewToolMenuChoice
{
	/** Makes no choice. */
	FNewToolMenuChoice() {}

	/** Chooses a delegate that makes a widget. */
	FNewToolMenuChoice(const FOnGetContent& InOnGetContent)
		: OnGetContent(InOnGetContent)
	{}

	/** Chooses a delegate that makes a widget from the menu's context. */
	FNewToolMenuChoice(const FNewToolMenuWidget& InNewToolMenuWidget)
		: NewToolMenuWidget(InNewToolMenuWidget)
	{}

	/** Chooses a delegate that fills a tool menu. */
	FNewToolMenuChoice(const FNewToolMenuDelegate& InNewToolMenu)
		: NewToolMenu(InNewToolMenu)
	{}

	/** Chooses a delegate that fills a menu builder. */
	FNewToolMenuChoice(const FNewMenuDelegate& InNewMenuLegacy)
		: NewMenuLegacy(InNewMenuLegacy)
	{}

	FOnGetContent OnGetContent;
	FNewToolMenuWidget NewToolMenuWidget;
	FNewToolMenuDelegate NewToolMenu;
	FNewMenuDelegate NewMenuLegacy;
};

/** The ways to make a dynamic section's content. */
struct TOOLMENUS_API FNewSectionConstructChoice
{
	/** Makes no choice. */
	FNewSectionConstructChoice() {}

	/** Chooses a delegate that adds sections to a tool menu. */
	FNewSectionConstructChoice(const FNewToolMenuDelegate& InNewToolMenuDelegate)
		: NewToolMenuDelegate(InNewToolMenuDelegate)
	{}

	/** Chooses a delegate that adds to a menu builder. */
	FNewSectionConstructChoice(const FNewToolMenuDelegateLegacy& InNewToolMenuDelegateLegacy)
		: NewToolMenuDelegateLegacy(InNewToolMenuDelegateLegacy)
	{}

	/** Chooses a delegate that adds to a tool bar builder; refused when it is to run. */
	FNewSectionConstructChoice(const FNewToolBarDelegateLegacy& InNewToolBarDelegateLegacy)
		: NewToolBarDelegateLegacy(InNewToolBarDelegateLegacy)
	{}

	FNewToolMenuDelegate NewToolMenuDelegate;
	FNewToolMenuDelegateLegacy NewToolMenuDelegateLegacy;
	FNewToolBarDelegateLegacy NewToolBarDelegateLegacy;

	/** True if any of the delegates is bound. */
	bool IsBound() const
	{
		return NewToolMenuDelegate.IsBound() || NewToolMenuDelegateLegacy.IsBound() || NewToolBarDelegateLegacy.IsBound();
	}
};

/** Action whose delegates are given the menu's context. */
struct TOOLMENUS_API FToolUIAction
{
	/** Makes an action that does nothing. */
	FToolUIAction() {}

	/** Makes an action. */
	FToolUIAction(const FToolMenuExecuteAction& InExecuteAction)
		: ExecuteAction(InExecuteAction)
	{}

	/** Makes an action with a check state. */
	FToolUIAction(const FToolMenuExecuteAction& InExecuteAction, const FToolMenuGetActionCheckState& InGetActionCheckState)
		: ExecuteAction(InExecuteAction)
		, GetActionCheckState(InGetActionCheckState)
	{}

	/** Makes an action with a can-execute query and a check state. */
	FToolUIAction(const FToolMenuExecuteAction& InExecuteAction, const FToolMenuCanExecuteAction& InCanExecuteAction,
		const FToolMenuGetActionCheckState& InGetActionCheckState)
		: ExecuteAction(InExecuteAction)
		, CanExecuteAction(InCanExecuteAction)
		, GetActionCheckState(InGetActionCheckState)
	{}

	FToolMenuExecuteAction ExecuteAction;
	FToolMenuCanExecuteAction CanExecuteAction;
	FToolMenuGetActionCheckState GetActionCheckState;
	FToolMenuIsActionButtonVisible IsActionVisibleDelegate;
};

/** The ways to give an entry its action. */
struct TOOLMENUS_API FToolUIActionChoice
{
	/** Makes no choice: the entry does nothing. */
	FToolUIActionChoice() {}

	/** Chooses an action. */
	FToolUIActionChoice(const FUIAction& InAction);

	/** Chooses an action of one delegate; needs a Slate application. */
	FToolUIActionChoice(const FExecuteAction& InExecuteAction);

	/** Chooses an action that is given the menu's context. */
	FToolUIActionChoice(const FToolUIAction& InAction);

	/** Chooses an action of one delegate that is given the menu's context. */
	FToolUIActionChoice(const FToolMenuExecuteAction& InExecuteAction);

	/** Chooses a copy of the action that a list maps to a command; no choice if it maps none. */
	FToolUIActionChoice(const TSharedPtr<const FUICommandInfo>& InCommand, const FUICommandList& InCommandList);

	/** The plain action, or null. */
	const FUIAction* GetUIAction() const { return Action.IsSet() ? &Action.GetValue() : nullptr; }

	/** The action with context, or null. */
	const FToolUIAction* GetToolUIAction() const { return ToolAction.IsSet() ? &ToolAction.GetValue() : nullptr; }

private:
	TOptional<FUIAction> Action;
	TOptional<FToolUIAction> ToolAction;
};
