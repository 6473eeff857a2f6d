// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Templates/SharedPointer.h"
#include "UObject/NameTypes.h"
#include <string>
#include <vector>

// An ini file as lines, so that it can be written back with only the wanted lines changed.

namespace StandIn
{
/** One ini file as lines in their order. */
class FConfigDocument
{
public:
	enum class ELine : uint8
	{
		/** `[Name]`: Text is the name. */
		Section,
		/** `Key=Value` below a heading. */
		Value,
		/** Readable, but neither: comments, half lines, lines above the first heading. */
		Other,
		Blank,
		/** Not text, or below a heading that is not. */
		Unreadable
	};

	struct FLine
	{
		ELine Kind = ELine::Blank;
		/** Number in the file, from 1; 0 for a new line. */
		int32 Number = 0;
		/** The line as it is written. */
		FString Raw;
		/** Section name or value. */
		FString Text;
		FName Key;
		/** Spelling of the key with its operator, if it has one. */
		FString KeyText;
	};

	/** Takes a file's bytes apart; never fails. */
	static TSharedRef<FConfigDocument> Parse(std::string InBytes);

	/** Makes a value line. */
	static FLine MakeValueLine(const FString& KeyText, FName Key, const FString& Value);
	/** Makes a heading. */
	static FLine MakeSectionLine(const FString& Name);

	/** The readable lines with the platform's line ends, as UTF-8. */
	std::string Render() const;

	/** Number of the first unreadable line, or 0; OutCount is how many there are. */
	int32 FirstUnreadableLine(int32& OutCount) const;

	std::vector<FLine> Lines;
	/** The bytes that were parsed. */
	std::string Bytes;
};

/** Returns a value as it is to be written behind the equals sign, in quotes where it needs them. */
FString QuoteConfigValue(const FString& Value);
}
