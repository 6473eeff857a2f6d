// Copyright The Tintmill authors. All rights reserved.

#include "Host/OutputLog/LogText.h"

#include "Misc/Char.h"
#include "StandIn/FontMeasurer.h"
#include "StandIn/TextLines.h"
#include "Styling/CoreStyle.h"

#include <cmath>

namespace TintmillHost
{
namespace
{
bool IsInWord(TCHAR Character)
{
	return Character > 0x7F || FChar::IsAlnum(Character) || Character == TEXT('_');
}
}

FSlateFontInfo GetLogFont()
{
	return FCoreStyle::GetDefaultFontStyle("Mono", 9);
}

float GetLogLineHeight()
{
	return std::ceil(StandIn::GetFontMeasurer().GetLineHeight(GetLogFont(), 1.0f));
}

float MeasureLog(const FString& Text, int32 Length)
{
	return Length > 0 ? StandIn::GetFontMeasurer().MeasureLine(*Text, Length, GetLogFont(), 1.0f) : 0.0f;
}

int32 FindLogColumn(const FString& Text, float Distance)
{
	int32 Low = 0;
	int32 High = Text.Len();
	while (Low < High)
	{
		const int32 Middle = (Low + High) / 2;
		const float Center = (MeasureLog(Text, Middle) + MeasureLog(Text, Middle + 1)) / 2.0f;
		if (Distance < Center)
		{
			High = Middle;
		}
		else
		{
			Low = Middle + 1;
		}
	}
	return Low == 0 || Low == Text.Len() ? Low : StandIn::NextBreak(Text, StandIn::PreviousBreak(Text, Low));
}

int32 FindLogWordEnd(const FString& Text, int32 Column, int32 Step)
{
	int32 Index = Column;
	while (Step < 0 ? Index > 0 && IsInWord(Text[Index - 1]) : Index < Text.Len() && IsInWord(Text[Index]))
	{
		Index += Step;
	}
	return Index;
}
}
