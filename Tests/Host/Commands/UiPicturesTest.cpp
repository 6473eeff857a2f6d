// Copyright The Tintmill authors. All rights reserved.

#include "Tests/Host/Commands/UiFixture.h"

// Pictures of the real program's window, while it is used.

namespace
{
typedef FUiFixture UiPictures;

TEST_F(UiPictures, AShotHasTheSizeOfTheWindow)
{
	ExpectDone("shot one.png");
	TintmillHost::FPicture Picture;
	ASSERT_EQ(TintmillHost::ReadPng(Folder.NativePath("out/one.png"), Picture), "");
	EXPECT_EQ(Picture.Width, 1000);
	EXPECT_EQ(Picture.Height, 720);
}

TEST_F(UiPictures, AShotAtTwiceTheScaleHasFourTimesThePixels)
{
	ExpectDone("layout OnePane; shot two.png 2");
	TintmillHost::FPicture Picture;
	ASSERT_EQ(TintmillHost::ReadPng(Folder.NativePath("out/two.png"), Picture), "");
	EXPECT_EQ(Picture.Width, 2000);
	EXPECT_EQ(Picture.Height, 1440);
}

TEST_F(UiPictures, AChosenLookChangesThePixelsOfItsPane)
{
	ExpectDone(Panel + "click-box Enable Display; hover Select a TML Asset; click Red; close-menus; hover Show; shot red.png");
	ExpectRed("red.png", 600, 150);
}

TEST_F(UiPictures, AlsoInAPaneThatIsNotDrawnAllTheTime)
{
	ExpectDone("click-pane 0; open 0 View; hover Tintmill; click-box Enable Display; hover Select a TML Asset; click Red; close-menus; "
			   "hover Project; shot red.png");
	ExpectRed("red.png", 100, 150);
}

TEST_F(UiPictures, EveryLookHasAThumbnailOfItsOwn)
{
	ExpectDone("click-pane 0; open 0 View; hover Tintmill; hover Select a TML Asset; hover Browse; shot list.png");
	TintmillHost::FPicture Picture;
	ASSERT_EQ(TintmillHost::ReadPng(Folder.NativePath("out/list.png"), Picture), "");
	// The red look's thumbnail has no other color than red, the green look's none but green.
	int RedPixels = 0;
	int GreenPixels = 0;
	for (const FColor& Pixel : Picture.Pixels)
	{
		RedPixels += Pixel.R > 100 && Pixel.G == 0 && Pixel.B == 0 ? 1 : 0;
		GreenPixels += Pixel.G > 100 && Pixel.R == 0 && Pixel.B == 0 ? 1 : 0;
	}
	EXPECT_GT(RedPixels, 200);
	EXPECT_GT(GreenPixels, 200);
}

TEST_F(UiPictures, TheSameCommandsGiveTheSamePicture)
{
	const std::string Commands = Panel + "hover Select a TML Asset; shot ";
	ExpectDone(Commands + "first.png");
	ExpectDone(Commands + "second.png");
	EXPECT_EQ(Folder.Read("out/first.png"), Folder.Read("out/second.png"));
}

TEST_F(UiPictures, AWindowOfAnotherSizeHasPanesOfAnotherSize)
{
	ExpectDone("window 1200 700; shot large.png; open 1 View; expect visible Tintmill");
	TintmillHost::FPicture Picture;
	ASSERT_EQ(TintmillHost::ReadPng(Folder.NativePath("out/large.png"), Picture), "");
	EXPECT_EQ(Picture.Width, 1200);
}

TEST_F(UiPictures, AFolderThatCannotBeWrittenMakesOneSentence)
{
	Folder.Write("out", "a file in the way");
	ExpectComplaint("shot one.png", "Cannot write the picture");
}
}
