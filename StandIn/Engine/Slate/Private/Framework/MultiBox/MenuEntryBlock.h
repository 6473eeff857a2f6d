// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandList.h"
#include "StandIn/MenuEntryArguments.h"
#include "Framework/MultiBox/MultiBox.h"
#include "Framework/MultiBox/MultiBoxExtender.h"

/** Block of a menu entry, with or without a submenu. */
class FMenuEntryBlock : public FMultiBlock
{
public:
	FMenuEntryBlock(const FMenuEntryArguments& InArguments, const bool bInCloseSelfOnly, const TSharedPtr<FExtender>& InExtender,
		const ISlateStyle* InStyleSet, const FName InMenuName);

	virtual TSharedRef<SWidget> MakeWidget(const TSharedRef<SMultiBoxWidget>& InOwnerMultiBoxWidget) const override;

	/** Makes the submenu's widget; the delegates run at each call. */
	TSharedRef<SWidget> MakeSubMenuWidget() const;

	/** The action as it is mapped now. */
	FUIAction GetAction() const;

	/** The label as it reads now. */
	FText GetLabel() const;

	/** The tool tip as it reads now. */
	FText GetToolTip() const;

	/** The text of the key that runs the entry. */
	FText GetInputText() const;

	/** The icon, which may be unset. */
	FSlateIcon GetIcon() const;

	/** What the entry was described with. */
	const FMenuEntryArguments& GetArguments() const { return Arguments; }

	/** True if choosing the entry closes its own menu and not the whole stack. */
	bool ShouldCloseSelfOnly() const { return bCloseSelfOnly; }

private:
	FMenuEntryArguments Arguments;
	bool bCloseSelfOnly;
	TSharedPtr<FExtender> Extender;
	const ISlateStyle* StyleSet;
	FName MenuName;
};
