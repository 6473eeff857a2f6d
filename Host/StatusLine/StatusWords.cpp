// Copyright The Tintmill authors. All rights reserved.

#include "Host/StatusLine/StatusWords.h"

#include "Host/Editor/Panes.h"
#include "Host/Editor/Play.h"
#include "Host/Program/Strings.h"

#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "LevelEditor.h"
#include "LevelEditorViewport.h"
#include "Modules/ModuleManager.h"
#include "SLevelViewport.h"
#include "StandIn/LevelEditorPanes.h"
#include "StandIn/Notices.h"
#include "TintmillDisplayConfiguration.h"
#include "TintmillDisplayManager.h"
#include "TintmillModule.h"

namespace TintmillHost
{
namespace
{
std::string DescribeViewType(ELevelViewportType Type)
{
	switch (Type)
	{
	case LVT_OrthoXY:
		return "Top";
	case LVT_OrthoXZ:
		return "Front";
	case LVT_OrthoYZ:
		return "Left";
	default:
		return "Perspective";
	}
}

/** The last part of a pane's key, "Viewport1", with its number apart. */
std::string DescribePlace(const SLevelViewport& Pane)
{
	const std::string Key = ToUtf8(Pane.GetConfigKey().ToString());
	std::string Name = Key.substr(Key.rfind('.') + 1);
	const size_t Number = Name.find_first_of("0123456789");
	return Number == std::string::npos ? Name : Name.insert(Number, " ");
}
}

std::string DescribeActivePane()
{
	if (!StandIn::IsLevelEditorOpen())
	{
		return {};
	}
	const TSharedPtr<SLevelViewport> Pane =
		FModuleManager::GetModuleChecked<FLevelEditorModule>(TEXT("LevelEditor")).GetFirstActiveLevelViewport();
	if (!Pane.IsValid())
	{
		return {};
	}
	// A record is only looked for: adding one would be a change.
	FTintmillModule* const Tintmill = FModuleManager::GetModulePtr<FTintmillModule>(TEXT("Tintmill"));
	const FTintmillDisplayConfiguration* const Record =
		Tintmill ? Tintmill->GetDisplayManager()->GetDisplayConfiguration(&Pane->GetLevelViewportClient()) : nullptr;
	return DescribePlace(*Pane) + " (" + DescribeViewType(Pane->GetLevelViewportClient().GetViewportType())
		+ "): " + (Record ? DescribeRecord(*Record) : "no look");
}

std::string DescribePlayState()
{
	if (GEditor && GEditor->bIsSimulatingInEditor)
	{
		return "Simulating";
	}
	return GEditor && IsPlaying() ? "Playing" : "Editing";
}

std::string DescribeNotices()
{
	const int32 Num = StandIn::GetNotices().Num();
	return Num == 0 ? std::string() : std::to_string(Num) + (Num == 1 ? " notice" : " notices");
}
}
