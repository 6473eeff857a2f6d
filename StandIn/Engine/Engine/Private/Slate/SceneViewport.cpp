// Copyright The Tintmill authors. All rights reserved.

#include "Slate/SceneViewport.h"

#include "Widgets/SViewport.h"

FSceneViewport::FSceneViewport(FViewportClient* InViewportClient, TSharedPtr<SViewport> InViewportWidget)
	: FViewport(InViewportClient)
	, ViewportWidget(InViewportWidget)
	, bForceViewportSize(false)
{}

FSceneViewport::~FSceneViewport()
{
	FSceneViewport::Destroy();
}

void FSceneViewport::Destroy()
{
	ViewportClient = nullptr;
	ReleaseSurfaces();
}

void FSceneViewport::Invalidate()
{
	InvalidateDisplay();
}

void FSceneViewport::InvalidateDisplay()
{
	InvalidateScene();
	if (ViewportClient != nullptr)
	{
		ViewportClient->RedrawRequested(this);
	}
}

void FSceneViewport::SetFixedViewportSize(uint32 NewViewportSizeX, uint32 NewViewportSizeY)
{
	bForceViewportSize = NewViewportSizeX > 0 && NewViewportSizeY > 0;
	if (bForceViewportSize)
	{
		UpdateSize(NewViewportSizeX, NewViewportSizeY);
	}
	else if (ViewportWidget.IsValid())
	{
		const FVector2D WidgetSize = ViewportWidget.Pin()->GetCachedGeometry().GetDrawSize();
		UpdateSize(static_cast<uint32>(FMath::Max(0, FMath::RoundToInt(WidgetSize.X))),
			static_cast<uint32>(FMath::Max(0, FMath::RoundToInt(WidgetSize.Y))));
	}
}

TWeakPtr<SWidget> FSceneViewport::GetWidget()
{
	return ViewportWidget;
}

void FSceneViewport::OnDrawViewport(
	const FGeometry& AllottedGeometry, const FSlateRect&, FSlateWindowElementList&, int32, const FWidgetStyle&, bool)
{
	if (!bForceViewportSize)
	{
		const FVector2D DrawSize = AllottedGeometry.GetDrawSize();
		const uint32 NewSizeX = static_cast<uint32>(FMath::Max(0, FMath::RoundToInt(DrawSize.X)));
		const uint32 NewSizeY = static_cast<uint32>(FMath::Max(0, FMath::RoundToInt(DrawSize.Y)));
		if (FIntPoint(static_cast<int32>(NewSizeX), static_cast<int32>(NewSizeY)) != FViewport::GetSizeXY())
		{
			UpdateSize(NewSizeX, NewSizeY);
			InvalidateDisplay();
		}
	}
}

FReply FSceneViewport::OnMouseButtonDown(const FGeometry&, const FPointerEvent& MouseEvent)
{
	if (ViewportClient == nullptr)
	{
		return FReply::Unhandled();
	}
	HeldKeys.Add(MouseEvent.GetEffectingButton());
	UpdateModifierKeys(MouseEvent);
	ViewportClient->InputKey(this, 0, MouseEvent.GetEffectingButton(), IE_Pressed);
	FReply Reply = FReply::Handled();
	if (ViewportWidget.IsValid())
	{
		const TSharedRef<SViewport> Widget = ViewportWidget.Pin().ToSharedRef();
		Reply.SetUserFocus(Widget, EFocusCause::Mouse).CaptureMouse(Widget);
	}
	return Reply;
}

FReply FSceneViewport::OnMouseButtonUp(const FGeometry&, const FPointerEvent& MouseEvent)
{
	if (ViewportClient == nullptr)
	{
		return FReply::Unhandled();
	}
	HeldKeys.Remove(MouseEvent.GetEffectingButton());
	UpdateModifierKeys(MouseEvent);
	ViewportClient->InputKey(this, 0, MouseEvent.GetEffectingButton(), IE_Released);
	FReply Reply = FReply::Handled();
	const bool bStillHeld = KeyState(EKeys::LeftMouseButton) || KeyState(EKeys::MiddleMouseButton) || KeyState(EKeys::RightMouseButton);
	return bStillHeld ? Reply : Reply.ReleaseMouseCapture();
}

