// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Internationalization/Text.h"
#include "Support/Text.h"
#include "UObject/NameTypes.h"
#include "gtest/gtest.h"
#include <ostream>

// How failed comparisons show engine values.

/** Shows a string in quotation marks. */
inline void PrintTo(const FString& Value, std::ostream* Out)
{
	*Out << '"' << ToStd(Value) << '"';
}

/** Shows a name in single quotes. */
inline void PrintTo(const FName& Value, std::ostream* Out)
{
	*Out << '\'' << ToStd(Value) << '\'';
}

/** Shows a text in quotation marks, with its key if it has one. */
inline void PrintTo(const FText& Value, std::ostream* Out)
{
	*Out << '"' << ToStd(Value.ToString()) << '"';
	const TOptional<FString> Key = FTextInspector::GetKey(Value);
	if (Key.IsSet())
	{
		*Out << " (" << ToStd(Key.GetValue()) << ')';
	}
}

/** Shows an array's elements. */
template <typename ElementType, typename Allocator>
void PrintTo(const TArray<ElementType, Allocator>& Value, std::ostream* Out)
{
	*Out << '[';
	for (int32 Index = 0; Index < Value.Num(); ++Index)
	{
		*Out << (Index > 0 ? ", " : "") << testing::PrintToString(Value[Index]);
	}
	*Out << ']';
}
