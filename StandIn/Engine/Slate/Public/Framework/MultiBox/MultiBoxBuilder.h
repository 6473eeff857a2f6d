// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/MultiBox/MultiBox.h"
#include "Framework/MultiBox/MultiBoxDefs.h"
#include "Framework/MultiBox/MultiBoxExtender.h"
#include "Framework/SlateDelegates.h"
#include "Styling/CoreStyle.h"

struct FMenuEntryArguments;

// Builders describe a menu, a menu bar or a tool bar block by block and make its widget. Left out: button rows, vertical and
// uniform tool bars, block groups, editable text entries. Names for tutorials become the tags of tool bar buttons. Uncertain in the
// engine and settled here: FToolBarBuilder has the constructor without an orientation.

/** Base of the builders: the box being filled, and the command lists and extenders in force. */
class SLATE_API FMultiBoxBuilder
{
public:
	/** Makes a builder of a box of a type. */
	FMultiBoxBuilder(const EMultiBoxType InType, const bool bInShouldCloseWindowAfterMenuSelection,
		const TSharedPtr<const FUICommandList>& InCommandList, TSharedPtr<FExtender> InExtender, FName InMenuName);

	virtual ~FMultiBoxBuilder() {}

	/** Makes a widget of what was described. */
	virtual TSharedRef<SWidget> MakeWidget();

	/** The box being filled. */
	TSharedRef<FMultiBox> GetMultiBox() { return MultiBox; }

	/** Makes entries added from now on take their commands' actions from another list. */
	void PushCommandList(const TSharedRef<const FUICommandList> CommandList) { CommandListStack.Push(CommandList); }

	/** Goes back to the command list in force before. */
	void PopCommandList();

	/** The command list in force; may be null. */
	TSharedPtr<const FUICommandList> GetTopCommandList() const;

	/** Applies another extender to what is added from now on. */
	void PushExtender(TSharedRef<FExtender> InExtender) { ExtenderStack.Push(InExtender); }

	/** Goes back to the extender in force before. */
	void PopExtender();

protected:
	TSharedRef<FMultiBox> MultiBox;
	TArray<TSharedPtr<const FUICommandList>> CommandListStack;
	TArray<TSharedPtr<FExtender>> ExtenderStack;
	FName MenuName;
};

/** Builder of a menu. */
class SLATE_API FMenuBuilder : public FMultiBoxBuilder
{
public:
	/** Makes a builder; choosing an entry closes the whole menu stack, or with bCloseSelfOnly the entry's own menu. */
	FMenuBuilder(const bool bInShouldCloseWindowAfterMenuSelection, TSharedPtr<const FUICommandList> InCommandList,
		TSharedPtr<FExtender> InExtender = TSharedPtr<FExtender>(), const bool bInCloseSelfOnly = false,
		const ISlateStyle* InStyleSet = &FCoreStyle::Get(), bool bInSearchable = true, FName InMenuName = NAME_None);

	/** Adds an entry for a command; its action comes from the command list in force. */
	void AddMenuEntry(const TSharedPtr<const FUICommandInfo> InCommand, FName InExtensionHook = NAME_None,
		const TAttribute<FText>& InLabelOverride = TAttribute<FText>(), const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(),
		const FSlateIcon& InIconOverride = FSlateIcon(), FName InTutorialHighlightName = NAME_None);

	/** Adds an entry with an action of its own. */
	void AddMenuEntry(const TAttribute<FText>& InLabel, const TAttribute<FText>& InToolTip, const FSlateIcon& InIcon,
		const FUIAction& UIAction, FName InExtensionHook = NAME_None,
		const EUserInterfaceActionType UserInterfaceActionType = EUserInterfaceActionType::Button,
		FName InTutorialHighlightName = NAME_None);

	/** Adds an entry that shows a widget in place of icon and label. */
	void AddMenuEntry(const FUIAction& UIAction, const TSharedRef<SWidget> Contents, const FName& InExtensionHook = NAME_None,
		const TAttribute<FText>& InToolTip = TAttribute<FText>(),
		const EUserInterfaceActionType UserInterfaceActionType = EUserInterfaceActionType::Button,
		FName InTutorialHighlightName = NAME_None);

