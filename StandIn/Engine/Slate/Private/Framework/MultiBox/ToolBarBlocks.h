// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/MultiBox/MenuEntryBlock.h"
#include "Framework/MultiBox/MultiBox.h"
#include "Layout/Visibility.h"
#include "Textures/SlateIcon.h"

/** How a button of a tool bar is shown. */
struct FToolBarButtonLook
{
	TAttribute<FSlateIcon> Icon;
	const ISlateStyle* StyleSet = nullptr;
	EVisibility LabelVisibility = EVisibility::Visible;
	bool bSmallIcons = false;
	bool bFocusable = false;
	bool bCombo = false;
	bool bSimpleCombo = false;

	/** Name under which tutorials and tests find the button. */
	FName Tag;
};

/** Block of a button in a tool bar, which may open a menu; an entry of a menu where the bar has no room for it. */
class FToolBarButtonBlock : public FMultiBlock
{
public:
	FToolBarButtonBlock(const TSharedRef<const FMenuEntryBlock>& InEntry, const FToolBarButtonLook& InLook)
		: FMultiBlock(InLook.bCombo ? EMultiBlockType::ToolBarComboButton : EMultiBlockType::ToolBarButton, InEntry->GetExtensionHook())
		, Entry(InEntry)
		, Look(InLook)
	{}

	virtual TSharedRef<SWidget> MakeWidget(const TSharedRef<SMultiBoxWidget>& InOwnerMultiBoxWidget) const override;

	/** The button as an entry of a menu. */
	const TSharedRef<const FMenuEntryBlock>& GetEntry() const { return Entry; }

	/** How the button is shown. */
	const FToolBarButtonLook& GetLook() const { return Look; }

	/** The icon as it is now: the look's, or the command's. */
	FSlateIcon GetIcon() const;

private:
	TSharedRef<const FMenuEntryBlock> Entry;
	FToolBarButtonLook Look;
};

/** Block of a widget in a tool bar, with a caption below it. */
class FToolBarWidgetBlock : public FMultiBlock
{
public:
	FToolBarWidgetBlock(const TSharedRef<SWidget>& InContent, const TAttribute<FText>& InLabel)
		: FMultiBlock(EMultiBlockType::Widget, NAME_None)
		, Content(InContent)
		, Label(InLabel)
	{}

	virtual TSharedRef<SWidget> MakeWidget(const TSharedRef<SMultiBoxWidget>& InOwnerMultiBoxWidget) const override;

private:
	TSharedRef<SWidget> Content;
	TAttribute<FText> Label;
};
