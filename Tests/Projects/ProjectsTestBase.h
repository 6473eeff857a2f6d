// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Interfaces/IPluginManager.h"
#include "Misc/Paths.h"
#include "StandIn/Notices.h"
#include "Support/TestFolder.h"
#include "gtest/gtest.h"
#include <string>
#include <vector>

/** A project in a folder of its own; no project, and no notices, before and after. */
class FProjectsTestBase : public testing::Test
{
protected:
	typedef std::vector<std::string> FTexts;

	virtual void SetUp() override
	{
		StandIn::ClearNotices();
		FPaths::SetProjectFilePath(Folder.Path("Demo.uproject"));
		// The engine's own plug-in needs more of the engine than runs here.
		Folder.Write("Demo.uproject", "{ \"Plugins\": [ { \"Name\": \"Tintmill\", \"Enabled\": false } ] }");
	}

	virtual void TearDown() override
	{
		FPaths::SetProjectFilePath(TEXT(""));
		Manager().RefreshPluginsList();
		StandIn::ClearNotices();
	}

	static IPluginManager& Manager() { return IPluginManager::Get(); }

	void WritePlugin(const std::string& Name, const std::string& Fields = "") const
	{
		Folder.Write(
			"Plugins/" + Name + "/" + Name + ".uplugin", "{\n\t\"FileVersion\": 3" + (Fields.empty() ? "" : ",\n\t" + Fields) + "\n}\n");
	}

	/** Names of this project's plug-ins that are on. */
	FTexts Enabled() const
	{
		FTexts Names;
		for (const TSharedRef<IPlugin>& Plugin : Manager().GetEnabledPlugins())
		{
			if (FPaths::IsUnderDirectory(Plugin->GetDescriptorFileName(), Folder.Path()))
			{
				Names.push_back(ToStd(Plugin->GetName()));
			}
		}
		return Names;
	}

	static FTexts Notices()
	{
		FTexts Texts;
		for (const StandIn::FNotice& Notice : StandIn::GetNotices())
		{
			Texts.push_back(ToStd(Notice.Text));
		}
		return Texts;
	}

	FTestFolder Folder;
};
