// Copyright The Tintmill authors. All rights reserved.

#include "Host/LookBuilder/BuilderPicture.h"

#include "StandIn/LookBuilder.h"

#include <gtest/gtest.h>

#include <cstring>

namespace TintmillHost
{
namespace
{
/** A picture of 4 x 2 pixels whose red is ten times the pixel's number. */
FBuilderPicture MakePicture(int32 Pixels = 8)
{
	StandIn::FLookBuilderRequest Request;
	std::memset(&Request.ImageDesc, 0, sizeof(Request.ImageDesc));
	Request.ImageDesc.Width = 4;
	Request.ImageDesc.Height = 2;
	Request.ImageDesc.RowLength = 4;
	for (int32 Number = 0; Number < Pixels; ++Number)
	{
		Request.Pixels.Append({static_cast<uint8>(10 * Number), 1, 2, 0});
	}
	return FBuilderPicture(Request);
}

const FVector2D Area(8.0f, 4.0f);

TEST(FBuilderPicture, TakesThePixelsRedFirst)
{
	EXPECT_EQ(MakePicture().GetBefore(FIntPoint(1, 1)), FColor(50, 1, 2, 0));
}

TEST(FBuilderPicture, IsEmptyWithoutPixels)
{
	EXPECT_TRUE(MakePicture(0).IsEmpty());
}

TEST(FBuilderPicture, IsEmptyWithFewerPixelsThanItsSizeSays)
{
	EXPECT_TRUE(MakePicture(7).IsEmpty());
}

TEST(FBuilderPicture, HasNoPixelUnderTheMouseWhenItIsEmpty)
{
	FIntPoint Pixel;
	EXPECT_FALSE(MakePicture(0).FindPixel(Area, FBuilderView(), FVector2D(4.0f, 2.0f), Pixel));
}

TEST(FBuilderPicture, FillsAnEmptyAreaWhenItIsEmpty)
{
	EXPECT_EQ(MakePicture(0).Compose(FIntPoint(8, 4), FBuilderView()).Pixels[0], FColor(0x1E, 0x1E, 0x1E, 0xFF));
}

TEST(FBuilderPicture, FindsThePixelUnderAPoint)
{
	FIntPoint Pixel;
	MakePicture().FindPixel(Area, FBuilderView(), FVector2D(5.0f, 3.0f), Pixel);
	EXPECT_EQ(Pixel, FIntPoint(2, 1));
}

TEST(FBuilderPicture, FindsThePixelUnderAPointWhenItIsZoomed)
{
	FBuilderView View;
	View.Zoom = 2.0f;
	FIntPoint Pixel;
	MakePicture().FindPixel(Area, View, FVector2D(1.0f, 1.0f), Pixel);
	EXPECT_EQ(Pixel, FIntPoint(1, 0));
}

TEST(FBuilderPicture, FindsNoPixelBesideThePicture)
{
	FIntPoint Pixel;
	EXPECT_FALSE(MakePicture().FindPixel(FVector2D(8.0f, 40.0f), FBuilderView(), FVector2D(4.0f, 1.0f), Pixel));
}

TEST(FBuilderPicture, FitsIntoTheArea)
{
	EXPECT_EQ(MakePicture().Compose(FIntPoint(8, 4), FBuilderView()).Pixels[8 * 3 + 7].R, 70);
}

TEST(FBuilderPicture, IsAWholeNumberOfTimesItsSizeAtFirst)
{
	EXPECT_EQ(MakePicture().GetScale(FVector2D(11.0f, 7.0f), FBuilderView()), 2.0f);
}

TEST(FBuilderPicture, ShrinksWhereItHasNoRoom)
{
	EXPECT_EQ(MakePicture().GetScale(FVector2D(2.0f, 2.0f), FBuilderView()), 0.5f);
}

TEST(FBuilderPicture, IsOpaqueWhereItIsShown)
{
	EXPECT_EQ(MakePicture().Compose(FIntPoint(8, 4), FBuilderView()).Pixels[0].A, 255);
}

TEST(FBuilderPicture, IsTheSameThroughNoLook)
{
	FBuilderPicture Picture = MakePicture();
	Picture.Grade(nullptr);
	EXPECT_EQ(Picture.GetAfter(FIntPoint(3, 1)), Picture.GetBefore(FIntPoint(3, 1)));
}
}
}
