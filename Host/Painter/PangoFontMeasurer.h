// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/Painter/TextLayouts.h"
#include "StandIn/FontMeasurer.h"

#include <memory>

// Tells Slate how large texts are, by the same layouts that are painted.

namespace TintmillHost
{
/** Measures texts with Pango. */
class FPangoFontMeasurer : public StandIn::IFontMeasurer
{
public:
	explicit FPangoFontMeasurer(const std::shared_ptr<FTextLayouts>& InLayouts);

	virtual float MeasureLine(const TCHAR* Text, int32 Length, const FSlateFontInfo& Font, float Scale) override;
	virtual float GetLineHeight(const FSlateFontInfo& Font, float Scale) override;
	virtual float GetAscent(const FSlateFontInfo& Font, float Scale) override;

private:
	std::shared_ptr<FTextLayouts> Layouts;
};

/** Slate measures with Pango while it lives, and as before afterwards. */
class FPangoMeasuring
{
public:
	explicit FPangoMeasuring(const std::shared_ptr<FTextLayouts>& Layouts);
	~FPangoMeasuring();
	FPangoMeasuring(const FPangoMeasuring&) = delete;
	FPangoMeasuring& operator=(const FPangoMeasuring&) = delete;

private:
	TSharedPtr<StandIn::IFontMeasurer> Previous;
};
}
