// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include <memory>
#include <string>
#include <vector>

// Reads JSON as the standard has it, no comments, no trailing commas, with a line number for every value and error.

namespace StandInPrivate
{
/** One JSON value with the line it starts at. */
class FJsonValue
{
public:
	enum class EType : uint8
	{
		Null,
		Boolean,
		Number,
		String,
		Array,
		Object
	};

	EType Type = EType::Null;
	int32 Line = 0;
	bool bBoolean = false;
	double Number = 0.0;
	FString String;
	/** Elements, or the values of an object's fields. */
	std::vector<FJsonValue> Elements;
	/** Names of an object's fields, in order. */
	std::vector<FString> Names;

	/** The field of an object, names compared exactly, or null. */
	const FJsonValue* FindField(const TCHAR* Name) const;

	/** "an object", "a number" and so on. */
	const TCHAR* Describe() const;
};

/** What is wrong with a text and in which line. */
struct FJsonError
{
	int32 Line = 0;
	FString Text;
};

/** Reads a whole text of one value; false with the first error otherwise. */
bool ReadJson(const FString& Text, FJsonValue& OutValue, FJsonError& OutError);
}
