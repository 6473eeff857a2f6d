// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/Painter/ElementPainter.h"
#include "Host/Painter/PangoFontMeasurer.h"
#include "Host/Painter/TextLayouts.h"
#include "Host/Picture/PngFile.h"
#include "Host/Ui/LookThumbnails.h"
#include "Host/Ui/PanePictures.h"

#include <memory>
#include <string>

class SWindow;

// The editor's one window. It needs no display: whoever has one shows what the painter makes of it.

namespace TintmillHost
{
/** The editor's window while it lives: the open level editor with its panes, and the menus above it. */
class FEditorWindow
{
public:
	/** Opens the window in a size in pixels; the level editor must be open. */
	FEditorWindow(const FIntPoint& Size, const std::string& ProjectName);

	/** Closes the window with its menus; the level editor stays open. */
	~FEditorWindow();

	FEditorWindow(const FEditorWindow&) = delete;
	FEditorWindow& operator=(const FEditorWindow&) = delete;

	/** Gives the window another size in pixels; the panes follow at the next frames. */
	void Resize(const FIntPoint& NewSize);

	/** A picture of what Slate painted last, mouse included, with Scale pixels a pixel of the window. */
	FPicture TakePicture(double Scale);

private:
	std::shared_ptr<FTextLayouts> Layouts;
	FPangoMeasuring Measuring;
	FElementPainter Painter;
	FPanePictures PanePictures;
	FLookThumbnails Thumbnails;
	FIntPoint Size;
	TSharedPtr<SWindow> Window;
};
}
