// Copyright The Tintmill authors. All rights reserved.

#include "Host/Gallery/GalleryPictures.h"

#include "Host/Picture/PngFile.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace TintmillHost;

namespace
{
FPicture Plain(int Width, int Height, const FColor& Color)
{
	FPicture Picture;
	Picture.Width = Width;
	Picture.Height = Height;
	Picture.Pixels.Init(Color, Width * Height);
	return Picture;
}

/** A grey picture of 100 x 80 pixels with a rectangle of another color. */
FPicture WithRectangle(int Left, int Top, int Right, int Bottom, const FColor& Color)
{
	FPicture Picture = Plain(100, 80, FColor(90, 90, 90));
	for (int Y = Top; Y < Bottom; ++Y)
	{
		for (int X = Left; X < Right; ++X)
		{
			Picture.Pixels[Y * Picture.Width + X] = Color;
		}
	}
	return Picture;
}

class GalleryPictures : public testing::Test
{
protected:
	FGalleryPicture Add(const FPicture& Picture) { return Subject.Add(EncodePng(Picture)); }

	FGalleryPictures Subject;
	const FPicture Grey = Plain(100, 80, FColor(90, 90, 90));
};

TEST_F(GalleryPictures, EqualPicturesAreStoredOnce)
{
	const FGalleryPicture First = Add(Grey);
	EXPECT_TRUE(Add(Grey) == First);
	EXPECT_EQ(Subject.CountStored(), 1);
}

TEST_F(GalleryPictures, OfAPictureThatDiffersALittleOnlyThePartIsStored)
{
	const FGalleryPicture First = Add(Grey);
	const FGalleryPicture Second = Add(WithRectangle(40, 30, 60, 45, FColor::Red));
	EXPECT_EQ(Second.Whole, First.Whole);
	ASSERT_EQ(Second.Parts.size(), 1u);
	// Some pixels around it are the same in both.
	EXPECT_EQ(Second.Parts[0].Area, FIntRect(32, 22, 68, 53));
	EXPECT_FALSE(Second == First);
}

TEST_F(GalleryPictures, APartEndsAtTheEdgeOfThePicture)
{
	Add(Grey);
	EXPECT_EQ(Add(WithRectangle(0, 0, 10, 10, FColor::Red)).Parts.at(0).Area, FIntRect(0, 0, 18, 18));
	EXPECT_EQ(Add(WithRectangle(95, 75, 100, 80, FColor::Red)).Parts.at(0).Area, FIntRect(87, 67, 100, 80));
}

TEST_F(GalleryPictures, PartsThatLieFarApartAreStoredApart)
{
	Add(Grey);
	FPicture Corners = WithRectangle(0, 0, 10, 10, FColor::Red);
	Corners.Pixels[79 * 100 + 99] = FColor::Green;
	const std::vector<FGalleryPart> Parts = Add(Corners).Parts;
	ASSERT_EQ(Parts.size(), 2u);
	EXPECT_EQ(Parts[0].Area, FIntRect(0, 0, 18, 18));
	EXPECT_EQ(Parts[1].Area, FIntRect(91, 71, 100, 80));
}

TEST_F(GalleryPictures, APartSeenElsewhereIsNotStoredAgain)
{
	Add(Grey);
	const FGalleryPart First = Add(WithRectangle(20, 30, 30, 40, FColor::Red)).Parts.at(0);
	const FGalleryPart Second = Add(WithRectangle(60, 30, 70, 40, FColor::Red)).Parts.at(0);
	EXPECT_EQ(First.Number, Second.Number);
	EXPECT_EQ(Second.Area, FIntRect(52, 22, 78, 48));
}

TEST_F(GalleryPictures, APictureSeenBeforeWithAPartIsNotStoredAgain)
{
	Add(Grey);
	const FGalleryPicture First = Add(WithRectangle(40, 30, 60, 45, FColor::Red));
	Add(WithRectangle(40, 30, 60, 45, FColor::Green));
	EXPECT_TRUE(Add(WithRectangle(40, 30, 60, 45, FColor::Red)) == First);
	EXPECT_EQ(Subject.CountStored(), 3);
}

TEST_F(GalleryPictures, APictureThatDiffersAlmostEverywhereIsStoredWhole)
{
	Add(Grey);
	EXPECT_TRUE(Add(Plain(100, 80, FColor::Red)).Parts.empty());
	EXPECT_EQ(Subject.CountStored(), 2);
}

TEST_F(GalleryPictures, TheNearestPictureLiesBelowAPart)
{
	Add(Grey);
	const FGalleryPicture Red = Add(Plain(100, 80, FColor::Red));
	FPicture AlmostRed = Plain(100, 80, FColor::Red);
	AlmostRed.Pixels[50 * 100 + 50] = FColor::Green;
	EXPECT_EQ(Add(AlmostRed).Whole, Red.Whole);
}

TEST_F(GalleryPictures, PicturesOfOtherSizesAreNotCompared)
{
	Add(Grey);
	EXPECT_TRUE(Add(Plain(80, 100, FColor(90, 90, 90))).Parts.empty());
	EXPECT_EQ(Subject.CountStored(), 2);
}

TEST_F(GalleryPictures, BytesThatAreNoPictureAreNone)
{
	EXPECT_FALSE(Subject.Add("not a PNG").IsValid());
	EXPECT_FALSE(Subject.Add("").IsValid());
}

TEST_F(GalleryPictures, EveryStoredPictureHasARule)
{
	Add(Grey);
	Add(WithRectangle(40, 30, 60, 45, FColor::Red));
	std::ostringstream Style;
	Subject.WriteStyle(Style);
	EXPECT_EQ(Style.str().find(".p0{background-image:url(data:image/png;base64,iVBOR"), 0u);
	EXPECT_NE(Style.str().find("\n.p1{background-image:url(data:image/png;base64,iVBOR"), std::string::npos);
}
}
