// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "LookGrader.h"

#include <cstddef>
#include <cstdint>

// A look laid over pixels at some intensity. Standard library only.

namespace LookGrading
{
/** Full weight: the look alone. */
constexpr std::uint32_t FullWeight = 65536;

/** The weight of an intensity: 0 for 0 and below and for what is not a number, FullWeight for 1 and above, linear between. */
std::uint32_t WeightOf(float Intensity);

/** The value Weight of the way from From to To, the nearest whole number, halves upwards. */
std::uint8_t Blend(std::uint8_t From, std::uint8_t To, std::uint32_t Weight);

/** Blends each color byte of the pixels with its graded value; alpha stays. Many pixels are shared between threads. */
void ApplyLook(const ILookGrader& Grader, std::uint32_t Weight, std::uint8_t* Pixels, std::size_t PixelCount, EByteOrder Order);
}
