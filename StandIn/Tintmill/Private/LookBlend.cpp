// Copyright The Tintmill authors. All rights reserved.

#include "LookBlend.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <thread>
#include <vector>

namespace LookBlendPrivate
{
/** Pixels that are graded at a time; their copy stays in the nearest cache. */
constexpr std::size_t BlockPixels = 2048;

/** Fewer pixels than this are not worth another thread. */
constexpr std::size_t PixelsPerThread = 64 * 1024;

/** More threads than this would only wait for memory. */
constexpr std::size_t MostThreads = 4;

static void BlendBlock(const std::uint8_t* Graded, std::uint32_t Weight, std::uint8_t* Pixels, std::size_t Count)
{
	for (std::size_t Pixel = 0; Pixel < Count * 4; Pixel += 4)
	{
		Pixels[Pixel] = LookGrading::Blend(Pixels[Pixel], Graded[Pixel], Weight);
		Pixels[Pixel + 1] = LookGrading::Blend(Pixels[Pixel + 1], Graded[Pixel + 1], Weight);
		Pixels[Pixel + 2] = LookGrading::Blend(Pixels[Pixel + 2], Graded[Pixel + 2], Weight);
	}
}

static void ApplyToSpan(
	const LookGrading::ILookGrader& Grader, std::uint32_t Weight, std::uint8_t* Pixels, std::size_t Count, LookGrading::EByteOrder Order)
{
	std::uint8_t Graded[BlockPixels * 4];
	for (std::size_t Start = 0; Start < Count; Start += BlockPixels)
	{
		const std::size_t InBlock = std::min(BlockPixels, Count - Start);
		std::uint8_t* const Block = Pixels + Start * 4;
		if (Weight >= LookGrading::FullWeight)
		{
			Grader.Grade(Block, Block, InBlock, Order);
		}
		else
		{
			Grader.Grade(Block, Graded, InBlock, Order);
			BlendBlock(Graded, Weight, Block, InBlock);
		}
	}
}
}

namespace LookGrading
{
std::uint32_t WeightOf(float Intensity)
{
	if (!(Intensity > 0.0f))
	{
		return 0;
	}
	return static_cast<std::uint32_t>(std::lround(std::min(Intensity, 1.0f) * static_cast<float>(FullWeight)));
}

std::uint8_t Blend(std::uint8_t From, std::uint8_t To, std::uint32_t Weight)
{
	return static_cast<std::uint8_t>((From * (FullWeight - Weight) + To * Weight + FullWeight / 2) / FullWeight);
}

void ApplyLook(const ILookGrader& Grader, std::uint32_t Weight, std::uint8_t* Pixels, std::size_t PixelCount, EByteOrder Order)
{
	if (Weight == 0)
	{
		return;
	}
	const std::size_t Cores = std::max<std::size_t>(std::thread::hardware_concurrency(), 1);
	const std::size_t Wanted = std::min({LookBlendPrivate::MostThreads, Cores, PixelCount / LookBlendPrivate::PixelsPerThread + 1});
	const std::size_t Share = (PixelCount + Wanted - 1) / Wanted;
	std::vector<std::thread> Threads;
	for (std::size_t Start = Share; Start < PixelCount; Start += Share)
	{
		const std::size_t Count = std::min(Share, PixelCount - Start);
		Threads.emplace_back([&Grader, Weight, Pixels, Start, Count, Order] {
			LookBlendPrivate::ApplyToSpan(Grader, Weight, Pixels + Start * 4, Count, Order);
		});
	}
	LookBlendPrivate::ApplyToSpan(Grader, Weight, Pixels, std::min(Share, PixelCount), Order);
	for (std::thread& Thread : Threads)
	{
		Thread.join();
	}
}
}
