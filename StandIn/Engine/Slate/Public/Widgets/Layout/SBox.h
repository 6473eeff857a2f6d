// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Types/SlateStructs.h"
#include "Widgets/SPanel.h"

// A widget with a size of one's choice around another.

/** A widget with a size of one's choice around another; it draws nothing. */
class SLATE_API SBox : public SPanel
{
public:
	/** The place in the box. */
	class FBoxSlot : public TSupportsOneChildMixin<FBoxSlot>,
					 public TSupportsContentAlignmentMixin<FBoxSlot>,
					 public TSupportsContentPaddingMixin<FBoxSlot>
	{
	public:
		/** Makes the place of a box. */
		FBoxSlot(SWidget* InOwner)
			: TSupportsOneChildMixin<FBoxSlot>(InOwner)
			, TSupportsContentAlignmentMixin<FBoxSlot>(HAlign_Fill, VAlign_Fill)
		{}
	};

	SLATE_BEGIN_ARGS(SBox)
		: _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Fill)
		, _Padding(FMargin(0.0f))
	{
		_Visibility = EVisibility::SelfHitTestInvisible;
	}
	SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
	SLATE_ARGUMENT(EVerticalAlignment, VAlign)
	SLATE_ATTRIBUTE(FMargin, Padding)
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_ATTRIBUTE(FOptionalSize, WidthOverride)
	SLATE_ATTRIBUTE(FOptionalSize, HeightOverride)
	SLATE_ATTRIBUTE(FOptionalSize, MinDesiredWidth)
	SLATE_ATTRIBUTE(FOptionalSize, MinDesiredHeight)
	SLATE_ATTRIBUTE(FOptionalSize, MaxDesiredWidth)
	SLATE_ATTRIBUTE(FOptionalSize, MaxDesiredHeight)
	SLATE_END_ARGS()

	/** Makes the widget. */
	SBox();

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** Puts a widget into the box. */
	void SetContent(const TSharedRef<SWidget>& InContent);

	/** Sets the width, open for the content's. */
	void SetWidthOverride(TAttribute<FOptionalSize> InWidthOverride) { WidthOverride = InWidthOverride; }

	/** Sets the height, open for the content's. */
	void SetHeightOverride(TAttribute<FOptionalSize> InHeightOverride) { HeightOverride = InHeightOverride; }

	/** Sets the least width. */
	void SetMinDesiredWidth(TAttribute<FOptionalSize> InMinDesiredWidth) { MinDesiredWidth = InMinDesiredWidth; }

	/** Sets the least height. */
	void SetMinDesiredHeight(TAttribute<FOptionalSize> InMinDesiredHeight) { MinDesiredHeight = InMinDesiredHeight; }

	/** Sets the greatest width. */
	void SetMaxDesiredWidth(TAttribute<FOptionalSize> InMaxDesiredWidth) { MaxDesiredWidth = InMaxDesiredWidth; }

	/** Sets the greatest height. */
	void SetMaxDesiredHeight(TAttribute<FOptionalSize> InMaxDesiredHeight) { MaxDesiredHeight = InMaxDesiredHeight; }

	/** Sets the space around the content. */
	void SetPadding(const TAttribute<FMargin>& InPadding) { ChildSlot.Padding(InPadding); }

	FChildren* GetChildren() override { return &ChildSlot; }

protected:
	void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

	/** The place in the box. */
	FBoxSlot ChildSlot;

private:
	TAttribute<FOptionalSize> WidthOverride;
	TAttribute<FOptionalSize> HeightOverride;
	TAttribute<FOptionalSize> MinDesiredWidth;
	TAttribute<FOptionalSize> MinDesiredHeight;
	TAttribute<FOptionalSize> MaxDesiredWidth;
	TAttribute<FOptionalSize> MaxDesiredHeight;
};
