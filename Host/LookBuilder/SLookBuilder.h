// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/LookBuilder/BuilderPicture.h"
#include "Styling/SlateBrush.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SLeafWidget.h"

#include <memory>

class UTintmillObject;

namespace TintmillHost
{
/**
 * The look builder's content: the picture before and after a split that the left button moves, the pixel under the mouse before
 * and after, and the look's name and file. The wheel zooms around the mouse, the right button moves the picture.
 */
class SLookBuilder : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SLookBuilder) {}
	SLATE_ARGUMENT(UTintmillObject*, Look)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	/** Shows another captured picture. */
	void SetPicture(const FBuilderPicture& InPicture);

	/** Grades the picture anew, as the look's file has changed. */
	void Regrade();

	/** The name of the brush that stands for the picture. */
	FName GetBrushName() const;

	/** What the picture's area shows in this many pixels. */
	FPicture Compose(const FIntPoint& Area) const { return Picture->Compose(Area, View); }

	/** A place in the picture's area, in shares of it, as a place on the desktop. */
	FVector2D GetPlace(const FVector2D& Share) const;

	/** The line below the picture: the pixel under the mouse before and after. */
	FString GetValues() const;

	/** What is shown of the picture. */
	const FBuilderView& GetView() const { return View; }

	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;

protected:
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	/** Where the mouse is in the picture's area, and the area's size. */
	FVector2D ToArea(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent, FVector2D& OutArea) const;

	/** Puts a pixel of the picture under a point of the area. */
	void MoveUnder(const FVector2D& Area, const FVector2D& Point, const FVector2D& PictureShare);

	/** The share of the picture at a point of the area; may lie beside it. */
	FVector2D GetShare(const FVector2D& Area, const FVector2D& Point) const;

	/** The name of the look and of its file, or what is wrong with it. */
	FString GetTitle() const;

	TWeakObjectPtr<UTintmillObject> Look;
	std::unique_ptr<FBuilderPicture> Picture;
	std::unique_ptr<FSlateBrush> Brush;
	FBuilderView View;
	FIntPoint Hovered = FIntPoint(0, 0);
	bool bHoversPixel = false;
	FVector2D Grabbed = FVector2D(0.0f, 0.0f);
};
}
