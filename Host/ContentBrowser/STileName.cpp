// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/STileName.h"

#include "Host/ContentBrowser/ContentStyle.h"

#include "Rendering/DrawElements.h"
#include "StandIn/FontMeasurer.h"
#include "StandIn/TextLines.h"

#include <cmath>

namespace TintmillHost
{
namespace
{
constexpr int32 FontSize = 8;
}

void STileName::Construct(const FArguments& InArgs)
{
	SetCanTick(false);
	Name = InArgs._Name;
	Color = InArgs._Color;
}

TArray<FString> STileName::BreakName(const FString& Name, float Width)
{
	const FSlateFontInfo Font = ContentStyle::GetFont(FontSize);
	TArray<FString> Lines = StandIn::BreakLines(Name, Font, Width);
	if (Lines.Num() > 2)
	{
		Lines[1] = StandIn::CutWithEllipsis(Name.RightChop(Lines[0].Len()).TrimStart(), Font, Width);
		Lines.SetNum(2);
	}
	return Lines;
}

int32 STileName::OnPaint(const FPaintArgs&, const FGeometry& AllottedGeometry, const FSlateRect&, FSlateWindowElementList& OutDrawElements,
	int32 LayerId, const FWidgetStyle&, bool) const
{
	const FSlateFontInfo Font = ContentStyle::GetFont(FontSize);
	StandIn::IFontMeasurer& Measurer = StandIn::GetFontMeasurer();
	const float LineHeight = Measurer.GetLineHeight(Font, 1.0f);
	const float Room = AllottedGeometry.GetLocalSize().X;
	float Y = 0.0f;
	for (const FString& Line : BreakName(Name, Room))
	{
		const float Width = Line.IsEmpty() ? 0.0f : Measurer.MeasureLine(*Line, Line.Len(), Font, 1.0f);
		FSlateDrawElement::MakeText(OutDrawElements, static_cast<uint32>(LayerId),
			AllottedGeometry.ToPaintGeometry(FVector2D(std::floor((Room - Width) * 0.5f), Y), FVector2D(Width, LineHeight)), Line, Font,
			ESlateDrawEffect::None, Color.Get());
		Y += LineHeight;
	}
	return LayerId;
}

FVector2D STileName::ComputeDesiredSize(float) const
{
	return FVector2D(ContentStyle::ThumbnailSize, ContentStyle::NameHeight);
}
}
