// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/EditorState.h"

#include "Host/Editor/Maps.h"
#include "Host/Program/HostState.h"
#include "Host/Program/Strings.h"

#include "LevelEditor.h"
#include "LevelEditorViewport.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "SLevelViewport.h"
#include "StandIn/EngineLoop.h"
#include "StandIn/LevelEditorPanes.h"

#include <map>
#include <vector>

namespace TintmillHost
{
namespace
{
const std::string DefaultLayout = "FourPanes2x2";
const std::string AllPanes = "None";
const std::string MapKey = "Map";
const std::string MaximizedKey = "MaximizedPane";
const std::string ActiveKey = "ActivePane";

constexpr int LastTab = 4;

std::string TabKey(int Tab)
{
	return "Tab" + std::to_string(Tab) + "Layout";
}

std::vector<std::string> KnownLayouts()
{
	std::vector<std::string> Names;
	for (const FName& Name : StandIn::GetViewportLayoutNames())
	{
		Names.push_back(ToUtf8(Name.ToString()));
	}
	return Names;
}

/** The parts of a pane's key such as "FourPanes2x2.Viewport 1.Viewport0". */
struct FPaneKey
{
	explicit FPaneKey(const SLevelViewport& Pane) { Pane.GetConfigKey().ToString().ParseIntoArray(Parts, TEXT(".")); }

	std::string Layout() const { return Parts.Num() == 3 ? ToUtf8(Parts[0]) : std::string(); }
	std::string Pane() const { return Parts.Num() == 3 ? ToUtf8(Parts[2]) : std::string(); }

	/** 1 for "Viewport 1"; 0 for anything else. */
	int Tab() const { return Parts.Num() == 3 && Parts[1].StartsWith(TEXT("Viewport ")) ? FCString::Atoi(*Parts[1].RightChop(9)) : 0; }

	TArray<FString> Parts;
};

std::string FindActivePane()
{
	const TSharedPtr<SLevelViewport> Pane =
		FModuleManager::GetModuleChecked<FLevelEditorModule>(TEXT("LevelEditor")).GetFirstActiveLevelViewport();
	return Pane.IsValid() ? ToUtf8(Pane->GetConfigKey().ToString()) : std::string();
}

bool IsMap(const std::string& Name)
{
	FString File;
	return FPackageName::IsValidLongPackageName(FromUtf8(Name))
		&& FPackageName::TryConvertLongPackageNameToFilename(FromUtf8(Name), File, TEXT(".umap")) && FPaths::FileExists(File);
}
}

void FEditorState::Restore(StandIn::FEngineLoopOptions& InOutOptions)
{
	InOutOptions.Layout = FName(*FromUtf8(GetStateWord(TabKey(1), KnownLayouts(), DefaultLayout)));
	InOutOptions.MaximizedPane =
		FName(*FromUtf8(GetStateWord(MaximizedKey, {"Viewport0", "Viewport1", "Viewport2", "Viewport3"}, AllPanes)));
	const std::string Map = GetStateText(MapKey, "");
	if (IsMap(Map))
	{
		InOutOptions.StartupMap = FromUtf8(Map);
	}
}

void FEditorState::FinishRestoring()
{
	const std::string None;
	FirstActive = FindActivePane();
	for (int Tab = 2; Tab <= LastTab; ++Tab)
	{
		const std::string Layout = GetStateWord(TabKey(Tab), KnownLayouts(), None);
		if (!Layout.empty())
		{
			StandIn::OpenViewportTab(Tab, FName(*FromUtf8(Layout)));
		}
	}
	const std::string Active = GetStateText(ActiveKey, "");
	if (!Active.empty() && Active.size() < NAME_SIZE / 2)
	{
		StandIn::ActivatePane(FName(*FromUtf8(Active)));
	}
}

void FEditorState::Keep() const
{
	std::map<int, std::string> Layouts;
	std::string Maximized = AllPanes;
	for (const TSharedPtr<SLevelViewport>& Pane : StandIn::GetPanes())
	{
		const FPaneKey Key(*Pane);
		Layouts[Key.Tab()] = Key.Layout();
		if (Key.Tab() == 1 && Pane->IsMaximized())
		{
			Maximized = Key.Pane();
		}
	}
	if (!Layouts[1].empty())
	{
		SetStateText(TabKey(1), Layouts[1], DefaultLayout);
	}
	SetStateText(MaximizedKey, Maximized, AllPanes);
	for (int Tab = 2; Tab <= LastTab; ++Tab)
	{
		SetStateText(TabKey(Tab), Layouts[Tab], "");
	}
	if (const std::string Active = FindActivePane(); !Active.empty())
	{
		SetStateText(ActiveKey, Active, FirstActive);
	}
	const std::string Map = GetOpenMap();
	SetStateText(MapKey, Map.starts_with("/Temp/") ? "" : Map, "");
}
}
