// Copyright The Tintmill authors. All rights reserved.

#include "TintmillEditor/ModuleFixture.h"

#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Engine/GameViewportClient.h"
#include "LevelEditorViewport.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "SLevelViewport.h"
#include "StandIn/AssetFiles.h"
#include "StandIn/LevelEditorPanes.h"
#include "StandIn/Notices.h"
#include "TintmillDisplayManager.h"
#include "TintmillModule.h"
#include "TintmillObject.h"

#include <sstream>

namespace
{
const char* const SettingsFile =
	PLATFORM_WINDOWS ? "Saved/Config/Windows/EditorPerProjectUserSettings.ini" : "Saved/Config/Linux/EditorPerProjectUserSettings.ini";
const char* const SettingsSection = "[/Script/TintmillEditor.TintmillLevelViewportSettings]";
const std::string SettingsKey = "ViewportsSettings=";
}

FModuleFixture::FModuleFixture()
{
	Options.MaximizedPane = NAME_None;
	std::filesystem::create_directories(Project.NativePath("Content/Looks"));
	FPaths::SetProjectFilePath(Project.Path("Test.uproject"));
	StandIn::RegisterMountPoint(TEXT("/Game/"), Project.Path("Content") + TEXT("/"));
	ModulesChangedHandle = FModuleManager::Get().OnModulesChanged().AddLambda([this](FName Name, EModuleChangeReason Reason) {
		if (Name == FName(TEXT("TintmillEditor")) && Reason == EModuleChangeReason::ModuleLoaded)
		{
			StartedModules.push_back(GetModule());
		}
	});
}

FModuleFixture::~FModuleFixture()
{
	ExitEditor();
	// A test that took the exit's steps itself has not been through ExitEditor.
	RemoveDeliberateLeftovers();
	FModuleManager::Get().OnModulesChanged().Remove(ModulesChangedHandle);
	StandIn::UnregisterMountPoint(TEXT("/Game/"));
	StandIn::ClearNotices();
}

void FModuleFixture::WriteLook(const std::string& Name) const
{
	Project.Write("Content/Looks/" + Name + ".cube",
		"LUT_3D_SIZE 2\n0 0 0\n0.5 0 0\n0 0.5 0\n0.5 0.5 0\n0 0 0.5\n0.5 0 0.5\n0 0.5 0.5\n0.5 0.5 0.5\n");
}

void FModuleFixture::WriteSettings(const std::vector<std::string>& Pairs) const
{
	std::string Text = std::string(SettingsSection) + "\n";
	for (const std::string& Pair : Pairs)
	{
		Text += SettingsKey + Pair + "\n";
	}
	Project.Write(SettingsFile, Text + "\n");
}

std::string FModuleFixture::MakePair(const std::string& Key, bool bEnable, const std::string& Intensity, const std::string& Look)
{
	return "(ViewportIdentifier=\"" + Key + "\",DisplayConfiguration=(bEnableDisplay=" + (bEnable ? "True" : "False") + ",Intensity="
		+ Intensity + ",LookAsset=" + (Look.empty() ? "None" : "TintmillObject'\"/Game/Looks/" + Look + "." + Look + "\"'") + "))";
}

std::vector<std::string> FModuleFixture::ReadSettings() const
{
	std::vector<std::string> Pairs;
	bool bInSection = false;
	std::istringstream Stream(Project.Read(SettingsFile));
	for (std::string Line; std::getline(Stream, Line);)
	{
		Line = Line.substr(0, Line.find('\r'));
		if (Line.rfind('[', 0) == 0)
		{
			bInSection = Line == SettingsSection;
		}
		else if (bInSection && Line.rfind(SettingsKey, 0) == 0)
		{
			Pairs.push_back(Line.substr(SettingsKey.size()));
		}
	}
	return Pairs;
}

void FModuleFixture::PreInit()
{
	// The configuration of the project that ran before.
	delete GConfig;
	GConfig = nullptr;
	EngineLoop.emplace();
	EngineLoop->PreInit(Options);
}

void FModuleFixture::InitEngine()
{
	PreInit();
	EngineLoop->Init();
}

void FModuleFixture::StartEditor(FName Layout)
{
	Options.Layout = Layout;
	InitEngine();
	EngineLoop->InitEditor();
}

void FModuleFixture::ExitEditor()
{
	if (EngineLoop.has_value())
	{
		if (!GEditor)
		{
			EngineLoop->Init();
		}
		EngineLoop->Exit();
		EngineLoop.reset();
		RemoveDeliberateLeftovers();
	}
}

IModuleInterface* FModuleFixture::GetModule()
{
	return FModuleManager::Get().GetModule(TEXT("TintmillEditor"));
}

TSharedPtr<SLevelViewport> FModuleFixture::GetPane(int32 Number)
{
	const TArray<TSharedPtr<SLevelViewport>> Panes = StandIn::GetPanes();
	return Panes.IsValidIndex(Number) ? Panes[Number] : nullptr;
}

FViewportClient* FModuleFixture::GetClient(int32 Number)
{
	return &GetPane(Number)->GetLevelViewportClient();
}

FTintmillDisplayManager& FModuleFixture::GetDisplayManager()
{
	return *FModuleManager::LoadModuleChecked<FTintmillModule>(TEXT("Tintmill")).GetDisplayManager();
}

const FTintmillDisplayConfiguration* FModuleFixture::FindRecord(int32 Number)
{
	return GetDisplayManager().GetDisplayConfiguration(GetClient(Number));
}

std::string FModuleFixture::LookName(const FTintmillDisplayConfiguration* Record)
{
	return Record && Record->LookAsset ? TCHAR_TO_UTF8(*Record->LookAsset->GetName()) : "";
}

void FModuleFixture::RemoveDeliberateLeftovers()
{
	// The module leaves these bindings in place on purpose. Its object is gone now, as it would be in the engine, so they are
	// taken off from the engine's side before anything fires them. A test that loaded it again has had several objects.
	for (const void* const Module : StartedModules)
	{
		FEditorDelegates::PreBeginPIE.RemoveAll(Module);
		FEditorDelegates::PostPIEStarted.RemoveAll(Module);
		UGameViewportClient::OnViewportCreated().RemoveAll(Module);
	}
	StartedModules.clear();
}
