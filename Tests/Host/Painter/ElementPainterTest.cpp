// Copyright The Tintmill authors. All rights reserved.

#include "Host/Painter/ElementPainter.h"

#include "Brushes/SlateBorderBrush.h"
#include "Brushes/SlateBoxBrush.h"
#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateImageBrush.h"
#include "Host/Painter/Canvas.h"
#include "Host/Program/Strings.h"
#include "StandIn/BrushShape.h"
#include "Support/TestFolder.h"

using namespace TintmillHost;

namespace
{
const FLinearColor Red(1.0f, 0.0f, 0.0f);
const FLinearColor Green(0.0f, 1.0f, 0.0f);

class ElementPainter : public FCanvasTest
{
protected:
	const FSlateColorBrush White{FLinearColor(1.0f, 1.0f, 1.0f)};

	/** A PNG of 6 x 6 pixels: red corners of 2 x 2 pixels, green edges, a blue middle. */
	FString WriteFrameImage()
	{
		FPicture Picture;
		Picture.Width = 6;
		Picture.Height = 6;
		for (int Y = 0; Y < 6; ++Y)
		{
			for (int X = 0; X < 6; ++X)
			{
				const bool bEdgeX = X < 2 || X > 3;
				const bool bEdgeY = Y < 2 || Y > 3;
				Picture.Pixels.Add(bEdgeX && bEdgeY ? FColor::Red : bEdgeX || bEdgeY ? FColor::Green : FColor::Blue);
			}
		}
		EXPECT_EQ(WritePng(Picture, Folder.NativePath("frame.png")), "");
		return Folder.Path("frame.png");
	}

	/** A PNG of two pixels: red, green. */
	FString WritePairImage()
	{
		FPicture Picture;
		Picture.Width = 2;
		Picture.Height = 1;
		Picture.Pixels = {FColor::Red, FColor::Green};
		EXPECT_EQ(WritePng(Picture, Folder.NativePath("pair.png")), "");
		return Folder.Path("pair.png");
	}

