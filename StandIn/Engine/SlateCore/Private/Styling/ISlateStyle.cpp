// Copyright The Tintmill authors. All rights reserved.

#include "Styling/ISlateStyle.h"

FName ISlateStyle::Join(FName A, const ANSICHAR* B)
{
	if (B == nullptr)
	{
		return A;
	}
	return FName(*(A.ToString() + FString(B)));
}
