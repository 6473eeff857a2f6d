// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "ToolMenuBase.h"
#include "ToolMenuContext.h"
#include "ToolMenuDelegates.h"
#include "ToolMenuMisc.h"
#include "ToolMenuOwner.h"
#include "ToolMenuSection.h"
#include "ToolMenu.generated.h"

// A tool menu: registered or extended under a name, or generated for one opening. Its fields are not reflected; the manager
// keeps registered and live menus from being collected. No profiles and no customisation.

/** Menu made of named sections. */
UCLASS()
class TOOLMENUS_API UToolMenu : public UToolMenuBase
{
	GENERATED_BODY()

public:
	UToolMenu();

	/** Adds a section, or finds the one of that name: then the label changes only if one is given, and the position only if named. */
	FToolMenuSection& AddSection(const FName SectionName, const TAttribute<FText>& InLabel = TAttribute<FText>(),
		const FToolMenuInsert InPosition = FToolMenuInsert());

	/** Adds a section whose delegate makes sections on an empty menu each time the menu is generated. */
	FToolMenuSection& AddDynamicSection(
		const FName SectionName, const FNewSectionConstructChoice& InConstruct, const FToolMenuInsert InPosition = FToolMenuInsert());

	/** The section of a name, or null. */
	FToolMenuSection* FindSection(const FName SectionName);

	/** The section of a name, made if it is not there. */
	FToolMenuSection& FindOrAddSection(const FName SectionName);

	/** Removes a section with its entries. */
	void RemoveSection(const FName SectionName);

	/** Adds an entry to a section, which is made if it is not there. */
	void AddMenuEntry(const FName SectionName, const FToolMenuEntry& Args);

	/** Adds an entry that opens a submenu, and returns the extendable menu "MenuName.Name" that fills it. */
	UToolMenu* AddSubMenu(
		const FToolMenuOwner InOwner, const FName SectionName, const FName Name, const FText& Label, const FText& ToolTip = FText());

	/** The first context object of a class, or null. */
	template <typename ContextType>
	ContextType* FindContext() const
	{
		return Context.FindContext<ContextType>();
	}

	/** Name of the menu. */
	FName GetMenuName() const { return MenuName; }

	/** True if the menu was registered, false if it is known through extensions only or was generated. */
	bool IsRegistered() const { return bRegistered; }

	/** True if a section has an entry of that name. */
	bool ContainsEntry(const FName InName) const;

	/** True if the menu has a section of that name. */
	bool ContainsSection(const FName InName) const;

	/** The entry of a name in any section, or null. */
	const FToolMenuEntry* FindEntry(const FName InName) const;

	FName MenuName;
	FName MenuParent;
	FName StyleName;
	FName TutorialHighlightName;
	EMultiBoxType MenuType;
	FToolMenuOwner MenuOwner;
	FToolMenuContext Context;
	TArray<FToolMenuSection> Sections;
	const UToolMenu* SubMenuParent;
	FName SubMenuSourceEntryName;
	bool bShouldCloseWindowAfterMenuSelection;
	bool bCloseSelfOnly;
	bool bSearchable;
	bool bToolBarIsFocusable;
	bool bToolBarForceSmallIcons;

private:
	friend class UToolMenus;

	/** Index of a section, or INDEX_NONE. */
	int32 IndexOfSection(const FName SectionName) const;

	/** Index at which a section is to be inserted, or INDEX_NONE if its target is not there. */
	int32 FindInsertIndex(const FToolMenuSection& InSection) const;

	/** Begins or ends the state in which what is added counts as registered, not as an extension. */
	void SetRegistering(const bool bInRegistering);

	bool bRegistered;
	bool bIsRegistering;
};