	FTestFolder Folder;
};

TEST_F(ElementPainter, APlainBoxFillsItsRectangleAndNoMore)
{
	AddBox(Place(2, 2, 4, 4), White);
	const FPicture Picture = Paint(8, 8);
	for (int Y = 0; Y < 8; ++Y)
	{
		for (int X = 0; X < 8; ++X)
		{
			const bool bInside = X >= 2 && X < 6 && Y >= 2 && Y < 6;
			ASSERT_EQ(At(Picture, X, Y), bInside ? FColor::White : FColor::Black) << X << ", " << Y;
		}
	}
}

TEST_F(ElementPainter, EdgesBetweenPixelsGoToTheNearestPixel)
{
	AddBox(Place(1.4f, 0, 2.2f, 4), White);
	const FPicture Picture = Paint(8, 4);
	EXPECT_EQ(At(Picture, 0, 1), FColor::Black);
	EXPECT_EQ(At(Picture, 1, 1), FColor::White);
	EXPECT_EQ(At(Picture, 3, 1), FColor::White);
	EXPECT_EQ(At(Picture, 4, 1), FColor::Black);
}

TEST_F(ElementPainter, ALinearTintReachesTheScreenAsSrgb)
{
	AddBox(Place(0, 0, 4, 4), White, FLinearColor(0.72f, 0.728f, 0.003f));
	EXPECT_EQ(At(Paint(4, 4), 1, 1), FLinearColor(0.72f, 0.728f, 0.003f).ToFColor(true));
}

TEST_F(ElementPainter, TransparencyMixesTheScreensValues)
{
	AddBox(Place(0, 0, 4, 4), White, FLinearColor(1.0f, 1.0f, 1.0f, 0.5f));
	EXPECT_NEAR(At(Paint(4, 4), 1, 1).R, 128, 1);
}

TEST_F(ElementPainter, AHigherLayerLiesAboveALowerOneThatWasAddedLater)
{
	AddBox(Place(0, 0, 4, 4), White, Green, 1);
	AddBox(Place(0, 0, 4, 4), White, Red, 0);
	EXPECT_EQ(At(Paint(4, 4), 1, 1), FColor::Green);
}

TEST_F(ElementPainter, OfOneLayerTheLastOneLiesAbove)
{
	AddBox(Place(0, 0, 4, 4), White, Green);
	AddBox(Place(0, 0, 4, 4), White, Red);
	EXPECT_EQ(At(Paint(4, 4), 1, 1), FColor::Red);
}

TEST_F(ElementPainter, NothingIsDrawnOutsideTheClip)
{
	List.PushClip(FSlateClippingZone(FSlateRect(0, 0, 3, 8)));
	AddBox(Place(0, 0, 8, 8), White);
	List.PopClip();
	const FPicture Picture = Paint(8, 8);
	EXPECT_EQ(At(Picture, 2, 4), FColor::White);
	EXPECT_EQ(At(Picture, 3, 4), FColor::Black);
}

TEST_F(ElementPainter, AClipEndsWithItsElements)
{
	List.PushClip(FSlateClippingZone(FSlateRect(0, 0, 3, 8)));
	AddBox(Place(0, 0, 1, 1), White);
	List.PopClip();
	AddBox(Place(6, 0, 2, 8), White);
	EXPECT_EQ(At(Paint(8, 8), 7, 4), FColor::White);
}

TEST_F(ElementPainter, SomethingDisabledIsHalfAsStrong)
{
	AddBox(Place(0, 0, 4, 4), White, FLinearColor::White, 0, ESlateDrawEffect::DisabledEffect);
	EXPECT_NEAR(At(Paint(4, 4), 1, 1).G, 128, 1);
}

TEST_F(ElementPainter, SomethingDisabledLosesMostOfItsColor)
{
	AddBox(Place(0, 0, 4, 4), White, Red, 0, ESlateDrawEffect::DisabledEffect);
	const FColor Pixel = At(Paint(4, 4), 1, 1);
	EXPECT_LT(Pixel.R - Pixel.G, 40);
}

TEST_F(ElementPainter, ARoundedBoxLeavesItsCornersFree)
{
	AddBox(Place(0, 0, 12, 12), StandIn::FShapeBrush(StandIn::EBrushShape::RoundedBox, FVector2D(16, 16), FLinearColor::White, 4.0f));
	const FPicture Picture = Paint(12, 12);
	EXPECT_LT(At(Picture, 0, 0).R, 40);
	EXPECT_EQ(At(Picture, 6, 0), FColor::White);
	EXPECT_EQ(At(Picture, 6, 6), FColor::White);
}

TEST_F(ElementPainter, AFramedBoxHasAnEdgeOfHalfItsBrightness)
{
	AddBox(Place(0, 0, 8, 8), StandIn::FShapeBrush(StandIn::EBrushShape::FramedBox, FVector2D(16, 16), FLinearColor::White));
	const FPicture Picture = Paint(8, 8);
	EXPECT_NEAR(At(Picture, 0, 4).R, 128, 1);
	EXPECT_EQ(At(Picture, 1, 4), FColor::White);
}

TEST_F(ElementPainter, ARoundedFrameIsFreeInside)
{
	AddBox(Place(0, 0, 8, 8), StandIn::FShapeBrush(StandIn::EBrushShape::RoundedFrame, FVector2D(16, 16), FLinearColor::White));
	const FPicture Picture = Paint(8, 8);
	EXPECT_EQ(At(Picture, 0, 4), FColor::White);
	EXPECT_EQ(At(Picture, 4, 4), FColor::Black);
}

TEST_F(ElementPainter, EveryShapeDrawsSomething)
{
	for (int Kind = static_cast<int>(StandIn::EBrushShape::RoundedBox); Kind <= static_cast<int>(StandIn::EBrushShape::Log); ++Kind)
	{
		List.ResetElementList();
		const FLinearColor Color = Kind == static_cast<int>(StandIn::EBrushShape::Shadow) ? FLinearColor(1, 1, 1, 1) : FLinearColor::White;
		AddBox(Place(8, 8, 16, 16), StandIn::FShapeBrush(static_cast<StandIn::EBrushShape>(Kind), FVector2D(16, 16), Color, 2.0f));
		const FPicture Picture = Paint(32, 32);
		const bool bDrawn = Picture.Pixels.ContainsByPredicate([](const FColor& Pixel) { return Pixel.R > 40; });
		EXPECT_TRUE(bDrawn) << "shape " << Kind;
	}
}

TEST_F(ElementPainter, AShadowLeavesItsAreaFree)
{
	AddBox(Place(10, 10, 12, 12), StandIn::FShapeBrush(StandIn::EBrushShape::Shadow, FVector2D(8, 8), FLinearColor::White));
	const FPicture Picture = Paint(32, 32);
	EXPECT_EQ(At(Picture, 16, 16), FColor::Black);
	EXPECT_GT(At(Picture, 16, 23).R, At(Picture, 16, 28).R);
}

TEST_F(ElementPainter, AnImageFillsItsAreaWithItsPixels)
{
	AddBox(Place(0, 0, 6, 6), FSlateImageBrush(WriteFrameImage(), FVector2D(6, 6)));
	const FPicture Picture = Paint(6, 6);
	EXPECT_EQ(At(Picture, 0, 0), FColor::Red);
	EXPECT_EQ(At(Picture, 2, 0), FColor::Green);
	EXPECT_EQ(At(Picture, 3, 3), FColor::Blue);
}

TEST_F(ElementPainter, ATintMultipliesAnImage)
{
	AddBox(Place(0, 0, 6, 6), FSlateImageBrush(WriteFrameImage(), FVector2D(6, 6)), FLinearColor(0.0f, 1.0f, 1.0f));
	const FPicture Picture = Paint(6, 6);
	EXPECT_EQ(At(Picture, 0, 0), FColor::Black);
	EXPECT_EQ(At(Picture, 2, 0), FColor::Green);
}

TEST_F(ElementPainter, ABoxBrushKeepsTheSizeOfItsCornersAndStretchesTheRest)
{
	AddBox(Place(0, 0, 20, 20), FSlateBoxBrush(WriteFrameImage(), FMargin(2.0f / 6.0f)));
	const FPicture Picture = Paint(20, 20);
	EXPECT_EQ(At(Picture, 1, 1), FColor::Red);
	EXPECT_EQ(At(Picture, 2, 1), FColor::Green);
	EXPECT_EQ(At(Picture, 17, 1), FColor::Green);
	EXPECT_EQ(At(Picture, 18, 1), FColor::Red);
	EXPECT_EQ(At(Picture, 2, 2), FColor::Blue);
	EXPECT_EQ(At(Picture, 17, 17), FColor::Blue);
}

TEST_F(ElementPainter, ABorderBrushLeavesItsMiddleFree)
{
	AddBox(Place(0, 0, 20, 20), FSlateBorderBrush(WriteFrameImage(), FMargin(2.0f / 6.0f)));
	const FPicture Picture = Paint(20, 20);
	EXPECT_EQ(At(Picture, 0, 0), FColor::Red);
	EXPECT_EQ(At(Picture, 10, 1), FColor::Green);
	EXPECT_EQ(At(Picture, 10, 10), FColor::Black);
}

TEST_F(ElementPainter, ATiledImageRepeats)
{
	AddBox(Place(0, 0, 6, 1), FSlateImageBrush(WritePairImage(), FVector2D(2, 1), FLinearColor::White, ESlateBrushTileType::Horizontal));
	const FPicture Picture = Paint(6, 1);
	EXPECT_EQ(At(Picture, 4, 0), FColor::Red);
	EXPECT_EQ(At(Picture, 5, 0), FColor::Green);
}

TEST_F(ElementPainter, AMirroredImageIsTurnedAround)
{
	FSlateImageBrush Brush(WritePairImage(), FVector2D(2, 1));
	Brush.Mirroring = ESlateBrushMirrorType::Horizontal;
	AddBox(Place(0, 0, 2, 1), Brush);
	const FPicture Picture = Paint(2, 1);
	EXPECT_EQ(At(Picture, 0, 0), FColor::Green);
	EXPECT_EQ(At(Picture, 1, 0), FColor::Red);
}

TEST_F(ElementPainter, AMissingImageIsACheckerboard)
{
	AddBox(Place(0, 0, 16, 16), FSlateImageBrush(Folder.Path("gone.png"), FVector2D(16, 16)));
	const FPicture Picture = Paint(16, 16);
	EXPECT_NE(At(Picture, 2, 2), At(Picture, 10, 2));
	EXPECT_EQ(At(Picture, 2, 2), At(Picture, 10, 10));
}

TEST_F(ElementPainter, AnImageThatIsNoFileComesFromItsSource)
{
	const FColor Pixel = FColor::Blue;
	Painter.SetBrushPictures([&Pixel](const FSlateBrush&, const FIntPoint&) { return FPictureView{FIntPoint(1, 1), &Pixel}; });
	AddBox(Place(0, 0, 4, 4), FSlateImageBrush(FName("Thumbnail:Teal"), FVector2D(4, 4)));
	EXPECT_EQ(At(Paint(4, 4), 2, 2), FColor::Blue);
}

TEST_F(ElementPainter, AnImageThatItsSourceDoesNotKnowIsAFile)
{
	Painter.SetBrushPictures([](const FSlateBrush&, const FIntPoint&) { return FPictureView(); });
	AddBox(Place(0, 0, 6, 6), FSlateImageBrush(WriteFrameImage(), FVector2D(6, 6)));
	EXPECT_EQ(At(Paint(6, 6), 0, 0), FColor::Red);
}

TEST_F(ElementPainter, ALineOfOneUnitIsOnePixelWide)
{
	FSlateDrawElement::MakeLines(List, 0, Place(0, 0, 8, 8), {FVector2D(0, 3), FVector2D(8, 3)});
	const FPicture Picture = Paint(8, 8);
	EXPECT_EQ(At(Picture, 4, 2), FColor::Black);
	EXPECT_EQ(At(Picture, 4, 3), FColor::White);
	EXPECT_EQ(At(Picture, 4, 4), FColor::Black);
}

TEST_F(ElementPainter, ALineOfOneUnitIsTwoPixelsWideAtTwiceTheScale)
{
	FSlateDrawElement::MakeLines(List, 0, Place(0, 0, 8, 8), {FVector2D(0, 3), FVector2D(8, 3)});
	const FPicture Picture = Paint(8, 8, 2.0);
	EXPECT_EQ(At(Picture, 8, 5), FColor::White);
	EXPECT_EQ(At(Picture, 8, 6), FColor::White);
	EXPECT_EQ(At(Picture, 8, 7), FColor::Black);
}

/** A viewport that nobody draws. */
class FNamedViewport : public ISlateViewport
{
public:
	virtual FIntPoint GetSize() const override { return FIntPoint(2, 1); }
	virtual bool RequiresVsync() const override { return false; }
};

TEST_F(ElementPainter, AViewportShowsItsPicturePixelByPixelWhateverTheirAlpha)
{
	const FColor Pixels[] = {FColor(10, 20, 30, 0), FColor(200, 100, 50, 7)};
	Painter.SetViewportPictures([&Pixels](const ISlateViewport&, const FIntPoint&) { return FPictureView{FIntPoint(2, 1), Pixels}; });
	FSlateDrawElement::MakeViewport(List, 0, Place(0, 0, 2, 1), MakeShareable(new FNamedViewport()));
	const FPicture Picture = Paint(2, 1);
	EXPECT_EQ(At(Picture, 0, 0), FColor(10, 20, 30, 255));
	EXPECT_EQ(At(Picture, 1, 0), FColor(200, 100, 50, 255));
}

TEST_F(ElementPainter, AViewportIsAskedForThePicturesOwnPixels)
{
	FIntPoint Asked(0, 0);
	Painter.SetViewportPictures([&Asked](const ISlateViewport&, const FIntPoint& DeviceSize) {
		Asked = DeviceSize;
		return FPictureView();
	});
	FSlateDrawElement::MakeViewport(List, 0, Place(0, 0, 20, 10), MakeShareable(new FNamedViewport()));
	Paint(20, 10, 2.0);
	EXPECT_EQ(Asked, FIntPoint(40, 20));
}

TEST_F(ElementPainter, AViewportWithoutAPictureIsDarkButNotBlack)
{
	FSlateDrawElement::MakeViewport(List, 0, Place(0, 0, 4, 4), MakeShareable(new FNamedViewport()));
	const FColor Pixel = At(Paint(4, 4), 1, 1);
	EXPECT_GT(Pixel.R, 0);
	EXPECT_LT(Pixel.R, 60);
}
}
