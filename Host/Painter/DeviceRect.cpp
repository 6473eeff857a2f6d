// Copyright The Tintmill authors. All rights reserved.

#include "Host/Painter/DeviceRect.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace TintmillHost
{
FDeviceRect ToDeviceRect(const FSlateRect& Rect, double Scale)
{
	const double Left = std::round(Rect.Left * Scale);
	const double Top = std::round(Rect.Top * Scale);
	return {Left, Top, std::round(Rect.Right * Scale) - Left, std::round(Rect.Bottom * Scale) - Top};
}

FIntRect ToPixels(const FDeviceRect& Rect)
{
	// Far beyond any picture, and still within the numbers that whole pixels are counted in.
	constexpr double Limit = 1e6;
	const auto ToPixel = [&](double Value) { return static_cast<int32>(std::clamp(Value, -Limit, Limit)); };
	return FIntRect(ToPixel(std::floor(Rect.X)), ToPixel(std::floor(Rect.Y)), ToPixel(std::ceil(Rect.X + std::max(0.0, Rect.Width))),
		ToPixel(std::ceil(Rect.Y + std::max(0.0, Rect.Height))));
}

void AddRoundedRect(cairo_t* Context, const FDeviceRect& Rect, double Radius)
{
	const double Corner = std::min({Radius, Rect.Width / 2.0, Rect.Height / 2.0});
	if (Corner <= 0.0)
	{
		cairo_rectangle(Context, Rect.X, Rect.Y, Rect.Width, Rect.Height);
		return;
	}
	constexpr double QuarterTurn = std::numbers::pi / 2.0;
	const double Right = Rect.X + Rect.Width - Corner;
	const double Bottom = Rect.Y + Rect.Height - Corner;
	cairo_new_sub_path(Context);
	cairo_arc(Context, Right, Rect.Y + Corner, Corner, -QuarterTurn, 0.0);
	cairo_arc(Context, Right, Bottom, Corner, 0.0, QuarterTurn);
	cairo_arc(Context, Rect.X + Corner, Bottom, Corner, QuarterTurn, 2.0 * QuarterTurn);
	cairo_arc(Context, Rect.X + Corner, Rect.Y + Corner, Corner, 2.0 * QuarterTurn, 3.0 * QuarterTurn);
	cairo_close_path(Context);
}
}
