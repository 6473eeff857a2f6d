// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "UObject/NameTypes.h"
#include <string>

// Engine texts as standard strings, so that a failed comparison prints them.

/** A text as UTF-8. */
inline std::string ToStd(const TCHAR* Text)
{
	const FTCHARToUTF8 Converted(Text);
	return std::string(Converted.Get(), size_t(Converted.Length()));
}

/** A text as UTF-8. */
inline std::string ToStd(const FString& Text)
{
	return ToStd(*Text);
}

/** A name as UTF-8. */
inline std::string ToStd(const FName& Name)
{
	return ToStd(Name.ToString());
}
