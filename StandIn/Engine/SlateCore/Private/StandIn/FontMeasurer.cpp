// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/FontMeasurer.h"

namespace StandIn
{
namespace
{
/** Measures without fonts. */
class FFixedFontMeasurer : public IFontMeasurer
{
public:
	float MeasureLine(const TCHAR* Text, int32 Length, const FSlateFontInfo& Font, float Scale) override
	{
		float Ems = 0.0f;
		for (int32 Index = 0; Index < Length; ++Index)
		{
			Ems += GetEms(static_cast<uint32>(Text[Index]));
		}
		return Ems * Font.GetEmHeight() * Scale;
	}

	float GetLineHeight(const FSlateFontInfo& Font, float Scale) override
	{
		return static_cast<float>(static_cast<int32>(Font.GetEmHeight() * Scale * 4.0f / 3.0f + 0.5f));
	}

	float GetAscent(const FSlateFontInfo& Font, float Scale) override { return Font.GetEmHeight() * Scale; }

private:
	static float GetEms(uint32 Code)
	{
		const bool bCombining = (Code >= 0x0300 && Code <= 0x036F) || (Code >= 0x0591 && Code <= 0x05C7 && Code != 0x05BE)
			|| (Code >= 0x064B && Code <= 0x065F) || (Code >= 0x200B && Code <= 0x200F) || (Code >= 0x202A && Code <= 0x202E)
			|| (Code >= 0x2066 && Code <= 0x2069) || (Code >= 0xFE00 && Code <= 0xFE0F) || (Code >= 0xDC00 && Code <= 0xDFFF);
		if (bCombining)
		{
			// The second half of a pair counts with the first.
			return 0.0f;
		}
		const bool bWide = (Code >= 0x1100 && Code <= 0x115F) || (Code >= 0x2E80 && Code <= 0xA4CF) || (Code >= 0xAC00 && Code <= 0xDBFF)
			|| (Code >= 0xF900 && Code <= 0xFAFF) || (Code >= 0xFF00 && Code <= 0xFF60) || Code > 0xFFFF;
		return bWide ? 1.0f : 0.5f;
	}
};

FFixedFontMeasurer FixedFontMeasurer;

TSharedPtr<IFontMeasurer>& ReplacedFontMeasurer()
{
	static TSharedPtr<IFontMeasurer> Measurer;
	return Measurer;
}
}

TSharedPtr<IFontMeasurer> SetFontMeasurer(const TSharedPtr<IFontMeasurer>& Measurer)
{
	const TSharedPtr<IFontMeasurer> Previous = ReplacedFontMeasurer();
	ReplacedFontMeasurer() = Measurer;
	return Previous;
}

IFontMeasurer& GetFontMeasurer()
{
	return ReplacedFontMeasurer().IsValid() ? *ReplacedFontMeasurer() : FixedFontMeasurer;
}
}
