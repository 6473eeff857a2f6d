// Copyright The Tintmill authors. All rights reserved.

#include "Host/Editor/Play.h"

#include "Host/Console/Console.h"
#include "Host/Editor/Panes.h"
#include "Host/Program/Strings.h"

#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Engine/GameViewportClient.h"
#include "LevelEditorViewport.h"
#include "Modules/ModuleManager.h"
#include "SLevelViewport.h"
#include "Slate/SceneViewport.h"
#include "StandIn/LevelEditorPanes.h"
#include "TintmillDisplayConfiguration.h"
#include "TintmillDisplayManager.h"
#include "TintmillModule.h"

namespace TintmillHost
{
namespace
{
UGameViewportClient& GetGame()
{
	if (!IsPlaying())
	{
		throw FCommandError("Nothing is being played; start with play, play window or simulate.");
	}
	return *GEditor->GameViewport;
}

/** The game's viewport if it has a window of its own, or null. */
TSharedPtr<FSceneViewport> FindWindowViewport(const UGameViewportClient& Game)
{
	for (const TPair<FName, FSlatePlayInEditorInfo>& Pair : GEditor->SlatePlayInEditorMap)
	{
		const TSharedPtr<FSceneViewport>& Viewport = Pair.Value.SlatePlayInEditorWindowViewport;
		if (Viewport.IsValid() && static_cast<FViewport*>(Viewport.Get()) == Game.Viewport)
		{
			return Viewport;
		}
	}
	return nullptr;
}

/** Takes a fixed size while it lives and then follows its window again. */
class FSizeForAPicture
{
public:
	FSizeForAPicture(const TSharedPtr<FSceneViewport>& InViewport, const FIntPoint& Size)
		: Viewport(InViewport)
	{
		Viewport->SetFixedViewportSize(static_cast<uint32>(Size.X), static_cast<uint32>(Size.Y));
	}
	~FSizeForAPicture() { Viewport->SetFixedViewportSize(0, 0); }
	FSizeForAPicture(const FSizeForAPicture&) = delete;
	FSizeForAPicture& operator=(const FSizeForAPicture&) = delete;

private:
	TSharedPtr<FSceneViewport> Viewport;
};

FPicture Draw(FViewport& Viewport)
{
	Viewport.Draw();
	FPicture Picture;
	Viewport.ReadPixels(Picture.Pixels);
	Picture.Width = Viewport.GetSizeXY().X;
	Picture.Height = Viewport.GetSizeXY().Y;
	return Picture;
}

std::string DescribePlace(const UGameViewportClient& Game)
{
	if (FindWindowViewport(Game).IsValid())
	{
		return "The game in a window";
	}
	for (const TSharedPtr<SLevelViewport>& Pane : StandIn::GetPanes())
	{
		if (Pane->HasPlayInEditorViewport())
		{
			return (Pane->IsPlayInEditorViewportActive() ? "The game in pane " : "The game behind the simulated pane ")
				+ ToUtf8(Pane->GetConfigKey().ToString());
		}
	}
	return "The game";
}
}

void AskForPlay(EPlayWay Way)
{
	FRequestPlaySessionParams Params;
	if (Way != EPlayWay::InWindow)
	{
		Params.DestinationSlateViewport = TWeakPtr<IAssetViewport>(GetActivePane());
	}
	if (Way == EPlayWay::Simulate)
	{
		Params.WorldType = EPlaySessionWorldType::SimulateInEditor;
	}
	GEditor->RequestPlaySession(Params);
}

bool IsPlaying()
{
	return GEditor->IsPlayingSessionInEditor() && GEditor->GameViewport && GEditor->GameViewport->Viewport;
}

std::string DescribeGame()
{
	UGameViewportClient& Game = GetGame();
	FTintmillModule& Tintmill = FModuleManager::LoadModuleChecked<FTintmillModule>(TEXT("Tintmill"));
	const FTintmillDisplayConfiguration* const Record = Tintmill.GetDisplayManager()->GetDisplayConfiguration(&Game);
	return DescribePlace(Game) + ": " + (Record ? DescribeRecord(*Record) : "no record");
}

FPicture DrawGame()
{
	UGameViewportClient& Game = GetGame();
	const TSharedPtr<FSceneViewport> InWindow = FindWindowViewport(Game);
	if (!InWindow.IsValid())
	{
		return Draw(*Game.Viewport);
	}
	const FSizeForAPicture Size(InWindow, GetActivePane()->GetSceneViewport()->GetSizeXY());
	return Draw(*Game.Viewport);
}
}
