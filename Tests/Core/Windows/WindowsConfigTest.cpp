// Copyright The Tintmill authors. All rights reserved.

#include "Core/ConfigTestBase.h"

#include "CoreGlobals.h"
#include "Misc/Paths.h"

// Settings files as they lie on a Windows machine.

namespace
{
class WindowsConfig : public FConfigTestBase
{};
}

TEST_F(WindowsConfig, SavedFileHasTheLineEndsOfWindows)
{
	Set(TEXT("A"), TEXT("Key"), {"1", "2"});
	Cache.Flush(false, File());
	EXPECT_EQ("[A]\r\nKey=1\r\nKey=2\r\n\r\n", Folder.Read("User.ini"));
}

TEST_F(WindowsConfig, LineEndsAreNoPartOfAValue)
{
	WriteFile("[A]\r\nKey=1\r\nKey=\"two\"\r\n");
	EXPECT_EQ(FTexts({"1", "two"}), Get(TEXT("A"), TEXT("Key")));
}

TEST_F(WindowsConfig, FileThatAnEditorSavedWithOtherLineEndsIsReadToo)
{
	WriteFile("[A]\nKey=1\r\nKey=2\n");
	EXPECT_EQ(FTexts({"1", "2"}), Get(TEXT("A"), TEXT("Key")));
}

TEST_F(WindowsConfig, ValueWithBackslashesComesBackTheSame)
{
	Set(TEXT("A"), TEXT("Key"), {"C:\\Users\\J\xc3\xbcrgen\\Looks"});
	Cache.Flush(false, File());
	FConfigFile Saved;
	Saved.Read(File());
	FString Value;
	EXPECT_TRUE(Saved.GetString(TEXT("A"), TEXT("Key"), Value));
	EXPECT_EQ("C:\\Users\\J\xc3\xbcrgen\\Looks", ToStd(Value));
}

TEST_F(WindowsConfig, UserSettingsLieInTheWindowsFolderOfTheProject)
{
	FPaths::SetProjectFilePath(Folder.Path("J\xc3\xbcrgen \xe8\x89\xb2/Test.uproject"));
	FConfigCacheIni::InitializeConfigSystem();
	GConfig->SetString(TEXT("A"), TEXT("Key"), TEXT("Value"), GEditorPerProjectIni);
	GConfig->Flush(false, GEditorPerProjectIni);
	EXPECT_EQ("[A]\r\nKey=Value\r\n\r\n", Folder.Read("J\xc3\xbcrgen \xe8\x89\xb2/Saved/Config/Windows/EditorPerProjectUserSettings.ini"));
	FPaths::SetProjectFilePath(TEXT(""));
	delete GConfig;
	GConfig = nullptr;
}
