// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/EditorState.h"

#include "Host/Editor/Maps.h"
#include "Host/Program/Strings.h"
#include "Host/Ui/SEditorFrame.h"

#include "LevelEditor.h"
#include "LevelEditorViewport.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "SLevelViewport.h"
#include "StandIn/EngineLoop.h"
#include "StandIn/LevelEditorPanes.h"

#include <cstdio>
#include <vector>

namespace TintmillHost
{
namespace
{
const std::string DefaultLayout = "FourPanes2x2";
const std::string AllPanes = "None";
const std::string MapKey = "Map";
const std::string ActiveKey = "ActivePane";
const std::string FrontTabKey = "FrontViewportTab";
const std::string PanelKey = "BottomTab";
const std::string BrowserOpenKey = "ContentBrowserOpen";
const std::string LogOpenKey = "OutputLogOpen";
const FStateNumber BottomShare{"BottomShare", 0.05, 0.95, 0.3};
constexpr const char* Yes = "True";
constexpr const char* No = "False";
constexpr int LastTab = 4;

std::string TabKey(int Tab, const char* What)
{
	return "Viewport" + std::to_string(Tab) + What;
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

/** The last part of a pane's key such as "FourPanes2x2.Viewport 1.Viewport0"; "None" without a pane. */
std::string GetPaneName(const TSharedPtr<SLevelViewport>& Pane)
{
	const std::string Key = Pane.IsValid() ? ToUtf8(Pane->GetConfigKey().ToString()) : AllPanes;
	return Key.substr(Key.rfind('.') + 1);
}

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

std::string WriteShares(const TArray<float>& Shares)
{
	std::string Text;
	for (const float Share : Shares)
	{
		char Number[32];
		std::snprintf(Number, sizeof(Number), "%.4f", static_cast<double>(Share));
		Text += (Text.empty() ? "" : " ") + std::string(Number);
	}
	return Text;
}

/** The numbers of a text; none where one of them cannot be a share. */
TArray<float> ReadShares(const std::string& Text)
{
	TArray<FString> Words;
	TArray<float> Shares;
	FromUtf8(Text).ParseIntoArray(Words, TEXT(" "));
	for (const FString& Word : Words)
	{
		const float Share = Word.IsNumeric() ? FCString::Atof(*Word) : 0.0f;
		if (!(Share > 0.01f && Share <= 1.0f))
		{
			return {};
		}
		Shares.Add(Share);
	}
	return Shares;
}

FName MakeName(const std::string& Text)
{
	return FName(*FromUtf8(Text));
}
}

void FEditorState::Restore(StandIn::FEngineLoopOptions& InOutOptions)
{
	InOutOptions.Layout = MakeName(GetStateWord(TabKey(1, "Layout"), KnownLayouts(), DefaultLayout));
	InOutOptions.MaximizedPane = NAME_None;
	const std::string Map = GetStateText(MapKey, "");
	if (IsMap(Map))
	{
		InOutOptions.StartupMap = FromUtf8(Map);
	}
}

void FEditorState::RestoreLevelEditor()
{
	FirstActive = FindActivePane();
	for (int Tab = 1; Tab <= LastTab; ++Tab)
	{
		const std::string Layout = GetStateWord(TabKey(Tab, "Layout"), KnownLayouts(), Tab == 1 ? DefaultLayout : "");
		if (Layout.empty())
		{
			continue;
		}
		StandIn::OpenViewportTab(Tab, MakeName(Layout));
		DescribeHandles(Tab, Layout);
		if (const TArray<float> Shares = ReadShares(GetStateText(TabKey(Tab, "Handles"), "")); Shares.Num() > 0)
		{
			StandIn::SetPaneShares(Shares, Tab);
		}
		const std::string Pane = GetStateWord(TabKey(Tab, "Filled"), {"Viewport0", "Viewport1", "Viewport2", "Viewport3"}, "");
		StandIn::MaximizePane(MakeName(Layout + ".Viewport " + std::to_string(Tab) + "." + Pane), true);
	}
	const int Front = static_cast<int>(GetStateNumber({FrontTabKey, 1.0, static_cast<double>(LastTab), 1.0}));
	if (StandIn::GetViewportTabs().Contains(Front))
	{
		StandIn::OpenViewportTab(Front, MakeName(DefaultLayout));
	}
	const std::string Active = GetStateText(ActiveKey, "");
	if (!Active.empty() && Active.size() < NAME_SIZE / 2)
	{
		StandIn::ActivatePane(MakeName(Active));
	}
}

void FEditorState::RestoreFrame(SEditorFrame& Frame)
{
	FFrameState State = Frame.GetState();
	const FFrameState Untouched;
	State.BottomShare = static_cast<float>(GetStateNumber(BottomShare));
	State.bContentBrowserOpen = GetStateFlag(BrowserOpenKey, Untouched.bContentBrowserOpen);
	State.bOutputLogOpen = GetStateFlag(LogOpenKey, Untouched.bOutputLogOpen);
	State.FrontTab = GetStateWord(PanelKey, {"ContentBrowser", "OutputLog"}, Untouched.FrontTab);
	Frame.SetState(State);
}

void FEditorState::Keep(const SEditorFrame* Frame)
{
	FValues Values;
	AddTabs(Values);
	Values[ActiveKey] = {FindActivePane(), FirstActive};
	const std::string Map = GetOpenMap();
	Values[MapKey] = {Map.starts_with("/Temp/") ? "" : Map, ""};
	if (Frame != nullptr)
	{
		AddFrame(*Frame, Values);
	}
	if (Values == Last)
	{
		Drag.reset();
		return;
	}
	// At the first frame nothing has changed yet.
	if (!Drag && !Last.empty())
	{
		Drag.emplace();
	}
	for (const auto& [Key, Value] : Values)
	{
		const auto Before = Last.find(Key);
		if (Before == Last.end() || Before->second != Value)
		{
			SetStateText(Key, Value.Text, Value.Default);
		}
	}
	Last = std::move(Values);
}

void FEditorState::AddTabs(FValues& OutValues)
{
	const TArray<int32> Open = StandIn::GetViewportTabs();
	for (int Tab = 1; Tab <= LastTab; ++Tab)
	{
		const bool bOpen = Open.Contains(Tab);
		const std::string Layout = bOpen ? ToUtf8(StandIn::GetViewportLayout(Tab).ToString()) : std::string();
		OutValues[TabKey(Tab, "Layout")] = {Layout, Tab == 1 ? DefaultLayout : ""};
		OutValues[TabKey(Tab, "Handles")] = {bOpen ? DescribeHandles(Tab, Layout) : "", ""};
		OutValues[TabKey(Tab, "Filled")] = {bOpen ? GetPaneName(StandIn::GetMaximizedPane(Tab)) : AllPanes, AllPanes};
	}
	OutValues[FrontTabKey] = {std::to_string(StandIn::GetFrontViewportTab()), "1"};
}

void FEditorState::AddFrame(const SEditorFrame& Frame, FValues& OutValues)
{
	const FFrameState& State = Frame.GetState();
	const FFrameState Untouched;
	OutValues[BottomShare.Key] = {WriteShares({State.BottomShare}), WriteShares({Untouched.BottomShare})};
	OutValues[BrowserOpenKey] = {State.bContentBrowserOpen ? Yes : No, Untouched.bContentBrowserOpen ? Yes : No};
	OutValues[LogOpenKey] = {State.bOutputLogOpen ? Yes : No, Untouched.bOutputLogOpen ? Yes : No};
	OutValues[PanelKey] = {State.FrontTab, Untouched.FrontTab};
}

std::string FEditorState::DescribeHandles(int Tab, const std::string& Layout)
{
	const std::string Text = WriteShares(StandIn::GetPaneShares(Tab));
	return UntouchedHandles.try_emplace(Layout, Text).first->second == Text ? std::string() : Text;
}
}
