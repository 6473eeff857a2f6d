// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxDefs.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class FMultiBox;
class ISlateStyle;
class SMenuEntryRow;
struct FSlateBrush;
class SMultiBoxWidget;
class SScrollBox;
class SVerticalBox;

// A multi-box is the description of a menu, a menu bar or a tool bar: a list of blocks, from which a widget is made. The other box
// types are refused when their widget is built. A menu that has less room than it wishes for is scrolled. There is no customisation
// by the user and no search by typing, so "searchable" is kept and has no effect.

/** Name under which a user's changes to a multi-box are kept; nothing can be changed here, so the name is only carried. */
class SLATE_API FMultiBoxCustomization
{
public:
	/** Makes a customization of a name. */
	explicit FMultiBoxCustomization(FName InCustomizationName)
		: CustomizationName(InCustomizationName)
	{}

	/** No customization. */
	static const FMultiBoxCustomization None;

	/** A customization of a name. */
	static FMultiBoxCustomization AllowCustomization(FName InCustomizationName) { return FMultiBoxCustomization(InCustomizationName); }

	/** The name, or NAME_None. */
	FName GetCustomizationName() const { return CustomizationName; }

private:
	FName CustomizationName;
};

/** One element of a multi-box: an entry, a heading, a separator or a widget. */
class SLATE_API FMultiBlock : public TSharedFromThis<FMultiBlock>
{
public:
	/** Makes a block of a kind with the name that extenders know it by. */
	FMultiBlock(const EMultiBlockType InType, const FName InExtensionHook)
		: Type(InType)
		, ExtensionHook(InExtensionHook)
	{}

	virtual ~FMultiBlock() {}

	/** Kind of the block. */
	EMultiBlockType GetType() const { return Type; }

	/** Name that extenders know the block by, or NAME_None. */
	FName GetExtensionHook() const { return ExtensionHook; }

	/** Makes the block's widget inside a multi-box's widget. */
	virtual TSharedRef<SWidget> MakeWidget(const TSharedRef<SMultiBoxWidget>& InOwnerMultiBoxWidget) const = 0;

private:
	EMultiBlockType Type;
	FName ExtensionHook;
};

/** Description of a menu or bar. */
class SLATE_API FMultiBox : public TSharedFromThis<FMultiBox>
{
public:
	virtual ~FMultiBox() {}

	/** Makes an empty box; choosing one of its entries closes the menu if bInShouldCloseWindowAfterMenuSelection. */
	static TSharedRef<FMultiBox> Create(const EMultiBoxType InType, const bool bInShouldCloseWindowAfterMenuSelection);

	/** Kind of the box. */
	EMultiBoxType GetType() const { return Type; }

	/** True if choosing an entry closes the menu. */
	bool ShouldCloseWindowAfterMenuSelection() const { return bShouldCloseWindowAfterMenuSelection; }

	/** Appends a block. */
	void AddMultiBlock(TSharedRef<const FMultiBlock> InBlock) { Blocks.Add(InBlock); }

	/** All blocks from top to bottom, or from left to right. */
	const TArray<TSharedRef<const FMultiBlock>>& GetBlocks() const { return Blocks; }

	/** Makes a widget that shows the box. */
	TSharedRef<SMultiBoxWidget> MakeWidget();

private:
	FMultiBox(const EMultiBoxType InType, const bool bInShouldCloseWindowAfterMenuSelection);

	EMultiBoxType Type;
	bool bShouldCloseWindowAfterMenuSelection;
	TArray<TSharedRef<const FMultiBlock>> Blocks;
};

/** Widget of a multi-box: rows below each other, or heads or buttons side by side; at most one has its submenu open. */
class SLATE_API SMultiBoxWidget : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SMultiBoxWidget) {}
	SLATE_END_ARGS()

	SMultiBoxWidget();

	/** Makes an empty widget. */
	void Construct(const FArguments& InArgs);

	/** Sets the box to show; BuildMultiBoxWidget makes the rows. */
	void SetMultiBox(TSharedRef<FMultiBox> InMultiBox) { MultiBox = InMultiBox; }

	/** The box that is shown. */
	TSharedRef<const FMultiBox> GetMultiBox() const { return MultiBox.ToSharedRef(); }

	/** Makes the rows anew from the box; a submenu that is open is closed. */
	void BuildMultiBoxWidget();

	/** The row whose submenu is open, or null. */
	TSharedPtr<SMenuEntryRow> GetOpenRow() const;

	/** Notes the row from which this menu was opened as a submenu. */
	void SetParentRow(const TSharedPtr<SMenuEntryRow>& InParentRow) { ParentRow = InParentRow; }

	/** Reacts to the pointer entering a row: opens its submenu or closes a sibling's, at once or after a delay. */
	void OnRowHovered(const TSharedRef<SMenuEntryRow>& InRow);

	/** Reacts to the pointer leaving a row: what was about to happen does not. */
	void OnRowUnhovered(const TSharedRef<SMenuEntryRow>& InRow);

	/** Gives the first row that can be chosen the keyboard focus; at once, or as soon as the menu has been arranged. */
	void FocusFirstRow();

	/** Opens a row's submenu now, closing a sibling's. */
	void OpenSubMenuNow(const TSharedRef<SMenuEntryRow>& InRow);

	/** Scrolls at the next tick so that something in the menu is in sight. */
	void ScrollIntoView(const TSharedPtr<SWidget>& Widget);

	virtual void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override;
	virtual bool SupportsKeyboardFocus() const override { return true; }
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnFocusChanging(
		const FWeakWidgetPath& PreviousFocusPath, const FWidgetPath& NewWidgetPath, const FFocusEvent& InFocusEvent) override;

private:
	/** True if this widget sits inside the rows of another menu. */
	bool IsNested() const;

	/** Background of the menu; nothing inside another menu. */
	const FSlateBrush* GetBackground() const;

	/** Makes the widget of a bar. */
	TSharedRef<SWidget> MakeBar();

	/** Moves the keyboard focus to the next row (Step 1) or the one before (Step -1), around the ends. */
	bool MoveFocus(const int32 Step);

	/** Moves the keyboard focus to the first or the last row. */
	bool MoveFocusToEnd(const bool bLast);

	TSharedPtr<FMultiBox> MultiBox;
	TSharedPtr<SVerticalBox> Rows;
	TSharedPtr<SScrollBox> ScrollBox;
	TWeakPtr<SMenuEntryRow> OpenRow;
	TWeakPtr<SMenuEntryRow> ParentRow;
	TWeakPtr<SMenuEntryRow> PendingRow;
	float PendingSeconds;
	bool bPending;
	bool bFocusFirstRow;
};
