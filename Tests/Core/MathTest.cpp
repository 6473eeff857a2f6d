// Copyright The Tintmill authors. All rights reserved.

#include "Math/UnrealMathUtility.h"

#include "Math/IntRect.h"
#include "Math/Rotator.h"
#include "Math/Vector.h"
#include "Math/Vector2D.h"
#include "Math/Vector4.h"
#include "Support/Printers.h"
#include "gtest/gtest.h"

TEST(FMath, RoundsHalvesUp)
{
	EXPECT_EQ(3, FMath::RoundToInt(2.5f));
	EXPECT_EQ(-2, FMath::RoundToInt(-2.5f));
	EXPECT_EQ(-3, FMath::FloorToInt(-2.1f));
	EXPECT_EQ(-2, FMath::CeilToInt(-2.1f));
	EXPECT_EQ(-2, FMath::TruncToInt(-2.9f));
}

TEST(FMath, ClampsAndMixes)
{
	EXPECT_EQ(1.0f, FMath::Clamp(1.5f, 0.0f, 1.0f));
	EXPECT_EQ(0.0f, FMath::Clamp(-1.0f, 0.0f, 1.0f));
	EXPECT_EQ(2.5f, FMath::Lerp(2.0f, 3.0f, 0.5f));
	EXPECT_EQ(4, FMath::DivideAndRoundUp(10, 3));
	EXPECT_EQ(16u, FMath::RoundUpToPowerOfTwo(9));
	EXPECT_TRUE(FMath::IsNearlyEqual(1.0f, 1.0f + 1e-9f));
	EXPECT_FALSE(FMath::IsNearlyEqual(1.0f, 1.1f));
}

TEST(FVector2D, ComputesPartByPart)
{
	const FVector2D A(1.0f, 2.0f);
	const FVector2D B(3.0f, 5.0f);
	EXPECT_EQ(FVector2D(4.0f, 7.0f), A + B);
	EXPECT_EQ(FVector2D(2.0f, 4.0f), A * 2.0f);
	EXPECT_EQ(FVector2D(3.0f, 10.0f), A * B);
	EXPECT_EQ(13.0f, A | B);
	EXPECT_EQ(5.0f, FVector2D(3.0f, 4.0f).Size());
	EXPECT_EQ("X=1.000 Y=2.000", ToStd(A.ToString()));
}

TEST(FVector, ComputesProducts)
{
	EXPECT_EQ(FVector::UpVector, FVector::ForwardVector ^ FVector::RightVector);
	EXPECT_EQ(0.0f, FVector::ForwardVector | FVector::RightVector);
	EXPECT_TRUE(FVector(0.0f, 3.0f, 4.0f).GetSafeNormal().Equals(FVector(0.0f, 0.6f, 0.8f)));
	EXPECT_EQ(FVector::ZeroVector, FVector::ZeroVector.GetSafeNormal());
}

TEST(FVector4, IsAlignedToSixteenBytes)
{
	EXPECT_EQ(16u, alignof(FVector4));
	EXPECT_EQ(FVector4(1.0f, 2.0f, 3.0f, 1.0f), FVector4(FVector(1.0f, 2.0f, 3.0f)));
}

TEST(FRotator, LooksAlongItsDirection)
{
	EXPECT_TRUE(FRotator::ZeroRotator.Vector().Equals(FVector::ForwardVector));
	EXPECT_TRUE(FRotator(0.0f, 90.0f, 0.0f).Vector().Equals(FVector::RightVector));
	EXPECT_TRUE(FRotator(90.0f, 0.0f, 0.0f).Vector().Equals(FVector::UpVector));
}

TEST(FIntRect, ContainsItsMinimumButNotItsMaximum)
{
	const FIntRect Rect(1, 2, 4, 6);
	EXPECT_EQ(FIntPoint(3, 4), Rect.Size());
	EXPECT_EQ(12, Rect.Area());
	EXPECT_TRUE(Rect.Contains(FIntPoint(1, 2)));
	EXPECT_FALSE(Rect.Contains(FIntPoint(4, 5)));
}

TEST(FIntRect, ClippingToASeparateRectangleLeavesNothing)
{
	FIntRect Rect(0, 0, 4, 4);
	Rect.Clip(FIntRect(2, 1, 9, 3));
	EXPECT_EQ(FIntRect(2, 1, 4, 3), Rect);
	Rect.Clip(FIntRect(20, 20, 30, 30));
	EXPECT_EQ(0, Rect.Area());
}

TEST(FIntPoint, ShowsItsParts)
{
	EXPECT_EQ("X=-1 Y=-1", ToStd(FIntPoint::NoneValue.ToString()));
}
