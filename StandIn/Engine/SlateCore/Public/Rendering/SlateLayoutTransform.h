// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// A uniform scale followed by a translation: how one widget's space lies in another's.

/** A uniform scale followed by a translation. */
class FSlateLayoutTransform
{
public:
	/** Makes a transform of a scale and a translation. */
	explicit FSlateLayoutTransform(float InScale = 1.0f, const FVector2D& InTranslation = FVector2D(0.0f, 0.0f))
		: Scale(InScale)
		, Translation(InTranslation)
	{}

	/** Makes a transform that only moves. */
	explicit FSlateLayoutTransform(const FVector2D& InTranslation)
		: Scale(1.0f)
		, Translation(InTranslation)
	{}

	/** Returns the translation. */
	const FVector2D& GetTranslation() const { return Translation; }

	/** Returns the scale. */
	float GetScale() const { return Scale; }

	/** Moves a point into the outer space. */
	FVector2D TransformPoint(const FVector2D& InPoint) const { return InPoint * Scale + Translation; }

	/** Scales an extent into the outer space. */
	FVector2D TransformVector(const FVector2D& InVector) const { return InVector * Scale; }

	/** Returns the transform that applies this one first, then the other. */
	FSlateLayoutTransform Concatenate(const FSlateLayoutTransform& RHS) const
	{
		return FSlateLayoutTransform(Scale * RHS.Scale, RHS.TransformPoint(Translation));
	}

	/** Returns the transform that undoes this one; the scale must not be zero. */
	FSlateLayoutTransform Inverse() const
	{
		const float InverseScale = 1.0f / Scale;
		return FSlateLayoutTransform(InverseScale, Translation * -InverseScale);
	}

	/** Compares scale and translation. */
	bool operator==(const FSlateLayoutTransform& Other) const { return Scale == Other.Scale && Translation == Other.Translation; }

	/** Compares scale and translation. */
	bool operator!=(const FSlateLayoutTransform& Other) const { return !(*this == Other); }

private:
	float Scale;
	FVector2D Translation;
};

/** Moves a point by a transform. */
inline FVector2D TransformPoint(const FSlateLayoutTransform& Transform, const FVector2D& Point)
{
	return Transform.TransformPoint(Point);
}

/** Scales an extent by a transform. */
inline FVector2D TransformVector(const FSlateLayoutTransform& Transform, const FVector2D& Vector)
{
	return Transform.TransformVector(Vector);
}

/** Returns the transform that applies the first, then the second. */
inline FSlateLayoutTransform Concatenate(const FSlateLayoutTransform& LHS, const FSlateLayoutTransform& RHS)
{
	return LHS.Concatenate(RHS);
}

/** Returns the transform that undoes the given one. */
inline FSlateLayoutTransform Inverse(const FSlateLayoutTransform& Transform)
{
	return Transform.Inverse();
}
