// Copyright The Tintmill authors. All rights reserved.

#include "Host/Window/FrameTimes.h"

#include <algorithm>
#include <cstdio>

namespace TintmillHost
{
namespace
{
constexpr size_t MaxFrames = 16384;

/** The time that a share of the frames does not exceed, in milliseconds. */
template <typename FunctionType>
double FindShare(const std::vector<FFrameTimes::FFrame>& Frames, double Share, FunctionType GetTime)
{
	std::vector<double> Times;
	Times.reserve(Frames.size());
	for (const FFrameTimes::FFrame& Frame : Frames)
	{
		Times.push_back(GetTime(Frame));
	}
	const size_t Place = std::min(Times.size() - 1, static_cast<size_t>(Share * static_cast<double>(Times.size())));
	std::nth_element(Times.begin(), Times.begin() + static_cast<std::ptrdiff_t>(Place), Times.end());
	return Times[Place] * 1000.0;
}
}

void FFrameTimes::Add(const FFrame& Frame)
{
	if (Frames.size() < MaxFrames)
	{
		Frames.push_back(Frame);
	}
	else
	{
		Frames[Next] = Frame;
		Next = (Next + 1) % MaxFrames;
	}
	++Count;
}

std::string FFrameTimes::Describe() const
{
	if (Frames.empty())
	{
		return "No frame showed anything new.";
	}
	const auto All = [](const FFrame& Frame) { return Frame.GetSum(); };
	char Text[240];
	std::snprintf(Text, sizeof(Text),
		"%zu frames showed something new. Half of them took up to %.1f ms (editor %.1f, painting %.1f, display %.1f), 95 of 100 up to "
		"%.1f ms, the longest %.1f ms.",
		Count, FindShare(Frames, 0.5, All), FindShare(Frames, 0.5, [](const FFrame& Frame) { return Frame.Editor; }),
		FindShare(Frames, 0.5, [](const FFrame& Frame) { return Frame.Painting; }),
		FindShare(Frames, 0.5, [](const FFrame& Frame) { return Frame.Display; }), FindShare(Frames, 0.95, All),
		FindShare(Frames, 1.0, All));
	return Text;
}
}
