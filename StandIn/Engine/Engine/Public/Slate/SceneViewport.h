// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Containers/Set.h"
#include "Rendering/RenderingCommon.h"
#include "Templates/SharedPointer.h"
#include "UnrealClient.h"

class SViewport;
class SWidget;

// A viewport that is shown in a widget. Several bases: FSceneViewport* and FViewport* differ in address, so convert pointers
// and never reinterpret them. The size follows the widget when it is painted, unless a fixed size is set.
// A pressed button captures the mouse until the last one is released; moves are told as axes at once, not gathered to frames.
// Left out: full screen, other ways of capturing, debug drawing, the texture behind the render target provider.

/** Who has the texture of a viewport; there is none here, ask FViewport for its surface. */
class IViewportRenderTargetProvider
{
public:
	virtual ~IViewportRenderTargetProvider() {}
};

/** A viewport that is shown in a widget. */
class ENGINE_API FSceneViewport : public FViewportFrame, public FViewport, public ISlateViewport, public IViewportRenderTargetProvider
{
public:
	/** Makes a viewport of size zero for a client, shown in a widget that may be null. */
	FSceneViewport(FViewportClient* InViewportClient, TSharedPtr<SViewport> InViewportWidget);
	virtual ~FSceneViewport();

	virtual FViewport* GetViewport() override { return this; }
	virtual FViewportFrame* GetViewportFrame() override { return this; }
	virtual void Destroy() override;
	virtual void Invalidate() override;
	virtual void InvalidateDisplay() override;

	/** Gives the viewport a size in pixels that does not follow the widget; 0 by 0 lets it follow again. */
	void SetFixedViewportSize(uint32 NewViewportSizeX, uint32 NewViewportSizeY);

	/** Tells whether the size does not follow the widget. */
	bool HasFixedSize() const { return bForceViewportSize; }

	/** Returns the widget. */
	TWeakPtr<SViewport> GetViewportWidget() const { return ViewportWidget; }

	virtual bool KeyState(FKey Key) const override { return HeldKeys.Contains(Key); }
	virtual FIntPoint GetSizeXY() const override { return FViewport::GetSizeXY(); }
	virtual FIntPoint GetSize() const override { return FViewport::GetSizeXY(); }
	virtual bool RequiresVsync() const override { return false; }
	virtual TWeakPtr<SWidget> GetWidget() override;
	virtual void OnDrawViewport(const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		class FSlateWindowElementList& OutDrawElements, int32 LayerId, const class FWidgetStyle& InWidgetStyle,
		bool bParentEnabled) override;
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent) override;
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	virtual FReply OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	virtual FReply OnFocusReceived(const FFocusEvent& InFocusEvent) override;
	virtual void OnFocusLost(const FFocusEvent& InFocusEvent) override;

private:
	/** Notes which modifier keys are held, as the mouse's events say it. */
	void UpdateModifierKeys(const FPointerEvent& InMouseEvent);

	TWeakPtr<SViewport> ViewportWidget;
	bool bForceViewportSize;
	TSet<FKey> HeldKeys;
};
