// Copyright The Tintmill authors. All rights reserved.

#include "ViewportCapture.h"

#include "RHI.h"
#include "RHIDefinitions.h"
#include "UnrealClient.h"

FViewportCapture::FViewportCapture(FViewport& Viewport)
{
	TArray<FColor> Pixels;
	Viewport.ReadPixels(Pixels, FReadSurfaceDataFlags(RCM_UNorm, CubeFace_MAX), FIntRect(0, 0, 0, 0));
	WritePixels(Pixels, Bytes);

	const FIntPoint Size = Viewport.GetSizeXY();
	ImageDesc.Kind = 1;
	ImageDesc.Pixels = Bytes.GetData();
	ImageDesc.Width = Size.X;
	ImageDesc.Height = Size.Y;
	ImageDesc.RowLength = Size.X;
	ImageDesc.UnitA = 1.0f;
	ImageDesc.ZeroA = 0;
	ImageDesc.UnitB = 1.0f;
	ImageDesc.ZeroB = 0;
	ImageDesc.RangeLow = -1000.0f;
	ImageDesc.RangeHigh = 1000.0f;
	ImageDesc.ZeroC = 0;
	ImageDesc.Flag = false;
}

void FViewportCapture::WritePixels(const TArray<FColor>& InPixels, TArray<uint8>& OutBytes)
{
	OutBytes.Reset();
	OutBytes.SetNumZeroed(InPixels.Num() * 4);
	check(OutBytes.Num() == InPixels.Num() * 4);

	// Whole words in blocks of fixed length: compilers vectorize this at every optimization level, a loop over bytes only at
	// the highest. FColor keeps blue in the lowest byte, the builder wants red there.
	const uint8* const Source = reinterpret_cast<const uint8*>(InPixels.GetData());
	uint8* const Target = OutBytes.GetData();
	const int32 BlockLength = 16;
	const int32 BlockEnd = InPixels.Num() - InPixels.Num() % BlockLength;

	for (int32 Index = 0; Index < BlockEnd; Index += BlockLength)
	{
		uint32 Block[BlockLength];
		FMemory::Memcpy(Block, Source + 4 * static_cast<SIZE_T>(Index), sizeof(Block));
		for (int32 Offset = 0; Offset < BlockLength; ++Offset)
		{
			const uint32 Word = Block[Offset];
			Block[Offset] = (Word & 0xFF00FF00u) | ((Word >> 16) & 0x000000FFu) | ((Word << 16) & 0x00FF0000u);
		}
		FMemory::Memcpy(Target + 4 * static_cast<SIZE_T>(Index), Block, sizeof(Block));
	}

	for (int32 Index = BlockEnd; Index < InPixels.Num(); ++Index)
	{
		OutBytes[4 * Index] = InPixels[Index].R;
		OutBytes[4 * Index + 1] = InPixels[Index].G;
		OutBytes[4 * Index + 2] = InPixels[Index].B;
		OutBytes[4 * Index + 3] = InPixels[Index].A;
	}
}
