// Copyright The Tintmill authors. All rights reserved.

#include "JsonReader.h"
#include "Misc/TextCodec.h"

#include <cstdint>
#include <cstdlib>

// Descriptors: a text is a value, or there is a line and a reason.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
	StandInPrivate::FJsonValue Value;
	StandInPrivate::FJsonError Error;
	const FString Text = StandInPrivate::DecodeText(Data, static_cast<int64>(Size));
	if (!StandInPrivate::ReadJson(Text, Value, Error) && (Error.Line < 1 || Error.Text.IsEmpty()))
	{
		std::abort();
	}
	return 0;
}
