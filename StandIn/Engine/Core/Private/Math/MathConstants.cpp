// Copyright The Tintmill authors. All rights reserved.

#include "Math/IntPoint.h"

#include "Math/IntRect.h"
#include "Math/Rotator.h"
#include "Math/Vector.h"
#include "Math/Vector2D.h"

const FIntPoint FIntPoint::ZeroValue(0, 0);
const FIntPoint FIntPoint::NoneValue(INDEX_NONE, INDEX_NONE);
const FVector2D FVector2D::ZeroVector(0.0f, 0.0f);
const FVector2D FVector2D::UnitVector(1.0f, 1.0f);
const FVector FVector::ZeroVector(0.0f, 0.0f, 0.0f);
const FVector FVector::OneVector(1.0f, 1.0f, 1.0f);
const FVector FVector::UpVector(0.0f, 0.0f, 1.0f);
const FVector FVector::ForwardVector(1.0f, 0.0f, 0.0f);
const FVector FVector::RightVector(0.0f, 1.0f, 0.0f);
const FRotator FRotator::ZeroRotator(0.0f, 0.0f, 0.0f);

FString FIntPoint::ToString() const
{
	return FString::Printf(TEXT("X=%d Y=%d"), X, Y);
}

FString FIntRect::ToString() const
{
	return FString::Printf(TEXT("Min=(%s) Max=(%s)"), *Min.ToString(), *Max.ToString());
}

FString FVector2D::ToString() const
{
	return FString::Printf(TEXT("X=%3.3f Y=%3.3f"), X, Y);
}

FString FVector::ToString() const
{
	return FString::Printf(TEXT("X=%3.3f Y=%3.3f Z=%3.3f"), X, Y, Z);
}

FString FRotator::ToString() const
{
	return FString::Printf(TEXT("P=%f Y=%f R=%f"), Pitch, Yaw, Roll);
}

FVector FRotator::Vector() const
{
	const float PitchRadians = FMath::DegreesToRadians(Pitch);
	const float YawRadians = FMath::DegreesToRadians(Yaw);
	return FVector(
		FMath::Cos(PitchRadians) * FMath::Cos(YawRadians), FMath::Cos(PitchRadians) * FMath::Sin(YawRadians), FMath::Sin(PitchRadians));
}
