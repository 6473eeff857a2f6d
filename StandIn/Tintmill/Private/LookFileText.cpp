// Copyright The Tintmill authors. All rights reserved.

#include "LookFileText.h"

namespace LookFileTextPrivate
{
static bool IsBlank(char Character)
{
	return Character == ' ' || Character == '\t';
}

static char Lower(char Character)
{
	return Character >= 'A' && Character <= 'Z' ? static_cast<char>(Character - 'A' + 'a') : Character;
}

/** Line ends of all three kinds become one newline each. */
static void UnifyLineEnds(std::string& Text)
{
	std::size_t To = 0;
	for (std::size_t From = 0; From < Text.size(); ++From)
	{
		if (Text[From] == '\r')
		{
			if (From + 1 < Text.size() && Text[From + 1] == '\n')
			{
				++From;
			}
			Text[To++] = '\n';
		}
		else
		{
			Text[To++] = Text[From];
		}
	}
	Text.resize(To);
}
}

namespace LookFile
{
FLines::FLines(std::string_view InText)
	: Rest(InText)
{}

bool FLines::Next()
{
	if (Rest.empty())
	{
		return false;
	}
	const std::size_t End = Rest.find('\n');
	Current = Rest.substr(0, End);
	Rest = End == std::string_view::npos ? std::string_view() : Rest.substr(End + 1);
	++Count;
	while (!Current.empty() && LookFileTextPrivate::IsBlank(Current.front()))
	{
		Current.remove_prefix(1);
	}
	while (!Current.empty() && LookFileTextPrivate::IsBlank(Current.back()))
	{
		Current.remove_suffix(1);
	}
	return true;
}

std::string_view FLines::Get() const
{
	return Current;
}

std::int64_t FLines::Number() const
{
	return Count;
}

std::vector<std::string_view> SplitWords(std::string_view Line, std::size_t MaxWords)
{
	std::vector<std::string_view> Words;
	std::size_t At = 0;
	while (At < Line.size() && Words.size() < MaxWords)
	{
		while (At < Line.size() && LookFileTextPrivate::IsBlank(Line[At]))
		{
			++At;
		}
		const std::size_t Start = At;
		while (At < Line.size() && !LookFileTextPrivate::IsBlank(Line[At]))
		{
			++At;
		}
		if (At > Start)
		{
			Words.push_back(Line.substr(Start, At - Start));
		}
	}
	return Words;
}

bool SameWord(std::string_view A, std::string_view B)
{
	if (A.size() != B.size())
	{
		return false;
	}
	for (std::size_t Index = 0; Index < A.size(); ++Index)
	{
		if (LookFileTextPrivate::Lower(A[Index]) != LookFileTextPrivate::Lower(B[Index]))
		{
			return false;
		}
	}
	return true;
}

bool NormalizeText(std::string& InOutText, FProblem& OutProblem)
{
	// Programs that join files leave more than one mark.
	std::size_t MarkBytes = 0;
	while (InOutText.compare(MarkBytes, 3, "\xef\xbb\xbf") == 0)
	{
		MarkBytes += 3;
	}
	InOutText.erase(0, MarkBytes);
	if (InOutText.compare(0, 2, "\xff\xfe") == 0 || InOutText.compare(0, 2, "\xfe\xff") == 0)
	{
		return Refuse(OutProblem, 0, "the file is UTF-16 text; save it as plain text or UTF-8");
	}
	LookFileTextPrivate::UnifyLineEnds(InOutText);
	std::int64_t Line = 1;
	for (const char Character : InOutText)
	{
		const unsigned char Byte = static_cast<unsigned char>(Character);
		if (Byte == 0)
		{
			return Refuse(OutProblem, Line, "there is a zero byte in the line, so this is not a text file");
		}
		if ((Byte < 0x20 && Byte != '\n' && Byte != '\t' && Byte != '\f') || Byte == 0x7f)
		{
			return Refuse(OutProblem, Line, "there is a control character in the line, so this is not a text file");
		}
		Line += Character == '\n' ? 1 : 0;
	}
	return true;
}

bool CheckLineLengths(std::string_view Text, FProblem& OutProblem)
{
	FLines Lines(Text);
	while (Lines.Next())
	{
		if (Lines.Get().size() > MaxLineBytes)
		{
			return Refuse(OutProblem, Lines.Number(), "the line is longer than " + std::to_string(MaxLineBytes) + " characters");
		}
	}
	return true;
}

bool CheckWordLengths(std::string_view Text, FProblem& OutProblem)
{
	std::int64_t Line = 1;
	std::size_t Start = 0;
	for (std::size_t At = 0; At <= Text.size(); ++At)
	{
		const bool bEnd = At == Text.size() || LookFileTextPrivate::IsBlank(Text[At]) || Text[At] == '\n';
		if (!bEnd)
		{
			continue;
		}
		if (At - Start > MaxWordBytes)
		{
			return Refuse(OutProblem, Line,
				"the word " + Quoted(Text.substr(Start, At - Start)) + " is longer than " + std::to_string(MaxWordBytes) + " characters");
		}
		Line += At < Text.size() && Text[At] == '\n' ? 1 : 0;
		Start = At + 1;
	}
	return true;
}
}
