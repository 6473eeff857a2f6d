// Copyright The Tintmill authors. All rights reserved.

#include "Host/Painter/ViewModeIcons.h"

#include <algorithm>
#include <numbers>
#include <utility>
#include <vector>

namespace TintmillHost
{
namespace
{
using StandIn::EBrushShape;

/** Draws on a grid of sixteen by sixteen units. */
class FIconGrid
{
public:
	FIconGrid(cairo_t* InContext, const FShape& Shape)
		: Context(InContext)
		, Color(Shape.Color)
	{
		cairo_save(Context);
		cairo_translate(Context, Shape.Rect.X, Shape.Rect.Y);
		cairo_scale(Context, Shape.Rect.Width / 16.0, Shape.Rect.Height / 16.0);
	}
	~FIconGrid() { cairo_restore(Context); }
	FIconGrid(const FIconGrid&) = delete;
	FIconGrid& operator=(const FIconGrid&) = delete;

	/** A color in the icon's tint. */
	FPaintColor Tint(double Red, double Green, double Blue, double Alpha = 1.0) const
	{
		return {Red * Color.Red, Green * Color.Green, Blue * Color.Blue, Alpha * Color.Alpha};
	}

	void Circle(double X, double Y, double Radius)
	{
		cairo_new_sub_path(Context);
		cairo_arc(Context, X, Y, Radius, 0.0, 2.0 * std::numbers::pi);
	}

	void Ellipse(double X, double Y, double RadiusX, double RadiusY)
	{
		cairo_save(Context);
		cairo_translate(Context, X, Y);
		cairo_scale(Context, RadiusX, RadiusY);
		Circle(0.0, 0.0, 1.0);
		cairo_restore(Context);
	}

	void Polygon(const std::vector<std::pair<double, double>>& Points)
	{
		cairo_new_sub_path(Context);
		for (const auto& [X, Y] : Points)
		{
			cairo_line_to(Context, X, Y);
		}
		cairo_close_path(Context);
	}

	void Fill(const FPaintColor& With)
	{
		With.Use(Context);
		cairo_fill(Context);
	}

	void Stroke(const FPaintColor& With, double Width)
	{
		With.Use(Context);
		cairo_set_line_width(Context, Width);
		cairo_set_line_join(Context, CAIRO_LINE_JOIN_ROUND);
		cairo_set_line_cap(Context, CAIRO_LINE_CAP_ROUND);
		cairo_stroke(Context);
	}

	/** Fills what was drawn with a ball's shading, lit from the upper left. */
	void Shade(const FPaintColor& Light, const FPaintColor& Dark)
	{
		cairo_pattern_t* const Pattern = cairo_pattern_create_radial(5.6, 5.0, 0.5, 8.0, 8.0, 7.6);
		cairo_pattern_add_color_stop_rgba(Pattern, 0.0, Light.Red, Light.Green, Light.Blue, Light.Alpha);
		cairo_pattern_add_color_stop_rgba(Pattern, 1.0, Dark.Red, Dark.Green, Dark.Blue, Dark.Alpha);
		cairo_set_source(Context, Pattern);
		cairo_fill(Context);
		cairo_pattern_destroy(Pattern);
	}

	/** The line around a ball. */
	void Rim()
	{
		Circle(8.0, 8.0, 6.5);
		Stroke({0.0, 0.0, 0.0, 0.7 * Color.Alpha}, 1.0);
	}

