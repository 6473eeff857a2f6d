// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Input/SSlider.h"

#include "Rendering/DrawElements.h"
#include "Styling/CoreStyle.h"

namespace
{
constexpr float HandleWidth = 8.0f;
constexpr float RowHeight = 16.0f;
constexpr float BarHeight = 2.0f;
const FLinearColor HandleColor(0.25f, 0.25f, 0.25f);
const FLinearColor BarColor(0.05f, 0.05f, 0.05f);
}

SSlider::SSlider() : MinValue(0.0f), MaxValue(1.0f) {}

void SSlider::Construct(const FArguments& InArgs)
{
	check(InArgs._MinValue < InArgs._MaxValue);
	MinValue = InArgs._MinValue;
	MaxValue = InArgs._MaxValue;
	ValueAttribute = InArgs._Value;
	OnValueChanged = InArgs._OnValueChanged;
}

float SSlider::GetNormalizedValue() const
{
	return FMath::Clamp((GetValue() - MinValue) / (MaxValue - MinValue), 0.0f, 1.0f);
}

FReply SSlider::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (!IsEnabled() || MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}
	CommitPosition(MyGeometry, MouseEvent);
	return FReply::Handled().CaptureMouse(SharedThis(this));
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

FReply SSlider::OnMouseButtonUp(const FGeometry& /*MyGeometry*/, const FPointerEvent& MouseEvent)
{
	if (!HasMouseCapture() || MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}
	return FReply::Handled().ReleaseMouseCapture();
}

int32 SSlider::OnPaint(const FPaintArgs& /*Args*/, const FGeometry& AllottedGeometry, const FSlateRect& /*MyCullingRect*/,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& /*InWidgetStyle*/, bool bParentEnabled) const
{
	const FSlateBrush* const Brush = FCoreStyle::Get().GetBrush("WhiteBrush");
	const ESlateDrawEffect Effect = ShouldBeEnabled(bParentEnabled) ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect;
	const FVector2D Size = AllottedGeometry.GetLocalSize();
	FSlateDrawElement::MakeBox(OutDrawElements, LayerId,
		AllottedGeometry.ToPaintGeometry(FVector2D(0.0f, (Size.Y - BarHeight) / 2.0f), FVector2D(Size.X, BarHeight)), Brush, Effect, BarColor);
	FSlateDrawElement::MakeBox(OutDrawElements, LayerId + 1,
		AllottedGeometry.ToPaintGeometry(
			FVector2D((Size.X - HandleWidth) * GetNormalizedValue(), 0.0f), FVector2D(HandleWidth, Size.Y)),
		Brush, Effect, HandleColor);
	return LayerId + 1;
}

FVector2D SSlider::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	return FVector2D(2.0f * HandleWidth, RowHeight);
}

void SSlider::CommitPosition(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	const float Left = MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition()).X - HandleWidth / 2.0f;
	const float Share = FMath::Clamp(Left / FMath::Max(MyGeometry.GetLocalSize().X - HandleWidth, 1.0f), 0.0f, 1.0f);
	const float NewValue = MinValue + Share * (MaxValue - MinValue);
	if (!ValueAttribute.IsBound())
	{
		ValueAttribute.Set(NewValue);
	}
	OnValueChanged.ExecuteIfBound(NewValue);
}
