// Copyright The Tintmill authors. All rights reserved.

#include "ViewportCapture.h"

#include "Support/Printers.h"

#include "StandIn/PixelReads.h"
#include "UnrealClient.h"

#include <gtest/gtest.h>

#include <cstring>
#include <new>
#include <random>
#include <vector>

// The picture for the look builder: its bytes, and the record that describes it, byte by byte.

namespace
{
/** A viewport with a picture of a test's own. */
class FPaintedViewport : public FViewport
{
public:
	FPaintedViewport(const FIntPoint& Size, const TArray<FColor>& Pixels)
		: FViewport(nullptr)
	{
		Picture.Size = Size;
		Picture.Pixels = Pixels;
	}

	virtual void Destroy() override {}
	virtual void Invalidate() override {}
	virtual void InvalidateDisplay() override {}
	virtual FViewportFrame* GetViewportFrame() override { return nullptr; }
	virtual FIntPoint GetSizeXY() const override { return Picture.Size; }
	virtual const StandIn::FRenderSurface* GetRenderSurface() const override { return bHasSurface ? &Picture : nullptr; }

	StandIn::FRenderSurface Picture;
	bool bHasSurface = true;
};

/** Six pixels of different channels, three a row. */
TArray<FColor> MakeSixPixels()
{
	TArray<FColor> Pixels;
	for (uint8 Number = 0; Number < 6; ++Number)
	{
		Pixels.Add(FColor(10 + Number, 50 + Number, 90 + Number, 130 + Number));
	}
	return Pixels;
}

/** Pixels of any colours. */
TArray<FColor> MakeRandomPixels(int32 Count)
{
	std::mt19937 Random(static_cast<unsigned>(Count));
	TArray<FColor> Pixels;
	for (int32 Index = 0; Index < Count; ++Index)
	{
		Pixels.Add(
			FColor(static_cast<uint8>(Random()), static_cast<uint8>(Random()), static_cast<uint8>(Random()), static_cast<uint8>(Random())));
	}
	return Pixels;
}

/** The plain way to the same bytes. */
TArray<uint8> ToBytes(const TArray<FColor>& Pixels)
{
	TArray<uint8> Bytes;
	for (const FColor& Pixel : Pixels)
	{
		Bytes.Append({Pixel.R, Pixel.G, Pixel.B, Pixel.A});
	}
	return Bytes;
}

/** The bytes that a capture of a viewport holds. */
TArray<uint8> Capture(FViewport& Viewport)
{
	FViewportCapture Captured(Viewport);
	const FTintmillAPI_ImageDesc& ImageDesc = Captured.GetImageDesc();
	TArray<uint8> Bytes;
	Bytes.Append(ImageDesc.Pixels, ImageDesc.Pixels ? 4 * ImageDesc.RowLength * ImageDesc.Height : 0);
	return Bytes;
}

constexpr uint8 PatternByte = 0xA5;

/** The bytes of a record that was made in memory full of the pattern, and where its pixels lie. */
std::vector<uint8> CaptureIntoPattern(FViewport& Viewport, const uint8*& OutPixels)
{
	alignas(FViewportCapture) static uint8 Memory[sizeof(FViewportCapture)];
	// Volatile, so that the compiler does not take the pattern for a waste of time.
	for (volatile uint8& Byte : Memory)
	{
		Byte = PatternByte;
	}
	FViewportCapture* const Captured = new (Memory) FViewportCapture(Viewport);
	const FTintmillAPI_ImageDesc& ImageDesc = Captured->GetImageDesc();
	OutPixels = ImageDesc.Pixels;
	const volatile uint8* const Start = reinterpret_cast<const uint8*>(&ImageDesc);
	const std::vector<uint8> Bytes(Start, Start + sizeof(ImageDesc));
	Captured->~FViewportCapture();
	return Bytes;
}

/** Puts a value at its place in the bytes of a record. */
template <typename ValueType>
void Put(std::vector<uint8>& Bytes, size_t Offset, ValueType Value)
{
	std::memcpy(Bytes.data() + Offset, &Value, sizeof(Value));
}

/** The four bytes of a value at a place in the bytes of a record. */
template <typename ValueType>
ValueType Get(const std::vector<uint8>& Bytes, size_t Offset)
{
	ValueType Value;
	std::memcpy(&Value, Bytes.data() + Offset, sizeof(Value));
	return Value;
}

class ViewportCapture : public testing::Test
{
protected:
	/** The bytes of the record of a picture of 3 x 2 pixels. */
	std::vector<uint8> GetRecord()
	{
		FPaintedViewport Viewport(FIntPoint(3, 2), MakeSixPixels());
		return CaptureIntoPattern(Viewport, Pixels);
	}

