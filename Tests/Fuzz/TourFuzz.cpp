// Copyright The Tintmill authors. All rights reserved.

#include "Host/Console/CommandText.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string_view>

// Tours: commands come in the order of their lines and have words, and the numbered ones are the others.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
	const std::string_view Text(reinterpret_cast<const char*>(Data), Size);
	const std::vector<TintmillHost::FNumberedCommand> Numbered = TintmillHost::SplitNumberedCommands(Text);
	const std::vector<std::string> Plain = TintmillHost::SplitCommands(Text);
	const int NumLines = 1 + static_cast<int>(std::count(Text.begin(), Text.end(), '\n'));
	int Line = 1;
	if (Numbered.size() != Plain.size())
	{
		std::abort();
	}
	for (std::size_t Index = 0; Index < Numbered.size(); ++Index)
	{
		if (Numbered[Index].Text != Plain[Index] || Plain[Index].empty() || Numbered[Index].Line < Line || Numbered[Index].Line > NumLines)
		{
			std::abort();
		}
		Line = Numbered[Index].Line;
		TintmillHost::SplitWords(Plain[Index]);
	}
	return 0;
}
