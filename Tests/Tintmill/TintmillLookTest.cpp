// Copyright The Tintmill authors. All rights reserved.

#include "Tintmill/Private/TintmillLook.h"

#include "StandIn/LookFiles.h"
#include "Support/FileTime.h"
#include "Tintmill/LookTestBase.h"

// Whether a file that was written again is told from the one that was read.

namespace TintmillLookTest
{
using namespace TintmillTest;

class FileStamp : public FLookTestBase
{
protected:
	/** The stamp of a file with a text that was written at a time, in tenths of a microsecond. */
	FTintmillFileStamp Stamp(const std::string& Text, std::int64_t Ticks) const
	{
		const std::filesystem::path Path = Folder.Write("Teal.cube", Text);
		SetChangedAt(Path, Ticks);
		return FTintmillFileStamp::Of(Path);
	}
};

TEST_F(FileStamp, IsTheSameForTheSameTimeAndSize)
{
	EXPECT_TRUE(Stamp("one", 50) == Stamp("two", 50));
}

TEST_F(FileStamp, DiffersATenthOfAMicrosecondLater)
{
	EXPECT_FALSE(Stamp("one", 50) == Stamp("one", 51));
}

TEST_F(FileStamp, DiffersWithTheSize)
{
	EXPECT_FALSE(Stamp("one", 50) == Stamp("three", 50));
}

TEST_F(FileStamp, OfNoFileIsNoStamp)
{
	EXPECT_FALSE(FTintmillFileStamp::Of(Folder.At("Gone.cube")).bExists);
}

TEST_F(FileStamp, OfAFolderIsNoStamp)
{
	EXPECT_FALSE(FTintmillFileStamp::Of(Folder.At("")).bExists);
}

TEST_F(FileStamp, TellsALookThatWasRewrittenInTheSameSecondWithTheSameSize)
{
	UTintmillObject* const Asset = NewLook();
	const std::filesystem::path Path = Folder.Write("Teal.cube", "LUT_1D_SIZE 2\n0 0 0\n1 1 1\n");
	SetChangedAt(Path, 1000);
	StandIn::LoadLookFile(Asset, FString(UTF8_TO_TCHAR(Path.string().c_str())));
	Folder.Write("Teal.cube", "LUT_1D_SIZE 2\n1 1 1\n0 0 0\n");
	SetChangedAt(Path, 2000);
	EXPECT_EQ(StandIn::PollLookFiles(), TArray<UTintmillObject*>({Asset}));
}
}
