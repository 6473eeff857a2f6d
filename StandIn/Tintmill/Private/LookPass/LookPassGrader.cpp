// Copyright The Tintmill authors. All rights reserved.

#include "LookPass/LookPassGrader.h"

#include <algorithm>
#include <cstring>
#include <exception>
#include <utility>

namespace LookPassGraderPrivate
{
constexpr std::size_t RowPixels = 512;

/** Nearest of 0..255; what is not a number comes out as 0 instead of reaching an undefined cast. */
static std::uint8_t ToByte(float Value)
{
	const float Scaled = Value * 255.0f + 0.5f;
	const float Positive = Scaled > 0.0f ? Scaled : 0.0f;
	return static_cast<std::uint8_t>(static_cast<std::int32_t>(Positive < 255.0f ? Positive : 255.0f));
}
}

namespace LookPass
{
FLookPassGrader::FLookPassGrader(OCIO_NAMESPACE::ConstCPUProcessorRcPtr InProcessor)
	: Processor(std::move(InProcessor))
{}

void FLookPassGrader::Grade(const std::uint8_t* In, std::uint8_t* Out, std::size_t PixelCount, LookGrading::EByteOrder Order) const
{
	const std::size_t Red = Order == LookGrading::EByteOrder::RedFirst ? 0 : 2;
	for (std::size_t Start = 0; Start < PixelCount; Start += LookPassGraderPrivate::RowPixels)
	{
		GradeRow(In + Start * 4, Out + Start * 4, std::min(LookPassGraderPrivate::RowPixels, PixelCount - Start), Red);
	}
}

void FLookPassGrader::GradeRow(const std::uint8_t* In, std::uint8_t* Out, std::size_t PixelCount, std::size_t Red) const
{
	float Row[LookPassGraderPrivate::RowPixels * 4];
	for (std::size_t Pixel = 0; Pixel < PixelCount * 4; Pixel += 4)
	{
		Row[Pixel] = static_cast<float>(In[Pixel + Red]) * (1.0f / 255.0f);
		Row[Pixel + 1] = static_cast<float>(In[Pixel + 1]) * (1.0f / 255.0f);
		Row[Pixel + 2] = static_cast<float>(In[Pixel + 2 - Red]) * (1.0f / 255.0f);
		Row[Pixel + 3] = 1.0f;
	}
	try
	{
		OCIO_NAMESPACE::PackedImageDesc Image(Row, static_cast<long>(PixelCount), 1, OCIO_NAMESPACE::CHANNEL_ORDERING_RGBA);
		Processor->apply(Image);
	}
	catch (const std::exception&)
	{
		// The processor took a row of the same kind when it was made, so this is memory running out: the row stays as it is.
		std::memmove(Out, In, PixelCount * 4);
		return;
	}
	for (std::size_t Pixel = 0; Pixel < PixelCount * 4; Pixel += 4)
	{
		const std::uint8_t Alpha = In[Pixel + 3];
		Out[Pixel + Red] = LookPassGraderPrivate::ToByte(Row[Pixel]);
		Out[Pixel + 1] = LookPassGraderPrivate::ToByte(Row[Pixel + 1]);
		Out[Pixel + 2 - Red] = LookPassGraderPrivate::ToByte(Row[Pixel + 2]);
		Out[Pixel + 3] = Alpha;
	}
}
}
