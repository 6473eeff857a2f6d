// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/BrowserFixture.h"
#include "Support/FileTime.h"

#include <filesystem>
#include <fstream>

// Look files that cannot be used, as they are seen in the content browser.

namespace
{
/** A file that cannot be used, and words of the reason. */
struct FBrokenFile
{
	const char* Name;
	std::string Bytes;
	const char* Reason;
};

void PrintTo(const FBrokenFile& File, std::ostream* Output)
{
	*Output << File.Name;
}

std::vector<FBrokenFile> MakeBrokenFiles()
{
	const std::string Rows = "0 0 0\n1 0 0\n0 1 0\n1 1 0\n0 0 1\n1 0 1\n0 1 1\n1 1 1\n";
	const std::string Whole = "LUT_3D_SIZE 2\n" + Rows;
	return {{"Empty", "", "Empty.cube"}, {"CutShort", Whole.substr(0, Whole.size() - 7), "CutShort.cube"},
		{"NotANumber", "LUT_3D_SIZE 2\nnan 0 0\n" + Rows.substr(6), "NotANumber.cube(2)"},
		{"Infinite", "LUT_3D_SIZE 2\ninf 0 0\n" + Rows.substr(6), "Infinite.cube(2)"},
		{"Comma", "LUT_3D_SIZE 2\n0,5 0 0\n" + Rows.substr(6), "Comma.cube(2)"}, {"TooMany", Whole + "1 1 1\n", "TooMany.cube(10)"},
		{"SizeOne", "LUT_3D_SIZE 1\n0 0 0\n", "SizeOne.cube(1)"}, {"SizeOfGiants", "LUT_3D_SIZE 130\n0 0 0\n", "SizeOfGiants.cube(1)"},
		{"Unknown", "SHINE 3\n" + Whole, "Unknown.cube(1)"},
		{"LongLine", "LUT_3D_SIZE 2\n" + std::string(1 << 20, '7'), "LongLine.cube(2)"}};
}

class BrokenLook : public FBrowserFixture, public testing::WithParamInterface<FBrokenFile>
{
protected:
	virtual void WriteProject() override
	{
		FBrowserFixture::WriteProject();
		Project.Write(std::string("Content/Bad/") + GetParam().Name + ".cube", GetParam().Bytes);
	}

	virtual void SetUp() override
	{
		FBrowserFixture::SetUp();
		Browser->ShowFolder(TEXT("/Game/Bad"));
		Wait(0.2);
	}
};

TEST_P(BrokenLook, BearsAMark)
{
	EXPECT_TRUE(See(GetParam().Name).bMarked);
}

TEST_P(BrokenLook, TellsTheFileAndTheReasonInItsToolTip)
{
	Hover(GetParam().Name);
	EXPECT_NE(ReadToolTip().find(GetParam().Reason), std::string::npos) << ReadToolTip();
}

TEST_P(BrokenLook, IsToldInANotice)
{
	EXPECT_NE(ReadNotices().find(GetParam().Reason), std::string::npos) << ReadNotices();
}

TEST_P(BrokenLook, IsWellAgainWhenItsFileIsMended)
{
	Project.Write(std::string("Content/Bad/") + GetParam().Name + ".cube", MakeLook());
	Wait(0.2);
	EXPECT_TRUE(!See(GetParam().Name).bMarked && ReadNotices().find(GetParam().Name) == std::string::npos) << ReadNotices();
}

INSTANTIATE_TEST_SUITE_P(Files, BrokenLook, testing::ValuesIn(MakeBrokenFiles()),
	[](const testing::TestParamInfo<FBrokenFile>& Info) { return Info.param.Name; });

class OddLooks : public FBrowserFixture
{
protected:
	virtual void WriteProject() override
	{
		const std::string Rows = "0 0 0\r\n1 0 0\r\n0 1 0\r\n1 1 0\r\n0 0 1\r\n1 0 1\r\n0 1 1\r\n1 1 1\r\n";
		Project.Write(
			"Content/Odd/Returns.cube", "\xEF\xBB\xBFTITLE \"x\"\r\nDOMAIN_MIN 0 0 0\r\nDOMAIN_MAX 1 1 1\r\nLUT_3D_SIZE 2\r\n" + Rows);
		Project.Write("Content/Odd/Folder.cube/Inner.cube", MakeLook());
		const std::filesystem::path Folder = TintmillHost::PathFromUtf8(TintmillHost::ToUtf8(Project.Path("Content/Odd")));
		std::ofstream(Folder / "Giant.cube") << "LUT_3D_SIZE 2\n";
		std::filesystem::resize_file(Folder / "Giant.cube", 200u << 20);
		// Where links cannot be made there is nothing to get lost in.
		std::error_code Error;
		std::filesystem::create_symlink("Circle.cube", Folder / "Circle.cube", Error);
		std::filesystem::create_directory_symlink(Folder, Folder / "Again", Error);
	}

