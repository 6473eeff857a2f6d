// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Widgets/Layout/SScrollBar.h"
#include "Widgets/SCompoundWidget.h"

class SScrollPanel;

// Children one after another, of which a part is in sight. Left out: overscroll, inertia, scrolling by touch or right drag.

/** Children one after another, of which a part is in sight. */
class SLATE_API SScrollBox : public SCompoundWidget
{
public:
	/** A place in the box: as long as its child wishes, filling across, no padding. */
	class FSlot : public TSlotBase<FSlot>, public TSupportsContentAlignmentMixin<FSlot>, public TSupportsContentPaddingMixin<FSlot>
	{
	public:
		/** Makes a slot. */
		FSlot()
			: TSlotBase<FSlot>()
			, TSupportsContentAlignmentMixin<FSlot>(HAlign_Fill, VAlign_Fill)
		{}
	};

	SLATE_BEGIN_ARGS(SScrollBox)
		: _ScrollBarStyle(&FCoreStyle::Get().GetWidgetStyle<FScrollBarStyle>("Scrollbar"))
		, _Orientation(Orient_Vertical)
		, _ScrollBarAlwaysVisible(false)
		, _ConsumeMouseWheel(EConsumeMouseWheel::WhenScrollingPossible)
	{}
	SLATE_SUPPORTS_SLOT(FSlot)
	SLATE_STYLE_ARGUMENT(FScrollBarStyle, ScrollBarStyle)
	SLATE_ARGUMENT(TSharedPtr<SScrollBar>, ExternalScrollbar)
	SLATE_ARGUMENT(EOrientation, Orientation)
	SLATE_ARGUMENT(bool, ScrollBarAlwaysVisible)
	SLATE_ARGUMENT(EConsumeMouseWheel, ConsumeMouseWheel)
	SLATE_EVENT(FOnUserScrolled, OnUserScrolled)
	SLATE_END_ARGS()

	/** Makes the widget. */
	SScrollBox();

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** Makes a slot for SNew(SScrollBox) + Slot(). */
	static FSlot& Slot() { return *(new FSlot()); }

	/** Adds a slot at the end. */
	FSlot& AddSlot();

	/** Removes the slot of a widget. */
	void RemoveSlot(const TSharedRef<SWidget>& WidgetToRemove);

	/** Removes all slots. */
	void ClearChildren();

	/** Returns how far the content is scrolled, in Slate units. */
	float GetScrollOffset() const { return ScrollOffset; }

	/** Sets how far the content is scrolled, in Slate units; what is too far is cut at the next tick. */
	void SetScrollOffset(float NewScrollOffset) { ScrollOffset = NewScrollOffset; }

	/** Returns how far the content can be scrolled, in Slate units, as of the last tick. */
	float GetScrollOffsetOfEnd() const { return MaxScrollOffset; }

	/** Scrolls to the start. */
	void ScrollToStart() { ScrollOffset = 0.0f; }

	/** Scrolls to the end, as of the last tick. */
	void ScrollToEnd();

	/** Scrolls at the next tick so that a child or something in it is in sight. */
	void ScrollDescendantIntoView(const TSharedPtr<SWidget>& WidgetToFind);

	void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override;
	FReply OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;

private:
	void OnScrollBarScrolled(float InOffsetFraction);
	void Clamp();

	TSharedPtr<SScrollPanel> ScrollPanel;
	TSharedPtr<SScrollBar> ScrollBar;
	TWeakPtr<SWidget> WidgetToShow;
	FOnUserScrolled OnUserScrolled;
	EConsumeMouseWheel ConsumeMouseWheel;
	EOrientation Orientation;
	float ScrollOffset;
	float MaxScrollOffset;
	bool bScrollToEnd;
};
