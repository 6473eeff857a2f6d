// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/ContentBrowser/ContentItem.h"
#include "Widgets/Views/STileView.h"

namespace TintmillHost
{
/** The tiles of the content browser. */
class SContentTiles : public STileView<FContentItemPtr>
{
public:
	/** How many tiles lie in one line. */
	int32 GetLineLength() const { return GetNumItemsPerLine(); }

	/** Selects all items at once. */
	void SelectAll();

	/** Leaves the wheel with Ctrl to whoever is around the tiles. */
	virtual FReply OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
};
}
