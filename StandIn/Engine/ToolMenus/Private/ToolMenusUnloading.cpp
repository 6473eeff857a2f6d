// Copyright The Tintmill authors. All rights reserved.

#include "ToolMenus.h"
#include "StandIn/ModuleHooks.h"
#include "UObject/UObjectIterator.h"

// What the menus keep of a library that is about to be unmapped. The engine leaves it and crashes later; an extension that is
// unloaded here may leave entries behind, as ours does on purpose.

namespace ToolMenusUnloadingPrivate
{
/** Says whether anything leads into a module's library. */
class FLeadsInto
{
public:
	explicit FLeadsInto(FName InModuleName)
		: ModuleName(InModuleName)
	{}

	bool operator()(const FDelegateBase& Delegate) const { return StandIn::IsBoundByModule(Delegate, ModuleName); }

	template <typename ValueType>
	bool operator()(const TAttribute<ValueType>& Attribute) const
	{
		return Attribute.IsBound() && (*this)(Attribute.GetBinding());
	}

	bool operator()(const FNewToolMenuChoice& Choice) const
	{
		return (*this)(Choice.OnGetContent) || (*this)(Choice.NewToolMenuWidget) || (*this)(Choice.NewToolMenu)
			|| (*this)(Choice.NewMenuLegacy);
	}

	bool operator()(const FToolUIActionChoice& Choice) const
	{
		const FUIAction* const Action = Choice.GetUIAction();
		const FToolUIAction* const ToolAction = Choice.GetToolUIAction();
		return (Action && IsAny(*Action)) || (ToolAction && IsAny(*ToolAction));
	}

	bool operator()(const FNewSectionConstructChoice& Choice) const
	{
		return (*this)(Choice.NewToolMenuDelegate) || (*this)(Choice.NewToolMenuDelegateLegacy) || (*this)(Choice.NewToolBarDelegateLegacy);
	}

private:
	template <typename ActionType>
	bool IsAny(const ActionType& Action) const
	{
		return (*this)(Action.ExecuteAction) || (*this)(Action.CanExecuteAction) || (*this)(Action.GetActionCheckState)
			|| (*this)(Action.IsActionVisibleDelegate);
	}

	FName ModuleName;
};
}

void UToolMenus::OnModuleBinaryUnloading(FName ModuleName)
{
	if (UToolMenus* const Manager = TryGetExisting())
	{
		Manager->DropFromModule(ModuleName);
	}
}

void UToolMenus::DropFromModule(FName ModuleName)
{
	for (TObjectIterator<UToolMenu> It; It; ++It)
	{
		DropFromMenu(**It, ModuleName);
	}
	// Rows that are in sight hold copies of the entries.
	RefreshWidgets(NAME_None);
}

bool UToolMenus::IsEntryOfModule(const FToolMenuEntry& Entry, FName ModuleName)
{
	const ToolMenusUnloadingPrivate::FLeadsInto LeadsInto(ModuleName);
	return LeadsInto(Entry.Label) || LeadsInto(Entry.ToolTip) || LeadsInto(Entry.Icon) || LeadsInto(Entry.Action)
		|| LeadsInto(Entry.SubMenuData.ConstructMenu) || LeadsInto(Entry.ToolBarData.ComboButtonContextMenuGenerator)
		|| LeadsInto(Entry.MakeWidget) || LeadsInto(Entry.Construct) || LeadsInto(Entry.ConstructLegacy);
}

void UToolMenus::DropFromMenu(UToolMenu& Menu, FName ModuleName)
{
	const ToolMenusUnloadingPrivate::FLeadsInto LeadsInto(ModuleName);
	const bool bRegistered = FindMenu(Menu.MenuName) == &Menu;
	for (FToolMenuSection& Section : Menu.Sections)
	{
		if (LeadsInto(Section.Construct))
		{
			Section.Construct = FNewSectionConstructChoice();
		}
		if (LeadsInto(Section.Label))
		{
			Section.Label = TAttribute<FText>();
		}
		for (int32 Index = 0; Index < Section.Blocks.Num();)
		{
			if (!IsEntryOfModule(Section.Blocks[Index], ModuleName))
			{
				++Index;
				continue;
			}
			if (bRegistered)
			{
				UE_LOG(LogToolMenus, Warning, TEXT("Menu '%s': the entry '%s' goes with the library of module '%s'"),
					*Menu.MenuName.ToString(), *Section.Blocks[Index].Name.ToString(), *ModuleName.ToString());
			}
			Section.Blocks.RemoveAt(Index);
		}
	}
}
