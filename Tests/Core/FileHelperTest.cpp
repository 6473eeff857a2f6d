// Copyright The Tintmill authors. All rights reserved.

#include "Misc/FileHelper.h"

#include "Support/TestFolder.h"
#include "gtest/gtest.h"

namespace
{
std::string Load(const std::string& Bytes)
{
	const FTestFolder Folder;
	Folder.Write("a.txt", Bytes);
	FString Text;
	return FFileHelper::LoadFileToString(Text, *Folder.Path("a.txt")) ? ToStd(Text) : "(failed)";
}

std::string Save(const FString& Text, FFileHelper::EEncodingOptions Options)
{
	const FTestFolder Folder;
	return FFileHelper::SaveStringToFile(Text, *Folder.Path("a.txt"), Options) ? Folder.Read("a.txt") : "(failed)";
}
}

TEST(FileHelper, PlainTextIsUtf8)
{
	EXPECT_EQ("caf\xc3\xa9", Load("caf\xc3\xa9"));
}

TEST(FileHelper, Utf8MarkIsRecognisedAndDropped)
{
	EXPECT_EQ("caf\xc3\xa9",
		Load("\xef\xbb\xbf"
			 "caf\xc3\xa9"));
}

TEST(FileHelper, Utf16IsRecognisedInBothOrders)
{
	EXPECT_EQ("a\xc3\xa9",
		Load(std::string("\xff\xfe"
						 "a\0\xe9\0",
			6)));
	EXPECT_EQ("a\xc3\xa9", Load(std::string("\xfe\xff\0a\0\xe9", 6)));
}

TEST(FileHelper, CharactersBeyondTheFirstPlaneSurvive)
{
	EXPECT_EQ("\xf0\x9f\x8e\xa8", Load("\xf0\x9f\x8e\xa8"));
}

TEST(FileHelper, BadBytesBecomeTheReplacementCharacter)
{
	EXPECT_EQ("a\xef\xbf\xbd"
			  "b",
		Load("a\xff"
			 "b"));
	EXPECT_EQ("\xef\xbf\xbd\xef\xbf\xbd", Load("\xc0\xaf"));
	EXPECT_EQ("\xef\xbf\xbd", Load("\xe2"));
}

TEST(FileHelper, MissingFileAndFolderFail)
{
	const FTestFolder Folder;
	FString Text;
	EXPECT_FALSE(FFileHelper::LoadFileToString(Text, *Folder.Path("missing.txt")));
	EXPECT_FALSE(FFileHelper::LoadFileToString(Text, *Folder.Path()));
}

TEST(FileHelper, LinesAreSplitAtEveryKindOfEnd)
{
	const FTestFolder Folder;
	Folder.Write("a.txt", "one\r\ntwo\nthree\rfour");
	TArray<FString> Lines;
	EXPECT_TRUE(FFileHelper::LoadFileToStringArray(Lines, *Folder.Path("a.txt")));
	ASSERT_EQ(4, Lines.Num());
	EXPECT_EQ("two", ToStd(Lines[1]));
	EXPECT_EQ("four", ToStd(Lines[3]));
}

TEST(FileHelper, AutomaticEncodingIsPlainForAsciiAndUtf16ForMore)
{
	EXPECT_EQ("abc", Save(TEXT("abc"), FFileHelper::EEncodingOptions::AutoDetect));
	EXPECT_EQ(std::string("\xff\xfe\xe9\0", 4), Save(TEXT("\u00e9"), FFileHelper::EEncodingOptions::AutoDetect));
}

TEST(FileHelper, Utf8IsWrittenWithOrWithoutMark)
{
	EXPECT_EQ("\xef\xbb\xbf\xc3\xa9", Save(TEXT("\u00e9"), FFileHelper::EEncodingOptions::ForceUTF8));
	EXPECT_EQ("\xc3\xa9", Save(TEXT("\u00e9"), FFileHelper::EEncodingOptions::ForceUTF8WithoutBOM));
}

TEST(FileHelper, SavingMakesMissingFolders)
{
	const FTestFolder Folder;
	EXPECT_TRUE(FFileHelper::SaveStringToFile(TEXT("x"), *Folder.Path("a/b/c.txt")));
	EXPECT_EQ("x", Folder.Read("a/b/c.txt"));
}

TEST(FileHelper, ReadOnlyFileIsNotOverwritten)
{
	const FTestFolder Folder;
	Folder.Write("a.txt", "old");
	std::filesystem::permissions(Folder.NativePath("a.txt"), std::filesystem::perms::owner_read);
	EXPECT_FALSE(FFileHelper::SaveStringToFile(TEXT("new"), *Folder.Path("a.txt")));
	EXPECT_EQ("old", Folder.Read("a.txt"));
}

TEST(FileHelper, BytesComeBackAsTheyWere)
{
	const FTestFolder Folder;
	TArray<uint8> Bytes;
	Bytes.Add(0);
	Bytes.Add(255);
	TArray<uint8> Back;
	EXPECT_TRUE(FFileHelper::SaveArrayToFile(Bytes, *Folder.Path("a.bin")));
	EXPECT_TRUE(FFileHelper::LoadFileToArray(Back, *Folder.Path("a.bin")));
	EXPECT_TRUE(Bytes == Back);
}
