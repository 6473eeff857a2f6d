// Copyright The Tintmill authors. All rights reserved.

#include "ConfigTestBase.h"

#include "CoreGlobals.h"
#include "Misc/Paths.h"
#include "StandIn/ConfigOrigin.h"
#include "Support/LogCapture.h"

// Base and Default files below the saved one.

namespace
{
/** A project with GConfig of its own. */
class ConfigHierarchy : public FConfigTestBase
{
protected:
	virtual void SetUp() override
	{
		FConfigTestBase::SetUp();
		FPaths::SetProjectFilePath(Folder.Path("Demo.uproject"));
	}

	virtual void TearDown() override
	{
		delete GConfig;
		GConfig = nullptr;
		FPaths::SetProjectFilePath(TEXT(""));
		FConfigTestBase::TearDown();
	}

	void WriteDefault(const std::string& Text) { Folder.Write("Config/DefaultEditorPerProjectUserSettings.ini", Text); }
	void WriteSaved(const std::string& Text) { Folder.Write(SavedLeaf, Text); }

	std::string ReadSaved() const
	{
		std::string Text = Folder.Read(SavedLeaf);
		Text.erase(std::remove(Text.begin(), Text.end(), '\r'), Text.end());
		return Text;
	}

	FTexts GetSaved(const TCHAR* Section, const TCHAR* Key)
	{
		TArray<FString> Values;
		FTexts Texts;
		GConfig->GetArray(Section, Key, Values, GEditorPerProjectIni);
		for (const FString& Value : Values)
		{
			Texts.push_back(ToStd(Value));
		}
		return Texts;
	}

	void SetSaved(const TCHAR* Section, const TCHAR* Key, const FTexts& Values)
	{
		TArray<FString> Array;
		for (const std::string& Value : Values)
		{
			Array.Add(UTF8_TO_TCHAR(Value.c_str()));
		}
		GConfig->SetArray(Section, Key, Array, GEditorPerProjectIni);
		GConfig->Flush(false, GEditorPerProjectIni);
	}

	const std::string SavedLeaf =
		std::string("Saved/Config/") + (PLATFORM_WINDOWS ? "Windows" : "Linux") + "/EditorPerProjectUserSettings.ini";
};
}

TEST_F(ConfigHierarchy, SavedFileLiesInTheProject)
{
	FConfigCacheIni::InitializeConfigSystem();
	EXPECT_EQ(ToStd(Folder.Path(SavedLeaf)), ToStd(GEditorPerProjectIni));
}

TEST_F(ConfigHierarchy, OperatorsWorkInADefaultFile)
{
	WriteDefault("[S]\n+K=a\n+K=b\n+K=a\n.K=a\n-K=b\nL=1\nL=2\n+M=x\n!M=\n+M=y\n");
	FConfigCacheIni::InitializeConfigSystem();
	EXPECT_EQ(FTexts({"a", "a"}), GetSaved(TEXT("S"), TEXT("K")));
	EXPECT_EQ(FTexts({"2"}), GetSaved(TEXT("S"), TEXT("L")));
	EXPECT_EQ(FTexts({"y"}), GetSaved(TEXT("S"), TEXT("M")));
}

TEST_F(ConfigHierarchy, DefaultFileIsLaidOverTheTextBelowIt)
{
	FConfigFile File;
	File.CombineFromBuffer(TEXT("[S]\n+K=a\n+K=b\nL=1\n[T]\nA=1\n"));
	File.CombineFromBuffer(TEXT("[s]\n-K=a\n+K=c\n+K=b\nL=2\n"));
	TArray<FString> Values;
	EXPECT_EQ(2, File.GetArray(TEXT("S"), TEXT("K"), Values));
	EXPECT_EQ("b", ToStd(Values[0]));
	EXPECT_EQ("c", ToStd(Values[1]));
	EXPECT_EQ(1, File.GetArray(TEXT("S"), TEXT("L"), Values));
	EXPECT_EQ("2", ToStd(Values[0]));
	EXPECT_EQ(1, File.GetArray(TEXT("T"), TEXT("A"), Values));
}

TEST_F(ConfigHierarchy, AddedOnceComparesWithCase)
{
	WriteDefault("[S]\n+K=Teal\n+K=teal\n+K=Teal\n");
	FConfigCacheIni::InitializeConfigSystem();
	EXPECT_EQ(FTexts({"Teal", "teal"}), GetSaved(TEXT("S"), TEXT("K")));
}

TEST_F(ConfigHierarchy, KeyedStructArraysAreSkippedWithAWarning)
{
	const FLogCapture Capture;
	WriteDefault("[S]\n@K=Name\n*K=(Name=a)\nL=1\n");
	FConfigCacheIni::InitializeConfigSystem();
	EXPECT_EQ(2u, Capture.TextsOf("LogConfig").size());
	EXPECT_EQ(FTexts({"1"}), GetSaved(TEXT("S"), TEXT("L")));
}

TEST_F(ConfigHierarchy, HundredThousandOperatorsAreAppliedSwiftly)
{
	std::string Text = "[S]\n";
	for (int32 Index = 0; Index < 50000; ++Index)
	{
		Text += "+K=" + std::to_string(Index) + "\n";
	}
	for (int32 Index = 1; Index < 50000; ++Index)
	{
		Text += "-K=" + std::to_string(Index) + "\n";
	}
	WriteDefault(Text);
	FConfigCacheIni::InitializeConfigSystem();
	EXPECT_EQ(FTexts({"0"}), GetSaved(TEXT("S"), TEXT("K")));
}

