// Copyright The Tintmill authors. All rights reserved.

#include "ConfigTestBase.h"

#include "HAL/FileManager.h"

// Writing a saved ini file.

namespace
{
class ConfigSave : public FConfigTestBase
{
protected:
	void Flush() { Cache.Flush(false, File()); }
};
}

TEST_F(ConfigSave, NewFileHasOneLineAnElementAndABlankLineAfterEachSection)
{
	Set(TEXT("/Script/TintmillEditor.TintmillLevelViewportSettings"), TEXT("ViewportsSettings"), {"(A=1)", "(A=2)"});
	Set(TEXT("Host"), TEXT("Window"), {"1280x720"});
	Flush();
	EXPECT_EQ("[/Script/TintmillEditor.TintmillLevelViewportSettings]\nViewportsSettings=(A=1)\nViewportsSettings=(A=2)\n\n"
			  "[Host]\nWindow=1280x720\n\n",
		ReadFile());
}

TEST_F(ConfigSave, LineEndsAreThePlatforms)
{
	Set(TEXT("S"), TEXT("K"), {"1"});
	Flush();
	EXPECT_EQ(PLATFORM_WINDOWS ? "[S]\r\nK=1\r\n\r\n" : "[S]\nK=1\n\n", Folder.Read("User.ini"));
}

TEST_F(ConfigSave, MissingFoldersAreMade)
{
	const FString Name = Folder.Path("Saved/Config/Linux/User.ini");
	Cache.SetString(TEXT("S"), TEXT("K"), TEXT("1"), Name);
	Cache.Flush(false, Name);
	EXPECT_NE("", Folder.Read("Saved/Config/Linux/User.ini"));
}

TEST_F(ConfigSave, NothingIsWrittenBeforeTheFlush)
{
	Set(TEXT("S"), TEXT("K"), {"1"});
	EXPECT_FALSE(IFileManager::Get().FileExists(*File()));
}

TEST_F(ConfigSave, ArrayReplacesTheLinesOfItsKeyInPlace)
{
	WriteFile("[S]\nA=1\nK=x\nB=2\nK=y\nC=3\n\n[T]\nK=other\n\n");
	Set(TEXT("S"), TEXT("K"), {"p", "q", "r"});
	Flush();
	EXPECT_EQ("[S]\nA=1\nK=p\nB=2\nK=q\nK=r\nC=3\n\n[T]\nK=other\n\n", ReadFile());
}

TEST_F(ConfigSave, ShorterArrayTakesItsSurplusLinesOut)
{
	WriteFile("[S]\nK=1\nK=2\nA=x\nK=3\n\n");
	Set(TEXT("S"), TEXT("K"), {"2"});
	Flush();
	EXPECT_EQ("[S]\nK=2\nA=x\n\n", ReadFile());
}

TEST_F(ConfigSave, NewKeyIsAddedAtTheEndOfItsSection)
{
	WriteFile("[S]\nA=1\n\n[T]\nB=2\n\n");
	Set(TEXT("S"), TEXT("K"), {"new"});
	Flush();
	EXPECT_EQ("[S]\nA=1\nK=new\n\n[T]\nB=2\n\n", ReadFile());
}

TEST_F(ConfigSave, NewSectionEndsTheFile)
{
	WriteFile("[S]\nA=1");
	Set(TEXT("T"), TEXT("K"), {"new"});
	Flush();
	EXPECT_EQ("[S]\nA=1\n\n[T]\nK=new\n\n", ReadFile());
}

TEST_F(ConfigSave, CommentsHalfLinesUnknownKeysAndOrderStay)
{
	const std::string Start = "; mine\nstray\n\n[T]\nZ=1\n; why\nhalf a li\n\n[S]\n";
	WriteFile(Start + "K=1\n# also mine\nUnknown = kept\n");
	Set(TEXT("S"), TEXT("K"), {"2"});
	Flush();
	EXPECT_EQ(Start + "K=2\n# also mine\nUnknown = kept\n", ReadFile());
}

TEST_F(ConfigSave, SpellingOfAKeyInTheFileStays)
{
	WriteFile("[s]\nviewportssettings=1\n");
	Set(TEXT("S"), TEXT("ViewportsSettings"), {"2"});
	Flush();
	EXPECT_EQ("[s]\nviewportssettings=2\n", ReadFile());
}

TEST_F(ConfigSave, EmptyArrayTakesTheKeyAndAnEmptySectionOut)
{
	WriteFile("[S]\nK=1\nK=2\n\n[T]\nA=1\n\n");
	Set(TEXT("S"), TEXT("K"), {});
	Flush();
	EXPECT_EQ("[T]\nA=1\n\n", ReadFile());
}