	/** Adds an entry that opens a submenu; the delegate fills it at each opening. */
	void AddSubMenu(const TAttribute<FText>& InMenuLabel, const TAttribute<FText>& InToolTip, const FNewMenuDelegate& InSubMenu,
		const bool bInOpenSubMenuOnClick = false, const FSlateIcon& InIcon = FSlateIcon(),
		const bool bInShouldCloseWindowAfterMenuSelection = true, FName InExtensionHook = NAME_None,
		FName InTutorialHighlightName = NAME_None);

	/** Adds an entry that opens a submenu and, when clicked, runs an action. */
	void AddSubMenu(const TAttribute<FText>& InMenuLabel, const TAttribute<FText>& InToolTip, const FNewMenuDelegate& InSubMenu,
		const FUIAction& InUIAction, FName InExtensionHook, const EUserInterfaceActionType InUserInterfaceActionType,
		const bool bInOpenSubMenuOnClick = false, const FSlateIcon& InIcon = FSlateIcon(),
		const bool bInShouldCloseWindowAfterMenuSelection = true);

	/** Adds an entry that shows a widget, opens a submenu and, when clicked, runs an action. */
	void AddSubMenu(const FUIAction& UIAction, const TSharedRef<SWidget> Contents, const FNewMenuDelegate& InSubMenu,
		const bool bInShouldCloseWindowAfterMenuSelection = true);

	/** Adds an entry whose submenu is a widget that the delegate makes at each opening. */
	void AddWrapperSubMenu(const TAttribute<FText>& InMenuLabel, const TAttribute<FText>& InToolTip, const FOnGetContent& InSubMenu,
		const FSlateIcon& InIcon, const bool bInShouldCloseWindowAfterMenuSelection = true);

	/** Adds a thin line. */
	void AddMenuSeparator(FName InExtensionHook = NAME_None);

	/** Adds a thin line. */
	void AddSeparator(FName InExtensionHook = NAME_None) { AddMenuSeparator(InExtensionHook); }

	/** Adds a widget with a label in front; an empty label and bNoIndent give it the whole row. */
	void AddWidget(TSharedRef<SWidget> InWidget, const FText& Label, bool bNoIndent = false, bool bInSearchable = true);

	/** Begins a section; its line and heading are drawn once an entry follows. Sections do not nest. */
	void BeginSection(FName InExtensionHook, const TAttribute<FText>& InHeadingText = TAttribute<FText>());

	/** Ends the section. */
	void EndSection();

private:
	friend class FMenuEntryBlock;
	friend class UToolMenus;

	/** Adds an entry from its full description. */
	void AddEntry(FMenuEntryArguments& Arguments);

	/** Appends a block, with the section's beginning in front of its first one and extensions around it. */
	void AddBlock(const TSharedRef<const FMultiBlock>& InBlock);

	/** Draws the beginning of the section if it was not drawn yet. */
	void ApplySectionBeginning();

	/** Runs the extensions of a hook. */
	void ApplyHook(FName InExtensionHook, EExtensionHook::Position HookPosition);

	bool bCloseSelfOnly;
	bool bSearchable;
	bool bSectionNeedsToBeApplied;
	const ISlateStyle* StyleSet;
	FName CurrentSectionExtensionHook;
	TAttribute<FText> CurrentSectionHeadingText;
};

/** Builder of a bar of pull-down menus. */
class SLATE_API FMenuBarBuilder : public FMultiBoxBuilder
{
public:
	/** Makes a builder. */
	FMenuBarBuilder(TSharedPtr<const FUICommandList> InCommandList, TSharedPtr<FExtender> InExtender = TSharedPtr<FExtender>(),
		const ISlateStyle* InStyleSet = &FCoreStyle::Get(), FName InMenuName = NAME_None);

	/** Adds a head with a menu below it that the delegate fills at each opening. */
	void AddPullDownMenu(const TAttribute<FText>& InMenuLabel, const TAttribute<FText>& InToolTip, const FNewMenuDelegate& InPullDownMenu,
		FName InExtensionHook = NAME_None, FName InTutorialHighlightName = NAME_None);

