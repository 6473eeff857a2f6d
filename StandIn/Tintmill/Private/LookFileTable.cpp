// Copyright The Tintmill authors. All rights reserved.

#include "LookFileTable.h"

#include "LookFileCube.h"
#include "LookFileNumber.h"
#include "LookFileText.h"

#include <vector>

namespace LookFileTablePrivate
{
/** Header words that look like the beginning of a number. */
static bool IsHeaderWord(std::string_view Word)
{
	return LookFile::SameWord(Word, "1D") || LookFile::SameWord(Word, "3D") || LookFile::SameWord(Word, "3DMESH");
}

static bool StartsLikeANumber(std::string_view Word)
{
	const bool bSign = Word[0] == '-' || Word[0] == '+';
	const std::string_view Bare = bSign ? Word.substr(1) : Word;
	const bool bDigit = !Bare.empty() && ((Bare[0] >= '0' && Bare[0] <= '9') || Bare[0] == '.');
	return bDigit || LookFile::SameWord(Bare.substr(0, 3), "nan") || LookFile::SameWord(Bare, "inf")
		|| LookFile::SameWord(Bare, "infinity");
}

static bool CheckRow(const std::vector<std::string_view>& Words, std::string& OutReason)
{
	for (const std::string_view Word : Words)
	{
		float Value = 0.0f;
		if (!LookFile::ParseNumber(Word, Value, OutReason))
		{
			return false;
		}
	}
	return true;
}
}

namespace LookFile
{
bool CheckTable(std::string_view Text, FProblem& OutProblem)
{
	if (!CheckLineLengths(Text, OutProblem) || !CheckWordLengths(Text, OutProblem))
	{
		return false;
	}
	FLines Lines(Text);
	bool bFreeText = false;
	while (Lines.Next())
	{
		const std::vector<std::string_view> Words = SplitWords(Lines.Get(), MaxLineBytes);
		if (Words.empty() || Words[0][0] == '#')
		{
			continue;
		}
		if (Words.size() == 2 && SameWord(Words[1], "METADATA"))
		{
			bFreeText = SameWord(Words[0], "BEGIN");
			continue;
		}
		if (bFreeText || LookFileTablePrivate::IsHeaderWord(Words[0]) || !LookFileTablePrivate::StartsLikeANumber(Words[0]))
		{
			continue;
		}
		std::string Reason;
		if (!LookFileTablePrivate::CheckRow(Words, Reason))
		{
			return Refuse(OutProblem, Lines.Number(), Reason);
		}
	}
	return true;
}

bool CheckSpi1D(std::string_view Text, FProblem& OutProblem)
{
	FLines Lines(Text);
	while (Lines.Next())
	{
		const std::vector<std::string_view> Words = SplitWords(Lines.Get(), 3);
		if (Words.empty() || !SameWord(Words[0], "Length"))
		{
			continue;
		}
		std::int64_t Length = 0;
		std::string Reason;
		if (Words.size() != 2)
		{
			return Refuse(OutProblem, Lines.Number(), "\"Length\" needs one whole number after it");
		}
		if (!ParseInteger(Words[1], 2, MaxCubeSize1D, Length, Reason))
		{
			return Refuse(OutProblem, Lines.Number(), "the table's length " + Reason);
		}
		return true;
	}
	return Refuse(OutProblem, 0, "the file does not say how long its table is (\"Length\")");
}

bool CheckSpi3D(std::string_view Text, FProblem& OutProblem)
{
	FLines Lines(Text);
	for (int Line = 0; Line < 3; ++Line)
	{
		if (!Lines.Next())
		{
			return Refuse(OutProblem, 0, "the file ends before the sizes of its table");
		}
	}
	const std::vector<std::string_view> Words = SplitWords(Lines.Get(), 4);
	if (Words.size() != 3)
	{
		return Refuse(OutProblem, Lines.Number(), "this line has to give the three sizes of the table");
	}
	std::int64_t Sizes[3] = {};
	for (int Axis = 0; Axis < 3; ++Axis)
	{
		std::string Reason;
		if (!ParseInteger(Words[Axis], 2, MaxCubeSize3D, Sizes[Axis], Reason))
		{
			return Refuse(OutProblem, Lines.Number(), "the table's size " + Reason);
		}
	}
	if (Sizes[0] != Sizes[1] || Sizes[1] != Sizes[2])
	{
		return Refuse(OutProblem, Lines.Number(), "the three sizes of the table have to be equal");
	}
	return true;
}
}
