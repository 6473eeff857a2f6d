// Copyright The Tintmill authors. All rights reserved.

#include "Host/Painter/PaintList.h"

#include "Host/Painter/Fingerprint.h"
#include "Host/Painter/ShapePainter.h"

#include "Styling/CoreStyle.h"

#include <array>
#include <cmath>

namespace TintmillHost
{
namespace
{
/** How far a pop-up's shadow reaches, in units. */
constexpr double ShadowReach = 8.0;

FShape MakePopupShadow(const SWindow& Window, double Scale)
{
	FLinearColor Color = FCoreStyle::Get().GetBrush("Menu.Shadow")->TintColor.GetSpecifiedColor();
	Color.A *= Window.GetRenderOpacity();
	FShape Shadow;
	Shadow.Rect = ToDeviceRect(Window.GetRectInScreen(), Scale);
	Shadow.Color = ToPaintColor(Color);
	Shadow.Scale = Scale * Window.GetDPIScaleFactor();
	return Shadow;
}

/** The usual arrow, its tip at the mouse's position. */
void PaintPointer(cairo_t* Context, const FVector2D& Position, double Scale)
{
	constexpr std::array<std::array<double, 2>, 7> Outline = {
		{{0.0, 0.0}, {0.0, 16.0}, {3.7, 12.6}, {6.2, 18.2}, {8.6, 17.1}, {6.2, 11.7}, {11.2, 11.3}}};
	cairo_save(Context);
	cairo_translate(Context, std::round(Position.X * Scale), std::round(Position.Y * Scale));
	cairo_scale(Context, Scale, Scale);
	for (const std::array<double, 2>& Point : Outline)
	{
		cairo_line_to(Context, Point[0], Point[1]);
	}
	cairo_close_path(Context);
	FPaintColor{1.0, 1.0, 1.0, 1.0}.Use(Context);
	cairo_fill_preserve(Context);
	FPaintColor{0.0, 0.0, 0.0, 1.0}.Use(Context);
	cairo_set_line_width(Context, 1.0);
	cairo_stroke(Context);
	cairo_restore(Context);
}
}

FPaintList::FPaintList(FElementPainter& InPainter, const FWindowShot& InShot)
	: Painter(InPainter)
	, Shot(InShot)
	, Origin(static_cast<int32>(std::lround(Shot.Origin.X * Shot.Scale)), static_cast<int32>(std::lround(Shot.Origin.Y * Shot.Scale)))
{
	for (const TSharedRef<SWindow>& Window : Shot.Windows)
	{
		if (!Window->IsRegularWindow() || Window->HasTitleBar())
		{
			Items.push_back({nullptr, &Window.Get(), 0, FIntRect()});
		}
		const FSlateWindowElementList& List = Window->GetElementList();
		for (const int32 Index : List.GetDrawOrder())
		{
			Items.push_back({&List.GetElements()[Index], nullptr, 0, FIntRect()});
		}
	}
	if (Shot.Pointer.IsSet())
	{
		Items.emplace_back();
	}
}

void FPaintList::Fingerprint(FPaintItem& Item) const
{
	FFingerprint Result;
	if (Item.Element != nullptr)
	{
		Result = FingerprintElement(*Item.Element);
		Painter.AddPicture(Result, *Item.Element, Shot.Scale);
	}
	else if (Item.ShadowOf != nullptr)
	{
		const FShape Shadow = MakePopupShadow(*Item.ShadowOf, Shot.Scale);
		Result.Add(Shadow.Rect.X).Add(Shadow.Rect.Y).Add(Shadow.Rect.Width).Add(Shadow.Rect.Height);
		Result.Add(Shadow.Color.Red).Add(Shadow.Color.Green).Add(Shadow.Color.Blue).Add(Shadow.Color.Alpha).Add(Shadow.Scale);
	}
	else
	{
		Result.Add(Shot.Pointer.GetValue().X).Add(Shot.Pointer.GetValue().Y);
	}
	Item.Fingerprint = Result.Get();
}

void FPaintList::FindBounds(FPaintItem& Item) const
{
	if (Item.Element != nullptr)
	{
		Item.Bounds = Painter.FindBounds(*Item.Element, Shot.Scale);
	}
	else if (Item.ShadowOf != nullptr)
	{
		const FShape Shadow = MakePopupShadow(*Item.ShadowOf, Shot.Scale);
		Item.Bounds = ToPixels(Shadow.Rect.Shrunk(-ReachOfShadow(Shadow, ShadowReach)));
	}
	else
	{
		// The arrow's height is its larger side.
		const double Size = std::ceil(20.0 * Shot.Scale);
		const FVector2D& Tip = Shot.Pointer.GetValue();
		Item.Bounds = ToPixels({Tip.X * Shot.Scale - Size, Tip.Y * Shot.Scale - Size, 2.0 * Size, 2.0 * Size});
	}
	Item.Bounds = Item.Bounds - Origin;
}

void FPaintList::Paint(cairo_t* Context, const FPaintItem& Item, const FIntRect& Area) const
{
	cairo_save(Context);
	if (Item.Element != nullptr && Painter.CanBePaintedInParts(*Item.Element, Shot.Scale))
	{
		cairo_rectangle(Context, Area.Min.X, Area.Min.Y, Area.Width(), Area.Height());
		cairo_clip(Context);
	}
	cairo_translate(Context, -Origin.X, -Origin.Y);
	if (Item.Element != nullptr)
	{
		Painter.Paint(Context, *Item.Element, Shot.Scale);
	}
	else if (Item.ShadowOf != nullptr)
	{
		PaintShadow(Context, MakePopupShadow(*Item.ShadowOf, Shot.Scale), ShadowReach);
	}
	else
	{
		PaintPointer(Context, Shot.Pointer.GetValue(), Shot.Scale);
	}
	cairo_restore(Context);
}
}
