// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Layout/SSeparator.h"

SSeparator::SSeparator()
	: Orientation(Orient_Horizontal)
	, Thickness(3.0f)
{}

void SSeparator::Construct(const FArguments& InArgs)
{
	Orientation = InArgs._Orientation;
	Thickness = InArgs._Thickness;
	SBorder::Construct(
		SBorder::FArguments().BorderImage(InArgs._SeparatorImage).Padding(FMargin(0.0f)).BorderBackgroundColor(InArgs._ColorAndOpacity));
}

FVector2D SSeparator::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	return Orientation == Orient_Horizontal ? FVector2D(0.0f, Thickness) : FVector2D(Thickness, 0.0f);
}
