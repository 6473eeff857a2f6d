// Copyright The Tintmill authors. All rights reserved.

#include "Host/Frame/SPaneLines.h"

#include "Framework/Application/SlateApplication.h"
#include "LevelEditor.h"
#include "LevelEditorViewport.h"
#include "Modules/ModuleManager.h"
#include "Rendering/DrawElements.h"
#include "SLevelViewport.h"
#include "StandIn/BrushShape.h"
#include "StandIn/LevelEditorPanes.h"
#include "Styling/CoreStyle.h"

namespace TintmillHost
{
namespace
{
void PaintLine(FSlateWindowElementList& ElementList, int32 LayerId, const FGeometry& Place, const FLinearColor& Color)
{
	static const StandIn::FShapeBrush Frame(StandIn::EBrushShape::RoundedFrame, FVector2D(1.0f, 1.0f), FLinearColor::White);
	FSlateDrawElement::MakeBox(ElementList, static_cast<uint32>(LayerId), Place.ToPaintGeometry(), &Frame, ESlateDrawEffect::None, Color);
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
	const TArray<TSharedPtr<SLevelViewport>> Panes = StandIn::GetPanes();
	for (const TSharedPtr<SLevelViewport>& Pane : Panes)
	{
		// A maximized pane is the only one seen.
		if (Pane->IsVisible())
		{
			const bool bActive = Pane == Active && Panes.Num() > 1;
			PaintLine(OutDrawElements, LayerId, Pane->GetCachedGeometry(),
				bActive ? FCoreStyle::Get().GetSlateColor("SelectionColor").GetSpecifiedColor()
						: FLinearColor(FColor(0x14, 0x14, 0x14, 0xFF)));
		}
	}
	return LayerId;
}

FVector2D SPaneLines::ComputeDesiredSize(float) const
{
	return FVector2D(0.0f, 0.0f);
}

void SFocusLine::Construct(const FArguments&)
{
	SetCanTick(false);
}

int32 SFocusLine::OnPaint(const FPaintArgs&, const FGeometry&, const FSlateRect&, FSlateWindowElementList& OutDrawElements, int32 LayerId,
	const FWidgetStyle&, bool) const
{
	const FSlateApplication& Application = FSlateApplication::Get();
	const TSharedPtr<SWidget> Focused = Application.GetKeyboardFocusedWidget();
	if (!Focused.IsValid() || Focused->GetType() == TEXT("SViewport"))
	{
		return LayerId;
	}
	const TOptional<EFocusCause> Cause = Application.HasAnyUserFocus(Focused);
	// One who points with the mouse knows where he is. Menus lie in windows of their own and show it themselves.
	if (Cause.IsSet() && Cause.GetValue() == EFocusCause::Navigation
		&& Application.FindWidgetWindow(Focused.ToSharedRef()) == Application.FindWidgetWindow(AsShared()))
	{
		PaintLine(OutDrawElements, LayerId, Focused->GetCachedGeometry(), FLinearColor(1.0f, 1.0f, 1.0f, 0.7f));
	}
	return LayerId;
}

FVector2D SFocusLine::ComputeDesiredSize(float) const
{
	return FVector2D(0.0f, 0.0f);
}
}
