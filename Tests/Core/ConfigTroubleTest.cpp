// Copyright The Tintmill authors. All rights reserved.

#include "ConfigTestBase.h"

#include "StandIn/AtomicFile.h"
#include "Support/LogCapture.h"

#include <random>

// Damaged ini files, and saves that fail.

namespace
{
/** A literal with its zeroes. */
template <size_t Size>
std::string Bytes(const char (&Literal)[Size])
{
	return std::string(Literal, Size - 1);
}

bool FailEveryStep(StandIn::EAtomicFileStep, const TCHAR*)
{
	return false;
}

class ConfigTrouble : public FConfigTestBase
{
protected:
	virtual void TearDown() override
	{
		StandIn::SetAtomicFileHook(nullptr);
		FConfigTestBase::TearDown();
	}

	std::string Name() const { return ToStd(File()); }
};
}

TEST_F(ConfigTrouble, GoodLinesOfADamagedFileAreUsed)
{
	WriteFile(Bytes("[S]\nK=1\nL=\0\0\0\nK=2\n\x01\x02\nM=\xff\xfe\nK=3\n"));
	EXPECT_EQ(FTexts({"1", "2", "3"}), Get(TEXT("S"), TEXT("K")));
	EXPECT_EQ(FTexts(), Get(TEXT("S"), TEXT("L")));
}

TEST_F(ConfigTrouble, DamagedFileGivesOneNoticeWithFileLineAndWhereTheCopyIs)
{
	const FLogCapture Capture;
	WriteFile(Bytes("[S]\nK=1\nL=\0\n\x02\n"));
	Get(TEXT("S"), TEXT("K"));
	EXPECT_EQ(FTexts({Name() + ":3: 2 lines, the first is line 3, are not text and are ignored; the file as it was is kept as " + Name()
				  + ".unreadable-1."}),
		Notices());
	EXPECT_EQ(Notices(), Capture.TextsOf("LogNotice"));
}

TEST_F(ConfigTrouble, DamagedFileIsKeptAsideByteForByteBeforeASaveReplacesIt)
{
	const std::string Damaged = "[S]\nK=1\n\xff\xff\n[T]\nA=1\n";
	WriteFile(Damaged);
	Set(TEXT("S"), TEXT("K"), {"2"});
	EXPECT_EQ(Damaged, ReadFile());
	Cache.Flush(false, File());
	EXPECT_EQ("[S]\nK=2\n[T]\nA=1\n", ReadFile().substr(0, 16));
	EXPECT_EQ(Damaged, Folder.Read("User.ini.unreadable-1"));
}

TEST_F(ConfigTrouble, BinaryRubbishIsKeptAsideAndTheFirstSaveStartsAnew)
{
	std::string Rubbish;
	std::mt19937 Random(1);
	for (int32 Index = 0; Index < 65536; ++Index)
	{
		Rubbish += char(Random());
	}
	WriteFile(Rubbish);
	Set(TEXT("S"), TEXT("K"), {"1"});
	Cache.Flush(true, File());
	EXPECT_EQ(Rubbish, Folder.Read("User.ini.unreadable-1"));
	EXPECT_EQ(FTexts({"1"}), Get(TEXT("S"), TEXT("K")));
	EXPECT_EQ(1u, Notices().size());
}

TEST_F(ConfigTrouble, FileOfZeroesIsKeptAside)
{
	WriteFile(std::string(44393, '\0'));
	Set(TEXT("S"), TEXT("K"), {"1"});
	Cache.Flush(false, File());
	EXPECT_EQ("[S]\nK=1\n\n", ReadFile());
	EXPECT_EQ(std::string(44393, '\0'), Folder.Read("User.ini.unreadable-1"));
}

TEST_F(ConfigTrouble, SameDamageIsKeptOnceHoweverOftenItIsRead)
{
	WriteFile("[S]\nK=\xff\n");
	for (int32 Round = 0; Round < 3; ++Round)
	{
		Get(TEXT("S"), TEXT("K"));
		Cache.UnloadFile(File());
	}
	EXPECT_EQ(FTexts({"User.ini", "User.ini.unreadable-1"}), Folder.List());
}

