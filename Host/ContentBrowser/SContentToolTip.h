// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/ContentBrowser/ContentItem.h"
#include "Widgets/SToolTip.h"

// What rests on a tile: name and type, the type's own words, the path, and what is wrong. It is put together when it opens, for
// asking an asset's type for its words may load the asset.

namespace TintmillHost
{
/** The tool tip of a tile. */
class SContentToolTip : public SToolTip
{
public:
	SLATE_BEGIN_ARGS(SContentToolTip) {}
	SLATE_ARGUMENT(FContentItemPtr, Item)
	SLATE_END_ARGS()

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	virtual bool IsEmpty() const override { return false; }
	virtual void OnOpening() override;

private:
	TSharedRef<SWidget> MakeContent() const;

	FContentItemPtr Item;
};
}