TEST_F(ConfigSave, SectionThatStillHasACommentStays)
{
	WriteFile("[S]\n; note\nK=1\n\n");
	Set(TEXT("S"), TEXT("K"), {});
	Flush();
	EXPECT_EQ("[S]\n; note\n\n", ReadFile());
}

TEST_F(ConfigSave, RemovedKeyAndSectionAreGone)
{
	WriteFile("[S]\nK=1\nL=2\n\n[T]\nA=1\n\n");
	EXPECT_TRUE(Cache.RemoveKey(TEXT("S"), TEXT("K"), File()));
	EXPECT_FALSE(Cache.RemoveKey(TEXT("S"), TEXT("K"), File()));
	EXPECT_TRUE(Cache.EmptySection(TEXT("T"), File()));
	EXPECT_FALSE(Cache.EmptySection(TEXT("T"), File()));
	Flush();
	EXPECT_EQ("[S]\nL=2\n\n", ReadFile());
}

TEST_F(ConfigSave, FileIsNotTouchedWhenNothingChanged)
{
	WriteFile("[S]\r\nK = 1\r\nhalf");
	Set(TEXT("S"), TEXT("K"), {"1"});
	Cache.GetSectionPrivate(TEXT("S"), true, false, File());
	Flush();
	EXPECT_EQ("[S]\r\nK = 1\r\nhalf", Folder.Read("User.ini"));
}

TEST_F(ConfigSave, ArrayKeepsItsOrderThroughRemovingAndAddingInASection)
{
	WriteFile("[S]\nK=1\nL=a\nK=2\nL=b\nK=3\n");
	for (int32 Round = 0; Round < 5; ++Round)
	{
		FConfigSection* const Section = Cache.GetSectionPrivate(TEXT("S"), true, false, File());
		Section->Remove(FName(TEXT("L")));
		Section->Remove(FName(TEXT("K")));
		for (int32 Index = 0; Index < 10 + Round; ++Index)
		{
			Section->Add(FName(TEXT("K")), FConfigValue(FString::Printf(TEXT("%d"), Index)));
		}
		Section->Add(FName(TEXT("L")), FConfigValue(TEXT("a")));
	}
	const FTexts Values = Get(TEXT("S"), TEXT("K"));
	ASSERT_EQ(14u, Values.size());
	for (size_t Index = 0; Index < Values.size(); ++Index)
	{
		EXPECT_EQ(std::to_string(Index), Values[Index]);
	}
	TArray<FString> Lines;
	Cache.GetSection(TEXT("S"), Lines, File());
	EXPECT_EQ("K=0", ToStd(Lines[0]));
	EXPECT_EQ("L=a", ToStd(Lines[14]));
}

TEST_F(ConfigSave, ValuesThatNeedItAreQuotedAndComeBackTheSame)
{
	const FTexts Values = {" lead", "trail ", "\"quoted\"", "back\\", "a{b", "http://x", "line\nbreak", "tab\there", "(A=\"{}\")",
		"caf\xc3\xa9 \xf0\x9f\x8e\xa8", "", "a;b=c"};
	Set(TEXT("S"), TEXT("K"), Values);
	Flush();
	EXPECT_EQ("[S]\nK=\" lead\"\nK=\"trail \"\nK=\"\\\"quoted\\\"\"\nK=\"back\\\\\"\nK=\"a{b\"\nK=\"http://x\"\n"
			  "K=\"line\\nbreak\"\nK=tab\there\nK=(A=\"{}\")\nK=caf\xc3\xa9 \xf0\x9f\x8e\xa8\nK=\nK=a;b=c\n\n",
		ReadFile());
	Cache.UnloadFile(File());
	EXPECT_EQ(Values, Get(TEXT("S"), TEXT("K")));
}

TEST_F(ConfigSave, HalfOfASurrogatePairComesBackTheSame)
{
	const TCHAR Half[] = {'a', TCHAR(0xd800), 'b', 0};
	FString Value;
	Cache.SetString(TEXT("S"), TEXT("K"), Half, File());
	Cache.Flush(true, File());
	EXPECT_TRUE(Cache.GetString(TEXT("S"), TEXT("K"), Value, File()));
	EXPECT_TRUE(Value.Equals(Half));
	EXPECT_EQ(FTexts(), Notices());
}

