// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/ProjectLock.h"

#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{
using namespace TintmillHost;

class ProjectLock : public testing::Test
{
protected:
	EProjectLock Take(FProjectLock& Lock) { return Lock.Take(Folder.NativePath("Project"), Why); }

	virtual void SetUp() override { std::filesystem::create_directory(Folder.NativePath("Project")); }

	FTestFolder Folder;
	std::string Why;
};

using FNames = std::vector<std::string>;

TEST_F(ProjectLock, IsHeldByTheFirst)
{
	FProjectLock First;
	EXPECT_EQ(Take(First), EProjectLock::Held);
}

TEST_F(ProjectLock, IsNotHadByTheSecond)
{
	FProjectLock First;
	FProjectLock Second;
	Take(First);
	EXPECT_EQ(Take(Second), EProjectLock::HeldByOther);
}

TEST_F(ProjectLock, IsHadByTheSecondOnceTheFirstIsGone)
{
	auto First = std::make_unique<FProjectLock>();
	FProjectLock Second;
	Take(*First);
	First.reset();
	EXPECT_EQ(Take(Second), EProjectLock::Held);
}

TEST_F(ProjectLock, TheSecondDoesNotTakeItFromTheFirstWhenItGoes)
{
	FProjectLock First;
	Take(First);
	{
		FProjectLock Second;
		Take(Second);
	}
	FProjectLock Third;
	EXPECT_EQ(Take(Third), EProjectLock::HeldByOther);
}

TEST_F(ProjectLock, LeavesTheFolderAsItWas)
{
	{
		FProjectLock First;
		Take(First);
	}
	EXPECT_EQ(Folder.List("Project"), FNames());
}

TEST_F(ProjectLock, LeavesNoEmptyFoldersOfItsOwnBehind)
{
	{
		FProjectLock First;
		Take(First);
		std::filesystem::create_directories(Folder.NativePath("Project/Saved/Config/Linux"));
	}
	EXPECT_EQ(Folder.List("Project"), FNames());
}

TEST_F(ProjectLock, LeavesFoldersThatWereThereBefore)
{
	std::filesystem::create_directories(Folder.NativePath("Project/Saved/Config"));
	{
		FProjectLock First;
		Take(First);
	}
	EXPECT_EQ(Folder.List("Project/Saved"), FNames{"Config"});
}

TEST_F(ProjectLock, LeavesWhatWasSavedMeanwhile)
{
	{
		FProjectLock First;
		Take(First);
		Folder.Write("Project/Saved/Settings.ini", "s");
	}
	EXPECT_EQ(Folder.List("Project/Saved"), FNames{"Settings.ini"});
}

TEST_F(ProjectLock, SaysWhyNothingCanBeWritten)
{
	Folder.Write("Project/Saved", "a file in the way");
	FProjectLock First;
	EXPECT_EQ(Take(First), EProjectLock::NotWritable);
	EXPECT_NE(Why, "");
}

TEST_F(ProjectLock, AFileThatWasLeftBehindBlocksNobody)
{
	Folder.Write("Project/Saved/TintmillEditor.lock", "");
	FProjectLock First;
	EXPECT_EQ(Take(First), EProjectLock::Held);
}
}
