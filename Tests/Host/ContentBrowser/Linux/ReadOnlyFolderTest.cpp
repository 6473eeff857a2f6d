// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/BrowserFixture.h"

#include <filesystem>
#include <unistd.h>

// A folder that may not be written to. Permissions do not bind root, so a test that runs as root is somebody else meanwhile.

namespace
{
constexpr uid_t Nobody = 65534;

class ReadOnlyFolder : public FBrowserFixture
{
protected:
	virtual void SetUp() override
	{
		FBrowserFixture::SetUp();
		BeginNewLook();
		Type("Fresh");
		Looks = std::filesystem::path(TintmillHost::ToUtf8(Project.Path("Content/Looks")));
		std::filesystem::permissions(
			Looks, std::filesystem::perms::owner_write | std::filesystem::perms::group_write, std::filesystem::perm_options::remove);
		const bool bRoot = geteuid() == 0;
		ASSERT_TRUE(!bRoot || seteuid(Nobody) == 0);
		ASSERT_NE(access(Looks.c_str(), W_OK) == 0 && !bRoot, true);
		Press(EKeys::Enter);
		ASSERT_TRUE(!bRoot || seteuid(0) == 0);
		Wait(0.1);
	}

	virtual void TearDown() override
	{
		std::filesystem::permissions(Looks, std::filesystem::perms::owner_write, std::filesystem::perm_options::add);
		FBrowserFixture::TearDown();
	}

	std::filesystem::path Looks;
};

TEST_F(ReadOnlyFolder, SaysThatTheLookWasNotMadeAndWhy)
{
	EXPECT_NE(ReadNotices().find("Fresh.cube cannot be written (Permission denied). Check that you may write into this folder"),
		std::string::npos)
		<< ReadNotices();
}

TEST_F(ReadOnlyFolder, LeavesNoFileBehind)
{
	std::vector<std::string> Names;
	for (const std::filesystem::directory_entry& Entry : std::filesystem::directory_iterator(Looks))
	{
		Names.push_back(Entry.path().filename().string());
	}
	std::sort(Names.begin(), Names.end());
	EXPECT_EQ(Names, std::vector<std::string>({"Amber.cube", "Cyan.cube", "Film", "Teal.cube"}));
}

TEST_F(ReadOnlyFolder, LeavesNoTileBehind)
{
	EXPECT_EQ(ListItems(), "Film|Amber|Cyan|Teal");
}

TEST_F(ReadOnlyFolder, OpensNoBuilder)
{
	EXPECT_TRUE(Builder->Opened.empty());
}
}
