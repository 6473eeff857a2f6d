// Copyright The Tintmill authors. All rights reserved.

#include "Tests/Host/HostProgramFixture.h"

// The real program with the real shared libraries: the pictures that it writes.

namespace
{
typedef FHostProgramFixture HostProgramPictures;

TEST_F(HostProgramPictures, WritesTwoPicturesForEveryPane)
{
	RunProject("");
	for (int Pane = 0; Pane < 4; ++Pane)
	{
		const std::string Stem = "FourPanes2x2-Viewport1-Viewport" + std::to_string(Pane);
		EXPECT_EQ(ReadPicture(Stem + "-with-look.png").Width, 64);
		EXPECT_EQ(ReadPicture(Stem + "-without-look.png").Height, 36);
	}
}

TEST_F(HostProgramPictures, ShowsASavedLookOnItsPane)
{
	WriteRedLook("Red");
	WriteSettings(Pair(1, "1.000000", Look("Red")));
	const FProgramResult Result = RunProject("--exec 'picture 1 one.png'");
	ASSERT_EQ(Result.Code, 0) << Result.Output;
	for (const FColor& Pixel : ReadPicture("one.png").Pixels)
	{
		ASSERT_EQ(Pixel.G, 0);
		ASSERT_EQ(Pixel.B, 0);
	}
}

TEST_F(HostProgramPictures, LeavesAPaneWithoutALookAlone)
{
	WriteRedLook("Red");
	WriteSettings(Pair(1, "1.000000", Look("Red")));
	RunProject("--exec 'pictures'");
	const std::string Stem = "FourPanes2x2-Viewport1-Viewport2";
	EXPECT_TRUE(ReadPicture(Stem + "-with-look.png").Pixels == ReadPicture(Stem + "-without-look.png").Pixels);
}

TEST_F(HostProgramPictures, HalfIntensityLiesHalfWayBetween)
{
	WriteRedLook("Red");
	WriteSettings(Pair(1, "0.500000", Look("Red")));
	RunProject("--exec 'pictures'");
	const TintmillHost::FPicture Without = ReadPicture("FourPanes2x2-Viewport1-Viewport1-without-look.png");
	const TintmillHost::FPicture With = ReadPicture("FourPanes2x2-Viewport1-Viewport1-with-look.png");
	for (int32 Index = 0; Index < With.Pixels.Num(); ++Index)
	{
		ASSERT_NEAR(With.Pixels[Index].G, Without.Pixels[Index].G / 2.0, 1.0);
	}
}

TEST_F(HostProgramPictures, ABrokenLookFileMakesOneNoticeWithFileLineAndReason)
{
	Folder.Write("Project/Content/Looks/Broken.cube", "LUT_3D_SIZE 2\n0 0 0\n1 0,5 0\n");
	WriteSettings(Pair(1, "1.000000", Look("Broken")));
	const FProgramResult Result = RunProject("--exec 'pictures; notices'");
	EXPECT_NE(Result.Output.find("Broken.cube(3)"), std::string::npos) << Result.Output;
	const std::string Stem = "FourPanes2x2-Viewport1-Viewport1";
	EXPECT_TRUE(ReadPicture(Stem + "-with-look.png").Pixels == ReadPicture(Stem + "-without-look.png").Pixels);
}

TEST_F(HostProgramPictures, AFolderThatCannotBeWrittenMakesOneSentence)
{
	Folder.Write("out", "a file in the way");
	const FProgramResult Result = RunProject("--exec 'picture 0'");
	EXPECT_EQ(Result.Code, 2);
	EXPECT_NE(Result.Output.find("Cannot write the picture"), std::string::npos) << Result.Output;
}
}
