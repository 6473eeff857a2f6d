// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Types/ISlateMetaData.h"

// Breaking and cutting text by measured widths. Works on characters in the order of reading and never parts a combining mark or
// the second half of a pair from its base, so it is safe for every script; who draws a line orders it on the screen.

namespace StandIn
{
/** Breaks a text at line breaks and, if Width is above zero, at spaces so that no line is wider; words wider than a line are cut. */
SLATE_API TArray<FString> BreakLines(const FString& Text, const FSlateFontInfo& Font, float Width);

/** Returns a line cut off with an ellipsis so that it is no wider than Width; a line that fits is returned as it is. */
SLATE_API FString CutWithEllipsis(const FString& Line, const FSlateFontInfo& Font, float Width);

/** Returns the next position behind Index at which a text may be parted. */
SLATE_API int32 NextBreak(const FString& Text, int32 Index);

/** Returns the last position before Index at which a text may be parted. */
SLATE_API int32 PreviousBreak(const FString& Text, int32 Index);

/** Attached to a STextBlock: lines wider than the widget end in an ellipsis. */
class FEllipsisMetaData : public ISlateMetaData
{
public:
	SLATE_METADATA_TYPE(FEllipsisMetaData, ISlateMetaData)
};
}
