// Copyright The Tintmill authors. All rights reserved.

#include "Host/Painter/ShapePainter.h"

#include "Host/Painter/IconPainter.h"
#include "Host/Painter/ViewModeIcons.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <numbers>

namespace TintmillHost
{
namespace
{
using StandIn::EBrushShape;

/** How far the shadow that a brush names reaches, in units. */
constexpr double BrushShadowReach = 8.0;

struct FPoint
{
	double X;
	double Y;
};

/** The width of a line of Units in whole pixels, at least one. */
double LineWidth(const FShape& Shape, double Units = 1.0)
{
	return std::max(1.0, std::round(Units * Shape.Scale));
}

/** A place in the shape's area, 0 to 1 in both directions. */
FPoint At(const FShape& Shape, const FPoint& Part)
{
	return {Shape.Rect.X + Part.X * Shape.Rect.Width, Shape.Rect.Y + Part.Y * Shape.Rect.Height};
}

void AddLine(cairo_t* Context, const FShape& Shape, std::initializer_list<FPoint> Parts)
{
	cairo_new_sub_path(Context);
	for (const FPoint& Part : Parts)
	{
		const FPoint Point = At(Shape, Part);
		cairo_line_to(Context, Point.X, Point.Y);
	}
}

void Stroke(cairo_t* Context, const FShape& Shape, double Width)
{
	Shape.Color.Use(Context);
	cairo_set_line_width(Context, Width);
	cairo_set_line_cap(Context, CAIRO_LINE_CAP_ROUND);
	cairo_set_line_join(Context, CAIRO_LINE_JOIN_ROUND);
	cairo_stroke(Context);
}

void FillPolygon(cairo_t* Context, const FShape& Shape, std::initializer_list<FPoint> Parts)
{
	AddLine(Context, Shape, Parts);
	cairo_close_path(Context);
	Shape.Color.Use(Context);
	cairo_fill(Context);
}

void PaintFrame(cairo_t* Context, const FShape& Shape, const FPaintColor& Color)
{
	const double Width = LineWidth(Shape);
	AddRoundedRect(Context, Shape.Rect.Shrunk(Width / 2.0), Shape.CornerRadius * Shape.Scale - Width / 2.0);
	Color.Use(Context);
	cairo_set_line_width(Context, Width);
	cairo_stroke(Context);
}

void PaintFilledBox(cairo_t* Context, const FShape& Shape)
{
	AddRoundedRect(Context, Shape.Rect, Shape.CornerRadius * Shape.Scale);
	Shape.Color.Use(Context);
	cairo_fill(Context);
}

void PaintTick(cairo_t* Context, const FShape& Shape)
{
	AddLine(Context, Shape, {{0.22, 0.52}, {0.42, 0.73}, {0.79, 0.27}});
	Stroke(Context, Shape, 1.7 * Shape.Scale);
}

/** The dark well that a tick or a dot stands in, with a line around it. */
void PaintWell(cairo_t* Context, const FShape& Shape, double CornerRadius)
{
	FShape Well = Shape;
	Well.Rect = Shape.Rect.Shrunk(std::round(Shape.Scale));
	Well.CornerRadius = CornerRadius;
	Well.Color = FPaintColor{0.0, 0.0, 0.0, 0.45 * Shape.Color.Alpha};
	PaintFilledBox(Context, Well);
	PaintFrame(Context, Well, Shape.Color.Faded(0.8));
}

void PaintCheckBox(cairo_t* Context, const FShape& Shape)
{
	PaintWell(Context, Shape, 2.0);
	if (Shape.Kind == EBrushShape::CheckBoxTicked)
	{
		PaintTick(Context, Shape);
	}
	else if (Shape.Kind == EBrushShape::CheckBoxDashed)
	{
		AddLine(Context, Shape, {{0.32, 0.5}, {0.68, 0.5}});
		Stroke(Context, Shape, 2.0 * Shape.Scale);
	}
}

void PaintRing(cairo_t* Context, const FShape& Shape)
{
	PaintWell(Context, Shape, Shape.Rect.Width / 2.0);
	if (Shape.Kind == EBrushShape::RingDotted)
	{
		const FPoint Center = At(Shape, {0.5, 0.5});
		cairo_new_sub_path(Context);
		cairo_arc(Context, Center.X, Center.Y, Shape.Rect.Width * 0.19, 0.0, 2.0 * std::numbers::pi);
		Shape.Color.Use(Context);
		cairo_fill(Context);
	}
}

void PaintMagnifier(cairo_t* Context, const FShape& Shape)
{
	const FPoint Center = At(Shape, {0.43, 0.43});
	cairo_new_sub_path(Context);
	cairo_arc(Context, Center.X, Center.Y, Shape.Rect.Width * 0.25, 0.0, 2.0 * std::numbers::pi);
	AddLine(Context, Shape, {{0.62, 0.62}, {0.84, 0.84}});
	Stroke(Context, Shape, 1.6 * Shape.Scale);
}

void PaintFolder(cairo_t* Context, const FShape& Shape)
{
	FShape Back = Shape;
	Back.Color = Shape.Color.Darkened(0.75);
	FillPolygon(Context, Back, {{0.06, 0.2}, {0.4, 0.2}, {0.47, 0.3}, {0.94, 0.3}, {0.94, 0.82}, {0.06, 0.82}});
	FillPolygon(Context, Shape, {{0.06, 0.38}, {0.94, 0.38}, {0.94, 0.82}, {0.06, 0.82}});
}

void PaintWarning(cairo_t* Context, const FShape& Shape)
{
	FShape Edge = Shape;
	Edge.Color = FPaintColor{0.0, 0.0, 0.0, 0.8 * Shape.Color.Alpha};
	FillPolygon(Context, Edge, {{0.5, 0.0}, {1.0, 0.94}, {0.0, 0.94}});
	FillPolygon(Context, Shape, {{0.5, 0.12}, {0.91, 0.88}, {0.09, 0.88}});
	FillPolygon(Context, Edge, {{0.44, 0.36}, {0.56, 0.36}, {0.54, 0.65}, {0.46, 0.65}});
	FillPolygon(Context, Edge, {{0.44, 0.7}, {0.56, 0.7}, {0.56, 0.81}, {0.44, 0.81}});
}

void PaintCheckerboard(cairo_t* Context, const FShape& Shape)
{
	const double Cell = std::max(1.0, std::round(8.0 * Shape.Scale));
	Shape.Color.Use(Context);
	cairo_rectangle(Context, Shape.Rect.X, Shape.Rect.Y, Shape.Rect.Width, Shape.Rect.Height);
	cairo_fill(Context);
	for (int Row = 0; Row * Cell < Shape.Rect.Height; ++Row)
	{
		for (int Column = Row % 2; Column * Cell < Shape.Rect.Width; Column += 2)
		{
			cairo_rectangle(Context, Shape.Rect.X + Column * Cell, Shape.Rect.Y + Row * Cell,
				std::min(Cell, Shape.Rect.Width - Column * Cell), std::min(Cell, Shape.Rect.Height - Row * Cell));
		}
	}
	Shape.Color.Darkened(0.5).Use(Context);
	cairo_fill(Context);
}
}

double ReachOfShape(const FShape& Shape)
{
	switch (Shape.Kind)
	{
	case EBrushShape::Shadow:
		return ReachOfShadow(Shape, BrushShadowReach);
	case EBrushShape::RoundedBox:
	case EBrushShape::RoundedFrame:
	case EBrushShape::FramedBox:
	case EBrushShape::Checkerboard:
		return 1.0;
	default:
		// Lines with round ends near an edge reach over it by half their width, and circles over the shorter side of a long area.
		return std::ceil(2.0 * Shape.Scale) + 1.0 + std::fabs(Shape.Rect.Width - Shape.Rect.Height) / 2.0;
	}
}

double ReachOfShadow(const FShape& Shape, double Reach)
{
	return std::max(1.0, std::round(Reach * Shape.Scale)) + std::round(2.0 * Shape.Scale) + 1.0;
}

void PaintShadow(cairo_t* Context, const FShape& Shape, double Reach)
{
	const int Steps = std::max(1, static_cast<int>(std::lround(Reach * Shape.Scale)));
	const double Drop = std::round(2.0 * Shape.Scale);
	cairo_save(Context);
	// Nothing below the area itself, which may be transparent.
	cairo_rectangle(
		Context, Shape.Rect.X - 2 * Steps, Shape.Rect.Y - 2 * Steps, Shape.Rect.Width + 4 * Steps, Shape.Rect.Height + 4 * Steps);
	AddRoundedRect(Context, Shape.Rect, Shape.CornerRadius * Shape.Scale);
	cairo_set_fill_rule(Context, CAIRO_FILL_RULE_EVEN_ODD);
	cairo_clip(Context);
	cairo_set_fill_rule(Context, CAIRO_FILL_RULE_WINDING);
	for (int Step = Steps; Step > 0; --Step)
	{
		FDeviceRect Ring = Shape.Rect.Shrunk(-Step);
		Ring.Y += Drop;
		AddRoundedRect(Context, Ring, Step + Shape.CornerRadius * Shape.Scale);
		// Each ring adds its share, more of it near the area.
		Shape.Color.Faded(2.0 * (Steps - Step + 1) / (static_cast<double>(Steps) * (Steps + 1))).Use(Context);
		cairo_fill(Context);
	}
	cairo_restore(Context);
}

void PaintShape(cairo_t* Context, const FShape& Shape)
{
	if (Shape.Rect.IsEmpty())
	{
		return;
	}
	switch (Shape.Kind)
	{
	case EBrushShape::None:
		break;
	case EBrushShape::RoundedBox:
		PaintFilledBox(Context, Shape);
		break;
	case EBrushShape::RoundedFrame:
		PaintFrame(Context, Shape, Shape.Color);
		break;
	case EBrushShape::FramedBox:
		PaintFilledBox(Context, Shape);
		PaintFrame(Context, Shape, Shape.Color.Darkened(0.5));
		break;
	case EBrushShape::Shadow:
		PaintShadow(Context, Shape, BrushShadowReach);
		break;
	case EBrushShape::Tick:
		PaintTick(Context, Shape);
		break;
	case EBrushShape::CheckBox:
	case EBrushShape::CheckBoxTicked:
	case EBrushShape::CheckBoxDashed:
		PaintCheckBox(Context, Shape);
		break;
	case EBrushShape::Ring:
	case EBrushShape::RingDotted:
		PaintRing(Context, Shape);
		break;
	case EBrushShape::TriangleDown:
		FillPolygon(Context, Shape, {{0.06, 0.25}, {0.94, 0.25}, {0.5, 0.8}});
		break;
	case EBrushShape::TriangleRight:
		FillPolygon(Context, Shape, {{0.25, 0.06}, {0.25, 0.94}, {0.8, 0.5}});
		break;
	case EBrushShape::Magnifier:
		PaintMagnifier(Context, Shape);
		break;
	case EBrushShape::Cross:
		AddLine(Context, Shape, {{0.27, 0.27}, {0.73, 0.73}});
		AddLine(Context, Shape, {{0.73, 0.27}, {0.27, 0.73}});
		Stroke(Context, Shape, 1.6 * Shape.Scale);
		break;
	case EBrushShape::Checkerboard:
		PaintCheckerboard(Context, Shape);
		break;
	case EBrushShape::Folder:
		PaintFolder(Context, Shape);
		break;
	case EBrushShape::Warning:
		PaintWarning(Context, Shape);
		break;
	case EBrushShape::Maximize:
	case EBrushShape::FourPanes:
	case EBrushShape::Play:
	case EBrushShape::Stop:
	case EBrushShape::PlayInWindow:
	case EBrushShape::Simulate:
	case EBrushShape::Map:
	case EBrushShape::Layers:
	case EBrushShape::Log:
		PaintIcon(Context, Shape);
		break;
	case EBrushShape::ViewLit:
	case EBrushShape::ViewUnlit:
	case EBrushShape::ViewWireframe:
	case EBrushShape::ViewDetailLighting:
	case EBrushShape::ViewLightingOnly:
	case EBrushShape::ViewReflections:
	case EBrushShape::ViewOptimization:
	case EBrushShape::ViewBuffers:
	case EBrushShape::ViewLevelOfDetail:
	case EBrushShape::ViewPlayerCollision:
	case EBrushShape::ViewVisibilityCollision:
		PaintViewModeIcon(Context, Shape);
		break;
	}
}
}
