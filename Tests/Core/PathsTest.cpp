// Copyright The Tintmill authors. All rights reserved.

#include "Misc/Paths.h"

#include "HAL/PlatformProcess.h"
#include "Misc/App.h"
#include "Support/Text.h"
#include "gtest/gtest.h"

#include <algorithm>

namespace
{
std::string Collapse(const TCHAR* Path)
{
	FString Text(Path);
	return FPaths::CollapseRelativeDirectories(Text) ? ToStd(Text) : "(refused)";
}

/** Takes the project away again after each test. */
class PathsOfProject : public testing::Test
{
protected:
	virtual void TearDown() override { FPaths::SetProjectFilePath(TEXT("")); }
};
}

TEST(Paths, CombineJoinsStringsAndLiteralsWithOneSlash)
{
	EXPECT_EQ("A/B/C/D", ToStd(FPaths::Combine(FString(TEXT("A")), TEXT("B/"), FString(TEXT("/C")), TEXT("D"))));
}

TEST(Paths, CombineSkipsEmptyPieces)
{
	EXPECT_EQ("A/B", ToStd(FPaths::Combine(TEXT(""), TEXT("A"), TEXT(""), TEXT("B"), FString())));
}

TEST(Paths, CombineLeavesDotsAlone)
{
	EXPECT_EQ("A/../B", ToStd(FPaths::Combine(TEXT("A"), TEXT(".."), TEXT("B"))));
}

TEST(Paths, NamesAreTakenApart)
{
	const FString Path = TEXT("/Game/Looks.v2/Teal.warm.cube");
	EXPECT_EQ("cube", ToStd(FPaths::GetExtension(Path)));
	EXPECT_EQ(".cube", ToStd(FPaths::GetExtension(Path, true)));
	EXPECT_EQ("Teal.warm.cube", ToStd(FPaths::GetCleanFilename(Path)));
	EXPECT_EQ("Teal.warm", ToStd(FPaths::GetBaseFilename(Path)));
	EXPECT_EQ("/Game/Looks.v2", ToStd(FPaths::GetPath(Path)));
}

TEST(Paths, DotInAFolderIsNoExtension)
{
	EXPECT_EQ("", ToStd(FPaths::GetExtension(TEXT("/Game/Looks.v2/Teal"))));
}

TEST(Paths, ExtensionIsChangedOnlyWhereThereIsOne)
{
	EXPECT_EQ("a/b.spi", ToStd(FPaths::ChangeExtension(TEXT("a/b.cube"), TEXT("spi"))));
	EXPECT_EQ("a/b", ToStd(FPaths::ChangeExtension(TEXT("a/b"), TEXT("spi"))));
}

TEST(Paths, RelativeFoldersCollapse)
{
	EXPECT_EQ("/a/d", Collapse(TEXT("/a/b/../c/.././d")));
	EXPECT_EQ("a/", Collapse(TEXT("a/b/../")));
	EXPECT_EQ("C:/b", Collapse(TEXT("C:\\a\\..\\b")));
}

TEST(Paths, FolderAboveTheRootIsRefused)
{
	EXPECT_EQ("(refused)", Collapse(TEXT("/../a")));
	EXPECT_EQ("(refused)", Collapse(TEXT("a/../../b")));
}

TEST(Paths, PathIsMadeRelativeToAFolder)
{
	FString Path = TEXT("/a/b/c.txt");
	EXPECT_TRUE(FPaths::MakePathRelativeTo(Path, TEXT("/a/d/")));
	EXPECT_EQ("../b/c.txt", ToStd(Path));
}

TEST(Paths, PathLiesUnderItsFolderButNotUnderOneThatStartsAlike)
{
	EXPECT_TRUE(FPaths::IsUnderDirectory(TEXT("/a/b/c"), TEXT("/a/b")));
	EXPECT_FALSE(FPaths::IsUnderDirectory(TEXT("/a/bc"), TEXT("/a/b")));
}

TEST(Paths, EngineFolderIsTwoAboveTheProgram)
{
	const std::string Engine = ToStd(FPaths::EngineDir());
	const std::string Program = ToStd(FPlatformProcess::BaseDir());
	EXPECT_EQ(0u, Program.find(Engine));
	EXPECT_EQ('/', Engine.back());
	EXPECT_EQ(2, std::count(Program.begin() + std::ptrdiff_t(Engine.size()), Program.end(), '/'));
}

TEST_F(PathsOfProject, ProjectFoldersAreThoseOfTheProjectFile)
{
	FPaths::SetProjectFilePath(TEXT("/home/me/Demo/Demo.uproject"));
	EXPECT_EQ("/home/me/Demo/", ToStd(FPaths::ProjectDir()));
	EXPECT_EQ("/home/me/Demo/Content/", ToStd(FPaths::ProjectContentDir()));
	EXPECT_EQ("/home/me/Demo/Saved/Config/", ToStd(FPaths::GeneratedConfigDir()));
	EXPECT_EQ("Demo", ToStd(FApp::GetProjectName()));
}

TEST_F(PathsOfProject, WithoutAProjectTheEngineFolderServes)
{
	EXPECT_FALSE(FPaths::IsProjectFilePathSet());
	EXPECT_EQ(ToStd(FPaths::EngineDir()), ToStd(FPaths::ProjectDir()));
}
