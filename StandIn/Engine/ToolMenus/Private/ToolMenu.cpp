// Copyright The Tintmill authors. All rights reserved.

#include "ToolMenu.h"
#include "ToolMenus.h"

UToolMenu::UToolMenu()
	: MenuType(EMultiBoxType::Menu)
	, SubMenuParent(nullptr)
	, bShouldCloseWindowAfterMenuSelection(true)
	, bCloseSelfOnly(false)
	, bSearchable(true)
	, bToolBarIsFocusable(false)
	, bToolBarForceSmallIcons(false)
	, bRegistered(false)
	, bIsRegistering(false)
{}

FToolMenuSection& UToolMenu::AddSection(const FName SectionName, const TAttribute<FText>& InLabel, const FToolMenuInsert InPosition)
{
	const int32 Index = IndexOfSection(SectionName);
	if (Index != INDEX_NONE)
	{
		FToolMenuSection& Existing = Sections[Index];
		if (InLabel.IsSet())
		{
			Existing.Label = InLabel;
		}
		if (!InPosition.Name.IsNone())
		{
			Existing.InsertPosition = InPosition;
		}
		return Existing;
	}
	FToolMenuSection Section;
	Section.Name = SectionName;
	Section.Owner = UToolMenus::Get()->CurrentOwner();
	Section.Label = InLabel;
	Section.InsertPosition = InPosition;
	Section.Context = Context;
	Section.bIsRegistering = bIsRegistering;
	Section.bAddedDuringRegister = bIsRegistering;
	return Sections[Sections.Add(Section)];
}

FToolMenuSection& UToolMenu::AddDynamicSection(
	const FName SectionName, const FNewSectionConstructChoice& InConstruct, const FToolMenuInsert InPosition)
{
	FToolMenuSection& Section = AddSection(SectionName, TAttribute<FText>(), InPosition);
	Section.Construct = InConstruct;
	return Section;
}

FToolMenuSection* UToolMenu::FindSection(const FName SectionName)
{
	const int32 Index = IndexOfSection(SectionName);
	return Index == INDEX_NONE ? nullptr : &Sections[Index];
}

FToolMenuSection& UToolMenu::FindOrAddSection(const FName SectionName)
{
	return AddSection(SectionName);
}

void UToolMenu::RemoveSection(const FName SectionName)
{
	Sections.RemoveAll([SectionName](const FToolMenuSection& Section) { return Section.Name == SectionName; });
}

void UToolMenu::AddMenuEntry(const FName SectionName, const FToolMenuEntry& Args)
{
	FindOrAddSection(SectionName).AddEntry(Args);
}

UToolMenu* UToolMenu::AddSubMenu(
	const FToolMenuOwner InOwner, const FName SectionName, const FName Name, const FText& Label, const FText& ToolTip)
{
	FToolMenuEntry Entry = FToolMenuEntry::InitSubMenu(Name, Label, ToolTip, FNewToolMenuChoice());
	Entry.Owner = InOwner;
	AddMenuEntry(SectionName, Entry);
	return UToolMenus::Get()->ExtendMenu(FName(*(MenuName.ToString() + TEXT(".") + Name.ToString())));
}

bool UToolMenu::ContainsEntry(const FName InName) const
{
	return FindEntry(InName) != nullptr;
}

bool UToolMenu::ContainsSection(const FName InName) const
{
	return IndexOfSection(InName) != INDEX_NONE;
}

const FToolMenuEntry* UToolMenu::FindEntry(const FName InName) const
{
	for (const FToolMenuSection& Section : Sections)
	{
		if (const FToolMenuEntry* Entry = Section.FindEntry(InName))
		{
			return Entry;
		}
	}
	return nullptr;
}

int32 UToolMenu::IndexOfSection(const FName SectionName) const
{
	return Sections.IndexOfByPredicate([SectionName](const FToolMenuSection& Section) { return Section.Name == SectionName; });
}

int32 UToolMenu::FindInsertIndex(const FToolMenuSection& InSection) const
{
	if (InSection.InsertPosition.IsDefault())
	{
		return Sections.Num();
	}
	int32 Index = 0;
	if (InSection.InsertPosition.IsBeforeOrAfter())
	{
		Index = IndexOfSection(InSection.InsertPosition.Name);
		if (Index == INDEX_NONE)
		{
			return INDEX_NONE;
		}
		Index += InSection.InsertPosition.Position == EToolMenuInsertType::After ? 1 : 0;
	}
	// Sections for one and the same position keep the order in which they were added.
	while (Index < Sections.Num() && Sections[Index].InsertPosition == InSection.InsertPosition)
	{
		++Index;
	}
	return Index;
}

void UToolMenu::SetRegistering(const bool bInRegistering)
{
	bIsRegistering = bInRegistering;
	for (FToolMenuSection& Section : Sections)
	{
		Section.bIsRegistering = bInRegistering;
	}
}
