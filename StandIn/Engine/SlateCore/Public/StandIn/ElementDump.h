// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

class FSlateWindowElementList;
class SWidget;

// What was painted, and what there is to paint, as text for tests and people.

namespace StandIn
{
/** Returns the elements as text in drawing order, a line each: layer, kind, rectangle, brush or text, colour, clip. */
SLATECORE_API FString DumpElements(const FSlateWindowElementList& ElementList);

/** Returns a tree of widgets as text, a line each, children indented: type, desired size, what is unusual. */
SLATECORE_API FString DumpWidgets(const TSharedRef<SWidget>& Root);
}
