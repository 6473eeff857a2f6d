// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/SLeafWidget.h"

// A slider for a number, horizontal. Left out: vertical sliders, gamepads.

/** A slider for a number, from left to right. */
class SLATE_API SSlider : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SSlider)
		: _Style(&FCoreStyle::Get().GetWidgetStyle<FSliderStyle>("Slider"))
		, _Value(1.0f)
		, _MinValue(0.0f)
		, _MaxValue(1.0f)
		, _Locked(false)
		, _StepSize(0.01f)
		, _IsFocusable(true)
	{}
	SLATE_STYLE_ARGUMENT(FSliderStyle, Style)
	SLATE_ATTRIBUTE(float, Value)
	SLATE_ARGUMENT(float, MinValue)
	SLATE_ARGUMENT(float, MaxValue)
	SLATE_ATTRIBUTE(bool, Locked)
	SLATE_ATTRIBUTE(float, StepSize)
	SLATE_ARGUMENT(bool, IsFocusable)
	SLATE_EVENT(FSimpleDelegate, OnMouseCaptureBegin)
	SLATE_EVENT(FSimpleDelegate, OnMouseCaptureEnd)
	SLATE_EVENT(FOnFloatValueChanged, OnValueChanged)
	SLATE_END_ARGS()

	/** Makes the widget. */
	SSlider();

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** Returns the number. */
	float GetValue() const { return Value.Get(); }

	/** Sets the number or where it is polled from. */
	void SetValue(const TAttribute<float>& InValue) { Value = InValue; }

	bool SupportsKeyboardFocus() const override { return bIsFocusable; }
	FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;

protected:
	int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
	FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	float GetNormalized() const;
	void CommitValue(float NewValue);
	void CommitPosition(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent);

	const FSliderStyle* Style;
	TAttribute<float> Value;
	TAttribute<bool> Locked;
	TAttribute<float> StepSize;
	FSimpleDelegate OnMouseCaptureBegin;
	FSimpleDelegate OnMouseCaptureEnd;
	FOnFloatValueChanged OnValueChanged;
	float MinValue;
	float MaxValue;
	bool bIsFocusable;
};
