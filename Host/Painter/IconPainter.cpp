// Copyright The Tintmill authors. All rights reserved.

#include "Host/Painter/IconPainter.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <numbers>

namespace TintmillHost
{
namespace
{
using StandIn::EBrushShape;

struct FPoint
{
	double X;
	double Y;
};

/** Draws in the unit square of a shape. */
class FIconCanvas
{
public:
	FIconCanvas(cairo_t* InContext, const FShape& InShape)
		: Context(InContext)
		, Shape(InShape)
	{}

	void Polygon(std::initializer_list<FPoint> Points)
	{
		cairo_new_sub_path(Context);
		for (const FPoint& Point : Points)
		{
			cairo_line_to(Context, X(Point.X), Y(Point.Y));
		}
		cairo_close_path(Context);
	}

	void Rect(double Left, double Top, double Right, double Bottom, double Corner = 0.0)
	{
		FDeviceRect Area = Shape.Rect;
		Area.X = X(Left);
		Area.Y = Y(Top);
		Area.Width = X(Right) - X(Left);
		Area.Height = Y(Bottom) - Y(Top);
		AddRoundedRect(Context, Area, Corner * Shape.Rect.Width);
	}

	void Circle(double CenterX, double CenterY, double Radius)
	{
		cairo_new_sub_path(Context);
		cairo_arc(Context, X(CenterX), Y(CenterY), Radius * Shape.Rect.Width, 0.0, 2.0 * std::numbers::pi);
	}

	/** Fills what was drawn, from the color above to a darker one below, with a dark line around it. */
	void Shade(const FPaintColor& Color)
	{
		cairo_pattern_t* const Pattern = cairo_pattern_create_linear(0.0, Y(0.1), 0.0, Y(0.9));
		const FPaintColor Dark = Color.Darkened(0.68);
		cairo_pattern_add_color_stop_rgba(Pattern, 0.0, Color.Red, Color.Green, Color.Blue, Color.Alpha);
		cairo_pattern_add_color_stop_rgba(Pattern, 1.0, Dark.Red, Dark.Green, Dark.Blue, Dark.Alpha);
		cairo_set_source(Context, Pattern);
		cairo_fill_preserve(Context);
		cairo_pattern_destroy(Pattern);
		FPaintColor{0.0, 0.0, 0.0, 0.55 * Color.Alpha}.Use(Context);
		cairo_set_line_join(Context, CAIRO_LINE_JOIN_ROUND);
		cairo_set_line_width(Context, std::max(1.0, Shape.Rect.Width * 0.025));
		cairo_stroke(Context);
	}

	void Fill(const FPaintColor& Color)
	{
		Color.Use(Context);
		cairo_fill(Context);
	}

	void Line(const FPaintColor& Color, double Width)
	{
		Color.Use(Context);
		cairo_set_line_width(Context, std::max(1.0, std::round(Width * Shape.Rect.Width)));
		cairo_stroke(Context);
	}

	FPaintColor Tint(double Red, double Green, double Blue) const
	{
		const FPaintColor& Color = Shape.Color;
		return FPaintColor{Red * Color.Red, Green * Color.Green, Blue * Color.Blue, Color.Alpha};
	}

private:
	double X(double Part) const { return Shape.Rect.X + Part * Shape.Rect.Width; }
	double Y(double Part) const { return Shape.Rect.Y + Part * Shape.Rect.Height; }

