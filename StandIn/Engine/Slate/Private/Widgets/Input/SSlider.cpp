// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Input/SSlider.h"
#include "Rendering/DrawElements.h"

namespace
{
/** The thumb's size. */
const float SliderThumbSize = 12.0f;
}

SSlider::SSlider()
	: Style(nullptr)
	, MinValue(0.0f)
	, MaxValue(1.0f)
	, bIsFocusable(true)
{}

void SSlider::Construct(const FArguments& InArgs)
{
	check(InArgs._Style != nullptr);
	check(InArgs._MinValue < InArgs._MaxValue);
	Style = InArgs._Style;
	Value = InArgs._Value;
	MinValue = InArgs._MinValue;
	MaxValue = InArgs._MaxValue;
	Locked = InArgs._Locked;
	StepSize = InArgs._StepSize;
	bIsFocusable = InArgs._IsFocusable;
	OnMouseCaptureBegin = InArgs._OnMouseCaptureBegin;
	OnMouseCaptureEnd = InArgs._OnMouseCaptureEnd;
	OnValueChanged = InArgs._OnValueChanged;
}

float SSlider::GetNormalized() const
{
	return FMath::Max(0.0f, FMath::Min((Value.Get() - MinValue) / (MaxValue - MinValue), 1.0f));
}

void SSlider::CommitValue(float NewValue)
{
	const float Inside = FMath::Max(MinValue, FMath::Min(NewValue, MaxValue));
	if (Inside != Value.Get())
	{
		if (!Value.IsBound())
		{
			Value = Inside;
		}
		OnValueChanged.ExecuteIfBound(Inside);
	}
}

void SSlider::CommitPosition(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	const float Travel = FMath::Max(1.0f, MyGeometry.GetLocalSize().X - SliderThumbSize);
	const float Part = (MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition()).X - SliderThumbSize / 2.0f) / Travel;
	CommitValue(MinValue + (MaxValue - MinValue) * FMath::Max(0.0f, FMath::Min(Part, 1.0f)));
}

FReply SSlider::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	const FKey Key = InKeyEvent.GetKey();
	if (!Locked.Get() && (Key == EKeys::Left || Key == EKeys::Right))
	{
		CommitValue(Value.Get() + (Key == EKeys::Left ? -StepSize.Get() : StepSize.Get()));
		return FReply::Handled();
	}
	return SLeafWidget::OnKeyDown(MyGeometry, InKeyEvent);
}

FReply SSlider::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton || Locked.Get())
	{
		return FReply::Unhandled();
	}
	OnMouseCaptureBegin.ExecuteIfBound();
	CommitPosition(MyGeometry, MouseEvent);
	return FReply::Handled().CaptureMouse(AsShared());
}

FReply SSlider::OnMouseButtonUp(const FGeometry& /*MyGeometry*/, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton || !HasMouseCapture())
	{
		return FReply::Unhandled();
	}
	OnMouseCaptureEnd.ExecuteIfBound();
	return FReply::Handled().ReleaseMouseCapture();
}

FReply SSlider::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (!HasMouseCapture())
	{
		return FReply::Unhandled();
	}
	CommitPosition(MyGeometry, MouseEvent);
	return FReply::Handled();
}

int32 SSlider::OnPaint(const FPaintArgs& /*Args*/, const FGeometry& AllottedGeometry, const FSlateRect& /*MyCullingRect*/,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const ESlateDrawEffect Effect = ShouldBeEnabled(bParentEnabled) ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect;
	const FVector2D Size = AllottedGeometry.GetLocalSize();
	const FLinearColor Tint = InWidgetStyle.GetColorAndOpacityTint();
	FSlateDrawElement::MakeBox(OutDrawElements, static_cast<uint32>(LayerId),
		AllottedGeometry.ToPaintGeometry(FVector2D(SliderThumbSize / 2.0f, (Size.Y - Style->BarThickness) / 2.0f),
			FVector2D(FMath::Max(0.0f, Size.X - SliderThumbSize), Style->BarThickness)),
		&Style->NormalBarImage, Effect, Style->NormalBarImage.GetTint(InWidgetStyle) * Tint);
	const FSlateBrush& Thumb = IsHovered() ? Style->HoveredThumbImage : Style->NormalThumbImage;
	FSlateDrawElement::MakeBox(OutDrawElements, static_cast<uint32>(LayerId + 1),
		AllottedGeometry.ToPaintGeometry(
			FVector2D(FMath::Max(0.0f, Size.X - SliderThumbSize) * GetNormalized(), (Size.Y - SliderThumbSize) / 2.0f),
			FVector2D(SliderThumbSize, SliderThumbSize)),
		&Thumb, Effect, Thumb.GetTint(InWidgetStyle) * Tint);
	return LayerId + 1;
}

FVector2D SSlider::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	return FVector2D(64.0f, SliderThumbSize);
}