TEST_F(ConfigHierarchy, LinesOfTheSavedFileAreTheWholeValueOfTheirKey)
{
	WriteDefault("[S]\n+K=a\n+K=b\n+L=c\n");
	WriteSaved("[S]\nK=x\nK=y\n");
	FConfigCacheIni::InitializeConfigSystem();
	EXPECT_EQ(FTexts({"x", "y"}), GetSaved(TEXT("S"), TEXT("K")));
	EXPECT_EQ(FTexts({"c"}), GetSaved(TEXT("S"), TEXT("L")));
}

TEST_F(ConfigHierarchy, OnlyWhatDiffersFromTheHierarchyIsWritten)
{
	WriteDefault("[S]\nA=1\nB=2\n");
	FConfigCacheIni::InitializeConfigSystem();
	SetSaved(TEXT("S"), TEXT("A"), {"1"});
	SetSaved(TEXT("S"), TEXT("B"), {"3"});
	EXPECT_EQ("[S]\nB=3\n\n", ReadSaved());
}

TEST_F(ConfigHierarchy, ValueThatReturnsToTheHierarchysIsTakenOut)
{
	WriteDefault("[S]\nA=1\n");
	WriteSaved("[S]\nA=2\nB=1\n\n");
	FConfigCacheIni::InitializeConfigSystem();
	SetSaved(TEXT("S"), TEXT("A"), {"1"});
	EXPECT_EQ("[S]\nB=1\n\n", ReadSaved());
}

TEST_F(ConfigHierarchy, DefaultFileIsNeverWritten)
{
	WriteDefault("[S]\nA=1\n");
	FConfigCacheIni::InitializeConfigSystem();
	SetSaved(TEXT("S"), TEXT("A"), {"2"});
	EXPECT_EQ("[S]\nA=1\n", Folder.Read("Config/DefaultEditorPerProjectUserSettings.ini"));
}

TEST_F(ConfigHierarchy, DroppedFileIsReadAgainWithItsHierarchy)
{
	WriteDefault("[S]\nA=1\n");
	FConfigCacheIni::InitializeConfigSystem();
	SetSaved(TEXT("S"), TEXT("B"), {"2"});
	GConfig->Flush(true);
	EXPECT_EQ(nullptr, GConfig->FindConfigFile(GEditorPerProjectIni));
	EXPECT_EQ(FTexts({"1"}), GetSaved(TEXT("S"), TEXT("A")));
	EXPECT_EQ(FTexts({"2"}), GetSaved(TEXT("S"), TEXT("B")));
}

TEST_F(ConfigHierarchy, DamagedDefaultFileGivesANoticeAndItsGoodLinesCount)
{
	WriteDefault("[S]\nA=1\nB=\xff\n");
	FConfigCacheIni::InitializeConfigSystem();
	EXPECT_EQ(FTexts({"1"}), GetSaved(TEXT("S"), TEXT("A")));
	EXPECT_EQ(FTexts({ToStd(Folder.Path("Config/DefaultEditorPerProjectUserSettings.ini"))
				  + ":3: line 3 is not text and is ignored; correct the file."}),
		Notices());
	EXPECT_EQ(1u, Folder.List("Config").size());
}

TEST_F(ConfigHierarchy, OriginsNameFileAndLineOfEachValue)
{
	WriteDefault("[S]\n\n+K=a\nL=d\n");
	WriteSaved("; mine\n[S]\nK=x\nhalf\nK=y\n");
	FConfigCacheIni::InitializeConfigSystem();
	TArray<StandIn::FConfigOrigin> Origins;
	ASSERT_EQ(2, StandIn::GetConfigOrigins(TEXT("S"), TEXT("K"), Origins, GEditorPerProjectIni));
	EXPECT_EQ(ToStd(GEditorPerProjectIni) + ":3", ToStd(Origins[0].ToString()));
	EXPECT_EQ(ToStd(GEditorPerProjectIni) + ":5", ToStd(Origins[1].ToString()));
	ASSERT_EQ(1, StandIn::GetConfigOrigins(TEXT("S"), TEXT("L"), Origins, GEditorPerProjectIni));
	EXPECT_EQ(ToStd(Folder.Path("Config/DefaultEditorPerProjectUserSettings.ini")) + ":4", ToStd(Origins[0].ToString()));
}

TEST_F(ConfigHierarchy, ValueThatTheProgramSetHasNoOrigin)
{
	FConfigCacheIni::InitializeConfigSystem();
	SetSaved(TEXT("S"), TEXT("K"), {"1"});
	TArray<StandIn::FConfigOrigin> Origins;
	ASSERT_EQ(1, StandIn::GetConfigOrigins(TEXT("S"), TEXT("K"), Origins, GEditorPerProjectIni));
	EXPECT_EQ("", ToStd(Origins[0].ToString()));
}

TEST_F(ConfigHierarchy, SecondInitialisationSavesTheFirstAndReadsAnew)
{
	FConfigCacheIni::InitializeConfigSystem();
	GConfig->SetString(TEXT("S"), TEXT("K"), TEXT("1"), GEditorPerProjectIni);
	FConfigCacheIni::InitializeConfigSystem();
	EXPECT_EQ(FTexts({"1"}), GetSaved(TEXT("S"), TEXT("K")));
}

TEST_F(ConfigHierarchy, LocalIniStaysApartFromTheGlobalOnes)
{
	WriteDefault("[S]\nA=1\n");
	WriteSaved("[S]\nB=2\n");
	FConfigFile Local;
	FString Value;
	EXPECT_TRUE(FConfigCacheIni::LoadLocalIniFile(Local, TEXT("EditorPerProjectUserSettings"), true));
	EXPECT_TRUE(Local.GetString(TEXT("S"), TEXT("A"), Value));
	EXPECT_TRUE(Local.GetString(TEXT("S"), TEXT("B"), Value));
	EXPECT_EQ(nullptr, GConfig);
}
