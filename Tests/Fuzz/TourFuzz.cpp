// Copyright The Tintmill authors. All rights reserved.

#include "Host/Console/CommandText.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string_view>

// Tours: commands come in the order of their lines, none is empty, and each can be split into words.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
	const std::string_view Text(reinterpret_cast<const char*>(Data), Size);
	const int NumLines = 1 + static_cast<int>(std::count(Text.begin(), Text.end(), '\n'));
	int Line = 0;
	for (const TintmillHost::FNumberedCommand& Command : TintmillHost::SplitLines(Text))
	{
		if (Command.Text.empty() || Command.Line <= Line || Command.Line > NumLines)
		{
			std::abort();
		}
		Line = Command.Line;
		TintmillHost::SplitWords(Command.Text);
	}
	for (const std::string& Command : TintmillHost::SplitCommands(Text))
	{
		if (Command.empty())
		{
			std::abort();
		}
		TintmillHost::SplitWords(Command);
	}
	return 0;
}
