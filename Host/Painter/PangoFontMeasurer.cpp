// Copyright The Tintmill authors. All rights reserved.

#include "Host/Painter/PangoFontMeasurer.h"

#include "Host/Program/Strings.h"

namespace TintmillHost
{
FPangoFontMeasurer::FPangoFontMeasurer(const std::shared_ptr<FTextLayouts>& InLayouts)
	: Layouts(InLayouts)
{}

float FPangoFontMeasurer::MeasureLine(const TCHAR* Text, int32 Length, const FSlateFontInfo& Font, float Scale)
{
	return static_cast<float>(Layouts->MeasureWidth(ToUtf8(FString(Length, Text)), Font, Scale));
}

float FPangoFontMeasurer::GetLineHeight(const FSlateFontInfo& Font, float Scale)
{
	return static_cast<float>(FTextLayouts::GetLineHeight(Font, Scale));
}

float FPangoFontMeasurer::GetAscent(const FSlateFontInfo& Font, float Scale)
{
	return static_cast<float>(Layouts->GetAscent(Font, Scale));
}

FPangoMeasuring::FPangoMeasuring(const std::shared_ptr<FTextLayouts>& Layouts)
	: Previous(StandIn::SetFontMeasurer(MakeShareable(new FPangoFontMeasurer(Layouts))))
{}

FPangoMeasuring::~FPangoMeasuring()
{
	StandIn::SetFontMeasurer(Previous);
}
}