TEST_F(ConfigSave, Utf16FileIsReadAgainAfterASave)
{
	std::string Bytes = "\xff\xfe";
	for (const char Char : std::string("[S]\nK=1\nL=2\n"))
	{
		Bytes += {Char, '\0'};
	}
	WriteFile(Bytes);
	Set(TEXT("S"), TEXT("K"), {"\xc3\xa9"});
	Cache.Flush(true, File());
	EXPECT_EQ(FTexts({"\xc3\xa9"}), Get(TEXT("S"), TEXT("K")));
	EXPECT_EQ(FTexts({"2"}), Get(TEXT("S"), TEXT("L")));
	EXPECT_EQ(FTexts(), Notices());
}

TEST_F(ConfigSave, NumbersAndTruthsHaveTheEnginesForm)
{
	Cache.SetInt(TEXT("S"), TEXT("I"), 17777, File());
	Cache.SetFloat(TEXT("S"), TEXT("F"), 0.35f, File());
	Cache.SetBool(TEXT("S"), TEXT("B"), true, File());
	Flush();
	EXPECT_EQ("[S]\nI=17777\nF=0.350000\nB=True\n\n", ReadFile());
}

TEST_F(ConfigSave, WhatOthersWroteInTheMeantimeStays)
{
	WriteFile("[S]\nK=1\n\n");
	EXPECT_EQ(FTexts({"1"}), Get(TEXT("S"), TEXT("K")));
	WriteFile("[S]\nK=1\nTheirs=new\n\n[Their]\nA=1\n\n");
	Set(TEXT("S"), TEXT("K"), {"2"});
	Flush();
	EXPECT_EQ("[S]\nK=2\nTheirs=new\n\n[Their]\nA=1\n\n", ReadFile());
	Set(TEXT("S"), TEXT("K"), {"3"});
	Flush();
	EXPECT_EQ("[S]\nK=3\nTheirs=new\n\n[Their]\nA=1\n\n", ReadFile());
	EXPECT_EQ(FTexts({"new"}), Get(TEXT("S"), TEXT("Theirs")));
}

TEST_F(ConfigSave, FileThatWasDeletedInTheMeantimeIsWrittenWhole)
{
	WriteFile("[S]\nK=1\nL=2\n\n");
	Get(TEXT("S"), TEXT("K"));
	IFileManager::Get().Delete(*File());
	Set(TEXT("S"), TEXT("K"), {"2"});
	Flush();
	EXPECT_EQ("[S]\nK=2\nL=2\n\n", ReadFile());
}

TEST_F(ConfigSave, SecondSaveFollowsTheFirst)
{
	Set(TEXT("S"), TEXT("K"), {"1"});
	Flush();
	Set(TEXT("S"), TEXT("K"), {"1", "2"});
	Flush();
	Set(TEXT("S"), TEXT("K"), {"2"});
	Flush();
	EXPECT_EQ("[S]\nK=2\n\n", ReadFile());
}

TEST_F(ConfigSave, DestroyedCacheSavesWhatIsDirty)
{
	{
		FConfigCacheIni Other;
		Other.SetString(TEXT("S"), TEXT("K"), TEXT("1"), File());
	}
	EXPECT_EQ("[S]\nK=1\n\n", ReadFile());
}

TEST_F(ConfigSave, TemporaryCacheTouchesNoDisk)
{
	WriteFile("[S]\nK=1\n");
	FConfigCacheIni Memory(EConfigCacheType::Temporary);
	FString Value;
	EXPECT_FALSE(Memory.GetString(TEXT("S"), TEXT("K"), Value, File()));
	Memory.SetString(TEXT("S"), TEXT("K"), TEXT("2"), File());
	Memory.Flush(false);
	EXPECT_EQ("[S]\nK=1\n", ReadFile());
}

TEST_F(ConfigSave, FileMarkedNoSaveIsNotWritten)
{
	Set(TEXT("S"), TEXT("K"), {"1"});
	Cache.FindConfigFile(File())->NoSave = true;
	Flush();
	EXPECT_FALSE(IFileManager::Get().FileExists(*File()));
}

TEST_F(ConfigSave, HundredThousandEntriesAreSavedSwiftly)
{
	FTexts Values;
	for (int32 Index = 0; Index < 100000; ++Index)
	{
		Values.push_back(std::to_string(Index));
	}
	Set(TEXT("S"), TEXT("K"), Values);
	Flush();
	Values[50000] = "changed";
	Set(TEXT("S"), TEXT("K"), Values);
	Flush();
	Cache.UnloadFile(File());
	EXPECT_TRUE(Values == Get(TEXT("S"), TEXT("K")));
}