TEST_F(ConfigTrouble, OtherDamageIsKeptUnderTheNextNumber)
{
	Folder.Write("User.ini.unreadable-1", "earlier");
	WriteFile("[S]\nK=\xff\n");
	Get(TEXT("S"), TEXT("K"));
	EXPECT_EQ("earlier", Folder.Read("User.ini.unreadable-1"));
	EXPECT_EQ("[S]\nK=\xff\n", Folder.Read("User.ini.unreadable-2"));
}

TEST_F(ConfigTrouble, LinesBelowADamagedHeadingDoNotFallToTheSectionAbove)
{
	WriteFile("[S]\nK=1\n[T\xff]\nK=2\n[U]\nK=3\n");
	EXPECT_EQ(FTexts({"1"}), Get(TEXT("S"), TEXT("K")));
	EXPECT_EQ(FTexts({"3"}), Get(TEXT("U"), TEXT("K")));
}

TEST_F(ConfigTrouble, FileThatCannotBeKeptAsideIsNotSavedOver)
{
	WriteFile("[S]\nK=\xff\n");
	StandIn::SetAtomicFileHook(&FailEveryStep);
	Set(TEXT("S"), TEXT("K"), {"1"});
	Cache.Flush(false, File());
	EXPECT_EQ("[S]\nK=\xff\n", ReadFile());
	EXPECT_TRUE(Cache.FindConfigFile(File())->Dirty);
	StandIn::SetAtomicFileHook(nullptr);
	Cache.Flush(false, File());
	EXPECT_EQ("[S]\nK=1\n\n", ReadFile());
	EXPECT_EQ("[S]\nK=\xff\n", Folder.Read("User.ini.unreadable-1"));
}

TEST_F(ConfigTrouble, FolderInTheFilesPlaceIsRenamedBeforeTheFirstSave)
{
	Folder.Write("User.ini/inside.txt", "kept");
	EXPECT_EQ(FTexts(), Get(TEXT("S"), TEXT("K")));
	Set(TEXT("S"), TEXT("K"), {"1"});
	EXPECT_EQ(FTexts({"The settings in " + Name()
				  + " cannot be read: it is not a file; they are not used, and before anything is saved "
					"there it is renamed to "
				  + Name() + ".unreadable-1."}),
		Notices());
	Cache.Flush(false, File());
	EXPECT_EQ("[S]\nK=1\n\n", ReadFile());
	EXPECT_EQ("kept", Folder.Read("User.ini.unreadable-1/inside.txt"));
}

TEST_F(ConfigTrouble, FileThatIsDamagedWhileTheEditorRunsIsKeptAsideToo)
{
	WriteFile("[S]\nK=1\n");
	Get(TEXT("S"), TEXT("K"));
	WriteFile("[S]\nK=1\n\xff\nL=2\n");
	Set(TEXT("S"), TEXT("K"), {"2"});
	Cache.Flush(false, File());
	EXPECT_EQ("[S]\nK=1\n\xff\nL=2\n", Folder.Read("User.ini.unreadable-1"));
	EXPECT_EQ("[S]\nK=2\nL=2\n", ReadFile());
	EXPECT_EQ(1u, Notices().size());
}

TEST_F(ConfigTrouble, FailedSaveGivesOneNoticeAndStaysDirty)
{
	StandIn::SetAtomicFileHook(&FailEveryStep);
	Set(TEXT("S"), TEXT("K"), {"1"});
	Cache.Flush(false, File());
	Cache.Flush(false, File());
	EXPECT_EQ(FTexts({"The settings could not be saved to " + Name()
				  + ": injected failure. They stay in use and are saved with the next change once this is put right."}),
		Notices());
	EXPECT_TRUE(Cache.FindConfigFile(File())->Dirty);
	EXPECT_EQ(FTexts({"1"}), Get(TEXT("S"), TEXT("K")));
}

TEST_F(ConfigTrouble, NextFlushAfterAFailedSaveSavesAndClearsTheNotice)
{
	StandIn::SetAtomicFileHook(&FailEveryStep);
	Set(TEXT("S"), TEXT("K"), {"1"});
	Cache.Flush(false, File());
	StandIn::SetAtomicFileHook(nullptr);
	Cache.Flush(false, File());
	EXPECT_EQ("[S]\nK=1\n\n", ReadFile());
	EXPECT_EQ(FTexts(), Notices());
}

