// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/Project.h"

#include "Host/Program/Strings.h"
#include "Misc/App.h"
#include "Misc/Paths.h"
#include "StandIn/AssetFiles.h"
#include "StandIn/AtomicFile.h"
#include "StandIn/Notices.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

namespace
{
using namespace TintmillHost;

class Project : public testing::Test
{
protected:
	Project()
		: FormerFile(FPaths::GetProjectFilePath())
		, FormerName(FApp::GetProjectName())
	{
		StandIn::ClearNotices();
	}

	virtual ~Project()
	{
		FPaths::SetProjectFilePath(FormerFile);
		FApp::SetProjectName(*FormerName);
		StandIn::UnregisterMountPoint(TEXT("/Game/"));
		StandIn::AllowSaves();
		StandIn::ClearNotices();
	}

	/** Opens something of the folder; the problem, or "". */
	std::string Open(const std::string& Leaf) { return Opened.Open(Folder.NativePath(Leaf)); }

	FTestFolder Folder;
	FProject Opened;

private:
	FString FormerFile;
	FString FormerName;
};

TEST_F(Project, IsAnyFolder)
{
	Folder.Write("Looks/A.cube", "");
	EXPECT_EQ(Open("Looks"), "");
	EXPECT_EQ(Opened.GetName(), "Looks");
	EXPECT_EQ(Opened.GetContentFolder(), std::filesystem::canonical(Folder.NativePath("Looks")));
}

TEST_F(Project, HasItsLooksInContentWhereThereIsSuchAFolder)
{
	Folder.Write("Film/Content/A.cube", "");
	Folder.Write("Film/Shot 12.uproject", "{}");
	EXPECT_EQ(Open("Film"), "");
	EXPECT_EQ(Opened.GetName(), "Shot 12");
	EXPECT_EQ(Opened.GetContentFolder().filename(), "Content");
}

TEST_F(Project, IsOpenedByItsFileToo)
{
	Folder.Write("Film/A.uproject", "{}");
	Folder.Write("Film/B.uproject", "{}");
	EXPECT_EQ(Open("Film/B.uproject"), "");
	EXPECT_EQ(Opened.GetName(), "B");
}

TEST_F(Project, OfSeveralFilesTheFirstByNameIsIts)
{
	Folder.Write("Film/B.uproject", "{}");
	Folder.Write("Film/A.uproject", "{}");
	Open("Film");
	EXPECT_EQ(Opened.GetName(), "A");
}

TEST_F(Project, IsNoOtherFile)
{
	Folder.Write("A.cube", "");
	EXPECT_EQ(Open("A.cube"),
		Folder.NativePath("A.cube").string() + " is not a folder: give the folder that holds your look files with --project.");
}

TEST_F(Project, IsNothingThatIsNotThere)
{
	EXPECT_EQ(Open("Gone"),
		"There is no project folder " + Folder.NativePath("Gone").string()
			+ ": give the folder that holds your look files with --project.");
}

TEST_F(Project, MayHaveANameBeyondAsciiWithBlanks)
{
	Folder.Write("Gr\xc3\xbcne Looks/A.cube", "");
	EXPECT_EQ(Open("Gr\xc3\xbcne Looks"), "");
	Opened.Mount();
	EXPECT_EQ(ToUtf8(FApp::GetProjectName()), "Gr\xc3\xbcne Looks");
	FString Content;
	EXPECT_TRUE(StandIn::FindAssetFolder(TEXT("/Game"), Content));
}

TEST_F(Project, ALongNameIsCutBetweenTwoCharacters)
{
	std::string Name = "x";
	for (int Index = 0; Index < 100; ++Index)
	{
		Name += "\xc3\xbc";
	}
	Folder.Write(Name + "/A.cube", "");
	EXPECT_EQ(Open(Name), "");
	Opened.Mount();
	EXPECT_EQ(ToUtf8(FApp::GetProjectName()), Name.substr(0, 63));
}

TEST_F(Project, ItsSettingsAreNotAmongTheLooksOfAPlainFolder)
{
	Folder.Write("Looks/Saved/Old.cube", "");
	Open("Looks");
	Opened.Mount();
	EXPECT_TRUE(StandIn::IsLeftOutOfAssets(PathToEngine(Opened.GetFolder() / "Saved")));
}

TEST_F(Project, ThatIsOpenElsewhereIsShownAndNothingIsSaved)
{
	Folder.Write("Looks/A.cube", "");
	FProject First;
	First.Open(Folder.NativePath("Looks"));
	EXPECT_EQ(Open("Looks"), "");
	Opened.Mount();
	FString Reason;
	EXPECT_TRUE(StandIn::AreSavesRefused(PathToEngine(Opened.GetFolder() / "Saved/Any.ini"), Reason));
	ASSERT_EQ(StandIn::GetNotices().Num(), 1);
	EXPECT_EQ(ToUtf8(StandIn::GetNotices()[0].Text),
		"The project Looks is open in another Tintmill editor; this one shows it and saves nothing. Close the other one and start again to "
		"save.");
}

TEST_F(Project, ThatWasClosedElsewhereIsSaved)
{
	Folder.Write("Looks/A.cube", "");
	FProject First;
	First.Open(Folder.NativePath("Looks"));
	First.Close();
	Open("Looks");
	Opened.Mount();
	EXPECT_EQ(Opened.GetReadOnlySentence(), "");
	EXPECT_EQ(StandIn::GetNotices().Num(), 0);
}

TEST_F(Project, ThatCannotBeWrittenToSaysSoOnce)
{
	Folder.Write("Looks/Saved", "a file in the way");
	EXPECT_EQ(Open("Looks"), "");
	Opened.Mount();
	ASSERT_EQ(StandIn::GetNotices().Num(), 1);
	EXPECT_EQ(ToUtf8(StandIn::GetNotices()[0].Text).find("Nothing can be saved in the project's folder "), 0u);
}
}
