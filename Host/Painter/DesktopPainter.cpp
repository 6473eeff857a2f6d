// Copyright The Tintmill authors. All rights reserved.

#include "Host/Painter/ElementPainter.h"
#include "Host/Painter/PangoFontMeasurer.h"
#include "Host/Painter/WindowPainter.h"

namespace TintmillHost
{
namespace
{
/** The painter with Cairo and Pango. */
class FDesktopPainter : public IDesktopPainter
{
public:
	FDesktopPainter()
		: Layouts(std::make_shared<FTextLayouts>())
		, Measuring(Layouts)
		, Painter(Layouts)
		, KeptPicture(Painter)
	{}

	virtual void SetPictures(FViewportPictures ViewportPictures, FBrushPictures BrushPictures) override
	{
		Painter.SetViewportPictures(std::move(ViewportPictures));
		Painter.SetBrushPictures(std::move(BrushPictures));
	}

	virtual FPicture Paint(const FWindowShot& Shot) override { return PaintWindows(Painter, Shot); }

	virtual TArray<FIntRect> Update(const FWindowShot& Shot, FPicture& InOutPicture) override
	{
		return KeptPicture.Update(Shot, InOutPicture);
	}

private:
	std::shared_ptr<FTextLayouts> Layouts;
	FPangoMeasuring Measuring;
	FElementPainter Painter;
	FKeptPicture KeptPicture;
};
}

std::unique_ptr<IDesktopPainter> MakeDesktopPainter()
{
	return std::make_unique<FDesktopPainter>();
}
}
