// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Rendering/RenderingCommon.h"
#include "Widgets/SCompoundWidget.h"

// A widget that shows a picture made elsewhere and passes its input there. Left out: stereo, gamma, content scaling.

/** A widget that shows an ISlateViewport's picture and passes its input there. */
class SLATE_API SViewport : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SViewport)
		: _Content()
		, _ShowEffectWhenDisabled(true)
		, _EnableGammaCorrection(true)
		, _EnableBlending(false)
		, _IgnoreTextureAlpha(true)
		, _ViewportSize(FVector2D(320.0f, 240.0f))
	{}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_ATTRIBUTE(bool, ShowEffectWhenDisabled)
	SLATE_ARGUMENT(bool, EnableGammaCorrection)
	SLATE_ARGUMENT(bool, EnableBlending)
	SLATE_ARGUMENT(bool, IgnoreTextureAlpha)
	SLATE_ATTRIBUTE(FVector2D, ViewportSize)
	SLATE_END_ARGS()

	/** Makes the widget. */
	SViewport();

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** Sets what is shown. */
	void SetViewportInterface(TSharedRef<ISlateViewport> InViewportInterface) { ViewportInterface = InViewportInterface; }

	/** Returns what is shown, if it lives. */
	TWeakPtr<ISlateViewport> GetViewportInterface() { return ViewportInterface; }

	/** Puts a widget above the picture. */
	void SetContent(TSharedPtr<SWidget> InContent);

	/** Returns the widget above the picture. */
	const TSharedPtr<SWidget> GetContent() const { return ChildSlot.GetWidget(); }

	void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override;
	FCursorReply OnCursorQuery(const FGeometry& MyGeometry, const FPointerEvent& CursorEvent) const override;
	FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	void OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	void OnMouseLeave(const FPointerEvent& MouseEvent) override;
	FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	FReply OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	FReply OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	void OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent) override;
	FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	FReply OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	FReply OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent) override;
	FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent) override;
	void OnFocusLost(const FFocusEvent& InFocusEvent) override;
	bool SupportsKeyboardFocus() const override { return true; }

protected:
	int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
	FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	TWeakPtr<ISlateViewport> ViewportInterface;
	TAttribute<FVector2D> ViewportSize;
	TAttribute<bool> ShowDisabledEffect;
};
