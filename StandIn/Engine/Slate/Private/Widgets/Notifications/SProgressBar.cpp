// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Notifications/SProgressBar.h"
#include "Rendering/DrawElements.h"

SProgressBar::SProgressBar()
	: Style(nullptr)
{}

void SProgressBar::Construct(const FArguments& InArgs)
{
	check(InArgs._Style != nullptr);
	Style = InArgs._Style;
	Percent = InArgs._Percent;
	FillColorAndOpacity = InArgs._FillColorAndOpacity;
}

int32 SProgressBar::OnPaint(const FPaintArgs& /*Args*/, const FGeometry& AllottedGeometry, const FSlateRect& /*MyCullingRect*/,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const ESlateDrawEffect Effect = ShouldBeEnabled(bParentEnabled) ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect;
	const FLinearColor Tint = InWidgetStyle.GetColorAndOpacityTint();
	FSlateDrawElement::MakeBox(OutDrawElements, static_cast<uint32>(LayerId), AllottedGeometry.ToPaintGeometry(), &Style->BackgroundImage,
		Effect, Style->BackgroundImage.GetTint(InWidgetStyle) * Tint);
	const TOptional<float> Progress = Percent.Get();
	const FSlateBrush& Fill = Progress.IsSet() ? Style->FillImage : Style->MarqueeImage;
	const float Part = Progress.IsSet() ? FMath::Max(0.0f, FMath::Min(Progress.GetValue(), 1.0f)) : 1.0f;
	const FVector2D Size = AllottedGeometry.GetLocalSize();
	if (Part > 0.0f)
	{
		FSlateDrawElement::MakeBox(OutDrawElements, static_cast<uint32>(LayerId + 1),
			AllottedGeometry.ToPaintGeometry(FVector2D(0.0f, 0.0f), FVector2D(Size.X * Part, Size.Y)), &Fill, Effect,
			Fill.GetTint(InWidgetStyle) * FillColorAndOpacity.Get().GetColor(InWidgetStyle) * Tint);
	}
	return LayerId + 1;
}

FVector2D SProgressBar::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	return FVector2D(16.0f, 16.0f);
}
