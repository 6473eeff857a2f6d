// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Widgets/SPanel.h"

// Children in a grid of equal cells.

/** Children in a grid of equal cells. */
class SLATE_API SUniformGridPanel : public SPanel
{
public:
	/** A cell of the grid. */
	class FSlot : public TSlotBase<FSlot>, public TSupportsContentAlignmentMixin<FSlot>
	{
	public:
		/** Makes the slot of a cell. */
		FSlot(int32 InColumn, int32 InRow)
			: TSlotBase<FSlot>()
			, TSupportsContentAlignmentMixin<FSlot>(HAlign_Fill, VAlign_Fill)
			, Column(InColumn)
			, Row(InRow)
		{}

		/** The cell's column. */
		int32 Column;

		/** The cell's row. */
		int32 Row;
	};

	SLATE_BEGIN_ARGS(SUniformGridPanel)
		: _SlotPadding(FMargin(0.0f))
		, _MinDesiredSlotWidth(0.0f)
		, _MinDesiredSlotHeight(0.0f)
	{
		_Visibility = EVisibility::SelfHitTestInvisible;
	}
	SLATE_SUPPORTS_SLOT(FSlot)
	SLATE_ATTRIBUTE(FMargin, SlotPadding)
	SLATE_ATTRIBUTE(float, MinDesiredSlotWidth)
	SLATE_ATTRIBUTE(float, MinDesiredSlotHeight)
	SLATE_END_ARGS()

	/** Makes the widget. */
	SUniformGridPanel();

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** Makes a slot for SNew(SUniformGridPanel) + Slot(Column, Row). */
	static FSlot& Slot(int32 Column, int32 Row) { return *(new FSlot(Column, Row)); }

	/** Adds the slot of a cell. */
	FSlot& AddSlot(int32 Column, int32 Row);

	/** Removes all slots. */
	void ClearChildren() { Children.Empty(); }

	FChildren* GetChildren() override { return &Children; }

protected:
	void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	FIntPoint GetNumCells() const;

	TPanelChildren<FSlot> Children;
	TAttribute<FMargin> SlotPadding;
	TAttribute<float> MinDesiredSlotWidth;
	TAttribute<float> MinDesiredSlotHeight;
};
