// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"

class ISlateStyle;
struct FSlateBrush;

// All style sets by name. The registry keeps bare pointers: a set must be taken out before it is destroyed. What is in it
// is listed by StandIn::ListRegistrations under "SlateStyle", owned by the set.

/** All style sets by name. */
class SLATECORE_API FSlateStyleRegistry
{
public:
	/** Adds a set; a second set of one name is a fatal error. */
	static void RegisterSlateStyle(const ISlateStyle& InSlateStyle);

	/** Takes out the set that has the given set's name. */
	static void UnRegisterSlateStyle(const ISlateStyle& InSlateStyle);

	/** Takes out the set of a name; an unknown name does nothing. */
	static void UnRegisterSlateStyle(const FName StyleSetName);

	/** Returns the set of a name or null. */
	static const ISlateStyle* FindSlateStyle(const FName& InSlateStyleName);

	/** Calls a function with every set until it returns false; returns whether all were visited. */
	static bool IterateAllStyles(const TFunction<bool(const ISlateStyle&)>& Iter);

	/** Adds the brushes of all sets to a list. */
	static void GetAllResources(TArray<const FSlateBrush*>& OutResources);
};
