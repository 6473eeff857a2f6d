// Copyright The Tintmill authors. All rights reserved.

#include "ToolMenuContext.h"

FToolMenuContext::FToolMenuContext(UObject* InContext)
{
	AddObject(InContext);
}

FToolMenuContext::FToolMenuContext(TSharedPtr<FUICommandList> InCommandList, TSharedPtr<FExtender> InExtender, UObject* InContext)
{
	AppendCommandList(InCommandList);
	if (InExtender.IsValid())
	{
		AddExtender(InExtender);
	}
	AddObject(InContext);
}

UObject* FToolMenuContext::FindByClass(UClass* InClass) const
{
	for (UObject* Object : ContextObjects)
	{
		if (Object && InClass && Object->IsA(InClass))
		{
			return Object;
		}
	}
	return nullptr;
}

void FToolMenuContext::AppendCommandList(const TSharedRef<FUICommandList>& InCommandList)
{
	CommandLists.Add(InCommandList);
}

void FToolMenuContext::AppendCommandList(const TSharedPtr<FUICommandList>& InCommandList)
{
	if (InCommandList.IsValid())
	{
		CommandLists.Add(InCommandList);
	}
}

const FUIAction* FToolMenuContext::GetActionForCommand(
	TSharedPtr<const FUICommandInfo> Command, TSharedPtr<const FUICommandList>& OutCommandList) const
{
	for (const TSharedPtr<FUICommandList>& List : CommandLists)
	{
		if (const FUIAction* Result = List->GetActionForCommand(Command))
		{
			OutCommandList = List;
			return Result;
		}
	}
	return nullptr;
}

void FToolMenuContext::AddObject(UObject* InObject)
{
	if (InObject)
	{
		ContextObjects.AddUnique(InObject);
	}
}

void FToolMenuContext::AppendObjects(const TArray<UObject*>& InObjects)
{
	for (UObject* Object : InObjects)
	{
		AddObject(Object);
	}
}
