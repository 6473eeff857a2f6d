// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Layout/SBorder.h"
#include "Rendering/DrawElements.h"

SBorder::SBorder()
	: BorderImage(FCoreStyle::Get().GetBrush("Border"))
	, DesiredSizeScale(FVector2D(1.0f, 1.0f))
	, ShowDisabledEffect(true)
{
	SetCanTick(false);
}

void SBorder::Construct(const FArguments& InArgs)
{
	ContentScale = InArgs._ContentScale;
	ColorAndOpacity = InArgs._ColorAndOpacity;
	DesiredSizeScale = InArgs._DesiredSizeScale;
	ShowDisabledEffect = InArgs._ShowEffectWhenDisabled;
	BorderImage = InArgs._BorderImage;
	BorderBackgroundColor = InArgs._BorderBackgroundColor;
	ForegroundColor = InArgs._ForegroundColor;
	if (InArgs._OnMouseButtonDown.IsBound())
	{
		SetOnMouseButtonDown(InArgs._OnMouseButtonDown);
	}
	if (InArgs._OnMouseButtonUp.IsBound())
	{
		SetOnMouseButtonUp(InArgs._OnMouseButtonUp);
	}
	if (InArgs._OnMouseMove.IsBound())
	{
		SetOnMouseMove(InArgs._OnMouseMove);
	}
	if (InArgs._OnMouseDoubleClick.IsBound())
	{
		SetOnMouseDoubleClick(InArgs._OnMouseDoubleClick);
	}
	ChildSlot.HAlign(InArgs._HAlign).VAlign(InArgs._VAlign).Padding(InArgs._Padding)[InArgs._Content.Widget];
}

void SBorder::SetContent(TSharedRef<SWidget> InContent)
{
	ChildSlot[InContent];
}

void SBorder::ClearContent()
{
	ChildSlot.DetachWidget();
}

int32 SBorder::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const FSlateBrush* Brush = BorderImage.Get();
	if (Brush != nullptr && Brush->GetDrawType() != ESlateBrushDrawType::NoDrawType)
	{
		const bool bShowDisabled = ShowDisabledEffect.Get() && !ShouldBeEnabled(bParentEnabled);
		FSlateDrawElement::MakeBox(OutDrawElements, static_cast<uint32>(LayerId), AllottedGeometry.ToPaintGeometry(), Brush,
			bShowDisabled ? ESlateDrawEffect::DisabledEffect : ESlateDrawEffect::None,
			Brush->GetTint(InWidgetStyle) * InWidgetStyle.GetColorAndOpacityTint() * BorderBackgroundColor.Get().GetColor(InWidgetStyle));
	}
	return SCompoundWidget::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled);
}

FVector2D SBorder::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	return DesiredSizeScale.Get() * SCompoundWidget::ComputeDesiredSize(LayoutScaleMultiplier);
}