	virtual void SetUp() override
	{
		FBrowserFixture::SetUp();
		Browser->ShowFolder(TEXT("/Game/Odd"));
		Wait(0.2);
	}
};

TEST_F(OddLooks, AMarkOfByteOrderReturnsTitleAndInputRangeAreNoReasonForAMark)
{
	EXPECT_FALSE(See("Returns").bMarked);
}

TEST_F(OddLooks, AFileOfTwoHundredMegabytesBearsAMark)
{
	EXPECT_TRUE(See("Giant").bMarked);
}

TEST_F(OddLooks, AFileOfTwoHundredMegabytesIsTold)
{
	EXPECT_NE(ReadNotices().find("Giant.cube"), std::string::npos) << ReadNotices();
}

TEST_F(OddLooks, LinksThatGoInCirclesEndSomewhere)
{
	Click("Search Content");
	Type("inner");
	Wait(0.1);
	EXPECT_EQ(ListItems(), "Inner");
}

TEST_F(OddLooks, AFolderNamedLikeALookIsAFolder)
{
	DoubleClick("Folder_cube");
	Wait(0.1);
	EXPECT_EQ(ListItems(), "Inner");
}

class LooksThatChange : public FBrowserFixture
{
protected:
	virtual void SetUp() override
	{
		FBrowserFixture::SetUp();
		ShowLooks();
		Wait(0.2);
	}

	void Rescan() { IAssetRegistry::GetChecked().ScanPathsSynchronous({FString(TEXT("/Game"))}, true); }
};

TEST_F(LooksThatChange, ALookThatIsBrokenWhileItIsShownGetsAMark)
{
	Project.Write("Content/Looks/Teal.cube", "LUT_3D_SIZE 2\n");
	Wait(0.2);
	EXPECT_TRUE(See("Teal").bMarked);
}

TEST_F(LooksThatChange, AnotherLookHasNoMark)
{
	Project.Write("Content/Looks/Teal.cube", "LUT_3D_SIZE 2\n");
	Wait(0.2);
	EXPECT_FALSE(See("Amber").bMarked);
}

TEST_F(LooksThatChange, ANewFileAppears)
{
	Project.Write("Content/Looks/Dawn.cube", MakeLook());
	Rescan();
	Wait(0.1);
	EXPECT_EQ(ListItems(), "Film|Amber|Cyan|Dawn|Teal");
}

TEST_F(LooksThatChange, ARemovedFileDisappearsThoughItsLookWasLoaded)
{
	std::filesystem::remove(TintmillHost::PathFromUtf8(TintmillHost::ToUtf8(Project.Path("Content/Looks/Teal.cube"))));
	Rescan();
	Wait(0.1);
	EXPECT_EQ(ListItems(), "Film|Amber|Cyan");
}

TEST_F(LooksThatChange, ARemovedFileIsSelectedNoMore)
{
	Click("Teal");
	std::filesystem::remove(TintmillHost::PathFromUtf8(TintmillHost::ToUtf8(Project.Path("Content/Looks/Teal.cube"))));
	Rescan();
	Wait(0.1);
	EXPECT_EQ(ListSelection(), "");
}

TEST_F(LooksThatChange, TheSelectionOutlivesANewFile)
{
	Click("Teal");
	Project.Write("Content/Looks/Dawn.cube", MakeLook());
	Rescan();
	Wait(0.1);
	EXPECT_EQ(ListSelection(), "Teal");
}

TEST_F(LooksThatChange, ANewFolderAppearsInTheTree)
{
	Project.Write("Content/Grades/Dawn.cube", MakeLook());
	Rescan();
	Wait(0.1);
	EXPECT_TRUE(Browser->FindFolderRow(TEXT("/Game/Grades")).IsValid());
}

TEST_F(LooksThatChange, AShownFolderThatGoesAwayGivesWayToTheOneAbove)
{
	Browser->ShowFolder(TEXT("/Game/Looks/Film"));
	std::filesystem::remove_all(TintmillHost::PathFromUtf8(TintmillHost::ToUtf8(Project.Path("Content/Looks/Film"))));
	Rescan();
	Wait(0.1);
	EXPECT_EQ(ToText(Browser->GetFolder()), "/Game/Looks");
}

TEST_F(LooksThatChange, APictureBesideItsLookIsNoAssetOfItsOwn)
{
	Project.Write("Content/Looks/Teal.png", "picture");
	Rescan();
	Wait(0.1);
	EXPECT_TRUE(ListItems() == "Film|Amber|Cyan|Teal" && ReadNotices().empty()) << ListItems() << ReadNotices();
}
}
