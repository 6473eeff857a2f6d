// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/AtomicFile.h"

#include "Misc/ConfigCacheIni.h"
#include "StandIn/Notices.h"
#include "Support/TestFolder.h"
#include "Core/Windows/HeldFile.h"
#include "gtest/gtest.h"

// Replacing a file that another program has open, which Windows refuses as long as it is.

namespace
{
/** What the hook below counts and lets go of. */
struct FHold
{
	FHeldFile* File = nullptr;
	int32 NumTries = 0;
	/** The try before which the file is let go; 0: never. */
	int32 LetGoBeforeTry = 0;
};

FHold Hold;

bool CountTries(StandIn::EAtomicFileStep Step, const TCHAR*)
{
	if (Step == StandIn::EAtomicFileStep::Replace && ++Hold.NumTries == Hold.LetGoBeforeTry)
	{
		Hold.File->LetGo();
	}
	return true;
}

class WindowsAtomicFile : public testing::Test
{
protected:
	virtual void SetUp() override
	{
		Hold = FHold();
		StandIn::ClearNotices();
		Folder.Write("a.ini", "old");
		StandIn::SetAtomicFileHook(&CountTries);
	}

	virtual void TearDown() override
	{
		StandIn::SetAtomicFileHook(nullptr);
		StandIn::ClearNotices();
	}

	bool Save() { return StandIn::SaveFileAtomically(Folder.Path("a.ini"), "new", 3, Reason); }

	const FTestFolder Folder;
	FString Reason;
};
}

TEST_F(WindowsAtomicFile, FileThatIsLetGoInTimeIsReplaced)
{
	FHeldFile Held(Folder.NativePath("a.ini"));
	Hold.File = &Held;
	Hold.LetGoBeforeTry = 3;
	EXPECT_TRUE(Save());
	EXPECT_EQ(3, Hold.NumTries);
	EXPECT_EQ("new", Folder.Read("a.ini"));
}

TEST_F(WindowsAtomicFile, FileThatIsHeldOnStaysTheOldOneWithTheSystemsReason)
{
	{
		const FHeldFile Held(Folder.NativePath("a.ini"));
		EXPECT_FALSE(Save());
	}
	EXPECT_EQ(5, Hold.NumTries);
	EXPECT_NE("", ToStd(Reason));
	EXPECT_EQ("old", Folder.Read("a.ini"));
	EXPECT_EQ(std::vector<std::string>({"a.ini"}), Folder.List());
}

TEST_F(WindowsAtomicFile, FailureThatCannotPassIsNotTriedAgain)
{
	StandIn::SetAtomicFileHook([](StandIn::EAtomicFileStep Step, const TCHAR* FileName) {
		if (Step == StandIn::EAtomicFileStep::Replace)
		{
			++Hold.NumTries;
			for (const std::filesystem::directory_entry& Entry :
				std::filesystem::directory_iterator(std::filesystem::path(FileName).parent_path()))
			{
				if (Entry.path().filename().wstring().find(L".tmp-") != std::wstring::npos)
				{
					std::filesystem::remove(Entry.path());
				}
			}
		}
		return true;
	});
	EXPECT_FALSE(Save());
	EXPECT_EQ(1, Hold.NumTries);
	EXPECT_EQ("old", Folder.Read("a.ini"));
}

TEST_F(WindowsAtomicFile, SettingsThatAnotherProgramHoldsAreSavedLaterAndAPersonIsToldMeanwhile)
{
	const FString FileName = Folder.Path("User.ini");
	Folder.Write("User.ini", "[A]\r\nKey=Old\r\n");
	FConfigCacheIni Cache;
	Cache.SetString(TEXT("A"), TEXT("Key"), TEXT("New"), FileName);
	{
		const FHeldFile Held(Folder.NativePath("User.ini"));
		Cache.Flush(false, FileName);
		ASSERT_EQ(1, StandIn::GetNotices().Num());
		EXPECT_TRUE(StandIn::GetNotices()[0].Text.Contains(TEXT("User.ini"))) << ToStd(StandIn::GetNotices()[0].Text);
	}
	EXPECT_EQ("[A]\r\nKey=Old\r\n", Folder.Read("User.ini"));
	Cache.Flush(false, FileName);
	EXPECT_NE(std::string::npos, Folder.Read("User.ini").find("Key=New"));
	EXPECT_EQ(0, StandIn::GetNotices().Num());
}
