// Copyright The Tintmill authors. All rights reserved.

#include "Host/Ui/SEditorFrame.h"

#include "Brushes/SlateColorBrush.h"
#include "LevelEditor.h"
#include "LevelEditorViewport.h"
#include "Modules/ModuleManager.h"
#include "Rendering/DrawElements.h"
#include "SLevelViewport.h"
#include "StandIn/BrushShape.h"
#include "StandIn/LevelEditorPanes.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

namespace TintmillHost
{
namespace
{
/** An sRGB color as Slate speaks of it. */
FLinearColor Srgb(uint8 Red, uint8 Green, uint8 Blue)
{
	return FLinearColor(FColor(Red, Green, Blue, 255));
}

const FSlateBrush* TabWellBrush()
{
	static const FSlateColorBrush Brush(Srgb(0x24, 0x24, 0x24));
	return &Brush;
}

const FSlateBrush* TabBrush()
{
	static const FSlateColorBrush Brush(Srgb(0x3E, 0x3E, 0x3E));
	return &Brush;
}

void PaintLine(FSlateWindowElementList& ElementList, int32 LayerId, const FGeometry& Pane, const FLinearColor& Color)
{
	static const StandIn::FShapeBrush Frame(StandIn::EBrushShape::RoundedFrame, FVector2D(1.0f, 1.0f), FLinearColor::White);
	FSlateDrawElement::MakeBox(ElementList, static_cast<uint32>(LayerId), Pane.ToPaintGeometry(), &Frame, ESlateDrawEffect::None, Color);
}
}

void SPaneLines::Construct(const FArguments&)
{
	SetCanTick(false);
}

int32 SPaneLines::OnPaint(const FPaintArgs&, const FGeometry&, const FSlateRect&, FSlateWindowElementList& OutDrawElements, int32 LayerId,
	const FWidgetStyle&, bool) const
{
	if (!StandIn::IsLevelEditorOpen())
	{
		return LayerId;
	}
	const TSharedPtr<SLevelViewport> Active =
		FModuleManager::GetModuleChecked<FLevelEditorModule>(TEXT("LevelEditor")).GetFirstActiveLevelViewport();
	for (const TSharedPtr<SLevelViewport>& Pane : StandIn::GetPanes())
	{
		// A maximized pane is the only one seen.
		if (Pane->IsVisible())
		{
			const bool bActive = Pane == Active && StandIn::GetPanes().Num() > 1;
			PaintLine(OutDrawElements, LayerId, Pane->GetCachedGeometry(),
				bActive ? FCoreStyle::Get().GetSlateColor("SelectionColor").GetSpecifiedColor() : Srgb(0x14, 0x14, 0x14));
		}
	}
	return LayerId;
}

FVector2D SPaneLines::ComputeDesiredSize(float) const
{
	return FVector2D(0.0f, 0.0f);
}

void SEditorFrame::Construct(const FArguments& InArgs)
{
	// clang-format off
	ChildSlot
	[
		SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			SNew(SBorder)
			.BorderImage(TabWellBrush())
			.Padding(FMargin(4.0f, 4.0f, 4.0f, 0.0f))
			.HAlign(HAlign_Left)
			[
				SNew(SBorder)
				.BorderImage(TabBrush())
				.Padding(FMargin(12.0f, 3.0f))
				[
					SNew(STextBlock)
					.Text(InArgs._ProjectName)
				]
			]
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			SNew(SBorder)
			.BorderImage(TabBrush())
			.Padding(FMargin(0.0f, 2.0f))
		]
		+ SVerticalBox::Slot()
		.FillHeight(1.0f)
		[
			SNew(SOverlay)
			+ SOverlay::Slot()
			[
				InArgs._LevelEditor.ToSharedRef()
			]
			+ SOverlay::Slot()
			[
				SNew(SPaneLines)
			]
		]
	];
	// clang-format on
}
}
