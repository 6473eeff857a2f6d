// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Images/SImage.h"
#include "Rendering/DrawElements.h"

SImage::SImage()
{
	SetCanTick(false);
}

void SImage::Construct(const FArguments& InArgs)
{
	Image = InArgs._Image;
	ColorAndOpacity = InArgs._ColorAndOpacity;
	if (InArgs._OnMouseButtonDown.IsBound())
	{
		SetOnMouseButtonDown(InArgs._OnMouseButtonDown);
	}
}

int32 SImage::OnPaint(const FPaintArgs& /*Args*/, const FGeometry& AllottedGeometry, const FSlateRect& /*MyCullingRect*/,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const FSlateBrush* ImageBrush = Image.Get();
	if (ImageBrush != nullptr)
	{
		const ESlateDrawEffect Effect = ShouldBeEnabled(bParentEnabled) ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect;
		const FLinearColor Tint =
			InWidgetStyle.GetColorAndOpacityTint() * ColorAndOpacity.Get().GetColor(InWidgetStyle) * ImageBrush->GetTint(InWidgetStyle);
		FSlateDrawElement::MakeBox(
			OutDrawElements, static_cast<uint32>(LayerId), AllottedGeometry.ToPaintGeometry(), ImageBrush, Effect, Tint);
	}
	return LayerId;
}

FVector2D SImage::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	const FSlateBrush* ImageBrush = Image.Get();
	return ImageBrush != nullptr ? ImageBrush->GetImageSize() : FVector2D(0.0f, 0.0f);
}
