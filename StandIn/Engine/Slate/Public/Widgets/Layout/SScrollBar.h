// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/SLeafWidget.h"

// A scroll bar: a track and a thumb. It takes no space while everything is in sight.

/** A scroll bar; tells where its thumb was dragged to and is told where it lies. */
class SLATE_API SScrollBar : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SScrollBar)
		: _Style(&FCoreStyle::Get().GetWidgetStyle<FScrollBarStyle>("Scrollbar"))
		, _AlwaysShowScrollbar(false)
		, _Orientation(Orient_Vertical)
	{}
	SLATE_STYLE_ARGUMENT(FScrollBarStyle, Style)
	SLATE_EVENT(FOnUserScrolled, OnUserScrolled)
	SLATE_ARGUMENT(bool, AlwaysShowScrollbar)
	SLATE_ARGUMENT(EOrientation, Orientation)
	SLATE_END_ARGS()

	/** Makes the widget. */
	SScrollBar();

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** Sets where the thumb starts and how long it is, both in parts of the track. */
	virtual void SetState(float InOffsetFraction, float InThumbSizeFraction);

	/** Sets what is told where the thumb was dragged to, in parts of the track. */
	void SetOnUserScrolled(const FOnUserScrolled& InHandler) { OnUserScrolled = InHandler; }

	/** Says whether not everything is in sight. */
	bool IsNeeded() const { return ThumbSizeFraction < 1.0f - 1e-4f; }

	/** Says whether the thumb is being dragged. */
	bool IsScrolling() const { return bIsDragging; }

	/** Returns where the thumb starts, in parts of the track. */
	float DistanceFromTop() const { return OffsetFraction; }

	FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	void OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent) override;

protected:
	int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
	FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	EVisibility ShouldBeVisible() const;
	void GetThumb(float TrackLength, float& OutStart, float& OutLength) const;

	const FScrollBarStyle* Style;
	FOnUserScrolled OnUserScrolled;
	EOrientation Orientation;
	float OffsetFraction;
	float ThumbSizeFraction;
	float GrabOffset;
	bool bAlwaysShow;
	bool bIsDragging;
};
