// Copyright The Tintmill authors. All rights reserved.

#include "Misc/Paths.h"

#include "HAL/FileManager.h"
#include "Support/TestFolder.h"
#include "gtest/gtest.h"

// File names as Windows knows them: backslashes, drives, letters of either case, user names in any script.

namespace
{
/** "Jürgen Müller 色 😀" in UTF-8: Latin letters with marks, Chinese, and a sign of two UTF-16 units. */
const char* const UserName = "J\xc3\xbcrgen M\xc3\xbcller \xe8\x89\xb2 \xf0\x9f\x98\x80";

FString WithBackslashes(const FString& Path)
{
	return Path.Replace(TEXT("/"), TEXT("\\"));
}
}

TEST(WindowsPaths, BackslashesAreSlashes)
{
	FString Path(TEXT("C:\\Users\\Ada\\Looks\\..\\Warm.cube"));
	EXPECT_EQ("Warm.cube", ToStd(FPaths::GetCleanFilename(Path)));
	EXPECT_EQ("C:\\Users\\Ada\\Looks\\..", ToStd(FPaths::GetPath(Path)));
	EXPECT_TRUE(FPaths::CollapseRelativeDirectories(Path));
	EXPECT_EQ("C:/Users/Ada/Warm.cube", ToStd(Path));
}

TEST(WindowsPaths, DriveIsARootThatCannotBeLeft)
{
	FString Path(TEXT("C:/../Warm.cube"));
	EXPECT_FALSE(FPaths::CollapseRelativeDirectories(Path));
	EXPECT_FALSE(FPaths::IsRelative(TEXT("D:\\Looks")));
}

TEST(WindowsPaths, NoPathLeadsFromOneDriveToAnother)
{
	FString Path(TEXT("D:/Looks/Warm.cube"));
	EXPECT_FALSE(FPaths::MakePathRelativeTo(Path, TEXT("C:/Project/")));
	EXPECT_EQ("D:/Looks/Warm.cube", ToStd(Path));
}

TEST(WindowsPaths, PathsThatDifferByCaseAreTheSame)
{
	EXPECT_TRUE(FPaths::IsSamePath(TEXT("C:/Users/Ada/Looks"), TEXT("c:\\users\\ADA\\looks\\")));
	EXPECT_TRUE(FPaths::IsUnderDirectory(TEXT("C:/users/ada/looks/warm.cube"), TEXT("C:/Users/Ada")));
}

TEST(WindowsPaths, EngineFolderHasADriveAndForwardSlashes)
{
	const FString EngineDir = FPaths::EngineDir();
	EXPECT_EQ(TCHAR(':'), EngineDir[1]);
	EXPECT_FALSE(EngineDir.Contains(TEXT("\\")));
	EXPECT_TRUE(EngineDir.EndsWith(TEXT("/")));
}

TEST(WindowsPaths, FileIsFoundUnderEitherSlashAndEitherCase)
{
	const FTestFolder Folder;
	Folder.Write("Looks/Warm.cube", "x");
	EXPECT_TRUE(FPaths::FileExists(Folder.Path("Looks/Warm.cube")));
	EXPECT_TRUE(FPaths::FileExists(WithBackslashes(Folder.Path("Looks/Warm.cube"))));
	EXPECT_TRUE(FPaths::FileExists(Folder.Path("LOOKS/warm.CUBE")));
}

TEST(WindowsPaths, NamesThatDifferByCaseAreOneFile)
{
	const FTestFolder Folder;
	Folder.Write("Warm.cube", "first");
	Folder.Write("WARM.cube", "second");
	EXPECT_EQ(std::vector<std::string>({"Warm.cube"}), Folder.List());
	EXPECT_EQ("second", Folder.Read("warm.cube"));
}

TEST(WindowsPaths, FoldersOfUsersInAnyScriptAreMadeReadAndListed)
{
	const FTestFolder Folder;
	const FString Home = Folder.Path(UserName);
	EXPECT_TRUE(IFileManager::Get().MakeDirectory(*(Home / TEXT("Looks")), true));
	Folder.Write(std::string(UserName) + "/Looks/Warm.cube", "four");
	EXPECT_EQ(4, IFileManager::Get().FileSize(*(Home / TEXT("Looks/Warm.cube"))));
	TArray<FString> Found;
	IFileManager::Get().FindFilesRecursive(Found, *Home, TEXT("*.cube"), true, false);
	ASSERT_EQ(1, Found.Num());
	EXPECT_EQ(ToStd(Home / TEXT("Looks/Warm.cube")), ToStd(Found[0]));
}
