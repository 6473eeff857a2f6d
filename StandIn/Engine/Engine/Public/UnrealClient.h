// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "Engine/EngineBaseTypes.h"
#include "InputCoreTypes.h"
#include "RHI.h"
#include "StandIn/RenderSurface.h"

// Viewports, what they draw into, and their clients. A draw really makes a picture (StandIn/ScenePainter.h, then
// StandIn/PicturePass.h) and a read really returns it; both are synchronous, in memory.
// Left out: the resource base of FViewport, textures, hit proxies, capture modes and most input, high resolution screenshots, reads
// of float and linear colours.
// Uncertain in the engine and settled here: a rectangle that leaves the surface is fatal; a draw without a client is fatal.

class FCanvas;
class FViewport;
class FViewportClient;
class UWorld;

/** Something that can be drawn into and read back. */
class ENGINE_API FRenderTarget
{
public:
	virtual ~FRenderTarget() {}

	/** Returns width and height in pixels. */
	virtual FIntPoint GetSizeXY() const = 0;

	/** Returns the gamma of the display, 2.2 unless overridden. */
	virtual float GetDisplayGamma() const;

	/**
	 * Replaces OutImageData by the pixels of a rectangle of the last completed draw, row-major from the top left; the empty
	 * rectangle stands for the whole. True when there was at least one pixel; the 8-bit values and the alpha come unchanged.
	 */
	bool ReadPixels(TArray<FColor>& OutImageData, FReadSurfaceDataFlags InFlags = FReadSurfaceDataFlags(RCM_UNorm, CubeFace_MAX),
		FIntRect InRect = FIntRect(0, 0, 0, 0));

	/** Does what ReadPixels does into memory that holds the whole rectangle. */
	bool ReadPixelsPtr(FColor* OutImageBytes, FReadSurfaceDataFlags InFlags = FReadSurfaceDataFlags(RCM_UNorm, CubeFace_MAX),
		FIntRect InRect = FIntRect(0, 0, 0, 0));

	/** Returns the memory that is drawn into, or null when there is none; not in the engine, which has a texture instead. */
	virtual const StandIn::FRenderSurface* GetRenderSurface() const { return nullptr; }
};

/** What holds a viewport: a window or a widget. */
class FViewportFrame
{
public:
	virtual ~FViewportFrame() {}

	/** Returns the viewport. */
	virtual FViewport* GetViewport() = 0;
};

/** A rectangle of the screen that shows what its client sees. */
class ENGINE_API FViewport : public FRenderTarget
{
public:
	DECLARE_EVENT_TwoParams(FViewport, FOnViewportResized, FViewport*, uint32);

	/** Fires after a viewport has got another size; the number means nothing. */
	static FOnViewportResized ViewportResizedEvent;

	/** Makes a viewport of size zero for a client, which may be null. */
	FViewport(FViewportClient* InViewportClient);
	virtual ~FViewport();
	FViewport(const FViewport&) = delete;
	FViewport& operator=(const FViewport&) = delete;

	/** Lets go of the client and of the surface. */
	virtual void Destroy() = 0;

	/** Draws the client's picture now, and presents it when asked to; nothing happens at size zero, and a client is needed. */
	void Draw(bool bShouldPresent = true);

	/** Has hit proxies and picture made anew on a later tick. */
	virtual void Invalidate() = 0;

	/** Has the picture made anew on a later tick. */
	virtual void InvalidateDisplay() = 0;

	/** Returns the frame, or null. */
	virtual FViewportFrame* GetViewportFrame() = 0;

	virtual FIntPoint GetSizeXY() const override { return FIntPoint(static_cast<int32>(SizeX), static_cast<int32>(SizeY)); }
	virtual const StandIn::FRenderSurface* GetRenderSurface() const override { return &Surface; }

	/** Returns the client, which may be null. */
	FViewportClient* GetClient() const { return ViewportClient; }

	/** Tells whether a key or a button is held that went down in the viewport. */
	virtual bool KeyState(FKey /*Key*/) const { return false; }

	/** Gives the viewport another client, or none. */
	virtual void SetViewportClient(FViewportClient* InViewportClient);

	/** Tells whether a play-in-editor session is seen here. */
	bool IsPlayInEditorViewport() const { return bIsPlayInEditorViewport; }

	/** Says whether a play-in-editor session is seen here. */
	void SetPlayInEditorViewport(bool bInPlayInEditorViewport) { bIsPlayInEditorViewport = bInPlayInEditorViewport; }

	/** Returns what is on the screen: the last draw that was presented; not in the engine. */
	const StandIn::FRenderSurface& GetPresentedSurface() const { return PresentedSurface; }

	/** Tells whether another draw could give another picture than the presented one; not in the engine. */
	bool WouldDrawSomethingElse() const;

protected:
	/** Gives the viewport another size in pixels, empties its surface and fires ViewportResizedEvent; the same size changes nothing. */
	void UpdateSize(uint32 NewSizeX, uint32 NewSizeY);

	/** Makes the size zero and lets go of all memory, without an event. */
	void ReleaseSurfaces();

	/** Forgets the client's picture, so that the next draw has it painted anew. */
	void InvalidateScene() { bSceneValid = false; }

	FViewportClient* ViewportClient;
	uint32 SizeX;
	uint32 SizeY;
	bool bIsPlayInEditorViewport;

private:
	bool IsSceneCurrent() const;
	void PaintSceneIfNeeded();

	StandIn::FRenderSurface Scene;
	StandIn::FRenderSurface Surface;
	StandIn::FRenderSurface PresentedSurface;
	uint64 PresentedPassKey;
	uint32 ScenePainterGeneration;
	bool bSceneValid;
	bool bScenePresented;
};

/** Who decides what a viewport shows and gets its input. */
class ENGINE_API FViewportClient
{
public:
	virtual ~FViewportClient() {}

	/** Asks for a new picture; draws at once here, clients of the editor wait for the next tick. */
	virtual void RedrawRequested(FViewport* Viewport);

	/** Draws over the scene. */
	virtual void Draw(FViewport* Viewport, FCanvas* Canvas);

	/** Returns the world that is seen, or null. */
	virtual UWorld* GetWorld() const { return nullptr; }

	/** Handles a key or a button; true when nobody else should. */
	virtual bool InputKey(
		FViewport* Viewport, int32 ControllerId, FKey Key, EInputEvent Event, float AmountDepressed = 1.f, bool bGamepad = false);

	/** Handles a moved axis, such as EKeys::MouseX by pixels to the right or EKeys::MouseY upwards; true when nobody else should. */
	virtual bool InputAxis(
		FViewport* Viewport, int32 ControllerId, FKey Key, float Delta, float DeltaTime, int32 NumSamples = 1, bool bGamepad = false);

	/** Is told that the viewport lost the keyboard. */
	virtual void LostFocus(FViewport* Viewport);

	/** Is told that the viewport got the keyboard. */
	virtual void ReceivedFocus(FViewport* Viewport);

	/** Is told that the viewport's window shall close. */
	virtual void CloseRequested(FViewport* Viewport);

	/** Tells whether the view is orthographic. */
	virtual bool IsOrtho() const { return false; }
};

/** What game and editor clients have in common: the scale of the user interface. */
class ENGINE_API FCommonViewportClient : public FViewportClient
{
public:
	/** Returns the user interface scale of the viewport's screen, 1 here. */
	virtual float GetDPIScale() const { return 1.0f; }
};
