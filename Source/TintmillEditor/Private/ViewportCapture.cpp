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
	SwapRedAndBlue(InPixels, OutBytes);
}

void FViewportCapture::SwapRedAndBlue(const TArray<FColor>& InPixels, TArray<uint8>& OutBytes)
{
	// One check in place of one for every element.
	const int32 ByteCount = OutBytes.Num();
	check(ByteCount == InPixels.Num() * 4);

	// FColor keeps blue in its first byte, the builder wants red there. Four words a step: compilers make one vector of them at
	// every level of optimization, of a loop over bytes only at the highest.
	const int32 StepWords = 4;
	const int32 StepBytes = 4 * StepWords;
	const uint8* const Source = reinterpret_cast<const uint8*>(InPixels.GetData());
	uint8* const Target = OutBytes.GetData();
	int32 Index = 0;
	for (; ByteCount - Index >= StepBytes; Index += StepBytes)
	{
		uint32 Words[StepWords];
		FMemory::Memcpy(Words, Source + Index, StepBytes);
		for (uint32& Word : Words)
		{
			const uint32 RedAndBlue = Word & 0x00FF00FFu;
			Word = (Word & 0xFF00FF00u) | (RedAndBlue >> 16) | (RedAndBlue << 16);
		}
		FMemory::Memcpy(Target + Index, Words, StepBytes);
	}
	for (; Index < ByteCount; Index += 4)
	{
		Target[Index] = Source[Index + 2];
		Target[Index + 1] = Source[Index + 1];
		Target[Index + 2] = Source[Index];
		Target[Index + 3] = Source[Index + 3];
	}
}
