// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Text/STextBlock.h"
#include "Rendering/DrawElements.h"
#include "StandIn/FontMeasurer.h"
#include "StandIn/TextLines.h"

STextBlock::STextBlock()
	: Style(nullptr)
	, LastPaintedWidth(0.0f)
{
	SetCanTick(false);
}

void STextBlock::Construct(const FArguments& InArgs)
{
	Style = InArgs._TextStyle;
	check(Style != nullptr);
	BoundText = InArgs._Text;
	Font = InArgs._Font;
	ColorAndOpacity = InArgs._ColorAndOpacity;
	ShadowOffset = InArgs._ShadowOffset;
	ShadowColorAndOpacity = InArgs._ShadowColorAndOpacity;
	WrapTextAt = InArgs._WrapTextAt;
	AutoWrapText = InArgs._AutoWrapText;
	Margin = InArgs._Margin;
	Justification = InArgs._Justification;
	MinDesiredWidth = InArgs._MinDesiredWidth;
	OnDoubleClicked = InArgs._OnDoubleClicked;
}

FReply STextBlock::OnMouseButtonDoubleClick(const FGeometry& InMyGeometry, const FPointerEvent& InMouseEvent)
{
	if (OnDoubleClicked.IsBound() && InMouseEvent.GetEffectingButton() == EKeys::LeftMouseButton)
	{
		const FReply Reply = OnDoubleClicked.Execute();
		if (Reply.IsEventHandled())
		{
			return Reply;
		}
	}
	return SLeafWidget::OnMouseButtonDoubleClick(InMyGeometry, InMouseEvent);
}

float STextBlock::GetWrapWidth() const
{
	const float FixedWidth = WrapTextAt.Get();
	if (AutoWrapText.Get() && LastPaintedWidth > 0.0f)
	{
		return FixedWidth > 0.0f ? FMath::Min(FixedWidth, LastPaintedWidth) : LastPaintedWidth;
	}
	return FixedWidth;
}

int32 STextBlock::OnPaint(const FPaintArgs& /*Args*/, const FGeometry& AllottedGeometry, const FSlateRect& /*MyCullingRect*/,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const FMargin TextMargin = Margin.Get();
	const float RoomWidth = AllottedGeometry.GetLocalSize().X - TextMargin.Left - TextMargin.Right;
	LastPaintedWidth = FMath::Max(RoomWidth, 0.0f);

	const FSlateFontInfo FontInfo = GetFont();
	StandIn::IFontMeasurer& Measurer = StandIn::GetFontMeasurer();
	const float LineHeight = Measurer.GetLineHeight(FontInfo, 1.0f);
	const TArray<FString> Lines = StandIn::BreakLines(GetText().ToString(), FontInfo, GetWrapWidth());
	const bool bEllipsis = GetMetaData<StandIn::FEllipsisMetaData>().IsValid();
	const ESlateDrawEffect Effect = ShouldBeEnabled(bParentEnabled) ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect;
	const FSlateColor Color = ColorAndOpacity.IsSet() ? ColorAndOpacity.Get() : Style->ColorAndOpacity;
	const FLinearColor Tint = InWidgetStyle.GetColorAndOpacityTint() * Color.GetColor(InWidgetStyle);
	const FVector2D Shadow = ShadowOffset.IsSet() ? ShadowOffset.Get() : Style->ShadowOffset;
	FLinearColor ShadowColor = ShadowColorAndOpacity.IsSet() ? ShadowColorAndOpacity.Get() : Style->ShadowColorAndOpacity;
	ShadowColor.A *= Tint.A;
	const bool bHasShadow = Shadow != FVector2D(0.0f, 0.0f);

	for (int32 LineIndex = 0; LineIndex < Lines.Num(); ++LineIndex)
	{
		const FString Line = bEllipsis ? StandIn::CutWithEllipsis(Lines[LineIndex], FontInfo, RoomWidth) : Lines[LineIndex];
		const float LineWidth = Line.Len() > 0 ? Measurer.MeasureLine(*Line, Line.Len(), FontInfo, 1.0f) : 0.0f;
		const ETextJustify::Type Justify = Justification.Get();
		const float OffsetX = Justify == ETextJustify::Center ? (RoomWidth - LineWidth) / 2.0f
			: Justify == ETextJustify::Right                  ? RoomWidth - LineWidth
															  : 0.0f;
		const FVector2D Offset(TextMargin.Left + OffsetX, TextMargin.Top + LineHeight * static_cast<float>(LineIndex));
		const FVector2D Size(LineWidth, LineHeight);
		if (bHasShadow)
		{
			FSlateDrawElement::MakeText(OutDrawElements, static_cast<uint32>(LayerId),
				AllottedGeometry.ToPaintGeometry(Offset + Shadow, Size), Line, FontInfo, Effect, ShadowColor);
		}
		FSlateDrawElement::MakeText(OutDrawElements, static_cast<uint32>(LayerId + (bHasShadow ? 1 : 0)),
			AllottedGeometry.ToPaintGeometry(Offset, Size), Line, FontInfo, Effect, Tint);
	}
	return LayerId + (bHasShadow ? 1 : 0);
}

FVector2D STextBlock::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	const FSlateFontInfo FontInfo = GetFont();
	StandIn::IFontMeasurer& Measurer = StandIn::GetFontMeasurer();
	const TArray<FString> Lines = StandIn::BreakLines(GetText().ToString(), FontInfo, GetWrapWidth());
	float Width = 0.0f;
	for (int32 LineIndex = 0; LineIndex < Lines.Num(); ++LineIndex)
	{
		const FString& Line = Lines[LineIndex];
		Width = FMath::Max(Width, Line.Len() > 0 ? Measurer.MeasureLine(*Line, Line.Len(), FontInfo, 1.0f) : 0.0f);
	}
	const FVector2D Size(Width, Measurer.GetLineHeight(FontInfo, 1.0f) * static_cast<float>(Lines.Num()));
	const FVector2D WithMargin = Size + Margin.Get().GetDesiredSize();
	return FVector2D(FMath::Max(MinDesiredWidth.Get(), WithMargin.X), WithMargin.Y);
}