	const uint8* Pixels = nullptr;
};

typedef ViewportCapture ViewportCaptureDeathTest;

TEST_F(ViewportCapture, PutsRedFirstOnASurfaceOfTwoPixels)
{
	FPaintedViewport Viewport(FIntPoint(2, 1), {FColor(1, 2, 3, 4), FColor(250, 251, 252, 253)});
	EXPECT_EQ(Capture(Viewport), TArray<uint8>({1, 2, 3, 4, 250, 251, 252, 253}));
}

TEST_F(ViewportCapture, SwapsTheFirstAndTheThirdByteOfTheSurface)
{
	FPaintedViewport Viewport(FIntPoint(2, 1), {FColor(), FColor()});
	const uint8 Surface[8] = {1, 2, 3, 4, 5, 6, 7, 8};
	std::memcpy(Viewport.Picture.Pixels.GetData(), Surface, sizeof(Surface));
	EXPECT_EQ(Capture(Viewport), TArray<uint8>({3, 2, 1, 4, 7, 6, 5, 8}));
}

TEST_F(ViewportCapture, LeavesAlphaAsItIsRead)
{
	FPaintedViewport Viewport(FIntPoint(1, 1), {FColor(9, 9, 9, 0)});
	EXPECT_EQ(Capture(Viewport)[3], 0);
}

TEST_F(ViewportCapture, KeepsTheRowsInTheirOrderWithoutGaps)
{
	FPaintedViewport Viewport(FIntPoint(3, 2), MakeSixPixels());
	EXPECT_EQ(Capture(Viewport), ToBytes(MakeSixPixels()));
}

TEST_F(ViewportCapture, ReadsOnce)
{
	FPaintedViewport Viewport(FIntPoint(3, 2), MakeSixPixels());
	int32 Reads = 0;
	const FDelegateHandle Handle =
		StandIn::OnPixelsRead().AddLambda([&Reads](const FRenderTarget&, const FReadSurfaceDataFlags&, const FIntRect&) { ++Reads; });
	Capture(Viewport);
	StandIn::OnPixelsRead().Remove(Handle);
	EXPECT_EQ(Reads, 1);
}

TEST_F(ViewportCapture, WritesKindOneAtByte0)
{
	EXPECT_EQ(Get<int32>(GetRecord(), 0), 1);
}

TEST_F(ViewportCapture, LeavesBytes4To7AsTheyWere)
{
	EXPECT_EQ(Get<uint32>(GetRecord(), 4), 0xA5A5A5A5u);
}

TEST_F(ViewportCapture, WritesTheWidthAtByte16)
{
	EXPECT_EQ(Get<int32>(GetRecord(), 16), 3);
}

TEST_F(ViewportCapture, WritesTheHeightAtByte20)
{
	EXPECT_EQ(Get<int32>(GetRecord(), 20), 2);
}

TEST_F(ViewportCapture, WritesTheWidthAsTheLengthOfARowAtByte24)
{
	EXPECT_EQ(Get<int32>(GetRecord(), 24), 3);
}

TEST_F(ViewportCapture, WritesTheRangeAtBytes44And48)
{
	const std::vector<uint8> Record = GetRecord();
	EXPECT_TRUE(Get<float>(Record, 44) == -1000.0f && Get<float>(Record, 48) == 1000.0f);
}

TEST_F(ViewportCapture, LeavesWhatComesAfterByte56AsItWas)
{
	const std::vector<uint8> Record = GetRecord();
	EXPECT_EQ(std::vector<uint8>(Record.begin() + 57, Record.end()), std::vector<uint8>(Record.size() - 57, PatternByte));
}

TEST_F(ViewportCapture, WritesTheListedFieldsAndNoOtherByte)
{
	const std::vector<uint8> Record = GetRecord();
	std::vector<uint8> Expected(64, PatternByte);
	Put<int32>(Expected, 0, 1);
	Put<const uint8*>(Expected, 8, Pixels);
	Put<int32>(Expected, 16, 3);
	Put<int32>(Expected, 20, 2);
	Put<int32>(Expected, 24, 3);
	Put<float>(Expected, 28, 1.0f);
	Put<int32>(Expected, 32, 0);
	Put<float>(Expected, 36, 1.0f);
	Put<int32>(Expected, 40, 0);
	Put<float>(Expected, 44, -1000.0f);
	Put<float>(Expected, 48, 1000.0f);
	Put<int32>(Expected, 52, 0);
	Put<uint8>(Expected, 56, 0);
	EXPECT_EQ(Record, Expected);
}

TEST_F(ViewportCapture, AnEmptyReadKeepsTheViewportsSize)
{
	FPaintedViewport Viewport(FIntPoint(640, 480), {});
	const FTintmillAPI_ImageDesc ImageDesc = FViewportCapture(Viewport).GetImageDesc();
	EXPECT_EQ(FIntPoint(ImageDesc.Width, ImageDesc.Height), FIntPoint(640, 480));
}

TEST_F(ViewportCapture, AReadThatFailsKeepsTheViewportsSize)
{
	FPaintedViewport Viewport(FIntPoint(640, 480), MakeSixPixels());
	Viewport.bHasSurface = false;
	EXPECT_EQ(FViewportCapture(Viewport).GetImageDesc().RowLength, 640);
}

TEST_F(ViewportCapture, AReadThatFailsHasNoPixels)
{
	FPaintedViewport Viewport(FIntPoint(640, 480), MakeSixPixels());
	Viewport.bHasSurface = false;
	EXPECT_EQ(FViewportCapture(Viewport).GetImageDesc().Pixels, nullptr);
}

TEST_F(ViewportCapture, ConvertsEveryNumberOfPixelsAlike)
{
	for (int32 Count = 0; Count <= 40; ++Count)
	{
		TArray<uint8> Bytes;
		FViewportCapture::WritePixels(MakeRandomPixels(Count), Bytes);
		EXPECT_EQ(Bytes, ToBytes(MakeRandomPixels(Count))) << Count;
	}
}

TEST_F(ViewportCapture, ConvertsAPictureOfManyPixels)
{
	TArray<uint8> Bytes;
	FViewportCapture::WritePixels(MakeRandomPixels(100003), Bytes);
	EXPECT_EQ(Bytes, ToBytes(MakeRandomPixels(100003)));
}

TEST_F(ViewportCapture, ReplacesWhatTheBytesHeldBefore)
{
	TArray<uint8> Bytes;
	Bytes.Init(0xEE, 100);
	FViewportCapture::WritePixels({FColor(1, 2, 3, 4)}, Bytes);
	EXPECT_EQ(Bytes, TArray<uint8>({1, 2, 3, 4}));
}

TEST_F(ViewportCapture, LeavesThePixelsAsTheyAre)
{
	const TArray<FColor> Pixels6 = MakeSixPixels();
	TArray<uint8> Bytes;
	FViewportCapture::WritePixels(Pixels6, Bytes);
	EXPECT_EQ(ToBytes(Pixels6), ToBytes(MakeSixPixels()));
}

TEST_F(ViewportCaptureDeathTest, TooFewBytesAreFatal)
{
	TArray<uint8> Bytes;
	Bytes.SetNumZeroed(23);
	EXPECT_DEATH(FViewportCapture::SwapRedAndBlue(MakeSixPixels(), Bytes), "Assertion failed: ByteCount == InPixels.Num\\(\\) \\* 4");
}

TEST_F(ViewportCaptureDeathTest, TooManyBytesAreFatal)
{
	TArray<uint8> Bytes;
	Bytes.SetNumZeroed(28);
	EXPECT_DEATH(FViewportCapture::SwapRedAndBlue(MakeSixPixels(), Bytes), "Assertion failed: ByteCount == InPixels.Num\\(\\) \\* 4");
}
}
