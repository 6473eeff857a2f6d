// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <algorithm>
#include <cmath>

// Vectors and small functions for the scene's rays; lengths are in meters, Z is up, colors are linear light.

namespace TintmillHost
{
/** Three floats: a point, a direction or a linear color. */
struct FSceneVector
{
	float X = 0.0f;
	float Y = 0.0f;
	float Z = 0.0f;
};

inline FSceneVector operator+(const FSceneVector& A, const FSceneVector& B)
{
	return {A.X + B.X, A.Y + B.Y, A.Z + B.Z};
}

inline FSceneVector operator-(const FSceneVector& A, const FSceneVector& B)
{
	return {A.X - B.X, A.Y - B.Y, A.Z - B.Z};
}

inline FSceneVector operator*(const FSceneVector& A, const FSceneVector& B)
{
	return {A.X * B.X, A.Y * B.Y, A.Z * B.Z};
}

inline FSceneVector operator*(const FSceneVector& A, float Scale)
{
	return {A.X * Scale, A.Y * Scale, A.Z * Scale};
}

/** Scalar product. */
inline float Dot(const FSceneVector& A, const FSceneVector& B)
{
	return A.X * B.X + A.Y * B.Y + A.Z * B.Z;
}

/** Vector product, right-handed. */
inline FSceneVector Cross(const FSceneVector& A, const FSceneVector& B)
{
	return {A.Y * B.Z - A.Z * B.Y, A.Z * B.X - A.X * B.Z, A.X * B.Y - A.Y * B.X};
}

/** Length. */
inline float Length(const FSceneVector& A)
{
	return std::sqrt(Dot(A, A));
}

/** Same direction, length 1; the argument must not be nought. */
inline FSceneVector Normalized(const FSceneVector& A)
{
	return A * (1.0f / Length(A));
}

/** Linear blend, T from 0 to 1. */
inline FSceneVector Mix(const FSceneVector& A, const FSceneVector& B, float T)
{
	return A + (B - A) * T;
}

/** Limits to 0..1. */
inline float Saturate(float Value)
{
	return std::min(std::max(Value, 0.0f), 1.0f);
}

/** 0 below Low, 1 above High, a smooth curve between. */
inline float SmoothStep(float Low, float High, float Value)
{
	const float T = Saturate((Value - Low) / (High - Low));
	return T * T * (3.0f - 2.0f * T);
}

/** Linear color of an 8-bit sRGB triple. */
inline FSceneVector FromSrgb(int Red, int Green, int Blue)
{
	const auto Linear = [](int Value) { return std::pow((static_cast<float>(Value) / 255.0f + 0.055f) / 1.055f, 2.4f); };
	return {Linear(Red), Linear(Green), Linear(Blue)};
}

/** A ray with a direction of length 1. */
struct FSceneRay
{
	FSceneVector Origin;
	FSceneVector Direction;
};
}
