// Copyright The Tintmill authors. All rights reserved.

#include "Host/Frame/FrameStyle.h"

#include "Brushes/SlateColorBrush.h"
#include "StandIn/BrushShape.h"
#include "Styling/SlateStyleRegistry.h"

namespace TintmillHost
{
namespace
{
const FName StyleName("TintmillHostStyle");

FLinearColor Gray(uint8 Level)
{
	return FLinearColor(FColor(Level, Level, Level, 255));
}
}

EVisibility ShownIf(bool bShown)
{
	return bShown ? EVisibility::Visible : EVisibility::Collapsed;
}

FFrameStyle::FFrameStyle()
	: Style(std::make_unique<FSlateStyleSet>(StyleName))
{
	using StandIn::EBrushShape;
	const std::pair<const char*, EBrushShape> Icons[] = {{"Play", EBrushShape::Play}, {"Stop", EBrushShape::Stop},
		{"PlayInWindow", EBrushShape::PlayInWindow}, {"Simulate", EBrushShape::Simulate}, {"Map", EBrushShape::Map},
		{"Layers", EBrushShape::Layers}, {"Folder", EBrushShape::Folder}, {"Log", EBrushShape::Log}};
	for (const auto& [Name, Shape] : Icons)
	{
		Style->Set(Name, new StandIn::FShapeBrush(Shape, FVector2D(40.0f, 40.0f), FLinearColor::White));
		Style->Set(FName(*(FString(Name) + TEXT(".Small"))), new StandIn::FShapeBrush(Shape, FVector2D(16.0f, 16.0f), FLinearColor::White));
	}
	FSlateStyleRegistry::RegisterSlateStyle(*Style);
}

FFrameStyle::~FFrameStyle()
{
	FSlateStyleRegistry::UnRegisterSlateStyle(*Style);
}

FSlateIcon FFrameStyle::GetIcon(const FName& Name)
{
	return FSlateIcon(StyleName, Name);
}

const FSlateBrush* FFrameStyle::GetSmallIcon(const FName& Name) const
{
	return Style->GetBrush(FName(*(Name.ToString() + TEXT(".Small"))));
}

const FSlateBrush* FFrameStyle::GetTabWell()
{
	static const FSlateColorBrush Brush(Gray(0x24));
	return &Brush;
}

const FSlateBrush* FFrameStyle::GetPanel()
{
	static const FSlateColorBrush Brush(Gray(0x3E));
	return &Brush;
}

const FSlateBrush* FFrameStyle::GetTab()
{
	static const FSlateColorBrush Brush(Gray(0x2C));
	return &Brush;
}

const FSlateBrush* FFrameStyle::GetHoveredTab()
{
	static const FSlateColorBrush Brush(Gray(0x36));
	return &Brush;
}

const FSlateBrush* FFrameStyle::GetTabLine()
{
	static const FSlateColorBrush Brush(Gray(0x5C));
	return &Brush;
}

const FSlateBrush* FFrameStyle::GetNameBox()
{
	static const StandIn::FShapeBrush Brush(StandIn::EBrushShape::RoundedBox, FVector2D(16.0f, 16.0f), Gray(0x2A), 3.0f);
	return &Brush;
}
}
