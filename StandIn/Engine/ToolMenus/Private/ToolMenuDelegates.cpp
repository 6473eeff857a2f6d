// Copyright The Tintmill authors. All rights reserved.

#include "ToolMenuDelegates.h"

FToolUIActionChoice::FToolUIActionChoice(const FUIAction& InAction)
	: Action(InAction)
{}

FToolUIActionChoice::FToolUIActionChoice(const FExecuteAction& InExecuteAction)
	: Action(FUIAction(InExecuteAction))
{}

FToolUIActionChoice::FToolUIActionChoice(const FToolUIAction& InAction)
	: ToolAction(InAction)
{}

FToolUIActionChoice::FToolUIActionChoice(const FToolMenuExecuteAction& InExecuteAction)
	: ToolAction(FToolUIAction(InExecuteAction))
{}

FToolUIActionChoice::FToolUIActionChoice(const TSharedPtr<const FUICommandInfo>& InCommand, const FUICommandList& InCommandList)
{
	const FUIAction* Mapped = InCommand.IsValid() ? InCommandList.GetActionForCommand(InCommand) : nullptr;
	if (Mapped)
	{
		Action = *Mapped;
	}
}
