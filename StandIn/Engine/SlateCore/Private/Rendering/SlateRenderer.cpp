// Copyright The Tintmill authors. All rights reserved.

#include "Rendering/SlateRenderer.h"

FSlateRenderer::FSlateRenderer()
	: FontMeasure(MakeShareable(new FSlateFontMeasure()))
{}

void FSlateRenderer::LoadStyleResources(const ISlateStyle& /*Style*/) {}
