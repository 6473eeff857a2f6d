// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Misc/ConfigCacheIni.h"
#include "StandIn/Notices.h"
#include "Support/TestFolder.h"
#include "gtest/gtest.h"
#include <string>
#include <vector>

/** A cache of its own, a folder for its files, and no notices before and after. */
class FConfigTestBase : public testing::Test
{
protected:
	typedef std::vector<std::string> FTexts;

	virtual void SetUp() override { StandIn::ClearNotices(); }
	virtual void TearDown() override { StandIn::ClearNotices(); }

	/** Name of the ini file most tests use. */
	FString File() const { return Folder.Path("User.ini"); }

	void WriteFile(const std::string& Bytes) const { Folder.Write("User.ini", Bytes); }

	/** The file's text with plain line ends. */
	std::string ReadFile() const
	{
		std::string Text = Folder.Read("User.ini");
		Text.erase(std::remove(Text.begin(), Text.end(), '\r'), Text.end());
		return Text;
	}

	FTexts Get(const TCHAR* Section, const TCHAR* Key)
	{
		TArray<FString> Values;
		FTexts Texts;
		Cache.GetArray(Section, Key, Values, File());
		for (const FString& Value : Values)
		{
			Texts.push_back(ToStd(Value));
		}
		return Texts;
	}

	void Set(const TCHAR* Section, const TCHAR* Key, const FTexts& Values)
	{
		TArray<FString> Array;
		for (const std::string& Value : Values)
		{
			Array.Add(UTF8_TO_TCHAR(Value.c_str()));
		}
		Cache.SetArray(Section, Key, Array, File());
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
	FConfigCacheIni Cache;
};
