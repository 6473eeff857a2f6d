// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Widgets/SPanel.h"

// Children on top of each other.

/** Children on top of each other, each over the whole area. */
class SLATECORE_API SOverlay : public SPanel
{
public:
	/** A place in the overlay; fills, no padding. */
	class FOverlaySlot : public TSlotBase<FOverlaySlot>,
						 public TSupportsContentAlignmentMixin<FOverlaySlot>,
						 public TSupportsContentPaddingMixin<FOverlaySlot>
	{
	public:
		/** Makes a slot. */
		FOverlaySlot()
			: TSlotBase<FOverlaySlot>()
			, TSupportsContentAlignmentMixin<FOverlaySlot>(HAlign_Fill, VAlign_Fill)
			, ZOrder(0)
		{}

		/** The slot's order; higher ones lie above. */
		int32 ZOrder;
	};

	SLATE_BEGIN_ARGS(SOverlay) { _Visibility = EVisibility::SelfHitTestInvisible; }
	SLATE_SUPPORTS_SLOT(SOverlay::FOverlaySlot)
	SLATE_END_ARGS()

	/** Makes the overlay. */
	SOverlay();

	/** Takes the slots of the arguments. */
	void Construct(const FArguments& InArgs);

	/** Makes a slot for SNew(SOverlay) + Slot(). */
	static FOverlaySlot& Slot() { return *(new FOverlaySlot()); }

	/** Adds a slot by its order, INDEX_NONE for the top. */
	FOverlaySlot& AddSlot(int32 ZOrder = INDEX_NONE);

	/** Removes the slot of an order, INDEX_NONE for the topmost; says whether there was one. */
	bool RemoveSlot(int32 ZOrder = INDEX_NONE);

	/** Removes the slot of a widget; says whether there was one. */
	bool RemoveSlot(TSharedRef<SWidget> Widget);

	/** Removes all slots. */
	void ClearChildren();

	/** Returns the number of slots. */
	int32 GetNumWidgets() const { return Children.Num(); }

	FChildren* GetChildren() override { return &Children; }

protected:
	int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
	void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	TPanelChildren<FOverlaySlot> Children;
};