FReply FSceneViewport::OnMouseMove(const FGeometry&, const FPointerEvent& MouseEvent)
{
	if (ViewportClient == nullptr || !ViewportWidget.IsValid() || !ViewportWidget.Pin()->HasMouseCapture())
	{
		return FReply::Unhandled();
	}
	UpdateModifierKeys(MouseEvent);
	const FVector2D Delta = MouseEvent.GetCursorDelta();
	if (Delta.X != 0.0f)
	{
		ViewportClient->InputAxis(this, 0, EKeys::MouseX, Delta.X, 0.0f);
	}
	if (Delta.Y != 0.0f)
	{
		ViewportClient->InputAxis(this, 0, EKeys::MouseY, -Delta.Y, 0.0f);
	}
	return FReply::Handled();
}

FReply FSceneViewport::OnMouseWheel(const FGeometry&, const FPointerEvent& MouseEvent)
{
	if (ViewportClient == nullptr)
	{
		return FReply::Unhandled();
	}
	UpdateModifierKeys(MouseEvent);
	const FKey Direction = MouseEvent.GetWheelDelta() < 0.0f ? EKeys::MouseScrollDown : EKeys::MouseScrollUp;
	ViewportClient->InputKey(this, 0, Direction, IE_Pressed);
	ViewportClient->InputKey(this, 0, Direction, IE_Released);
	ViewportClient->InputAxis(this, 0, EKeys::MouseWheelAxis, MouseEvent.GetWheelDelta(), 0.0f);
	return FReply::Handled();
}

void FSceneViewport::OnMouseCaptureLost(const FCaptureLostEvent&)
{
	const TSet<FKey> Held = HeldKeys;
	for (const FKey& Key : Held)
	{
		if (Key.IsMouseButton())
		{
			HeldKeys.Remove(Key);
			if (ViewportClient != nullptr)
			{
				ViewportClient->InputKey(this, 0, Key, IE_Released);
			}
		}
	}
}

FReply FSceneViewport::OnKeyDown(const FGeometry&, const FKeyEvent& InKeyEvent)
{
	HeldKeys.Add(InKeyEvent.GetKey());
	const EInputEvent Event = InKeyEvent.IsRepeat() ? IE_Repeat : IE_Pressed;
	if (ViewportClient != nullptr && ViewportClient->InputKey(this, 0, InKeyEvent.GetKey(), Event))
	{
		return FReply::Handled();
	}
	return FReply::Unhandled();
}

FReply FSceneViewport::OnKeyUp(const FGeometry&, const FKeyEvent& InKeyEvent)
{
	HeldKeys.Remove(InKeyEvent.GetKey());
	if (ViewportClient != nullptr && ViewportClient->InputKey(this, 0, InKeyEvent.GetKey(), IE_Released))
	{
		return FReply::Handled();
	}
	return FReply::Unhandled();
}

FReply FSceneViewport::OnFocusReceived(const FFocusEvent&)
{
	if (ViewportClient != nullptr)
	{
		ViewportClient->ReceivedFocus(this);
	}
	return FReply::Handled();
}

void FSceneViewport::OnFocusLost(const FFocusEvent&)
{
	HeldKeys.Empty();
	if (ViewportClient != nullptr)
	{
		ViewportClient->LostFocus(this);
	}
}

void FSceneViewport::UpdateModifierKeys(const FPointerEvent& InMouseEvent)
{
	// Events do not say which of two keys it is; the left one stands for both.
	const auto Note = [this](const FKey& Left, const FKey& Right, bool bHeld) {
		if (!bHeld)
		{
			HeldKeys.Remove(Left);
			HeldKeys.Remove(Right);
		}
		else if (!HeldKeys.Contains(Right))
		{
			HeldKeys.Add(Left);
		}
	};
	const FModifierKeysState& Modifiers = InMouseEvent.GetModifierKeys();
	Note(EKeys::LeftAlt, EKeys::RightAlt, Modifiers.IsAltDown());
	Note(EKeys::LeftControl, EKeys::RightControl, Modifiers.IsControlDown());
	Note(EKeys::LeftShift, EKeys::RightShift, Modifiers.IsShiftDown());
	Note(EKeys::LeftCommand, EKeys::RightCommand, Modifiers.IsCommandDown());
}
