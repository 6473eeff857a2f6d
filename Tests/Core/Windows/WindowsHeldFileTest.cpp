// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/AtomicFile.h"

#include "Misc/ConfigCacheIni.h"
#include "StandIn/Notices.h"
#include "Support/ProgramRun.h"
#include "Support/TestFolder.h"
#include "gtest/gtest.h"

#include <chrono>
#include <optional>

// Settings that another process has open while the editor reads and saves them: as virus scanners, backups and text editors do.

namespace
{
/** The process that holds the file, while a test runs. */
std::optional<FRunningProgram> Holder;

int32 NumTries = 0;

/** The try before which the holder ends; 0: never. */
int32 EndBeforeTry = 0;

bool CountTries(StandIn::EAtomicFileStep Step, const TCHAR*)
{
	if (Step == StandIn::EAtomicFileStep::Replace && ++NumTries == EndBeforeTry)
	{
		Holder.reset();
	}
	return true;
}

class WindowsHeldFile : public testing::Test
{
protected:
	virtual void SetUp() override
	{
		NumTries = 0;
		EndBeforeTry = 0;
		StandIn::ClearNotices();
		StandIn::SetAtomicFileHook(&CountTries);
		Folder.Write("User.ini", OldText);
	}

	virtual void TearDown() override
	{
		Holder.reset();
		StandIn::SetAtomicFileHook(nullptr);
		StandIn::ClearNotices();
	}

	/** Has another process hold the file, which lets others do none, read or replace with it. */
	void Hold(const std::string& Others) const
	{
		Holder.emplace(std::filesystem::path(TEST_PROGRAMS_DIR) / "FileHolder.exe",
			std::vector<std::string>{Folder.NativePath("User.ini").string(), Others});
		const std::string Answer = Holder->ReadLine();
		ASSERT_EQ("held", Answer) << "exit code " << (Answer.empty() ? Holder->Wait().Code : 0);
	}

	bool Save()
	{
		FString Reason;
		return StandIn::SaveFileAtomically(FileName, "new", 3, Reason);
	}

	/** The one notice there is. */
	static std::string Notice()
	{
		return StandIn::GetNotices().Num() == 1 ? ToStd(StandIn::GetNotices()[0].Text)
												: std::to_string(StandIn::GetNotices().Num()) + " notices";
	}

	const std::string OldText = "[A]\r\nKey=Old\r\nOther=1\r\n";
	const FTestFolder Folder;
	const FString FileName = Folder.Path("User.ini");
};
}

TEST_F(WindowsHeldFile, IsReplacedOnceTheOtherProcessHasEnded)
{
	Hold("read");
	EndBeforeTry = 3;
	EXPECT_TRUE(Save());
	EXPECT_EQ(3, NumTries);
	EXPECT_EQ("new", Folder.Read("User.ini"));
}

TEST_F(WindowsHeldFile, IsTriedFiveTimesInAFifthOfASecond)
{
	Hold("read");
	const auto Start = std::chrono::steady_clock::now();
	EXPECT_FALSE(Save());
	const double Milliseconds = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - Start).count();
	EXPECT_EQ(5, NumTries);
	EXPECT_GE(Milliseconds, 180.0);
	// A busy machine may take its time; the pauses themselves are 185 ms.
	EXPECT_LT(Milliseconds, 3000.0);
}

TEST_F(WindowsHeldFile, KeepsWhatItHadAndLeavesNothingBesideIt)
{
	Hold("read");
	EXPECT_FALSE(Save());
	EXPECT_EQ(OldText, Folder.Read("User.ini"));
	EXPECT_EQ(std::vector<std::string>({"User.ini"}), Folder.List());
}

TEST_F(WindowsHeldFile, ThatTheOtherProcessLetsOthersDeleteIsTriedAgainAllTheSame)
{
	// It may be deleted, but its name is free only once it is closed.
	Hold("replace");
	EndBeforeTry = 4;
	EXPECT_TRUE(Save());
	EXPECT_EQ(4, NumTries);
	EXPECT_EQ("new", Folder.Read("User.ini"));
}

TEST_F(WindowsHeldFile, ThatTheOtherProcessLetsOthersDeleteIsWholeInAnyCase)
{
	Hold("replace");
	const bool bSaved = Save();
	EXPECT_EQ(bSaved ? "new" : OldText, Folder.Read("User.ini"));
	EXPECT_EQ(std::vector<std::string>({"User.ini"}), Folder.List());
}

TEST_F(WindowsHeldFile, ThatCannotBeSavedMakesOneSentenceAndKeepsTheChange)
{
	FConfigCacheIni Cache;
	Cache.SetString(TEXT("A"), TEXT("Key"), TEXT("New"), FileName);
	Hold("read");
	Cache.Flush(false, FileName);
	Cache.Flush(false, FileName);
	EXPECT_EQ(0u, Notice().find("The settings could not be saved to " + ToStd(FileName) + ": ")) << Notice();
	EXPECT_NE(std::string::npos, Notice().find("They stay in use and are saved with the next change")) << Notice();
	FString Value;
	EXPECT_TRUE(Cache.GetString(TEXT("A"), TEXT("Key"), Value, FileName));
	EXPECT_EQ("New", ToStd(Value));
	EXPECT_EQ(OldText, Folder.Read("User.ini"));
}

TEST_F(WindowsHeldFile, IsSavedWithTheNextFlushAfterTheOtherProcessHasEnded)
{
	FConfigCacheIni Cache;
	Cache.SetString(TEXT("A"), TEXT("Key"), TEXT("New"), FileName);
	Hold("read");
	Cache.Flush(false, FileName);
	Holder.reset();
	Cache.Flush(false, FileName);
	EXPECT_EQ("[A]\r\nKey=New\r\nOther=1\r\n", Folder.Read("User.ini"));
	EXPECT_EQ("0 notices", Notice());
}

TEST_F(WindowsHeldFile, ThatCannotEvenBeReadIsNeitherRenamedNorSavedOver)
{
	FConfigCacheIni Cache;
	Cache.SetString(TEXT("A"), TEXT("Key"), TEXT("New"), FileName);
	Hold("none");
	Cache.Flush(false, FileName);
	EXPECT_NE(std::string::npos, Notice().find("another program keeps it open for itself")) << Notice();
	Holder.reset();
	EXPECT_EQ(std::vector<std::string>({"User.ini"}), Folder.List());
	EXPECT_EQ(OldText, Folder.Read("User.ini"));
}

TEST_F(WindowsHeldFile, ThatCannotBeReadAtFirstIsAddedToLater)
{
	FConfigCacheIni Cache;
	Hold("none");
	FString Value;
	EXPECT_FALSE(Cache.GetString(TEXT("A"), TEXT("Other"), Value, FileName));
	EXPECT_NE(std::string::npos, Notice().find("not used until the next start")) << Notice();
	Holder.reset();
	Cache.SetString(TEXT("A"), TEXT("More"), TEXT("2"), FileName);
	Cache.Flush(false, FileName);
	EXPECT_EQ(OldText + "More=2\r\n\r\n", Folder.Read("User.ini"));
}

TEST_F(WindowsHeldFile, InAFolderThatIsMissingIsNotWaitedFor)
{
	FString Reason;
	EXPECT_FALSE(StandIn::SaveFileAtomically(Folder.Path("Gone/User.ini"), "new", 3, Reason));
	EXPECT_EQ(0, NumTries);
	EXPECT_NE("", ToStd(Reason));
}
