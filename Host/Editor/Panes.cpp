// Copyright The Tintmill authors. All rights reserved.

#include "Host/Editor/Panes.h"

#include "Host/Console/Console.h"
#include "Host/Program/Strings.h"

#include "LevelEditor.h"
#include "LevelEditorViewport.h"
#include "Modules/ModuleManager.h"
#include "SLevelViewport.h"
#include "Slate/SceneViewport.h"
#include "StandIn/LevelEditorPanes.h"
#include "TintmillDisplayConfiguration.h"
#include "TintmillDisplayManager.h"
#include "TintmillModule.h"
#include "TintmillObject.h"

#include <cstdio>

namespace TintmillHost
{
namespace
{
bool IsNamed(const FString& Key, const FString& Word)
{
	return Key == Word || Key.EndsWith(TEXT(".") + Word) || Key.EndsWith(TEXT(".Viewport") + Word);
}

/** The pane's own viewport, which stays the same while play takes the pane. */
FSceneViewport& GetEditorViewport(SLevelViewport& Pane)
{
	return *Pane.GetSceneViewport();
}
}

TSharedRef<SLevelViewport> FindPane(const std::string& Word)
{
	std::string Keys;
	for (const TSharedPtr<SLevelViewport>& Pane : StandIn::GetPanes())
	{
		const FString Key = Pane->GetConfigKey().ToString();
		if (IsNamed(Key, FromUtf8(Word)))
		{
			return Pane.ToSharedRef();
		}
		Keys += (Keys.empty() ? "" : ", ") + ToUtf8(Key);
	}
	throw FCommandError("There is no pane '" + Word + "'; the panes are " + Keys + ".");
}

TSharedRef<SLevelViewport> GetActivePane()
{
	const TSharedPtr<SLevelViewport> Pane =
		FModuleManager::GetModuleChecked<FLevelEditorModule>(TEXT("LevelEditor")).GetFirstActiveLevelViewport();
	if (!Pane.IsValid())
	{
		throw FCommandError("No pane is open.");
	}
	return Pane.ToSharedRef();
}

FVector2D FindPaneCenter(const std::string& Word)
{
	const TSharedRef<SLevelViewport> Pane = FindPane(Word);
	if (!Pane->IsVisible())
	{
		throw FCommandError("Pane " + Word + " cannot be clicked: it is not in sight.");
	}
	return Pane->GetCachedGeometry().GetAbsolutePositionAtCoordinates(FVector2D(0.5f, 0.5f));
}

void SetPaneSize(const FIntPoint& Size)
{
	for (const TSharedPtr<SLevelViewport>& Pane : StandIn::GetPanes())
	{
		GetEditorViewport(*Pane).SetFixedViewportSize(static_cast<uint32>(Size.X), static_cast<uint32>(Size.Y));
	}
}

void RedrawChangedPanes()
{
	for (const TSharedPtr<SLevelViewport>& Pane : StandIn::GetPanes())
	{
		FViewport& Viewport = GetEditorViewport(*Pane);
		if (Viewport.WouldDrawSomethingElse())
		{
			Viewport.GetClient()->RedrawRequested(&Viewport);
		}
	}
}

void DrawResizedPanes()
{
	for (const TSharedPtr<SLevelViewport>& Pane : StandIn::GetPanes())
	{
		FViewport& Viewport = GetEditorViewport(*Pane);
		if (Pane->GetLevelViewportClient().IsVisible() && Viewport.GetPresentedSurface().Size != Viewport.GetSizeXY()
			&& Viewport.GetClient() != nullptr)
		{
			Pane->GetLevelViewportClient().bNeedsRedraw = false;
			Viewport.Draw();
		}
	}
}

FTintmillDisplayConfiguration& GetPaneRecord(SLevelViewport& Pane)
{
	FTintmillModule& Tintmill = FModuleManager::LoadModuleChecked<FTintmillModule>(TEXT("Tintmill"));
	return Tintmill.GetDisplayManager()->FindOrAddDisplayConfiguration(&Pane.GetLevelViewportClient());
}

FPicture DrawPane(SLevelViewport& Pane)
{
	FViewport& Viewport = GetEditorViewport(Pane);
	Viewport.Draw();

	FPicture Picture;
	Viewport.ReadPixels(Picture.Pixels);
	Picture.Width = Viewport.GetSizeXY().X;
	Picture.Height = Viewport.GetSizeXY().Y;
	return Picture;
}

FPicture DrawPaneWithLook(SLevelViewport& Pane, bool bEnable)
{
	FTintmillDisplayConfiguration& Record = GetPaneRecord(Pane);
	const bool bWasEnabled = Record.bEnableDisplay;
	Record.bEnableDisplay = bEnable;
	FPicture Picture = DrawPane(Pane);
	Record.bEnableDisplay = bWasEnabled;
	return Picture;
}

std::string DescribeRecord(const FTintmillDisplayConfiguration& Record)
{
	if (!Record.LookAsset)
	{
		return Record.bEnableDisplay ? "no look (on)" : "no look";
	}
	char Intensity[32];
	std::snprintf(Intensity, sizeof(Intensity), " at %g", static_cast<double>(Record.Intensity));
	return ToUtf8(Record.LookAsset->GetName()) + Intensity + (Record.bEnableDisplay ? "" : " (off)");
}
}
