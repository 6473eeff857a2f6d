// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTestSettings.h"
#include "Misc/ConfigCacheIni.h"
#include "StandIn/AssetFiles.h"
#include "StandIn/Notices.h"
#include "Support/Printers.h"
#include "Support/TestFolder.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"
#include "gtest/gtest.h"

/** A project of its own with configuration, content and fresh default settings. */
class FConfigFixture : public testing::Test
{
protected:
	FConfigFixture()
	{
		FPaths::SetProjectFilePath(Folder.Path("Test.uproject"));
		StandIn::ClearNotices();
		StandIn::RegisterMountPoint(TEXT("/Game/"), Folder.Path("Content"));
		StandIn::FAssetFileType Type;
		Type.Extension = TEXT("coretest");
		Type.ClassName = TEXT("CoreTestAsset");
		Type.Load = [](UObject* Asset, const FString& FileName) { ((UCoreTestAsset*)Asset)->LoadedFrom = FileName; };
		StandIn::RegisterAssetFileType(Type);
		FConfigCacheIni::InitializeConfigSystem();
	}

	virtual ~FConfigFixture() override
	{
		StandIn::UnregisterAssetFileType(TEXT("coretest"));
		StandIn::UnregisterMountPoint(TEXT("/Game/"));
		StandIn::ClearNotices();
		FPaths::SetProjectFilePath(TEXT(""));
		delete GConfig;
		GConfig = nullptr;
		CollectGarbage(RF_NoFlags);
	}

	/** Name of the saved settings file below the project. */
	static std::string SavedFile()
	{
#if PLATFORM_WINDOWS
		return "Saved/Config/Windows/EditorPerProjectUserSettings.ini";
#else
		return "Saved/Config/Linux/EditorPerProjectUserSettings.ini";
#endif
	}

	/** Writes the settings' section into the saved file and reads the configuration again. */
	void WriteSettings(const std::string& Lines)
	{
		Folder.Write(SavedFile(), "[/Script/CoreUObjectTestTypes.CoreTestSettings]\n" + Lines);
		FConfigCacheIni::InitializeConfigSystem();
	}

	/** Writes the settings' section and reads it into fresh settings. */
	UCoreTestSettings* LoadSettings(const std::string& Lines)
	{
		WriteSettings(Lines);
		return LoadSettings();
	}

	/** Reads what the configuration has into fresh settings. */
	UCoreTestSettings* LoadSettings()
	{
		UCoreTestSettings* Settings = NewObject<UCoreTestSettings>();
		Settings->LoadConfig();
		return Settings;
	}

	/** The saved file without carriage returns. */
	std::string ReadSaved() const
	{
		std::string Text = Folder.Read(SavedFile());
		Text.erase(std::remove(Text.begin(), Text.end(), '\r'), Text.end());
		return Text;
	}

	/** Saves without touching the default object, which other tests share. */
	static void Save(UCoreTestSettings* Settings)
	{
		Settings->SaveConfig(CPF_Config, nullptr, GConfig, false);
	}

	FTestFolder Folder;
};
