// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Framework/MultiBox/MultiBoxDefs.h"
#include "ToolMenu.h"
#include "ToolMenuContext.h"
#include "ToolMenuDelegates.h"
#include "ToolMenuEntry.h"
#include "ToolMenuMisc.h"
#include "ToolMenuOwner.h"
#include "ToolMenuSection.h"
#include "UObject/Object.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "ToolMenus.generated.h"

// The manager of tool menus. Menus of the types Menu, MenuBar and ToolBar; widgets of other types are refused. Nothing can be customised
// by the user, and no string commands are known. An entry that stands under one name in a menu and in its parent shows twice.

TOOLMENUS_API DECLARE_LOG_CATEGORY_EXTERN(LogToolMenus, Log, All);

/** Registers, extends and generates menus by name. */
UCLASS(config = EditorPerProjectUserSettings)
class TOOLMENUS_API UToolMenus : public UObject
{
	GENERATED_BODY()

public:
	UToolMenus();

	/** The manager; made on first use, with its module loaded, and fatal once the object system is gone. */
	static UToolMenus* Get();

	/** The manager, or null if its module is not loaded; fatal as Get is while the module outlives the object system. */
	static UToolMenus* TryGet();

	/** Removes everything of an owner from what TryGet gives; the empty owner has nothing, and without the module nothing happens. */
	static void UnregisterOwner(FToolMenuOwner Owner);

	/** Removes everything of an owner that is a name. */
	void UnregisterOwnerByName(FName InOwnerName);

	/** True in an editor with Slate running; false in commandlets, games and servers. */
	static bool IsToolMenuUIEnabled();

	/** Runs the delegate now if menus are enabled, else after engine start if they are enabled then; the handle of a run one is empty. */
	static FDelegateHandle RegisterStartupCallback(const FSimpleMulticastDelegate::FDelegate& InDelegate);

	/** Removes the waiting callbacks bound to an object. */
	static void UnRegisterStartupCallback(const void* UserPointer);

	/** Removes a waiting callback. */
	static void UnRegisterStartupCallback(FDelegateHandle InHandle);

	/** Registers a menu; one known through extensions is promoted, one already registered is returned as it is. */
	UToolMenu* RegisterMenu(
		FName Name, const FName Parent = NAME_None, EMultiBoxType Type = EMultiBoxType::Menu, bool bWarnIfAlreadyRegistered = true);

	/** The menu of a name for adding to it; made as a placeholder if the name is not known. Never null. */
	UToolMenu* ExtendMenu(const FName Name);

	/** The menu of a name, registered or extended, or null. */
	UToolMenu* FindMenu(const FName Name);

	/** True if the menu was registered. */
	bool IsMenuRegistered(const FName Name) const;

	/** Makes the widget of a menu for a context. */
	TSharedRef<SWidget> GenerateWidget(const FName Name, const FToolMenuContext& InMenuContext);

	/** Makes the widget of a menu from an explicit list of menus, parents first. */
	TSharedRef<SWidget> GenerateWidget(const TArray<UToolMenu*>& Hierarchy, const FToolMenuContext& InMenuContext);

	/** Makes the widget of a menu that is assembled already. */
	TSharedRef<SWidget> GenerateWidget(UToolMenu* GeneratedMenu);

	/** Assembles a menu for a context without making a widget. */
	UToolMenu* GenerateMenu(const FName Name, const FToolMenuContext& InMenuContext);

	/** Assembles the submenu of an entry of a generated menu, running its delegate; null if there is no such entry. */
	UToolMenu* GenerateSubMenu(const UToolMenu* InGeneratedParent, const FName InBlockName);

	/** The menu of a name and those it descends from, parents first. */
	TArray<UToolMenu*> CollectHierarchy(const FName Name);

	/** Makes the rows of live widgets anew at the next tick; menus that are popped up are left alone. */
	void RefreshAllWidgets();

	/** Makes the rows of a menu's live widgets anew now, except in popped-up menus; true if there were any. */
	bool RefreshMenuWidget(const FName Name);

	/** Forgets a menu. */
	void RemoveMenu(const FName MenuName);

	/** Adds a section to a menu; shortcut for ExtendMenu and AddSection. */
	void AddSection(const FName MenuName, const FName SectionName, const TAttribute<FText>& InLabel,
		const FToolMenuInsert InPosition = FToolMenuInsert());

	/** Removes a section from a menu. */
	void RemoveSection(const FName MenuName, const FName Section);

	/** Adds an entry to a menu; shortcut for ExtendMenu, FindOrAddSection and AddEntry. */
	void AddEntry(const FName MenuName, const FName SectionName, const FToolMenuEntry& Entry);

