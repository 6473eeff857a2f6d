// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SPanel.h"

/** What a scroll box holds its children in. */
class SScrollPanel : public SPanel
{
public:
	SLATE_BEGIN_ARGS(SScrollPanel)
	{
		_Visibility = EVisibility::SelfHitTestInvisible;
		_Clipping = EWidgetClipping::ClipToBounds;
	}
	SLATE_END_ARGS()

	SScrollPanel()
		: Children(this)
		, Orientation(Orient_Vertical)
		, Offset(0.0f)
	{}

	void Construct(const FArguments& InArgs, EOrientation InOrientation);
	FChildren* GetChildren() override { return &Children; }

	/** Returns the length of all children, in Slate units. */
	float GetContentLength() const;

	/** The slots. */
	TPanelChildren<SScrollBox::FSlot> Children;

	/** The axis of scrolling. */
	EOrientation Orientation;

	/** How far the content is scrolled. */
	float Offset;

protected:
	void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
};
