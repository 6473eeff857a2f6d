// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/MultiBox/MenuEntryBlock.h"
#include "Framework/MultiBox/MultiBox.h"

/** Block of a head in a menu bar, with the menu below it. */
class FMenuBarHeadBlock : public FMultiBlock
{
public:
	explicit FMenuBarHeadBlock(const TSharedRef<const FMenuEntryBlock>& InEntry)
		: FMultiBlock(EMultiBlockType::MenuEntry, InEntry->GetExtensionHook())
		, Entry(InEntry)
	{}

	virtual TSharedRef<SWidget> MakeWidget(const TSharedRef<SMultiBoxWidget>& InOwnerMultiBoxWidget) const override;

private:
	TSharedRef<const FMenuEntryBlock> Entry;
};
