// Copyright The Tintmill authors. All rights reserved.

#include "Host/Painter/TextLayouts.h"

#include "Host/Program/Strings.h"

#include <algorithm>
#include <cmath>

namespace TintmillHost
{
namespace
{
/** Lines that are remembered; then all are forgotten at once. */
constexpr size_t MaxLayouts = 4096;

/** A face's name as weight and slant; anything unknown is regular. */
void SetFace(PangoFontDescription& Description, const std::string& Face)
{
	const bool bBold = Face == "Bold" || Face == "BoldItalic";
	const bool bItalic = Face == "Italic" || Face == "BoldItalic";
	pango_font_description_set_weight(&Description, bBold ? PANGO_WEIGHT_BOLD : Face == "Light" ? PANGO_WEIGHT_LIGHT : PANGO_WEIGHT_NORMAL);
	pango_font_description_set_style(&Description, bItalic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
}

int GetPangoSize(const FSlateFontInfo& Font, double Scale)
{
	return static_cast<int>(std::lround(static_cast<double>(Font.GetEmHeight()) * Scale * PANGO_SCALE));
}

std::string GetFontKey(const FSlateFontInfo& Font, double Scale)
{
	return ToUtf8(Font.GetFamilyName()) + '|' + ToUtf8(Font.TypefaceFontName.ToString()) + '|' + std::to_string(GetPangoSize(Font, Scale))
		+ '|';
}
}

FTextLayouts::FTextLayouts()
	: Context(pango_font_map_create_context(pango_cairo_font_map_get_default()))
{
	// Gray edges only: colored ones depend on the screen and look wrong in a picture.
	cairo_font_options_t* const Options = cairo_font_options_create();
	cairo_font_options_set_antialias(Options, CAIRO_ANTIALIAS_GRAY);
	cairo_font_options_set_hint_style(Options, CAIRO_HINT_STYLE_SLIGHT);
	cairo_font_options_set_hint_metrics(Options, CAIRO_HINT_METRICS_OFF);
	pango_cairo_context_set_font_options(Context.get(), Options);
	cairo_font_options_destroy(Options);
	pango_context_set_round_glyph_positions(Context.get(), FALSE);
}

FTextLayouts::~FTextLayouts() = default;

PangoFontDescription* FTextLayouts::FindFont(const FSlateFontInfo& Font, double Scale)
{
	std::unique_ptr<PangoFontDescription, FPangoRelease>& Description = Fonts[GetFontKey(Font, Scale)];
	if (!Description)
	{
		const std::string Face = ToUtf8(Font.TypefaceFontName.ToString());
		Description.reset(pango_font_description_new());
		pango_font_description_set_family(Description.get(),
			Face == "Mono" ? "Roboto Mono,DejaVu Sans Mono,monospace" : (ToUtf8(Font.GetFamilyName()) + ",Noto Sans,sans-serif").c_str());
		SetFace(*Description, Face);
		pango_font_description_set_absolute_size(Description.get(), GetPangoSize(Font, Scale));
	}
	return Description.get();
}

PangoLayout* FTextLayouts::Find(const std::string& Text, const FSlateFontInfo& Font, double Scale)
{
	const std::string Key = GetFontKey(Font, Scale) + Text;
	const auto Found = Layouts.find(Key);
	if (Found != Layouts.end())
	{
		return Found->second.get();
	}
	if (Layouts.size() >= MaxLayouts)
	{
		Layouts.clear();
	}
	FLayout Layout(pango_layout_new(Context.get()));
	pango_layout_set_single_paragraph_mode(Layout.get(), TRUE);
	pango_layout_set_font_description(Layout.get(), FindFont(Font, Scale));
	pango_layout_set_text(Layout.get(), Text.data(), static_cast<int>(Text.size()));
	return (Layouts[Key] = std::move(Layout)).get();
}

double FTextLayouts::MeasureWidth(const std::string& Text, const FSlateFontInfo& Font, double Scale)
{
	int Width = 0;
	pango_layout_get_size(Find(Text, Font, Scale), &Width, nullptr);
	return static_cast<double>(Width) / PANGO_SCALE;
}

int FTextLayouts::GetLineHeight(const FSlateFontInfo& Font, double Scale)
{
	return static_cast<int>(std::lround(static_cast<double>(Font.GetEmHeight()) * Scale * 4.0 / 3.0));
}

int FTextLayouts::GetAscent(const FSlateFontInfo& Font, double Scale)
{
	const std::string Key = GetFontKey(Font, Scale);
	const auto Found = Ascents.find(Key);
	if (Found != Ascents.end())
	{
		return Found->second;
	}
	PangoFontMetrics* const Metrics = pango_context_get_metrics(Context.get(), FindFont(Font, Scale), nullptr);
	const double Above = static_cast<double>(pango_font_metrics_get_ascent(Metrics)) / PANGO_SCALE;
	const double Below = static_cast<double>(pango_font_metrics_get_descent(Metrics)) / PANGO_SCALE;
	pango_font_metrics_unref(Metrics);
	// The letters stand in the middle of the line.
	const double Spare = GetLineHeight(Font, Scale) - (Above + Below);
	return Ascents[Key] = static_cast<int>(std::lround(Above + Spare / 2.0));
}
}
