// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateBrush.h"

// The core style's brushes name shapes where the engine has image files. A painter asks for the shape and draws it in the tint.

namespace StandIn
{
/** What a brush of the core style looks like. */
enum class EBrushShape : uint8
{
	/** Not one of the shapes: an image file or a plain colour. */
	None,
	/** A filled rectangle with rounded corners. */
	RoundedBox,
	/** The outline of a rectangle with rounded corners, one unit wide. */
	RoundedFrame,
	/** A filled rectangle with an outline of half its brightness, one unit wide. */
	FramedBox,
	/** A soft shadow around the area. */
	Shadow,
	/** A tick. */
	Tick,
	/** A small empty box. */
	CheckBox,
	/** A small box with a tick. */
	CheckBoxTicked,
	/** A small box with a dash. */
	CheckBoxDashed,
	/** A small ring. */
	Ring,
	/** A small ring with a dot. */
	RingDotted,
	/** A triangle that points down. */
	TriangleDown,
	/** A triangle that points right. */
	TriangleRight,
	/** A magnifying glass. */
	Magnifier,
	/** A cross. */
	Cross,
	/** A checkerboard, for what is missing. */
	Checkerboard,
	/** A folder. */
	Folder,
	/** A triangle with a dark exclamation mark. */
	Warning,
	/** The outline of a window with a thick upper edge. */
	Maximize,
	/** Four small panes. */
	FourPanes,
	/** A large triangle that points right, shaded. */
	Play,
	/** A large square, shaded. */
	Stop,
	/** A triangle that points right, over a pane. */
	PlayInWindow,
	/** A gear with a triangle. */
	Simulate,
	/** A landscape in a frame. */
	Map,
	/** A diamond of three layers. */
	Layers,
	/** View modes: a ball in light and shade. */
	ViewLit,
	/** A ball without shading. */
	ViewUnlit,
	/** A ball of wire. */
	ViewWireframe,
	/** A ball in light and shade with a rough surface. */
	ViewDetailLighting,
	/** A lamp. */
	ViewLightingOnly,
	/** A ball that mirrors sky and ground. */
	ViewReflections,
	/** Bars of rising cost. */
	ViewOptimization,
	/** Sheets of different colours. */
	ViewBuffers,
	/** Polygons of fewer and fewer corners, in different colours. */
	ViewLevelOfDetail,
	/** A capsule. */
	ViewPlayerCollision,
	/** An eye. */
	ViewVisibilityCollision,
	/** A sheet with lines of text. */
	Log
};

/** A brush that names a shape. */
struct SLATECORE_API FShapeBrush : public FSlateBrush
{
	/** Makes a brush of a shape, a size, a tint and, for rounded shapes, a corner radius; in Slate units. */
	FShapeBrush(EBrushShape Shape, const FVector2D& InImageSize, const FSlateColor& InTint, float CornerRadius = 0.0f);
};

/** Returns the shape that a brush names; a rounded one's corner radius, in Slate units, is written to OutCornerRadius. */
SLATECORE_API EBrushShape GetBrushShape(const FSlateBrush& Brush, float* OutCornerRadius = nullptr);
}
