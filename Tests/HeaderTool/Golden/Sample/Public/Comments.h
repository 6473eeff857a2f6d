// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "CoreMinimal.h"
#include "Comments.generated.h"

// One line.
// And another with "quotes" and a \ in it.
USTRUCT()
struct FComments
{
	GENERATED_BODY()

	/**
	 * A block.
	 *
	 *   Indented further.
	 * ------
	 */
	UPROPERTY()
	int32 Block;

	/** First line
	 * and the next. */
	UPROPERTY()
	int32 Compact;

	/**  */
	UPROPERTY()
	int32 Empty;

	// Not taken.

	// Taken.
	UPROPERTY()
	int32 Last;

	/* Not taken either. */
	/* Only the last one. */
	UPROPERTY()
	int32 LastBlock;

	// Naïve “text”, what??!
	UPROPERTY(meta = (ToolTip = "Given by hand"))
	int32 Given;

	UPROPERTY()
	int32 None;
};
