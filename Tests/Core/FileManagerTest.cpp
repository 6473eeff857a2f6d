// Copyright The Tintmill authors. All rights reserved.

#include "HAL/FileManager.h"

#include "Support/TestFolder.h"
#include "gtest/gtest.h"

namespace
{
std::string Join(const TArray<FString>& Names)
{
	std::string Joined;
	for (const FString& Name : Names)
	{
		Joined += (Joined.empty() ? "" : " ") + ToStd(Name);
	}
	return Joined;
}

IFileManager& Files()
{
	return IFileManager::Get();
}
}

TEST(FileManager, TellsFilesFromFolders)
{
	const FTestFolder Folder;
	Folder.Write("a.txt", "abc");
	EXPECT_TRUE(Files().FileExists(*Folder.Path("a.txt")));
	EXPECT_FALSE(Files().DirectoryExists(*Folder.Path("a.txt")));
	EXPECT_TRUE(Files().DirectoryExists(*Folder.Path()));
	EXPECT_FALSE(Files().FileExists(*Folder.Path()));
}

TEST(FileManager, SizeOfAMissingFileIsMinusOne)
{
	const FTestFolder Folder;
	Folder.Write("a.txt", "abc");
	EXPECT_EQ(3, Files().FileSize(*Folder.Path("a.txt")));
	EXPECT_EQ(-1, Files().FileSize(*Folder.Path("b.txt")));
}

TEST(FileManager, NameThatIsNotTextNamesNoFile)
{
	const TCHAR Half[] = {TCHAR(0xd800), 0};
	EXPECT_FALSE(Files().FileExists(Half));
	EXPECT_FALSE(Files().MakeDirectory(Half));
}

TEST(FileManager, MakesAFolderWithItsParentsOnlyWhenAsked)
{
	const FTestFolder Folder;
	EXPECT_FALSE(Files().MakeDirectory(*Folder.Path("a/b/c")));
	EXPECT_TRUE(Files().MakeDirectory(*Folder.Path("a/b/c"), true));
	EXPECT_TRUE(Files().MakeDirectory(*Folder.Path("a/b/c"), true));
}

TEST(FileManager, DeletingAMissingFileFailsOnlyWhenItIsRequired)
{
	const FTestFolder Folder;
	EXPECT_TRUE(Files().Delete(*Folder.Path("a.txt")));
	EXPECT_FALSE(Files().Delete(*Folder.Path("a.txt"), true));
}

TEST(FileManager, ReadOnlyFileIsDeletedOnlyWhenAsked)
{
	const FTestFolder Folder;
	Folder.Write("a.txt", "abc");
	std::filesystem::permissions(Folder.NativePath("a.txt"), std::filesystem::perms::owner_read);
	EXPECT_TRUE(Files().IsReadOnly(*Folder.Path("a.txt")));
	EXPECT_FALSE(Files().Delete(*Folder.Path("a.txt")));
	EXPECT_TRUE(Files().Delete(*Folder.Path("a.txt"), true, true));
}

TEST(FileManager, MoveReplacesTheTargetUnlessForbidden)
{
	const FTestFolder Folder;
	Folder.Write("a.txt", "a");
	Folder.Write("b.txt", "b");
	EXPECT_FALSE(Files().Move(*Folder.Path("b.txt"), *Folder.Path("a.txt"), false));
	EXPECT_TRUE(Files().Move(*Folder.Path("b.txt"), *Folder.Path("a.txt")));
	EXPECT_EQ("a", Folder.Read("b.txt"));
}

TEST(FileManager, CopyReturnsZeroForSuccess)
{
	const FTestFolder Folder;
	Folder.Write("a.txt", "a");
	EXPECT_EQ(0u, Files().Copy(*Folder.Path("b.txt"), *Folder.Path("a.txt")));
	EXPECT_EQ(1u, Files().Copy(*Folder.Path("b.txt"), *Folder.Path("missing.txt")));
	EXPECT_EQ("a", Folder.Read("b.txt"));
}

TEST(FileManager, FindFilesListsNamesThatMatchInOrder)
{
	const FTestFolder Folder;
	Folder.Write("b.ini", "");
	Folder.Write("a.INI", "");
	Folder.Write("a.txt", "");
	Folder.Write("c.ini/x", "");
	TArray<FString> Names;
	Files().FindFiles(Names, *Folder.Path("*.ini"), true, false);
	EXPECT_EQ("a.INI b.ini", Join(Names));
	Names.Empty();
	Files().FindFiles(Names, *Folder.Path("*"), false, true);
	EXPECT_EQ("c.ini", Join(Names));
	Names.Empty();
	Files().FindFiles(Names, *Folder.Path(), TEXT("txt"));
	EXPECT_EQ("a.txt", Join(Names));
}

TEST(FileManager, FindFilesRecursiveGivesFullNames)
{
	const FTestFolder Folder;
	Folder.Write("Content/Looks/Teal.cube", "");
	Folder.Write("Content/Warm.cube", "");
	TArray<FString> Names;
	Files().FindFilesRecursive(Names, *Folder.Path(), TEXT("*.cube"), true, false);
	EXPECT_EQ(ToStd(Folder.Path("Content/Looks/Teal.cube")) + " " + ToStd(Folder.Path("Content/Warm.cube")), Join(Names));
}

TEST(FileManager, DeleteDirectoryTakesTheContentOnlyWhenAsked)
{
	const FTestFolder Folder;
	Folder.Write("a/b.txt", "");
	EXPECT_FALSE(Files().DeleteDirectory(*Folder.Path("a")));
	EXPECT_TRUE(Files().DeleteDirectory(*Folder.Path("a"), false, true));
	EXPECT_FALSE(Files().DeleteDirectory(*Folder.Path("a"), true));
}
