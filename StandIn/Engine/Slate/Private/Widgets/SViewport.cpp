// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/SViewport.h"
#include "Rendering/DrawElements.h"
#include "Widgets/SNullWidget.h"

SViewport::SViewport() {}

void SViewport::Construct(const FArguments& InArgs)
{
	ShowDisabledEffect = InArgs._ShowEffectWhenDisabled;
	ViewportSize = InArgs._ViewportSize;
	ChildSlot[InArgs._Content.Widget];
}

void SViewport::SetContent(TSharedPtr<SWidget> InContent)
{
	ChildSlot[InContent.IsValid() ? InContent.ToSharedRef() : SNullWidget::NullWidget];
}

void SViewport::Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime)
{
	if (const TSharedPtr<ISlateViewport> Viewport = ViewportInterface.Pin())
	{
		Viewport->Tick(AllottedGeometry, InCurrentTime, InDeltaTime);
	}
}

int32 SViewport::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const bool bEnabled = ShouldBeEnabled(bParentEnabled);
	if (const TSharedPtr<ISlateViewport> Viewport = ViewportInterface.Pin())
	{
		Viewport->OnDrawViewport(AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled);
		FSlateDrawElement::MakeViewport(OutDrawElements, static_cast<uint32>(LayerId), AllottedGeometry.ToPaintGeometry(), Viewport,
			ShowDisabledEffect.Get() && !bEnabled ? ESlateDrawEffect::DisabledEffect : ESlateDrawEffect::None,
			InWidgetStyle.GetColorAndOpacityTint());
	}
	return SCompoundWidget::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bEnabled);
}

FVector2D SViewport::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	return ViewportSize.Get();
}

FCursorReply SViewport::OnCursorQuery(const FGeometry& MyGeometry, const FPointerEvent& CursorEvent) const
{
	const TSharedPtr<ISlateViewport> Viewport = ViewportInterface.Pin();
	return Viewport.IsValid() ? Viewport->OnCursorQuery(MyGeometry, CursorEvent) : FCursorReply::Unhandled();
}

FReply SViewport::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	const TSharedPtr<ISlateViewport> Viewport = ViewportInterface.Pin();
	return Viewport.IsValid() ? Viewport->OnMouseButtonDown(MyGeometry, MouseEvent) : FReply::Unhandled();
}

FReply SViewport::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	const TSharedPtr<ISlateViewport> Viewport = ViewportInterface.Pin();
	return Viewport.IsValid() ? Viewport->OnMouseButtonUp(MyGeometry, MouseEvent) : FReply::Unhandled();
}

void SViewport::OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	SCompoundWidget::OnMouseEnter(MyGeometry, MouseEvent);
	if (const TSharedPtr<ISlateViewport> Viewport = ViewportInterface.Pin())
	{
		Viewport->OnMouseEnter(MyGeometry, MouseEvent);
	}
}

void SViewport::OnMouseLeave(const FPointerEvent& MouseEvent)
{
	SCompoundWidget::OnMouseLeave(MouseEvent);
	if (const TSharedPtr<ISlateViewport> Viewport = ViewportInterface.Pin())
	{
		Viewport->OnMouseLeave(MouseEvent);
	}
}

FReply SViewport::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	const TSharedPtr<ISlateViewport> Viewport = ViewportInterface.Pin();
	return Viewport.IsValid() ? Viewport->OnMouseMove(MyGeometry, MouseEvent) : FReply::Unhandled();
}

FReply SViewport::OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	const TSharedPtr<ISlateViewport> Viewport = ViewportInterface.Pin();
	return Viewport.IsValid() ? Viewport->OnMouseWheel(MyGeometry, MouseEvent) : FReply::Unhandled();
}

FReply SViewport::OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	const TSharedPtr<ISlateViewport> Viewport = ViewportInterface.Pin();
	return Viewport.IsValid() ? Viewport->OnMouseButtonDoubleClick(MyGeometry, MouseEvent) : FReply::Unhandled();
}

void SViewport::OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent)
{
	if (const TSharedPtr<ISlateViewport> Viewport = ViewportInterface.Pin())
	{
		Viewport->OnMouseCaptureLost(CaptureLostEvent);
	}
}

FReply SViewport::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	const TSharedPtr<ISlateViewport> Viewport = ViewportInterface.Pin();
	return Viewport.IsValid() ? Viewport->OnKeyDown(MyGeometry, InKeyEvent) : FReply::Unhandled();
}

FReply SViewport::OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	const TSharedPtr<ISlateViewport> Viewport = ViewportInterface.Pin();
	return Viewport.IsValid() ? Viewport->OnKeyUp(MyGeometry, InKeyEvent) : FReply::Unhandled();
}

FReply SViewport::OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent)
{
	const TSharedPtr<ISlateViewport> Viewport = ViewportInterface.Pin();
	return Viewport.IsValid() ? Viewport->OnKeyChar(MyGeometry, InCharacterEvent) : FReply::Unhandled();
}

FReply SViewport::OnFocusReceived(const FGeometry& /*MyGeometry*/, const FFocusEvent& InFocusEvent)
{
	const TSharedPtr<ISlateViewport> Viewport = ViewportInterface.Pin();
	return Viewport.IsValid() ? Viewport->OnFocusReceived(InFocusEvent) : FReply::Unhandled();
}

void SViewport::OnFocusLost(const FFocusEvent& InFocusEvent)
{
	if (const TSharedPtr<ISlateViewport> Viewport = ViewportInterface.Pin())
	{
		Viewport->OnFocusLost(InFocusEvent);
	}
}
