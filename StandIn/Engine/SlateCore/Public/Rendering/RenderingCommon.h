// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Input/CursorReply.h"
#include "Input/Events.h"
#include "Input/Reply.h"
#include "Layout/Geometry.h"

class SWidget;

// What drawing shares, and the interface of things that fill a viewport widget. Left out: vertices, shaders, textures.

/** Variations of drawing an element. */
enum class ESlateDrawEffect : uint8
{
	None = 0,
	NoBlending = 1 << 0,
	PreMultipliedAlpha = 1 << 1,
	NoGamma = 1 << 2,
	InvertAlpha = 1 << 3,
	NoPixelSnapping = 1 << 4,
	DisabledEffect = 1 << 5,
	IgnoreTextureAlpha = 1 << 6,
	ReverseGamma = 1 << 7
};

/** Joins two effects. */
constexpr ESlateDrawEffect operator|(ESlateDrawEffect A, ESlateDrawEffect B)
{
	return static_cast<ESlateDrawEffect>(static_cast<uint8>(A) | static_cast<uint8>(B));
}

/** Returns what two effects share. */
constexpr ESlateDrawEffect operator&(ESlateDrawEffect A, ESlateDrawEffect B)
{
	return static_cast<ESlateDrawEffect>(static_cast<uint8>(A) & static_cast<uint8>(B));
}

/** What a viewport widget shows and to whom it passes its input. */
class ISlateViewport
{
public:
	/** Destroys the viewport. */
	virtual ~ISlateViewport() {}

	/** Is told that the widget is painted now. */
	virtual void OnDrawViewport(const FGeometry& /*AllottedGeometry*/, const FSlateRect& /*MyCullingRect*/,
		class FSlateWindowElementList& /*OutDrawElements*/, int32 /*LayerId*/, const class FWidgetStyle& /*InWidgetStyle*/,
		bool /*bParentEnabled*/)
	{}

	/** Returns the size of the picture, in pixels. */
	virtual FIntPoint GetSize() const = 0;

	/** Says whether the picture is to be shown in step with the display. */
	virtual bool RequiresVsync() const = 0;

	/** Says whether the picture may be stretched to the widget. */
	virtual bool AllowScaling() const { return true; }

	/** Is called with the widget's geometry at every tick; times in seconds. */
	virtual void Tick(const FGeometry& /*AllottedGeometry*/, double /*InCurrentTime*/, float /*DeltaTime*/) {}

	/** Is asked for the cursor. */
	virtual FCursorReply OnCursorQuery(const FGeometry& /*MyGeometry*/, const FPointerEvent& /*CursorEvent*/)
	{
		return FCursorReply::Unhandled();
	}

	/** Is told of a pressed button. */
	virtual FReply OnMouseButtonDown(const FGeometry& /*MyGeometry*/, const FPointerEvent& /*MouseEvent*/) { return FReply::Unhandled(); }

	/** Is told of a released button. */
	virtual FReply OnMouseButtonUp(const FGeometry& /*MyGeometry*/, const FPointerEvent& /*MouseEvent*/) { return FReply::Unhandled(); }

	/** Is told of a double click. */
	virtual FReply OnMouseButtonDoubleClick(const FGeometry& /*InMyGeometry*/, const FPointerEvent& /*InMouseEvent*/)
	{
		return FReply::Unhandled();
	}

	/** Is told that the mouse came in. */
	virtual void OnMouseEnter(const FGeometry& /*MyGeometry*/, const FPointerEvent& /*MouseEvent*/) {}

	/** Is told that the mouse left. */
	virtual void OnMouseLeave(const FPointerEvent& /*MouseEvent*/) {}

	/** Is told of a moved mouse. */
	virtual FReply OnMouseMove(const FGeometry& /*MyGeometry*/, const FPointerEvent& /*MouseEvent*/) { return FReply::Unhandled(); }

	/** Is told of a turned wheel. */
	virtual FReply OnMouseWheel(const FGeometry& /*MyGeometry*/, const FPointerEvent& /*MouseEvent*/) { return FReply::Unhandled(); }

	/** Is told that the widget no longer has the mouse. */
	virtual void OnMouseCaptureLost(const FCaptureLostEvent& /*CaptureLostEvent*/) {}

	/** Is told of a pressed key. */
	virtual FReply OnKeyDown(const FGeometry& /*MyGeometry*/, const FKeyEvent& /*InKeyEvent*/) { return FReply::Unhandled(); }

	/** Is told of a released key. */
	virtual FReply OnKeyUp(const FGeometry& /*MyGeometry*/, const FKeyEvent& /*InKeyEvent*/) { return FReply::Unhandled(); }

	/** Is told of a typed character. */
	virtual FReply OnKeyChar(const FGeometry& /*MyGeometry*/, const FCharacterEvent& /*InCharacterEvent*/) { return FReply::Unhandled(); }

	/** Is told that it received the focus. */
	virtual FReply OnFocusReceived(const FFocusEvent& /*InFocusEvent*/) { return FReply::Unhandled(); }

	/** Is told that it lost the focus. */
	virtual void OnFocusLost(const FFocusEvent& /*InFocusEvent*/) {}

	/** Returns the widget it is shown in, or null. */
	virtual TWeakPtr<SWidget> GetWidget() { return TWeakPtr<SWidget>(); }
};
