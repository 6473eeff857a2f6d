// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/Frame/FrameContent.h"
#include "Host/Picture/IDesktopPainter.h"
#include "Host/Ui/LookThumbnails.h"
#include "Host/Ui/PanePictures.h"

#include <memory>
#include <string>

class SWindow;

// The editor's one window. It needs no display: whoever has one shows what the painter makes of it.

namespace TintmillHost
{
class SEditorFrame;

/** The editor's window while it lives: the open level editor with its panes, and the menus above it. */
class FEditorWindow
{
public:
	/** Opens the window in a size in pixels; the level editor must be open. MoreBrushPictures knows brushes that are no thumbnails. */
	FEditorWindow(const FIntPoint& Size, const FFrameContent& Content, FBrushPictures MoreBrushPictures);

	/** Closes the window with its menus; the level editor stays open. */
	~FEditorWindow();

	FEditorWindow(const FEditorWindow&) = delete;
	FEditorWindow& operator=(const FEditorWindow&) = delete;

	/** Gives the window another size in pixels; the panes follow at the next frames. */
	void Resize(const FIntPoint& NewSize);

	/** A picture of what Slate painted last, mouse included, with Scale pixels a pixel of the window; empty without a painter. */
	FPicture TakePicture(double Scale);

	/** The same of one window alone, such as a look builder's. */
	FPicture TakePictureOf(const TSharedRef<SWindow>& Shown, double Scale);

	/** Brings a picture of the window without the mouse, which UpdatePicture filled last, up to date; returns the areas that changed. */
	TArray<FIntRect> UpdatePicture(FPicture& InOutPicture);

	/** The window's content. */
	SEditorFrame& GetFrame() const { return *Frame; }

	/** The window as Slate knows it. */
	TSharedRef<SWindow> GetSlateWindow() const { return Window.ToSharedRef(); }

private:
	/** The window fills the desktop: in front it would hide all others. */
	void StayBehind();

	FPicture Take(FWindowShot& Shot, double Scale);

	/** Null where the program was built without one. */
	std::unique_ptr<IDesktopPainter> Painter;
	FPanePictures PanePictures;
	FLookThumbnails Thumbnails;
	FIntPoint Size;
	TSharedPtr<SWindow> Window;
	TSharedPtr<SEditorFrame> Frame;
};
}
