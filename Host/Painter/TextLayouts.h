// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"

#include <pango/pangocairo.h>

#include <memory>
#include <string>
#include <unordered_map>

// Lines of text as Pango lays them out. Widths are not rounded to pixels, so a line is twice as wide at twice the size, and what
// was measured is what is painted.

namespace TintmillHost
{
/** Lets go of Pango's objects. */
struct FPangoRelease
{
	void operator()(PangoLayout* Layout) const { g_object_unref(Layout); }
	void operator()(PangoContext* Context) const { g_object_unref(Context); }
	void operator()(PangoFontDescription* Description) const { pango_font_description_free(Description); }
};

/** Lays out single lines of text and remembers them. */
class FTextLayouts
{
public:
	FTextLayouts();
	~FTextLayouts();
	FTextLayouts(const FTextLayouts&) = delete;
	FTextLayouts& operator=(const FTextLayouts&) = delete;

	/** The layout of a line of text in a font whose size is multiplied by Scale; valid until the next call. */
	PangoLayout* Find(const std::string& Text, const FSlateFontInfo& Font, double Scale);

	/** The width of a line in pixels. */
	double MeasureWidth(const std::string& Text, const FSlateFontInfo& Font, double Scale);

	/** The height of a line in whole pixels: four thirds of an em. */
	static int GetLineHeight(const FSlateFontInfo& Font, double Scale);

	/** The distance from a line's upper edge to its baseline in whole pixels. */
	int GetAscent(const FSlateFontInfo& Font, double Scale);

private:
	using FLayout = std::unique_ptr<PangoLayout, FPangoRelease>;

	PangoFontDescription* FindFont(const FSlateFontInfo& Font, double Scale);

	std::unique_ptr<PangoContext, FPangoRelease> Context;
	std::unordered_map<std::string, std::unique_ptr<PangoFontDescription, FPangoRelease>> Fonts;
	std::unordered_map<std::string, FLayout> Layouts;
	std::unordered_map<std::string, int> Ascents;
};
}
