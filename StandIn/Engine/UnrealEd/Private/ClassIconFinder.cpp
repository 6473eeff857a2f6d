// Copyright The Tintmill authors. All rights reserved.

#include "ClassIconFinder.h"

const FSlateBrush* FClassIconFinder::FindThumbnailForClass(const UClass* InClass, const FName& InDefaultName)
{
	return FSlateIconFinder::FindCustomIconBrushForClass(InClass, TEXT("ClassThumbnail"), InDefaultName);
}