	cairo_t* Context;
	const FShape& Shape;
};

/** A window with a title bar, seen from the front. */
void DrawPane(FIconCanvas& Canvas)
{
	Canvas.Rect(0.1, 0.16, 0.9, 0.86, 0.05);
	Canvas.Shade(Canvas.Tint(0.62, 0.64, 0.67));
	Canvas.Rect(0.14, 0.28, 0.86, 0.82, 0.02);
	Canvas.Fill(Canvas.Tint(0.2, 0.21, 0.23));
}

void DrawGear(FIconCanvas& Canvas)
{
	constexpr int Teeth = 9;
	for (int Tooth = 0; Tooth < Teeth; ++Tooth)
	{
		const double Angle = 2.0 * std::numbers::pi * Tooth / Teeth;
		const auto At = [Angle](double Radius, double Turn) {
			return FPoint{0.5 + Radius * std::cos(Angle + Turn), 0.5 + Radius * std::sin(Angle + Turn)};
		};
		Canvas.Polygon({At(0.28, -0.24), At(0.42, -0.14), At(0.42, 0.14), At(0.28, 0.24)});
	}
	Canvas.Shade(Canvas.Tint(0.66, 0.68, 0.71));
	Canvas.Circle(0.5, 0.5, 0.32);
	Canvas.Shade(Canvas.Tint(0.66, 0.68, 0.71));
	Canvas.Circle(0.5, 0.5, 0.22);
	Canvas.Fill(Canvas.Tint(0.2, 0.21, 0.23));
}

void DrawMap(FIconCanvas& Canvas)
{
	Canvas.Rect(0.08, 0.16, 0.92, 0.84, 0.05);
	Canvas.Shade(Canvas.Tint(0.9, 0.9, 0.88));
	Canvas.Rect(0.13, 0.21, 0.87, 0.79);
	Canvas.Fill(Canvas.Tint(0.5, 0.66, 0.82));
	Canvas.Circle(0.7, 0.35, 0.07);
	Canvas.Fill(Canvas.Tint(1.0, 0.9, 0.55));
	Canvas.Polygon({{0.13, 0.7}, {0.36, 0.38}, {0.6, 0.7}});
	Canvas.Fill(Canvas.Tint(0.45, 0.5, 0.44));
	Canvas.Polygon({{0.36, 0.38}, {0.29, 0.48}, {0.36, 0.52}, {0.42, 0.46}});
	Canvas.Fill(Canvas.Tint(0.92, 0.94, 0.96));
	Canvas.Polygon({{0.44, 0.7}, {0.66, 0.5}, {0.87, 0.66}, {0.87, 0.7}});
	Canvas.Fill(Canvas.Tint(0.36, 0.44, 0.35));
	Canvas.Rect(0.13, 0.69, 0.87, 0.79);
	Canvas.Fill(Canvas.Tint(0.52, 0.58, 0.36));
}

void DrawLayers(FIconCanvas& Canvas)
{
	for (int Layer = 2; Layer >= 0; --Layer)
	{
		const double Y = 0.34 + 0.17 * Layer;
		Canvas.Polygon({{0.5, Y - 0.22}, {0.92, Y}, {0.5, Y + 0.22}, {0.08, Y}});
		Canvas.Shade(Layer == 0 ? Canvas.Tint(0.95, 0.72, 0.3) : Canvas.Tint(0.62, 0.64, 0.67));
	}
}

void DrawLog(FIconCanvas& Canvas)
{
	Canvas.Rect(0.14, 0.08, 0.86, 0.92, 0.05);
	Canvas.Shade(Canvas.Tint(0.85, 0.86, 0.87));
	for (int Line = 0; Line < 4; ++Line)
	{
		const double Y = 0.2 + 0.17 * Line;
		Canvas.Rect(0.25, Y, Line == 3 ? 0.55 : 0.75, Y + 0.08);
		Canvas.Fill(Canvas.Tint(0.25, 0.26, 0.28));
	}
}

/** Four small panes, or one, as lines. */
void DrawPanes(FIconCanvas& Canvas, const FPaintColor& Color, bool bFour)
{
	if (!bFour)
	{
		Canvas.Rect(0.11, 0.18, 0.89, 0.82);
		Canvas.Line(Color, 0.09);
		Canvas.Rect(0.11, 0.14, 0.89, 0.3);
		Canvas.Fill(Color);
		return;
	}
	Canvas.Rect(0.07, 0.14, 0.46, 0.46);
	Canvas.Rect(0.54, 0.14, 0.93, 0.46);
	Canvas.Rect(0.07, 0.54, 0.46, 0.86);
	Canvas.Rect(0.54, 0.54, 0.93, 0.86);
	Canvas.Fill(Color);
}
}

void PaintIcon(cairo_t* Context, const FShape& Shape)
{
	FIconCanvas Canvas(Context, Shape);
	switch (Shape.Kind)
	{
	case EBrushShape::Maximize:
		DrawPanes(Canvas, Shape.Color, false);
		break;
	case EBrushShape::FourPanes:
		DrawPanes(Canvas, Shape.Color, true);
		break;
	case EBrushShape::Play:
		Canvas.Polygon({{0.2, 0.1}, {0.88, 0.5}, {0.2, 0.9}});
		Canvas.Shade(Canvas.Tint(0.93, 0.94, 0.95));
		break;
	case EBrushShape::Stop:
		Canvas.Rect(0.17, 0.17, 0.83, 0.83, 0.05);
		Canvas.Shade(Canvas.Tint(0.93, 0.94, 0.95));
		break;
	case EBrushShape::PlayInWindow:
		DrawPane(Canvas);
		Canvas.Polygon({{0.38, 0.34}, {0.7, 0.55}, {0.38, 0.76}});
		Canvas.Shade(Canvas.Tint(0.93, 0.94, 0.95));
		break;
	case EBrushShape::Simulate:
		DrawGear(Canvas);
		Canvas.Polygon({{0.42, 0.34}, {0.7, 0.5}, {0.42, 0.66}});
		Canvas.Shade(Canvas.Tint(0.93, 0.94, 0.95));
		break;
	case EBrushShape::Map:
		DrawMap(Canvas);
		break;
	case EBrushShape::Layers:
		DrawLayers(Canvas);
		break;
	case EBrushShape::Log:
		DrawLog(Canvas);
		break;
	default:
		break;
	}
}
}
