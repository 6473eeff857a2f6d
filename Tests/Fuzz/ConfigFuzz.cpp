// Copyright The Tintmill authors. All rights reserved.

#include "Misc/ConfigCacheIni.h"
#include "Misc/ConfigDocument.h"

#include <cstdint>
#include <cstdlib>
#include <string>

// Ini files: what is written of a file that was read reads the same once more, values and all.

namespace
{
bool IsSame(const StandIn::FConfigDocument& A, const StandIn::FConfigDocument& B)
{
	std::size_t At = 0;
	for (const StandIn::FConfigDocument::FLine& Line : A.Lines)
	{
		if (Line.Kind == StandIn::FConfigDocument::ELine::Unreadable)
		{
			continue;
		}
		if (At == B.Lines.size() || B.Lines[At].Kind != Line.Kind || !B.Lines[At].Text.Equals(Line.Text) || B.Lines[At].Key != Line.Key)
		{
			return false;
		}
		++At;
	}
	return At == B.Lines.size();
}
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
	const TSharedRef<StandIn::FConfigDocument> Read =
		StandIn::FConfigDocument::Parse(std::string(reinterpret_cast<const char*>(Data), Size));
	const std::string Written = Read->Render();
	const TSharedRef<StandIn::FConfigDocument> Again = StandIn::FConfigDocument::Parse(Written);
	int32 NumUnreadable = 0;
	Again->FirstUnreadableLine(NumUnreadable);
	if (NumUnreadable != 0 || Again->Render() != Written || !IsSame(*Read, *Again))
	{
		std::abort();
	}
	FConfigFile File;
	File.CombineFromBuffer(UTF8_TO_TCHAR(Written.c_str()));
	File.ProcessInputFileContents(UTF8_TO_TCHAR(Written.c_str()));
	return 0;
}
