// Copyright The Tintmill authors. All rights reserved.

#include "Host/LookBuilder/BuilderPicture.h"

#include "StandIn/LookBuilder.h"
#include "StandIn/LookFiles.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace TintmillHost
{
namespace
{
const FColor GroundColor(0x1E, 0x1E, 0x1E, 0xFF);

/** Between red first, the look's order, and blue first, the picture's. */
void SwapRedAndBlue(FPicture& Picture)
{
	for (FColor& Pixel : Picture.Pixels)
	{
		std::swap(Pixel.R, Pixel.B);
	}
}
}

FBuilderPicture::FBuilderPicture(const StandIn::FLookBuilderRequest& Request)
{
	const FTintmillAPI_ImageDesc& ImageDesc = Request.ImageDesc;
	const int64 Needed = 4 * static_cast<int64>(ImageDesc.RowLength) * ImageDesc.Height;
	if (ImageDesc.Width <= 0 || ImageDesc.Height <= 0 || ImageDesc.RowLength < ImageDesc.Width || Request.Pixels.Num() < Needed)
	{
		return;
	}
	Captured.Width = ImageDesc.Width;
	Captured.Height = ImageDesc.Height;
	Captured.Pixels.Reserve(Captured.Width * Captured.Height);
	for (int32 Row = 0; Row < Captured.Height; ++Row)
	{
		const uint8* Pixel = Request.Pixels.GetData() + 4 * static_cast<int64>(ImageDesc.RowLength) * Row;
		for (int32 Column = 0; Column < Captured.Width; ++Column, Pixel += 4)
		{
			Captured.Pixels.Add(FColor(Pixel[0], Pixel[1], Pixel[2], Pixel[3]));
		}
	}
	Graded = Captured;
}

void FBuilderPicture::Grade(const UTintmillObject* Look)
{
	Graded = Captured;
	SwapRedAndBlue(Graded);
	StandIn::ApplyLookToPixels(Look, reinterpret_cast<uint8*>(Graded.Pixels.GetData()), Graded.Pixels.Num());
	SwapRedAndBlue(Graded);
}

float FBuilderPicture::GetScale(const FVector2D& Area, const FBuilderView& View) const
{
	// At first every pixel of the picture is as large as its neighbours, as long as all of them have room.
	const float Fitting = std::min(Area.X / static_cast<float>(Captured.Width), Area.Y / static_cast<float>(Captured.Height));
	return View.Zoom * (Fitting > 1.0f ? std::floor(Fitting) : Fitting);
}

bool FBuilderPicture::FindPixel(const FVector2D& Area, const FBuilderView& View, const FVector2D& Point, FIntPoint& OutPixel) const
{
	if (IsEmpty() || Area.X <= 0.0f || Area.Y <= 0.0f)
	{
		return false;
	}
	const float Scale = GetScale(Area, View);
	const float X = View.Center.X * static_cast<float>(Captured.Width) + (Point.X - Area.X / 2.0f) / Scale;
	const float Y = View.Center.Y * static_cast<float>(Captured.Height) + (Point.Y - Area.Y / 2.0f) / Scale;
	OutPixel = FIntPoint(static_cast<int32>(std::floor(X)), static_cast<int32>(std::floor(Y)));
	return OutPixel.X >= 0 && OutPixel.Y >= 0 && OutPixel.X < Captured.Width && OutPixel.Y < Captured.Height;
}

FPicture FBuilderPicture::Compose(const FIntPoint& Area, const FBuilderView& View) const
{
	FPicture Picture;
	Picture.Width = Area.X;
	Picture.Height = Area.Y;
	Picture.Pixels.Init(GroundColor, Area.X * Area.Y);
	const FVector2D Size(static_cast<float>(Area.X), static_cast<float>(Area.Y));
	const float SplitX = View.Split * Size.X;
	for (int32 Row = 0; Row < Area.Y; ++Row)
	{
		for (int32 Column = 0; Column < Area.X; ++Column)
		{
			const FVector2D Point(static_cast<float>(Column) + 0.5f, static_cast<float>(Row) + 0.5f);
			FIntPoint Pixel;
			if (FindPixel(Size, View, Point, Pixel))
			{
				FColor& Target = Picture.Pixels[Row * Area.X + Column];
				Target = Point.X < SplitX ? GetBefore(Pixel) : GetAfter(Pixel);
				Target.A = 255;
			}
		}
	}
	return Picture;
}
}
