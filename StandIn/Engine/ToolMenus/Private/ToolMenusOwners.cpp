// Copyright The Tintmill authors. All rights reserved.

#include "ToolMenus.h"
#include "StandIn/Registrations.h"

void UToolMenus::UnregisterOwner(FToolMenuOwner Owner)
{
	UToolMenus* Manager = TryGet();
	if (!Manager || !Owner.IsSet())
	{
		return;
	}
	for (const TPair<FName, UToolMenu*>& Pair : Manager->Menus)
	{
		TArray<FToolMenuSection>& Sections = Pair.Value->Sections;
		for (int32 Index = Sections.Num() - 1; Index >= 0; --Index)
		{
			FToolMenuSection& Section = Sections[Index];
			Section.Blocks.RemoveAll([&Owner](const FToolMenuEntry& Entry) { return Entry.Owner == Owner; });
			if (Section.Owner == Owner)
			{
				Section.Construct = FNewSectionConstructChoice();
				if (Section.Blocks.Num() == 0)
				{
					Sections.RemoveAt(Index);
				}
			}
		}
	}
	Manager->RefreshAllWidgets();
}

void UToolMenus::UnregisterOwnerByName(FName InOwnerName)
{
	UnregisterOwner(InOwnerName);
}

void UToolMenus::PushOwner(const FToolMenuOwner InOwner)
{
	OwnerStack.Push(InOwner);
}

void UToolMenus::PopOwner(const FToolMenuOwner InOwner)
{
	check(OwnerStack.Num() > 0);
	const FToolMenuOwner PoppedOwner = OwnerStack.Pop();
	check(PoppedOwner == InOwner);
}

FToolMenuOwner UToolMenus::CurrentOwner() const
{
	return OwnerStack.Num() > 0 ? OwnerStack.Last() : FToolMenuOwner();
}

void UToolMenus::AddToRegistrations()
{
	static bool bAdded = false;
	if (bAdded)
	{
		return;
	}
	bAdded = true;
	StandIn::AddRegistry(TEXT("ToolMenus"), [](TArray<StandIn::FRegistration>& OutRegistrations) {
		const UToolMenus* Manager = TryGetExisting();
		if (!Manager)
		{
			return;
		}
		for (const TPair<FName, UToolMenu*>& Pair : Manager->Menus)
		{
			const FString MenuText = Pair.Key.ToString();
			OutRegistrations.Add(StandIn::FRegistration{TEXT("ToolMenus"), MenuText, Pair.Value->MenuOwner.Pointer});
			for (const FToolMenuSection& Section : Pair.Value->Sections)
			{
				const FString SectionText = MenuText + TEXT("/") + Section.Name.ToString();
				OutRegistrations.Add(StandIn::FRegistration{TEXT("ToolMenus"), SectionText, Section.Owner.Pointer});
				for (const FToolMenuEntry& Entry : Section.Blocks)
				{
					const FString EntryText = SectionText + TEXT("/") + Entry.Name.ToString();
					OutRegistrations.Add(StandIn::FRegistration{TEXT("ToolMenus"), EntryText, Entry.Owner.Pointer});
				}
			}
		}
	});
}
