// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateIconFinder.h"

struct FSlateBrush;

// Pictures of classes from the registered style sets. Icons of actors are left out.

/** Finds the pictures of classes. */
class UNREALED_API FClassIconFinder
{
public:
	/** The brush "ClassThumbnail.Name" of the class or its nearest ancestor that has one; null if there is none. */
	static const FSlateBrush* FindThumbnailForClass(const UClass* InClass, const FName& InDefaultName = FName());
};
