// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SLeafWidget.h"

// A horizontal slider. Left out: vertical ones, locking, steps, styles, gamepads.

/** A horizontal slider with a value between MinValue and MaxValue. */
class SLATE_API SSlider : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SSlider)
		: _MinValue(0.0f)
		, _MaxValue(1.0f)
		, _Value(1.0f)
	{
	}
	SLATE_ARGUMENT(float, MinValue)
	SLATE_ARGUMENT(float, MaxValue)
	SLATE_ATTRIBUTE(float, Value)
	SLATE_EVENT(FOnFloatValueChanged, OnValueChanged)
	SLATE_END_ARGS()

	/** Makes the widget. */
	SSlider();

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** Returns the value. */
	float GetValue() const { return ValueAttribute.Get(); }

	/** Sets the value or where it is polled from. */
	void SetValue(const TAttribute<float>& InValueAttribute) { ValueAttribute = InValueAttribute; }

	/** Returns where the handle stands: 0 at the left end, 1 at the right one. */
	float GetNormalizedValue() const;

	FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

protected:
	FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	void CommitPosition(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent);

	float MinValue;
	float MaxValue;
	TAttribute<float> ValueAttribute;
	FOnFloatValueChanged OnValueChanged;
};
