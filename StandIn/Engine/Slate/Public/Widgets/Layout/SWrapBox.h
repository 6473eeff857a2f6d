// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Widgets/SPanel.h"

// Children in lines like words. Left out: vertical lines, slots that fill their line.

/** Children in lines like words. */
class SLATE_API SWrapBox : public SPanel
{
public:
	/** A place in the box. */
	class FSlot : public TSlotBase<FSlot>, public TSupportsContentAlignmentMixin<FSlot>, public TSupportsContentPaddingMixin<FSlot>
	{
	public:
		/** Makes a slot. */
		FSlot()
			: TSlotBase<FSlot>()
			, TSupportsContentAlignmentMixin<FSlot>(HAlign_Fill, VAlign_Fill)
		{}
	};

	SLATE_BEGIN_ARGS(SWrapBox)
		: _PreferredWidth(100.0f)
		, _UseAllottedWidth(false)
		, _InnerSlotPadding(FVector2D(0.0f, 0.0f))
	{
		_Visibility = EVisibility::SelfHitTestInvisible;
	}
	SLATE_SUPPORTS_SLOT(FSlot)
	SLATE_ATTRIBUTE(float, PreferredWidth)
	SLATE_ARGUMENT(bool, UseAllottedWidth)
	SLATE_ARGUMENT(FVector2D, InnerSlotPadding)
	SLATE_END_ARGS()

	/** Makes the widget. */
	SWrapBox();

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** Makes a slot for SNew(SWrapBox) + Slot(). */
	static FSlot& Slot() { return *(new FSlot()); }

	/** Adds a slot at the end. */
	FSlot& AddSlot();

	/** Removes all slots. */
	void ClearChildren() { Children.Empty(); }

	FChildren* GetChildren() override { return &Children; }
	void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override;

protected:
	void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	FVector2D LayOut(float Width, TArray<FVector2D>& OutOffsets) const;
	float GetWidth() const { return bUseAllottedWidth && AllottedWidth > 0.0f ? AllottedWidth : PreferredWidth.Get(); }

	TPanelChildren<FSlot> Children;
	TAttribute<float> PreferredWidth;
	FVector2D InnerSlotPadding;
	float AllottedWidth;
	bool bUseAllottedWidth;
};
