// Copyright The Tintmill authors. All rights reserved.

#include "Host/TourRun/TourFiles.h"

#include "Host/Console/Console.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace TintmillHost;

namespace
{
/** Says what an action complains of. */
template <typename ActionType>
std::string Complaint(ActionType Action)
{
	try
	{
		Action();
	}
	catch (const FCommandError& Error)
	{
		return Error.what();
	}
	return {};
}

class TourFiles : public testing::Test
{
protected:
	std::filesystem::path Root() const { return Folder.NativePath(""); }

	FTestFolder Folder;
};

TEST_F(TourFiles, AreTakenAwayInTheEndWithTheFoldersMadeForThem)
{
	{
		FTourFiles Files;
		Files.Write(Root(), "New/Deep/a.cube", "bytes");
		EXPECT_EQ(Folder.Read("New/Deep/a.cube"), "bytes");
	}
	EXPECT_TRUE(Folder.List().empty());
}

TEST_F(TourFiles, MayBeWrittenAnew)
{
	FTourFiles Files;
	Files.Write(Root(), "a.cube", "bad");
	Files.Write(Root(), "a.cube", "good");
	EXPECT_EQ(Folder.Read("a.cube"), "good");
}

TEST_F(TourFiles, NeverTakeThePlaceOfAFileOfTheUsers)
{
	Folder.Write("a.cube", "mine");
	{
		FTourFiles Files;
		EXPECT_NE(Complaint([&] { Files.Write(Root(), "a.cube", "theirs"); }).find("is there already"), std::string::npos);
		EXPECT_NE(Complaint([&] { Files.Remove(Root(), "a.cube"); }).find("was not written by this tour"), std::string::npos);
	}
	EXPECT_EQ(Folder.Read("a.cube"), "mine");
}

TEST_F(TourFiles, StayInsideOfTheirFolder)
{
	FTourFiles Files;
	for (const char* const Name : {"../a.cube", "Looks/../../a.cube", "/tmp/a.cube", ""})
	{
		EXPECT_NE(Complaint([&] { Files.Write(Folder.NativePath("Inner"), Name, "x"); }).find("is no file below"), std::string::npos)
			<< Name;
	}
}

TEST_F(TourFiles, CanBeTakenAwayEarlier)
{
	FTourFiles Files;
	Files.Write(Root(), "a.cube", "x");
	Files.Remove(Root(), "a.cube");
	EXPECT_TRUE(Folder.List().empty());
}

TEST_F(TourFiles, LeaveAFolderThatHoldsSomethingElseByNow)
{
	{
		FTourFiles Files;
		Files.Write(Root(), "New/a.cube", "x");
		Folder.Write("New/mine.cube", "mine");
	}
	EXPECT_EQ(Folder.List("New"), std::vector<std::string>{"mine.cube"});
}

TEST_F(TourFiles, AreLeftToAnotherRun)
{
	std::stringstream State;
	{
		FTourFiles Files;
		Files.Write(Root(), "a.cube", "x");
		Files.HandOver(State);
	}
	EXPECT_EQ(Folder.Read("a.cube"), "x");
	{
		FTourFiles Other;
		Other.TakeOver(State);
	}
	EXPECT_TRUE(Folder.List().empty());
}
}