TEST_F(ConfigTrouble, FolderThatCannotBeMadeGivesANotice)
{
	Folder.Write("Saved", "a file, not a folder");
	Cache.SetString(TEXT("S"), TEXT("K"), TEXT("1"), Folder.Path("Saved/User.ini"));
	Cache.Flush(false);
	ASSERT_EQ(1u, Notices().size());
	EXPECT_NE(std::string::npos, Notices()[0].find("could not be saved")) << Notices()[0];
	Cache.UnloadFile(Folder.Path("Saved/User.ini"));
}

TEST_F(ConfigTrouble, ReadOnlyFileIsNotOverwritten)
{
	WriteFile("[S]\nK=1\n");
	std::filesystem::permissions(Folder.NativePath("User.ini"), std::filesystem::perms::owner_read);
	Set(TEXT("S"), TEXT("K"), {"2"});
	Cache.Flush(false, File());
	EXPECT_EQ("[S]\nK=1\n", ReadFile());
	EXPECT_EQ(1u, Notices().size());
	Cache.UnloadFile(File());
}

TEST_F(ConfigTrouble, FileThatCouldNotBeSavedStaysInMemoryWhenTheRestIsDropped)
{
	StandIn::SetAtomicFileHook(&FailEveryStep);
	Set(TEXT("S"), TEXT("K"), {"1"});
	Cache.Flush(true, File());
	EXPECT_EQ(FTexts({"1"}), Get(TEXT("S"), TEXT("K")));
}

TEST_F(ConfigTrouble, WhereSavesAreRefusedAChangeIsOneNoticeAndNothingIsWritten)
{
	WriteFile("[S]\nK=old\n");
	StandIn::RefuseSaves(Folder.Path(), TEXT("another editor has it open"));
	Set(TEXT("S"), TEXT("K"), {"new"});
	Cache.Flush(false, File());
	Cache.Flush(false, File());
	StandIn::AllowSaves();
	ASSERT_EQ(1u, Notices().size());
	EXPECT_NE(std::string::npos, Notices()[0].find("another editor has it open")) << Notices()[0];
	EXPECT_EQ("[S]\nK=old\n", ReadFile());
	EXPECT_EQ(1u, Folder.List().size());
}

TEST_F(ConfigTrouble, AnUnreadableFileIsNotMovedAsideWhereSavesAreRefused)
{
	Folder.Write("User.ini/in the way", "");
	StandIn::RefuseSaves(Folder.Path(), TEXT("another editor has it open"));
	Set(TEXT("S"), TEXT("K"), {"new"});
	Cache.Flush(false, File());
	StandIn::AllowSaves();
	EXPECT_EQ(FTexts({"User.ini"}), Folder.List());
}

TEST_F(ConfigTrouble, RandomDamageNeverLosesAByteOfWhatWasThere)
{
	std::mt19937 Random(42);
	for (int32 Round = 0; Round < 200; ++Round)
	{
		const FTestFolder Own;
		const FString Name = Own.Path("User.ini");
		std::string Text = "[S]\nK=1\nK=2\n; comment\n[T]\nA=caf\xc3\xa9\nhalf\n\n[U]\nB=\"x\"\n";
		for (int32 Damage = 0; Damage < 1 + int32(Random() % 4); ++Damage)
		{
			Text[Random() % Text.size()] = char(Random());
		}
		Own.Write("User.ini", Text);
		{
			FConfigCacheIni Other;
			Other.SetString(TEXT("New"), TEXT("Key"), TEXT("Value"), Name);
		}
		const std::string Saved = Own.Read("User.ini");
		const std::string Aside = Own.Read("User.ini.unreadable-1");
		FConfigCacheIni Again;
		FString Value;
		EXPECT_TRUE(Again.GetString(TEXT("New"), TEXT("Key"), Value, Name)) << "round " << Round;
		EXPECT_TRUE(Aside == Text || (Aside.empty() && Own.List().size() == 1)) << "round " << Round;
		if (Aside.empty())
		{
			EXPECT_EQ(FTexts(), Notices()) << "round " << Round;
			EXPECT_GE(Saved.size(), Text.size()) << "round " << Round;
		}
		StandIn::ClearNotices();
	}
}
