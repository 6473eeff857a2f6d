// Copyright The Tintmill authors. All rights reserved.

#include "ToolMenus.h"

TArray<UToolMenu*> UToolMenus::CollectHierarchy(const FName Name)
{
	TArray<UToolMenu*> Result;
	FName Current = Name;
	while (!Current.IsNone())
	{
		UToolMenu* Menu = FindMenu(Current);
		if (!Menu)
		{
			UE_LOG(LogToolMenus, Warning, TEXT("Failed to find menu: %s for %s"), *Current.ToString(), *Name.ToString());
			break;
		}
		if (Result.Contains(Menu))
		{
			UE_LOG(LogToolMenus, Warning, TEXT("Infinite loop detected in tool menu: %s"), *Name.ToString());
			break;
		}
		Result.Insert(Menu, 0);
		Current = Menu->MenuParent;
	}
	return Result;
}

UToolMenu* UToolMenus::GenerateMenu(const FName Name, const FToolMenuContext& InMenuContext)
{
	return Assemble(CollectHierarchy(Name), Name, InMenuContext);
}

UToolMenu* UToolMenus::GenerateSubMenu(const UToolMenu* InGeneratedParent, const FName InBlockName)
{
	const FToolMenuEntry* Block = InGeneratedParent && !InBlockName.IsNone() ? InGeneratedParent->FindEntry(InBlockName) : nullptr;
	if (!Block)
	{
		return nullptr;
	}
	// The delegate may change the menu that the entry lies in.
	const FNewToolMenuDelegate ConstructMenu = Block->Type == EMultiBlockType::ToolBarComboButton
		? Block->ToolBarData.ComboButtonContextMenuGenerator.NewToolMenu
		: Block->SubMenuData.ConstructMenu.NewToolMenu;
	const FName SubMenuName(*(InGeneratedParent->MenuName.ToString() + TEXT(".") + InBlockName.ToString()));

	TArray<UToolMenu*> Hierarchy;
	if (ConstructMenu.IsBound())
	{
		UToolMenu* Scratch = NewToolMenuObject(SubMenuName, InGeneratedParent->Context);
		Scratch->SubMenuParent = InGeneratedParent;
		Scratch->SubMenuSourceEntryName = InBlockName;
		ConstructMenu.Execute(Scratch);
		Hierarchy.Add(Scratch);
	}
	// Menus known under the name of a parent and the entry are layered on top, those of the eldest parent first.
	TArray<FName> ParentNames;
	for (UToolMenu* Parent : CollectHierarchy(InGeneratedParent->MenuParent))
	{
		ParentNames.Add(Parent->MenuName);
	}
	ParentNames.Add(InGeneratedParent->MenuName);
	for (const FName ParentName : ParentNames)
	{
		const FName LayerName(*(ParentName.ToString() + TEXT(".") + InBlockName.ToString()));
		if (FindMenu(LayerName))
		{
			for (UToolMenu* Layer : CollectHierarchy(LayerName))
			{
				Hierarchy.AddUnique(Layer);
			}
		}
	}

	UToolMenu* SubMenu = Assemble(Hierarchy, SubMenuName, InGeneratedParent->Context);
	SubMenu->SubMenuParent = InGeneratedParent;
	SubMenu->SubMenuSourceEntryName = InBlockName;
	return SubMenu;
}

UToolMenu* UToolMenus::Assemble(const TArray<UToolMenu*>& Hierarchy, const FName InMenuName, const FToolMenuContext& InContext)
{
	UToolMenu* GeneratedMenu = NewToolMenuObject(InMenuName, InContext);
	if (Hierarchy.Num() > 0)
	{
		const UToolMenu* Source = Hierarchy.Last();
		GeneratedMenu->MenuParent = Source->MenuParent;
		GeneratedMenu->StyleName = Source->StyleName;
		GeneratedMenu->TutorialHighlightName = Source->TutorialHighlightName;
		GeneratedMenu->MenuType = Source->MenuType;
		GeneratedMenu->MenuOwner = Source->MenuOwner;
		GeneratedMenu->bShouldCloseWindowAfterMenuSelection = Source->bShouldCloseWindowAfterMenuSelection;
		GeneratedMenu->bCloseSelfOnly = Source->bCloseSelfOnly;
		GeneratedMenu->bSearchable = Source->bSearchable;
		GeneratedMenu->bToolBarIsFocusable = Source->bToolBarIsFocusable;
		GeneratedMenu->bToolBarForceSmallIcons = Source->bToolBarForceSmallIcons;
	}
	for (const UToolMenu* Member : Hierarchy)
	{
		AssembleMember(GeneratedMenu, Member);
	}
	return GeneratedMenu;
}