	/** Removes an entry from a section of a menu. */
	void RemoveEntry(const FName MenuName, const FName Section, const FName Name);

	/** Changes the label of a section. */
	void SetSectionLabel(const FName MenuName, const FName SectionName, const TAttribute<FText>& InLabel);

	/** Changes the position of a section. */
	void SetSectionPosition(const FName MenuName, const FName SectionName, const FToolMenuInsert InPosition);

	/** Makes an owner the one that is stamped on what is created from now on. */
	void PushOwner(const FToolMenuOwner InOwner);

	/** Goes back to the owner before; asserts that the owner given was the current one. */
	void PopOwner(const FToolMenuOwner InOwner);

	/** The owner stamped on what is created now. */
	FToolMenuOwner CurrentOwner() const;

	/** Keeps from collection the registered menus, the live generated ones and their context objects. */
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

	virtual void BeginDestroy() override;

private:
	friend class FToolMenusModule;

	/** Connection of a live widget with the menu that it shows. */
	struct FLiveMenu
	{
		UToolMenu* Menu;
		TWeakPtr<FMultiBox> MultiBox;
		TWeakPtr<SMultiBoxWidget> Widget;
		bool bFromRegistration;
	};

	static UToolMenu* NewToolMenuObject(const FName InMenuName, const FToolMenuContext& InContext);
	static UToolMenus* TryGetExisting();
	static void RunStartupCallbacks();
	static void AddToRegistrations();
	static void OnModuleBinaryUnloading(FName ModuleName);
	static bool IsEntryOfModule(const FToolMenuEntry& Entry, FName ModuleName);
	void DropFromModule(FName ModuleName);
	void DropFromMenu(UToolMenu& Menu, FName ModuleName);

	UToolMenu* Assemble(const TArray<UToolMenu*>& Hierarchy, const FName InMenuName, const FToolMenuContext& InContext);
	void AssembleMember(UToolMenu* GeneratedMenu, const UToolMenu* Member);
	void AssembleSection(UToolMenu* GeneratedMenu, const FToolMenuSection& Section);
	void ExpandSections(const UToolMenu* GeneratedMenu, const UToolMenu* Member, TArray<FToolMenuSection>& OutSections);
	void ExpandEntries(const FToolMenuContext& Context, const FToolMenuSection& Section, TArray<FToolMenuEntry>& OutEntries);

	TSharedRef<FMultiBox> MakeMultiBox(UToolMenu* GeneratedMenu);
	TSharedRef<FMultiBox> MakeMenuBar(UToolMenu* GeneratedMenu, const ISlateStyle& Style);
	TSharedRef<FMultiBox> MakeToolBar(UToolMenu* GeneratedMenu, const ISlateStyle& Style);
	void PopulateToolBarEntry(FToolBarBuilder& ToolBarBuilder, UToolMenu* MenuData, const FToolMenuEntry& Block);
	TSharedRef<SWidget> MakeComboButtonMenu(TWeakObjectPtr<UToolMenu> InParent, FName InBlockName);
	void PopulateMenuBuilder(FMenuBuilder& MenuBuilder, UToolMenu* MenuData);
	void PopulateEntry(FMenuBuilder& MenuBuilder, UToolMenu* MenuData, const FToolMenuEntry& Block);
	void PopulateSubMenu(FMenuBuilder& MenuBuilder, TWeakObjectPtr<UToolMenu> InParent, FName InBlockName);
	void AddLiveMenu(
		UToolMenu* Menu, const TSharedRef<FMultiBox>& MultiBox, const TSharedPtr<SMultiBoxWidget>& Widget, const bool bRegistered);
	bool RefreshWidgets(const FName OnlyName);
	void RefreshWidget(const TSharedRef<SMultiBoxWidget>& Widget);
	bool OnRefreshTick(float DeltaTime);

	TMap<FName, UToolMenu*> Menus;
	TArray<FToolMenuOwner> OwnerStack;
	TArray<FLiveMenu> LiveMenus;
	FDelegateHandle RefreshTickHandle;
};

/** Makes an owner the current one for as long as the object lives; nests. */
struct FToolMenuOwnerScoped
{
	/** Pushes the owner. */
	FToolMenuOwnerScoped(const FToolMenuOwner InOwner)
		: Owner(InOwner)
	{
		UToolMenus::Get()->PushOwner(InOwner);
	}

	/** Pops the owner. */
	~FToolMenuOwnerScoped() { UToolMenus::Get()->PopOwner(Owner); }

	/** The owner pushed. */
	FToolMenuOwner GetOwner() const { return Owner; }

private:
	FToolMenuOwner Owner;
};
