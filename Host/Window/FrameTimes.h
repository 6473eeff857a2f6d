// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <string>
#include <vector>

// How long the frames of a window took that showed something new; the log tells it in the end.

namespace TintmillHost
{
/** Times of frames in seconds. */
class FFrameTimes
{
public:
	/** What one frame took: the editor with its scenes and looks, painting what changed, and handing it to the display. */
	struct FFrame
	{
		double Editor = 0.0;
		double Painting = 0.0;
		double Display = 0.0;

		/** All of it. */
		double GetSum() const { return Editor + Painting + Display; }
	};

	/** Notes a frame; of more than some ten thousand only the last ones count. */
	void Add(const FFrame& Frame);

	/** One sentence on all of them. */
	std::string Describe() const;

private:
	std::vector<FFrame> Frames;
	size_t Next = 0;
	size_t Count = 0;
};
}
