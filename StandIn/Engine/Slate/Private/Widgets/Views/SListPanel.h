// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Widgets/SPanel.h"

/** What a list holds its rows in sight in. */
class SListPanel : public SPanel
{
public:
	SLATE_BEGIN_ARGS(SListPanel)
	{
		_Visibility = EVisibility::SelfHitTestInvisible;
		_Clipping = EWidgetClipping::ClipToBounds;
	}
	SLATE_END_ARGS()

	SListPanel()
		: Children(this)
		, FirstLineOffset(0.0f)
		, ItemsPerLine(1)
		, TileSize(0.0f, 0.0f)
		, WantedHeight(0.0f)
		, bTiles(false)
	{}

	void Construct(const FArguments& /*InArgs*/) {}
	FChildren* GetChildren() override { return &Children; }

	/** The rows in sight. */
	TSlotlessChildren<SWidget> Children;

	/** Where the first line starts, zero or less. */
	float FirstLineOffset;

	/** How many items lie in one line. */
	int32 ItemsPerLine;

	/** The size of a tile. */
	FVector2D TileSize;

	/** The height of all items. */
	float WantedHeight;

	/** Whether items are tiles. */
	bool bTiles;

protected:
	void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
};
