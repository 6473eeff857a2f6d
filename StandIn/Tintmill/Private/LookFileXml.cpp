// Copyright The Tintmill authors. All rights reserved.

#include "LookFileXml.h"

#include "LookFileCube.h"
#include "LookFileNumber.h"
#include "LookFileText.h"

#include <algorithm>
#include <vector>

namespace LookFileXmlPrivate
{
static bool Contains(std::string_view Text, std::string_view Part)
{
	return Text.find(Part) != std::string_view::npos;
}

/** The line with a line end before and after each tag, so that no word outlives a tag. */
static std::string BreakAfterTags(std::string_view Line)
{
	std::string Result;
	for (const char Character : Line)
	{
		if (Character == '<' && !Result.empty() && Result.back() != '\n')
		{
			Result += '\n';
		}
		Result += Character;
		if (Character == '>')
		{
			Result += '\n';
		}
	}
	return Result;
}

/** dim="33 33 33 3" of an Array: every size but the last within the bounds of a table. */
static bool CheckSizes(std::string_view Tag, std::string& OutReason)
{
	const std::size_t At = Tag.find("dim=");
	if (At == std::string_view::npos || At + 5 > Tag.size())
	{
		return true;
	}
	const std::string_view Quote = Tag.substr(At + 4, 1);
	const std::string_view Sizes = Tag.substr(At + 5, Tag.find(Quote, At + 5) - (At + 5));
	const std::vector<std::string_view> Words = LookFile::SplitWords(Sizes, 8);
	for (std::size_t Index = 0; Index < Words.size(); ++Index)
	{
		std::int64_t Size = 0;
		if (!LookFile::ParseInteger(
				Words[Index], 1, Words.size() == 4 ? LookFile::MaxCubeSize3D : LookFile::MaxCubeSize1D, Size, OutReason))
		{
			OutReason = "the table's size " + OutReason;
			return false;
		}
	}
	return true;
}

static bool CheckNumbers(std::string_view Line, std::string& OutReason)
{
	for (const std::string_view Word : LookFile::SplitWords(Line, Line.size()))
	{
		float Value = 0.0f;
		if (!LookFile::ParseNumber(Word, Value, OutReason))
		{
			return false;
		}
	}
	return true;
}

/** Walks the broken text of one line of the file and checks what stands inside arrays. */
static bool CheckPieces(std::string_view Pieces, bool& bInOutArray, bool& bInOutComment, std::string& OutReason)
{
	LookFile::FLines Lines(Pieces);
	while (Lines.Next())
	{
		const std::string_view Piece = Lines.Get();
		if (bInOutComment || Piece.substr(0, 4) == "<!--")
		{
			bInOutComment = !Contains(Piece, "-->");
			continue;
		}
		if (Piece.substr(0, 2) == "<!" && Piece.substr(0, 9) != "<![CDATA[")
		{
			OutReason = "definitions of document types and entities are not read";
			return false;
		}
		if (Piece.substr(0, 1) == "<")
		{
			bInOutArray = Piece.substr(0, 6) == "<Array" || (bInOutArray && Piece.substr(0, 2) != "</");
			if (!CheckSizes(Piece, OutReason))
			{
				return false;
			}
			continue;
		}
		if (bInOutArray && !CheckNumbers(Piece, OutReason))
		{
			return false;
		}
	}
	return true;
}
}

namespace LookFile
{
bool CheckXml(std::string& InOutText, FProblem& OutProblem)
{
	std::string Broken;
	Broken.reserve(InOutText.size() + InOutText.size() / 16);
	bool bArray = false;
	bool bComment = false;
	FLines Lines(InOutText);
	while (Lines.Next())
	{
		std::string Pieces = LookFileXmlPrivate::BreakAfterTags(Lines.Get());
		FProblem Problem;
		std::string Reason;
		if (!CheckWordLengths(Pieces, Problem))
		{
			return Refuse(OutProblem, Lines.Number(), Problem.Reason);
		}
		if (!LookFileXmlPrivate::CheckPieces(Pieces, bArray, bComment, Reason))
		{
			return Refuse(OutProblem, Lines.Number(), Reason);
		}
		// In the copy that is handed on, lines keep their numbers.
		std::replace(Pieces.begin(), Pieces.end(), '\n', ' ');
		Broken += Pieces;
		Broken += '\n';
	}
	InOutText = std::move(Broken);
	return true;
}
}
