// Copyright The Tintmill authors. All rights reserved.

#include "CoreGlobals.h"
#include "StandIn/FatalHandler.h"
#include "StandIn/PixelReads.h"
#include "UnrealClient.h"

namespace
{
/** Refuses reads of what a picture in memory does not have. */
void RefuseWhatASurfaceHasNot(const FReadSurfaceDataFlags& Flags)
{
	if (Flags.GetCubeFace() != CubeFace_MAX)
	{
		STANDIN_MISSING(TEXT("FRenderTarget::ReadPixels of a cube face"));
	}
	if (Flags.GetOutputStencil())
	{
		STANDIN_MISSING(TEXT("FRenderTarget::ReadPixels of the stencil"));
	}
	if (Flags.GetMip() != 0)
	{
		STANDIN_MISSING(TEXT("FRenderTarget::ReadPixels of a mip level"));
	}
	if (Flags.GetArrayIndex() != 0)
	{
		STANDIN_MISSING(TEXT("FRenderTarget::ReadPixels of an array slice"));
	}
}
}

StandIn::FOnPixelsRead& StandIn::OnPixelsRead()
{
	static FOnPixelsRead Delegate;
	return Delegate;
}

float FRenderTarget::GetDisplayGamma() const
{
	return 2.2f;
}

bool FRenderTarget::ReadPixels(TArray<FColor>& OutImageData, FReadSurfaceDataFlags InFlags, FIntRect InRect)
{
	check(IsInGameThread());
	RefuseWhatASurfaceHasNot(InFlags);
	StandIn::OnPixelsRead().Broadcast(*this, InFlags, InRect);
	OutImageData.Reset();

	const StandIn::FRenderSurface* Surface = GetRenderSurface();
	if (Surface == nullptr || Surface->Pixels.Num() == 0)
	{
		return false;
	}
	if (InRect == FIntRect(0, 0, 0, 0))
	{
		InRect = FIntRect(0, 0, Surface->Size.X, Surface->Size.Y);
	}
	checkf(InRect.Min.X >= 0 && InRect.Min.Y >= 0 && InRect.Max.X <= Surface->Size.X && InRect.Max.Y <= Surface->Size.Y,
		TEXT("The rectangle (%d, %d, %d, %d) to read leaves the surface of %d x %d pixels"), InRect.Min.X, InRect.Min.Y, InRect.Max.X,
		InRect.Max.Y, Surface->Size.X, Surface->Size.Y);

	const int32 Width = InRect.Max.X - InRect.Min.X;
	const int32 Height = InRect.Max.Y - InRect.Min.Y;
	if (Width <= 0 || Height <= 0)
	{
		return false;
	}
	OutImageData.Reserve(Width * Height);
	for (int32 Row = InRect.Min.Y; Row < InRect.Max.Y; ++Row)
	{
		OutImageData.Append(Surface->Pixels.GetData() + Row * Surface->Size.X + InRect.Min.X, Width);
	}
	return OutImageData.Num() > 0;
}

bool FRenderTarget::ReadPixelsPtr(FColor* OutImageBytes, FReadSurfaceDataFlags InFlags, FIntRect InRect)
{
	TArray<FColor> Pixels;
	if (!ReadPixels(Pixels, InFlags, InRect))
	{
		return false;
	}
	for (int32 Index = 0; Index < Pixels.Num(); ++Index)
	{
		OutImageBytes[Index] = Pixels[Index];
	}
	return true;
}