	/** Adds a head with a menu below it that the delegate makes at each opening. */
	void AddPullDownMenu(const TAttribute<FText>& InMenuLabel, const TAttribute<FText>& InToolTip,
		const FOnGetContent& InMenuContentGenerator, FName InExtensionHook = NAME_None, FName InTutorialHighlightName = NAME_None);

private:
	void AddHead(FMenuEntryArguments& Arguments);
	void ApplyHook(FName InExtensionHook, EExtensionHook::Position HookPosition);

	const ISlateStyle* StyleSet;
};

/** Builder of a bar of buttons with icons and captions. */
class SLATE_API FToolBarBuilder : public FMultiBoxBuilder
{
public:
	/** Makes a builder; small icons have no captions. */
	FToolBarBuilder(TSharedPtr<const FUICommandList> InCommandList, FMultiBoxCustomization InCustomization,
		TSharedPtr<FExtender> InExtender = TSharedPtr<FExtender>(), const bool InForceSmallIcons = false);

	/** Sets whether captions of the buttons added from now on are shown. */
	void SetLabelVisibility(EVisibility InLabelVisibility) { LabelVisibility = InLabelVisibility; }

	/** Sets whether the buttons added from now on take the keyboard focus; they do not at first. */
	void SetIsFocusable(bool bInIsFocusable) { bIsFocusable = bInIsFocusable; }

	/** Sets the style set in which the looks named "ToolBar..." are found. */
	void SetStyle(const ISlateStyle* InStyleSet, const FName& InStyleName);

	/** Adds a button for a command; its action comes from the command list in force. */
	void AddToolBarButton(const TSharedPtr<const FUICommandInfo> InCommand, FName InExtensionHook = NAME_None,
		const TAttribute<FText>& InLabelOverride = TAttribute<FText>(), const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(),
		const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(), FName InTutorialHighlightName = NAME_None);

	/** Adds a button with an action of its own. */
	void AddToolBarButton(const FUIAction& InAction, FName InExtensionHook = NAME_None,
		const TAttribute<FText>& InLabelOverride = TAttribute<FText>(), const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(),
		const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(),
		const EUserInterfaceActionType UserInterfaceActionType = EUserInterfaceActionType::Button,
		FName InTutorialHighlightName = NAME_None);

	/** Adds a button that opens the menu that the delegate makes; a simple combo box is an arrow only. */
	void AddComboButton(const FUIAction& InAction, const FOnGetContent& InMenuContentGenerator,
		const TAttribute<FText>& InLabelOverride = TAttribute<FText>(), const TAttribute<FText>& InToolTipOverride = TAttribute<FText>(),
		const TAttribute<FSlateIcon>& InIconOverride = TAttribute<FSlateIcon>(), bool bInSimpleComboBox = false,
		FName InTutorialHighlightName = NAME_None);

	/** Adds a widget with a caption, which may be unset. */
	void AddToolBarWidget(TSharedRef<SWidget> InWidget, const TAttribute<FText>& InLabel = TAttribute<FText>(),
		FName InTutorialHighlightName = NAME_None, bool bSearchable = true);

	/** Adds a widget. */
	void AddWidget(TSharedRef<SWidget> InWidget, FName InTutorialHighlightName = NAME_None, bool bSearchable = true);

	/** Adds a thin upright line. */
	void AddSeparator(FName InExtensionHook = NAME_None);

	/** Begins a section; a line is drawn before it once a block follows. Sections do not nest. */
	void BeginSection(FName InExtensionHook);

	/** Ends the section. */
	void EndSection();

private:
	friend class UToolMenus;

	void AddButton(
		FMenuEntryArguments& Arguments, const TAttribute<FSlateIcon>& Icon, const bool bCombo, const bool bSimpleCombo, const FName InTag);
	void AddBlock(const TSharedRef<const FMultiBlock>& InBlock);
	void ApplyHook(FName InExtensionHook, EExtensionHook::Position HookPosition);

	const ISlateStyle* StyleSet;
	EVisibility LabelVisibility;
	FName CurrentSectionExtensionHook;
	bool bForceSmallIcons;
	bool bIsFocusable;
	bool bSectionNeedsToBeApplied;
};
