// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/Picture/PngFile.h"
#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>

/** How far a picture may be from the stored one. */
struct FPictureTolerance
{
	/** Steps of 255 that every channel may be off: other compilers and processors round the last bit of a color differently. */
	int ChannelSteps = 2;

	/** Share of pixels that may be off by more: where shapes meet, that last bit decides whether a sample hits the one or the other. */
	double StrayShare = 0.002;
};

/** Compares the colors of two pictures; alpha does not count. */
inline testing::AssertionResult IsLike(
	const TintmillHost::FPicture& Actual, const TintmillHost::FPicture& Expected, const FPictureTolerance& Tolerance)
{
	if (Actual.Width != Expected.Width || Actual.Height != Expected.Height || Actual.Pixels.Num() == 0)
	{
		return testing::AssertionFailure() << Actual.Width << 'x' << Actual.Height << " is not " << Expected.Width << 'x'
										   << Expected.Height;
	}
	int Strays = 0;
	int Worst = 0;
	int WorstIndex = 0;
	for (int32 Index = 0; Index < Actual.Pixels.Num(); ++Index)
	{
		const FColor& A = Actual.Pixels[Index];
		const FColor& B = Expected.Pixels[Index];
		const int Steps = std::max({std::abs(A.R - B.R), std::abs(A.G - B.G), std::abs(A.B - B.B)});
		Strays += Steps > Tolerance.ChannelSteps ? 1 : 0;
		if (Steps > Worst)
		{
			Worst = Steps;
			WorstIndex = Index;
		}
	}
	if (Strays <= Tolerance.StrayShare * Actual.Pixels.Num())
	{
		return testing::AssertionSuccess();
	}
	return testing::AssertionFailure() << Strays << " of " << Actual.Pixels.Num() << " pixels are off by more than "
									   << Tolerance.ChannelSteps << " steps, the worst by " << Worst << " at (" << WorstIndex % Actual.Width
									   << ", " << WorstIndex / Actual.Width << ")";
}

/** Compares the colors of two pictures pixel by pixel. */
inline testing::AssertionResult IsExactly(const TintmillHost::FPicture& Actual, const TintmillHost::FPicture& Expected)
{
	return IsLike(Actual, Expected, FPictureTolerance{0, 0.0});
}
