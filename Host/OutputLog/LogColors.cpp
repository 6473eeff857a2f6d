// Copyright The Tintmill authors. All rights reserved.

#include "Host/OutputLog/LogColors.h"

#include "Host/Program/Strings.h"

#include <cmath>

namespace TintmillHost
{
namespace
{
/** How far the tint of categories is from gray. */
constexpr float TintStrength = 0.45f;

/** One channel of a pure hue, Turn from 0 to 1 around the wheel. */
float HueChannel(float Turn, float Shift)
{
	const float Around = std::fmod(Turn + Shift, 1.0f);
	return FMath::Clamp(std::fabs(Around * 6.0f - 3.0f) - 1.0f, 0.0f, 1.0f);
}
}

FLinearColor GetLogTextColor(ELogVerbosity::Type Verbosity, const FName& Category)
{
	if (Verbosity <= ELogVerbosity::Error)
	{
		return FLinearColor(1.0f, 0.052083f, 0.060957f);
	}
	if (Verbosity == ELogVerbosity::Warning)
	{
		return FLinearColor(0.921875f, 0.691406f, 0.0f);
	}
	if (Category == FName(TEXT("Cmd")))
	{
		return FLinearColor(0.033105f, 0.723055f, 0.033105f);
	}
	return Verbosity >= ELogVerbosity::Verbose ? FLinearColor(0.25f, 0.25f, 0.25f) : FLinearColor(0.72f, 0.72f, 0.72f);
}

FLinearColor GetLogCategoryColor(const FName& Category)
{
	// By the name's letters, not its place in the table of names, so that it is the same in every run.
	uint32 Sum = 2166136261u;
	for (const char Character : ToUtf8(Category.ToString()))
	{
		Sum = (Sum ^ static_cast<unsigned char>(Character)) * 16777619u;
	}
	// Between green and violet: red and yellow are for errors and warnings.
	const float Turn = 0.33f + 0.5f * static_cast<float>((Sum >> 8) % 1000) / 1000.0f;
	const auto Channel = [Turn](float Shift) { return 0.62f * (1.0f - TintStrength * (1.0f - HueChannel(Turn, Shift))); };
	return FLinearColor(Channel(0.0f), Channel(2.0f / 3.0f), Channel(1.0f / 3.0f));
}

FLinearColor GetLogBackgroundColor()
{
	return FLinearColor(0.015996f, 0.015996f, 0.015996f);
}

FLinearColor GetLogSelectionColor()
{
	return FLinearColor(0.132868f, 0.132868f, 0.132868f);
}
}
