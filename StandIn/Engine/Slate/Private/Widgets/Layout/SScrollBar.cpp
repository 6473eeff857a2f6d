// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Layout/SScrollBar.h"
#include "Rendering/DrawElements.h"

namespace
{
/** The shortest thumb that can still be grabbed. */
const float MinThumbLength = 16.0f;
}

SScrollBar::SScrollBar()
	: Style(nullptr)
	, Orientation(Orient_Vertical)
	, OffsetFraction(0.0f)
	, ThumbSizeFraction(1.0f)
	, GrabOffset(0.0f)
	, bAlwaysShow(false)
	, bIsDragging(false)
{}

void SScrollBar::Construct(const FArguments& InArgs)
{
	check(InArgs._Style != nullptr);
	Style = InArgs._Style;
	OnUserScrolled = InArgs._OnUserScrolled;
	Orientation = InArgs._Orientation;
	bAlwaysShow = InArgs._AlwaysShowScrollbar;
	SetVisibility(TAttribute<EVisibility>::Create(TAttribute<EVisibility>::FGetter::CreateSP(this, &SScrollBar::ShouldBeVisible)));
}

void SScrollBar::SetState(float InOffsetFraction, float InThumbSizeFraction)
{
	ThumbSizeFraction = FMath::Max(0.0f, FMath::Min(InThumbSizeFraction, 1.0f));
	OffsetFraction = FMath::Max(0.0f, FMath::Min(InOffsetFraction, 1.0f - ThumbSizeFraction));
}

EVisibility SScrollBar::ShouldBeVisible() const
{
	return bAlwaysShow || IsNeeded() ? EVisibility::Visible : EVisibility::Collapsed;
}

void SScrollBar::GetThumb(float TrackLength, float& OutStart, float& OutLength) const
{
	OutLength = FMath::Min(TrackLength, FMath::Max(MinThumbLength, TrackLength * ThumbSizeFraction));
	const float Hidden = 1.0f - ThumbSizeFraction;
	OutStart = Hidden > 0.0f ? (TrackLength - OutLength) * (OffsetFraction / Hidden) : 0.0f;
}

FReply SScrollBar::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton || !IsNeeded())
	{
		return FReply::Unhandled();
	}
	const FVector2D Local = MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition());
	const float Position = Orientation == Orient_Vertical ? Local.Y : Local.X;
	const float TrackLength = Orientation == Orient_Vertical ? MyGeometry.GetLocalSize().Y : MyGeometry.GetLocalSize().X;
	float Start = 0.0f;
	float Length = 0.0f;
	GetThumb(TrackLength, Start, Length);
	const bool bOnThumb = Position >= Start && Position <= Start + Length;
	// A press beside the thumb centres it there.
	GrabOffset = bOnThumb ? Position - Start : Length / 2.0f;
	bIsDragging = true;
	if (!bOnThumb)
	{
		OnMouseMove(MyGeometry, MouseEvent);
	}
	return FReply::Handled().CaptureMouse(AsShared());
}

FReply SScrollBar::OnMouseButtonUp(const FGeometry& /*MyGeometry*/, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton || !bIsDragging)
	{
		return FReply::Unhandled();
	}
	bIsDragging = false;
	return FReply::Handled().ReleaseMouseCapture();
}

FReply SScrollBar::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (!bIsDragging)
	{
		return FReply::Unhandled();
	}
	const FVector2D Local = MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition());
	const float Position = Orientation == Orient_Vertical ? Local.Y : Local.X;
	const float TrackLength = Orientation == Orient_Vertical ? MyGeometry.GetLocalSize().Y : MyGeometry.GetLocalSize().X;
	float Start = 0.0f;
	float Length = 0.0f;
	GetThumb(TrackLength, Start, Length);
	const float Travel = TrackLength - Length;
	if (Travel > 0.0f)
	{
		const float Part = FMath::Max(0.0f, FMath::Min((Position - GrabOffset) / Travel, 1.0f));
		OnUserScrolled.ExecuteIfBound(Part * (1.0f - ThumbSizeFraction));
	}
	return FReply::Handled();
}

void SScrollBar::OnMouseCaptureLost(const FCaptureLostEvent& /*CaptureLostEvent*/)
{
	bIsDragging = false;
}

int32 SScrollBar::OnPaint(const FPaintArgs& /*Args*/, const FGeometry& AllottedGeometry, const FSlateRect& /*MyCullingRect*/,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const ESlateDrawEffect Effect = ShouldBeEnabled(bParentEnabled) ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect;
	const bool bVertical = Orientation == Orient_Vertical;
	const FSlateBrush& Track = bVertical ? Style->VerticalBackgroundImage : Style->HorizontalBackgroundImage;
	FSlateDrawElement::MakeBox(OutDrawElements, static_cast<uint32>(LayerId), AllottedGeometry.ToPaintGeometry(), &Track, Effect,
		Track.GetTint(InWidgetStyle) * InWidgetStyle.GetColorAndOpacityTint());
	if (IsNeeded())
	{
		const FVector2D Size = AllottedGeometry.GetLocalSize();
		float Start = 0.0f;
		float Length = 0.0f;
		GetThumb(bVertical ? Size.Y : Size.X, Start, Length);
		const FSlateBrush& Thumb = bIsDragging ? Style->DraggedThumbImage
			: IsHovered()                      ? Style->HoveredThumbImage
											   : Style->NormalThumbImage;
		const FVector2D Offset = bVertical ? FVector2D(1.0f, Start) : FVector2D(Start, 1.0f);
		const FVector2D ThumbSize =
			bVertical ? FVector2D(FMath::Max(0.0f, Size.X - 2.0f), Length) : FVector2D(Length, FMath::Max(0.0f, Size.Y - 2.0f));
		FSlateDrawElement::MakeBox(OutDrawElements, static_cast<uint32>(LayerId + 1), AllottedGeometry.ToPaintGeometry(Offset, ThumbSize),
			&Thumb, Effect, Thumb.GetTint(InWidgetStyle) * InWidgetStyle.GetColorAndOpacityTint());
	}
	return LayerId + 1;
}

FVector2D SScrollBar::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	return FVector2D(Style->Thickness, Style->Thickness);
}
