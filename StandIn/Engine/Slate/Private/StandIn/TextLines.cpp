// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/TextLines.h"
#include "StandIn/FontMeasurer.h"

namespace StandIn
{
namespace
{
float Measure(const FString& Text, int32 Start, int32 End, const FSlateFontInfo& Font)
{
	return End > Start ? GetFontMeasurer().MeasureLine(*Text + Start, End - Start, Font, 1.0f) : 0.0f;
}

bool IsJoined(uint32 Code)
{
	return (Code >= 0x0300 && Code <= 0x036F) || (Code >= 0x0591 && Code <= 0x05C7 && Code != 0x05BE) || (Code >= 0x064B && Code <= 0x065F)
		|| Code == 0x0670 || Code == 0x200D || (Code >= 0xFE00 && Code <= 0xFE0F) || (Code >= 0xDC00 && Code <= 0xDFFF)
		|| (Code >= 0x0E31 && Code <= 0x0E3A && Code != 0x0E32 && Code != 0x0E33) || (Code >= 0x093A && Code <= 0x094F && Code != 0x093D);
}

bool IsSpace(TCHAR Character)
{
	return Character == TEXT(' ') || Character == TEXT('\t');
}

/** Returns the furthest position up to which a part from Start fits, at least one character behind Start. */
int32 FindFit(const FString& Text, int32 Start, int32 End, const FSlateFontInfo& Font, float Width)
{
	int32 Fit = NextBreak(Text, Start);
	for (int32 Next = Fit; Next < End; Fit = Next)
	{
		Next = NextBreak(Text, Next);
		if (Next > End || Measure(Text, Start, Next, Font) > Width)
		{
			break;
		}
	}
	return FMath::Min(Fit, End);
}

void BreakParagraph(const FString& Text, int32 Start, int32 End, const FSlateFontInfo& Font, float Width, TArray<FString>& OutLines)
{
	while (Width > 0.0f && Measure(Text, Start, End, Font) > Width)
	{
		const int32 Fit = FindFit(Text, Start, End, Font, Width);
		int32 Break = Fit;
		while (Break > Start && !IsSpace((*Text)[Break]))
		{
			--Break;
		}
		if (Break == Start)
		{
			// One word wider than the line.
			Break = Fit;
		}
		int32 LineEnd = Break;
		while (LineEnd > Start && IsSpace((*Text)[LineEnd - 1]))
		{
			--LineEnd;
		}
		OutLines.Add(Text.Mid(Start, LineEnd - Start));
		Start = Break;
		while (Start < End && IsSpace((*Text)[Start]))
		{
			++Start;
		}
		if (Start == End)
		{
			return;
		}
	}
	OutLines.Add(Text.Mid(Start, End - Start));
}
}

TArray<FString> BreakLines(const FString& Text, const FSlateFontInfo& Font, float Width)
{
	TArray<FString> Lines;
	int32 Start = 0;
	for (int32 Index = 0; Index <= Text.Len(); ++Index)
	{
		if (Index == Text.Len() || Text[Index] == TEXT('\n'))
		{
			const int32 End = Index > Start && Text[Index - 1] == TEXT('\r') ? Index - 1 : Index;
			BreakParagraph(Text, Start, End, Font, Width, Lines);
			Start = Index + 1;
		}
	}
	return Lines;
}

FString CutWithEllipsis(const FString& Line, const FSlateFontInfo& Font, float Width)
{
	if (Measure(Line, 0, Line.Len(), Font) <= Width)
	{
		return Line;
	}
	const FString Ellipsis(TEXT("\u2026"));
	const float Room = Width - Measure(Ellipsis, 0, Ellipsis.Len(), Font);
	int32 Fit = 0;
	for (int32 Next = 0; Next < Line.Len();)
	{
		Next = NextBreak(Line, Next);
		if (Measure(Line, 0, Next, Font) > Room)
		{
			break;
		}
		Fit = Next;
	}
	return Line.Left(Fit) + Ellipsis;
}

int32 NextBreak(const FString& Text, int32 Index)
{
	int32 Next = Index + 1;
	while (Next < Text.Len() && (IsJoined(static_cast<uint32>(Text[Next])) || Text[Next - 1] == static_cast<TCHAR>(0x200D)))
	{
		++Next;
	}
	return FMath::Min(Next, Text.Len());
}

int32 PreviousBreak(const FString& Text, int32 Index)
{
	int32 Previous = 0;
	for (int32 Next = 0; Next < Index; Next = NextBreak(Text, Next))
	{
		Previous = Next;
	}
	return Previous;
}
}
