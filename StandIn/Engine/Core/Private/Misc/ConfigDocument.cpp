// Copyright The Tintmill authors. All rights reserved.

#include "Misc/ConfigDocument.h"

#include "Misc/Parse.h"
#include "Misc/TextCodec.h"

namespace StandIn
{
namespace
{
typedef std::basic_string<TCHAR> FChars;

bool IsConfigBlank(TCHAR Char)
{
	return Char == ' ' || Char == '\t';
}

FChars TrimConfigText(const FChars& Text)
{
	size_t Begin = 0;
	size_t End = Text.size();
	while (Begin < End && IsConfigBlank(Text[Begin]))
	{
		++Begin;
	}
	while (End > Begin && IsConfigBlank(Text[End - 1]))
	{
		--End;
	}
	return Text.substr(Begin, End - Begin);
}

/** Reads a value: a quoted one is un-escaped; a quote that is never closed stands for itself. */
FString ReadConfigValue(const FChars& Text)
{
	FString Quoted;
	if (!Text.empty() && Text[0] == '"' && FParse::QuotedString(Text.c_str(), Quoted))
	{
		return Quoted;
	}
	return FString(Text.c_str());
}

/** Fills in a line that stands below a readable heading. */
void ReadKeyAndValue(const FChars& Trimmed, FConfigDocument::FLine& Line)
{
	Line.Kind = FConfigDocument::ELine::Other;
	const size_t Equals = Trimmed.find(TCHAR('='));
	if (Trimmed[0] == ';' || Equals == FChars::npos)
	{
		return;
	}
	const FChars Key = TrimConfigText(Trimmed.substr(0, Equals));
	// Longer names cannot exist; such a line is somebody's text.
	if (Key.empty() || Key.size() >= NAME_SIZE)
	{
		return;
	}
	Line.Kind = FConfigDocument::ELine::Value;
	Line.KeyText = FString(Key.c_str());
	Line.Key = FName(Key.c_str());
	Line.Text = ReadConfigValue(TrimConfigText(Trimmed.substr(Equals + 1)));
}

bool IsHalfPair(const FString& Value, int32 Index)
{
	const uint16 Char = uint16(Value[Index]);
	if (Char >= 0xd800 && Char <= 0xdbff)
	{
		return Index + 1 >= Value.Len() || uint16(Value[Index + 1]) < 0xdc00 || uint16(Value[Index + 1]) > 0xdfff;
	}
	if (Char >= 0xdc00 && Char <= 0xdfff)
	{
		return Index == 0 || uint16(Value[Index - 1]) < 0xd800 || uint16(Value[Index - 1]) > 0xdbff;
	}
	return false;
}

bool NeedsQuotes(const FString& Value)
{
	if (Value.IsEmpty())
	{
		return false;
	}
	const TCHAR First = Value[0];
	const TCHAR Last = Value[Value.Len() - 1];
	if (IsConfigBlank(First) || IsConfigBlank(Last) || First == '"' || Last == '\\')
	{
		return true;
	}
	bool bInQuotes = false;
	for (int32 Index = 0; Index < Value.Len(); ++Index)
	{
		const TCHAR Char = Value[Index];
		bInQuotes = Char == '"' ? !bInQuotes : bInQuotes;
		const bool bIsComment = Char == '/' && Index + 1 < Value.Len() && Value[Index + 1] == '/';
		const bool bIsControl = uint16(Char) < 0x20 || uint16(Char) == 0x7f || IsHalfPair(Value, Index);
		if ((bIsControl && Char != '\t') || (!bInQuotes && (Char == '{' || Char == '}' || bIsComment)))
		{
			return true;
		}
	}
	return false;
}
}

TSharedRef<FConfigDocument> FConfigDocument::Parse(std::string InBytes)
{
	const TSharedRef<FConfigDocument> Document = MakeShared<FConfigDocument>();
	Document->Bytes = std::move(InBytes);
	std::vector<StandInPrivate::FTextLine> TextLines =
		StandInPrivate::DecodeLines(reinterpret_cast<const uint8*>(Document->Bytes.data()), int64(Document->Bytes.size()));
	Document->Lines.reserve(TextLines.size());
	bool bInSection = false;
	bool bInUnreadableSection = false;
	for (size_t Index = 0; Index < TextLines.size(); ++Index)
	{
		const FChars Trimmed = TrimConfigText(TextLines[Index].Text);
		FLine Line;
		Line.Number = int32(Index) + 1;
		if (!TextLines[Index].bReadable)
		{
			Line.Kind = ELine::Unreadable;
			// What follows a damaged heading belongs to nobody; it must not fall to the section above.
			bInUnreadableSection = bInUnreadableSection || (!Trimmed.empty() && Trimmed[0] == '[');
		}
		else
		{
			Line.Raw = FString(TextLines[Index].Text.c_str());
			if (Trimmed.size() >= 2 && Trimmed[0] == '[' && Trimmed[Trimmed.size() - 1] == ']')
			{
				Line.Kind = ELine::Section;
				Line.Text = FString(Trimmed.substr(1, Trimmed.size() - 2).c_str());
				bInSection = true;
				bInUnreadableSection = false;
			}
			else if (bInUnreadableSection)
			{
				Line.Kind = ELine::Unreadable;
			}
			else if (!Trimmed.empty())
			{
				Line.Kind = ELine::Other;
				if (bInSection)
				{
					ReadKeyAndValue(Trimmed, Line);
				}
			}
		}
		Document->Lines.push_back(std::move(Line));
	}
	return Document;
}

FConfigDocument::FLine FConfigDocument::MakeValueLine(const FString& KeyText, FName Key, const FString& Value)
{
	FLine Line;
	Line.Kind = ELine::Value;
	Line.Key = Key;
	Line.KeyText = KeyText;
	Line.Text = Value;
	Line.Raw = KeyText + TEXT("=") + QuoteConfigValue(Value);
	return Line;
}

FConfigDocument::FLine FConfigDocument::MakeSectionLine(const FString& Name)
{
	FLine Line;
	Line.Kind = ELine::Section;
	Line.Text = Name;
	Line.Raw = TEXT("[") + Name + TEXT("]");
	return Line;
}

std::string FConfigDocument::Render() const
{
	const std::string LineEnd = StandInPrivate::ToUtf8(FString(LINE_TERMINATOR));
	std::string Out;
	for (const FLine& Line : Lines)
	{
		if (Line.Kind != ELine::Unreadable)
		{
			Out += StandInPrivate::ToUtf8(Line.Raw);
			Out += LineEnd;
		}
	}
	return Out;
}

int32 FConfigDocument::FirstUnreadableLine(int32& OutCount) const
{
	int32 First = 0;
	OutCount = 0;
	for (const FLine& Line : Lines)
	{
		if (Line.Kind == ELine::Unreadable)
		{
			First = First == 0 ? Line.Number : First;
			++OutCount;
		}
	}
	return First;
}

FString QuoteConfigValue(const FString& Value)
{
	if (!NeedsQuotes(Value))
	{
		return Value;
	}
	FString Out(TEXT("\""));
	for (int32 Index = 0; Index < Value.Len(); ++Index)
	{
		const TCHAR Char = Value[Index];
		switch (Char)
		{
		case '"':
			Out += TEXT("\\\"");
			break;
		case '\\':
			Out += TEXT("\\\\");
			break;
		case '\n':
			Out += TEXT("\\n");
			break;
		case '\r':
			Out += TEXT("\\r");
			break;
		case '\t':
			Out += TEXT("\\t");
			break;
		default:
			if (uint16(Char) < 0x20 || uint16(Char) == 0x7f || IsHalfPair(Value, Index))
			{
				Out += FString::Printf(TEXT("\\u%04X"), uint32(uint16(Char)));
			}
			else
			{
				Out.AppendChar(Char);
			}
			break;
		}
	}
	return Out + TEXT("\"");
}
}