	cairo_t* Context;

private:
	FPaintColor Color;
};

void DrawLit(FIconGrid& Grid)
{
	Grid.Circle(8.0, 8.0, 6.5);
	Grid.Shade(Grid.Tint(1.0, 1.0, 0.96), Grid.Tint(0.3, 0.31, 0.34));
	Grid.Rim();
}

void DrawUnlit(FIconGrid& Grid)
{
	Grid.Circle(8.0, 8.0, 6.5);
	Grid.Fill(Grid.Tint(0.74, 0.75, 0.77));
	Grid.Rim();
}

void DrawWireframe(FIconGrid& Grid)
{
	const FPaintColor Wire = Grid.Tint(0.84, 0.85, 0.87);
	Grid.Circle(8.0, 8.0, 6.5);
	Grid.Ellipse(8.0, 8.0, 2.8, 6.5);
	cairo_move_to(Grid.Context, 1.5, 8.0);
	cairo_line_to(Grid.Context, 14.5, 8.0);
	cairo_move_to(Grid.Context, 2.9, 4.6);
	cairo_line_to(Grid.Context, 13.1, 4.6);
	cairo_move_to(Grid.Context, 2.9, 11.4);
	cairo_line_to(Grid.Context, 13.1, 11.4);
	Grid.Stroke(Wire, 0.9);
}

void DrawDetailLighting(FIconGrid& Grid)
{
	DrawLit(Grid);
	for (const auto& [X, Y] :
		std::vector<std::pair<double, double>>{{5.0, 8.4}, {8.2, 4.6}, {9.4, 8.6}, {6.8, 11.8}, {11.9, 6.2}, {11.0, 11.4}})
	{
		Grid.Circle(X, Y, 0.95);
		Grid.Fill({0.0, 0.0, 0.0, Grid.Tint(1.0, 1.0, 1.0, 0.42).Alpha});
	}
}

void DrawLightingOnly(FIconGrid& Grid)
{
	Grid.Circle(8.0, 6.4, 4.3);
	Grid.Fill(Grid.Tint(1.0, 0.9, 0.55));
	Grid.Polygon({{5.9, 9.6}, {10.1, 9.6}, {9.7, 11.6}, {6.3, 11.6}});
	Grid.Fill(Grid.Tint(1.0, 0.9, 0.55));
	Grid.Polygon({{6.3, 12.2}, {9.7, 12.2}, {9.7, 13.2}, {9.0, 14.4}, {7.0, 14.4}, {6.3, 13.2}});
	Grid.Fill(Grid.Tint(0.68, 0.69, 0.72));
}

void DrawReflections(FIconGrid& Grid)
{
	cairo_save(Grid.Context);
	Grid.Circle(8.0, 8.0, 6.5);
	cairo_clip(Grid.Context);
	Grid.Polygon({{0.0, 0.0}, {16.0, 0.0}, {16.0, 8.5}, {0.0, 8.5}});
	Grid.Fill(Grid.Tint(0.62, 0.78, 0.95));
	Grid.Polygon({{0.0, 8.2}, {4.0, 9.2}, {12.0, 9.2}, {16.0, 8.2}, {16.0, 16.0}, {0.0, 16.0}});
	Grid.Fill(Grid.Tint(0.42, 0.38, 0.32));
	Grid.Ellipse(5.6, 4.8, 2.4, 1.4);
	Grid.Fill(Grid.Tint(1.0, 1.0, 1.0));
	cairo_restore(Grid.Context);
	Grid.Rim();
}

void DrawOptimization(FIconGrid& Grid)
{
	Grid.Polygon({{2.0, 10.0}, {5.0, 10.0}, {5.0, 14.0}, {2.0, 14.0}});
	Grid.Fill(Grid.Tint(0.45, 0.78, 0.36));
	Grid.Polygon({{6.5, 6.0}, {9.5, 6.0}, {9.5, 14.0}, {6.5, 14.0}});
	Grid.Fill(Grid.Tint(0.93, 0.76, 0.28));
	Grid.Polygon({{11.0, 2.0}, {14.0, 2.0}, {14.0, 14.0}, {11.0, 14.0}});
	Grid.Fill(Grid.Tint(0.88, 0.36, 0.28));
}

void DrawBuffers(FIconGrid& Grid)
{
	const FPaintColor Sheets[] = {Grid.Tint(0.45, 0.6, 0.9), Grid.Tint(0.5, 0.78, 0.45), Grid.Tint(0.88, 0.45, 0.38)};
	for (int Sheet = 0; Sheet < 3; ++Sheet)
	{
		const double At = 1.5 + 2.5 * (2 - Sheet);
		const double Across = 1.5 + 2.5 * Sheet;
		Grid.Polygon({{Across, At}, {Across + 8.0, At}, {Across + 8.0, At + 8.0}, {Across, At + 8.0}});
		Grid.Fill(Sheets[Sheet]);
		Grid.Polygon({{Across, At}, {Across + 8.0, At}, {Across + 8.0, At + 8.0}, {Across, At + 8.0}});
		Grid.Stroke({0.0, 0.0, 0.0, Grid.Tint(1.0, 1.0, 1.0, 0.6).Alpha}, 0.8);
	}
}

void DrawLevelOfDetail(FIconGrid& Grid)
{
	Grid.Circle(5.0, 5.0, 3.7);
	Grid.Fill(Grid.Tint(0.8, 0.82, 0.84));
	Grid.Polygon({{11.5, 4.4}, {14.6, 6.7}, {13.4, 10.3}, {9.6, 10.3}, {8.4, 6.7}});
	Grid.Fill(Grid.Tint(0.45, 0.72, 0.9));
	Grid.Polygon({{5.2, 9.2}, {8.6, 14.8}, {1.8, 14.8}});
	Grid.Fill(Grid.Tint(0.92, 0.62, 0.28));
}

void DrawPlayerCollision(FIconGrid& Grid)
{
	cairo_new_sub_path(Grid.Context);
	cairo_arc(Grid.Context, 8.0, 5.5, 3.5, std::numbers::pi, 0.0);
	cairo_arc(Grid.Context, 8.0, 10.5, 3.5, 0.0, std::numbers::pi);
	cairo_close_path(Grid.Context);
	Grid.Tint(0.55, 0.8, 0.5, 0.45).Use(Grid.Context);
	cairo_fill_preserve(Grid.Context);
	Grid.Stroke(Grid.Tint(0.7, 0.95, 0.62), 1.1);
}

void DrawVisibilityCollision(FIconGrid& Grid)
{
	cairo_move_to(Grid.Context, 1.2, 8.0);
	cairo_curve_to(Grid.Context, 4.5, 2.8, 11.5, 2.8, 14.8, 8.0);
	cairo_curve_to(Grid.Context, 11.5, 13.2, 4.5, 13.2, 1.2, 8.0);
	cairo_close_path(Grid.Context);
	Grid.Fill(Grid.Tint(0.86, 0.87, 0.89));
	Grid.Circle(8.0, 8.0, 2.9);
	Grid.Fill(Grid.Tint(0.28, 0.5, 0.74));
	Grid.Circle(8.0, 8.0, 1.3);
	Grid.Fill({0.0, 0.0, 0.0, Grid.Tint(1.0, 1.0, 1.0).Alpha});
}
}

void PaintViewModeIcon(cairo_t* Context, const FShape& Shape)
{
	FIconGrid Grid(Context, Shape);
	switch (Shape.Kind)
	{
	case EBrushShape::ViewLit:
		DrawLit(Grid);
		break;
	case EBrushShape::ViewUnlit:
		DrawUnlit(Grid);
		break;
	case EBrushShape::ViewWireframe:
		DrawWireframe(Grid);
		break;
	case EBrushShape::ViewDetailLighting:
		DrawDetailLighting(Grid);
		break;
	case EBrushShape::ViewLightingOnly:
		DrawLightingOnly(Grid);
		break;
	case EBrushShape::ViewReflections:
		DrawReflections(Grid);
		break;
	case EBrushShape::ViewOptimization:
		DrawOptimization(Grid);
		break;
	case EBrushShape::ViewBuffers:
		DrawBuffers(Grid);
		break;
	case EBrushShape::ViewLevelOfDetail:
		DrawLevelOfDetail(Grid);
		break;
	case EBrushShape::ViewPlayerCollision:
		DrawPlayerCollision(Grid);
		break;
	case EBrushShape::ViewVisibilityCollision:
		DrawVisibilityCollision(Grid);
		break;
	default:
		break;
	}
}
}