void UToolMenus::AssembleMember(UToolMenu* GeneratedMenu, const UToolMenu* Member)
{
	TArray<FToolMenuSection> Expanded;
	ExpandSections(GeneratedMenu, Member, Expanded);

	// What was made while the menu was being registered comes before what extends it.
	TArray<const FToolMenuSection*> Remaining;
	for (const bool bRegistered : {true, false})
	{
		for (const FToolMenuSection& Section : Expanded)
		{
			if (Section.bAddedDuringRegister == bRegistered)
			{
				Remaining.Add(&Section);
			}
		}
	}
	bool bMoved = true;
	while (bMoved)
	{
		bMoved = false;
		for (int32 Index = 0; Index < Remaining.Num(); ++Index)
		{
			const FToolMenuSection& Section = *Remaining[Index];
			if (GeneratedMenu->ContainsSection(Section.Name) || GeneratedMenu->FindInsertIndex(Section) != INDEX_NONE)
			{
				AssembleSection(GeneratedMenu, Section);
				Remaining.RemoveAt(Index);
				--Index;
				bMoved = true;
			}
		}
	}
	for (const FToolMenuSection* Section : Remaining)
	{
		UE_LOG(LogToolMenus, Warning, TEXT("Menu section not found: '%s' insert: '%s'"), *Section->Name.ToString(),
			*Section->InsertPosition.Name.ToString());
	}
}

void UToolMenus::ExpandSections(const UToolMenu* GeneratedMenu, const UToolMenu* Member, TArray<FToolMenuSection>& OutSections)
{
	// By index and by copy: the delegates may register more.
	for (int32 Index = 0; Index < Member->Sections.Num(); ++Index)
	{
		const FToolMenuSection Section = Member->Sections[Index];
		if (!Section.Construct.NewToolMenuDelegate.IsBound())
		{
			OutSections.Add(Section);
			continue;
		}
		UToolMenu* Scratch = NewToolMenuObject(GeneratedMenu->MenuName, GeneratedMenu->Context);
		Scratch->SubMenuParent = GeneratedMenu->SubMenuParent;
		Scratch->SubMenuSourceEntryName = GeneratedMenu->SubMenuSourceEntryName;
		Section.Construct.NewToolMenuDelegate.Execute(Scratch);
		for (FToolMenuSection& Made : Scratch->Sections)
		{
			if (Made.InsertPosition.IsDefault())
			{
				Made.InsertPosition = Section.InsertPosition;
			}
			Made.bAddedDuringRegister = Section.bAddedDuringRegister;
			OutSections.Add(Made);
		}
		if (Section.Blocks.Num() > 0)
		{
			FToolMenuSection Rest = Section;
			Rest.Construct = FNewSectionConstructChoice();
			OutSections.Add(Rest);
		}
	}
}

void UToolMenus::ExpandEntries(const FToolMenuContext& Context, const FToolMenuSection& Section, TArray<FToolMenuEntry>& OutEntries)
{
	for (const FToolMenuEntry& Entry : Section.Blocks)
	{
		if (!Entry.Construct.IsBound())
		{
			OutEntries.Add(Entry);
			continue;
		}
		FToolMenuSection Scratch;
		Scratch.Name = Section.Name;
		Scratch.Context = Context;
		Entry.Construct.Execute(Scratch);
		for (FToolMenuEntry& Made : Scratch.Blocks)
		{
			if (Made.InsertPosition.IsDefault())
			{
				Made.InsertPosition = Entry.InsertPosition;
			}
			Made.bAddedDuringRegister = Entry.bAddedDuringRegister;
			OutEntries.Add(Made);
		}
	}
}

void UToolMenus::AssembleSection(UToolMenu* GeneratedMenu, const FToolMenuSection& Section)
{
	TArray<FToolMenuEntry> Expanded;
	ExpandEntries(GeneratedMenu->Context, Section, Expanded);

	int32 SectionIndex = GeneratedMenu->IndexOfSection(Section.Name);
	if (SectionIndex == INDEX_NONE)
	{
		FToolMenuSection NewSection = Section;
		NewSection.Blocks.Reset();
		NewSection.Context = GeneratedMenu->Context;
		SectionIndex = GeneratedMenu->FindInsertIndex(Section);
		GeneratedMenu->Sections.Insert(NewSection, SectionIndex);
	}
	FToolMenuSection& Destination = GeneratedMenu->Sections[SectionIndex];
	if (!Destination.Label.IsSet())
	{
		Destination.Label = Section.Label;
	}

	TArray<const FToolMenuEntry*> Remaining;
	for (const bool bRegistered : {true, false})
	{
		for (const FToolMenuEntry& Entry : Expanded)
		{
			if (Entry.bAddedDuringRegister == bRegistered)
			{
				Remaining.Add(&Entry);
			}
		}
	}
	// An entry whose target never appears is dropped without a word.
	bool bMoved = true;
	while (bMoved)
	{
		bMoved = false;
		for (int32 Index = 0; Index < Remaining.Num(); ++Index)
		{
			const int32 InsertIndex = Destination.FindInsertIndex(*Remaining[Index]);
			if (InsertIndex != INDEX_NONE)
			{
				Destination.Blocks.Insert(*Remaining[Index], InsertIndex);
				Remaining.RemoveAt(Index);
				--Index;
				bMoved = true;
			}
		}
	}
}
