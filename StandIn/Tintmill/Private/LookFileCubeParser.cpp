// Copyright The Tintmill authors. All rights reserved.

#include "LookFileCubeParser.h"

#include "LookFileNumber.h"
#include "LookFileText.h"

#include <algorithm>
#include <utility>

namespace LookFileCubeParserPrivate
{
static std::string Upper(std::string_view Word)
{
	std::string Result(Word);
	for (char& Character : Result)
	{
		Character = Character >= 'a' && Character <= 'z' ? static_cast<char>(Character - 'a' + 'A') : Character;
	}
	return Result;
}

static bool StartsLikeAWord(std::string_view Word)
{
	const char First = Word[0];
	const bool bLetter = (First >= 'A' && First <= 'Z') || (First >= 'a' && First <= 'z') || First == '_';
	return bLetter && !LookFile::SameWord(Word.substr(0, 3), "nan") && !LookFile::SameWord(Word.substr(0, 3), "inf");
}
}

namespace LookFile
{
bool FCubeParser::Parse(std::string_view Text, FCube& OutCube, FProblem& OutProblem)
{
	FLines Lines(Text);
	bool bGood = true;
	while (bGood && Lines.Next())
	{
		LineNumber = Lines.Number();
		bGood = ParseLine(Lines.Get());
	}
	bGood = bGood && Finish();
	OutProblem = Problem;
	if (bGood)
	{
		OutCube = std::move(Cube);
	}
	return bGood;
}

bool FCubeParser::ParseLine(std::string_view Line)
{
	if (Line.empty() || Line[0] == '#')
	{
		return true;
	}
	const FWords Words = SplitWords(Line, 8);
	if (SameWord(Words[0], "TITLE"))
	{
		return bInRows ? Fail("TITLE has to stand before the table") : true;
	}
	for (const std::string_view Word : Words)
	{
		if (Word.size() > MaxWordBytes)
		{
			return Fail("the word " + Quoted(Word) + " is longer than " + std::to_string(MaxWordBytes) + " characters");
		}
	}
	return LookFileCubeParserPrivate::StartsLikeAWord(Words[0]) ? ParseKeyword(Words) : ParseRow(Words);
}

bool FCubeParser::ParseKeyword(const FWords& Words)
{
	const std::string Keyword = LookFileCubeParserPrivate::Upper(Words[0]);
	static const char* const Known[] = {
		"LUT_1D_SIZE", "LUT_3D_SIZE", "DOMAIN_MIN", "DOMAIN_MAX", "LUT_1D_INPUT_RANGE", "LUT_3D_INPUT_RANGE"};
	if (Keyword == "LUT_IN_VIDEO_RANGE" || Keyword == "LUT_OUT_VIDEO_RANGE")
	{
		return Fail(Keyword + " is not supported; export the look for full range");
	}
	if (std::find(std::begin(Known), std::end(Known), Keyword) == std::end(Known))
	{
		return Fail(Quoted(Words[0]) + " is not a word of the .cube format");
	}
	if (bInRows)
	{
		return Fail(Keyword + " has to stand before the table");
	}
	if (!Seen.insert(Keyword).second)
	{
		return Fail(Keyword + " is given twice");
	}
	if (Keyword == "LUT_1D_SIZE")
	{
		return ParseSize(Words, MaxCubeSize1D, Cube.Size1D);
	}
	if (Keyword == "LUT_3D_SIZE")
	{
		return ParseSize(Words, MaxCubeSize3D, Cube.Size3D);
	}
	if (Keyword == "DOMAIN_MIN" || Keyword == "DOMAIN_MAX")
	{
		return ParseDomain(Words, Keyword == "DOMAIN_MIN" ? DomainMin : DomainMax);
	}
	const bool b1D = Keyword == "LUT_1D_INPUT_RANGE";
	return ParseRange(Words, b1D ? Cube.Min1D : Cube.Min3D, b1D ? Cube.Max1D : Cube.Max3D);
}

bool FCubeParser::ParseSize(const FWords& Words, std::int64_t Highest, std::int64_t& OutSize)
{
	if (Words.size() != 2)
	{
		return Fail(Quoted(Words[0]) + " needs one whole number after it");
	}
	std::string Reason;
	return ParseInteger(Words[1], 2, Highest, OutSize, Reason) ? true : Fail("the table's size " + Reason);
}

bool FCubeParser::ParseDomain(const FWords& Words, float* OutValues)
{
	if (Words.size() != 4)
	{
		return Fail(Quoted(Words[0]) + " needs three numbers after it");
	}
	for (int Channel = 0; Channel < 3; ++Channel)
	{
		std::string Reason;
		if (!ParseNumber(Words[Channel + 1], OutValues[Channel], Reason))
		{
			return Fail(Reason);
		}
	}
	return Has("DOMAIN_MIN") && Has("DOMAIN_MAX") ? CheckDomain() : true;
}

bool FCubeParser::ParseRange(const FWords& Words, float* OutMin, float* OutMax)
{
	if (Words.size() != 3)
	{
		return Fail(Quoted(Words[0]) + " needs two numbers after it");
	}
	float Bounds[2] = {};
	for (int Index = 0; Index < 2; ++Index)
	{
		std::string Reason;
		if (!ParseNumber(Words[Index + 1], Bounds[Index], Reason))
		{
			return Fail(Reason);
		}
	}
	if (!(Bounds[0] < Bounds[1]))
	{
		return Fail("the input range's lower end has to be less than its upper end");
	}
	std::fill_n(OutMin, 3, Bounds[0]);
	std::fill_n(OutMax, 3, Bounds[1]);
	return true;
}

bool FCubeParser::CheckDomain()
{
	for (int Channel = 0; Channel < 3; ++Channel)
	{
		if (!(DomainMin[Channel] < DomainMax[Channel]))
		{
			return Fail("DOMAIN_MIN has to be less than DOMAIN_MAX in every channel");
		}
	}
	return true;
}

bool FCubeParser::BeginRows()
{
	bInRows = true;
	const bool bDomain = Has("DOMAIN_MIN") || Has("DOMAIN_MAX");
	if (Cube.Size1D == 0 && Cube.Size3D == 0)
	{
		return Fail("neither LUT_1D_SIZE nor LUT_3D_SIZE stands before the table");
	}
	if ((Has("LUT_1D_INPUT_RANGE") && Cube.Size1D == 0) || (Has("LUT_3D_INPUT_RANGE") && Cube.Size3D == 0))
	{
		return Fail("an input range is given for a table that the file does not have");
	}
	if (bDomain && (Has("LUT_1D_INPUT_RANGE") || Has("LUT_3D_INPUT_RANGE")))
	{
		return Fail("the file gives both a domain and an input range; one of them has to go");
	}
	if (bDomain && Cube.Size1D != 0 && Cube.Size3D != 0)
	{
		return Fail("a file with two tables gives input ranges, not a domain");
	}
	if (bDomain)
	{
		if (!CheckDomain())
		{
			return false;
		}
		std::copy_n(DomainMin, 3, Cube.Size3D != 0 ? Cube.Min3D : Cube.Min1D);
		std::copy_n(DomainMax, 3, Cube.Size3D != 0 ? Cube.Max3D : Cube.Max1D);
	}
	ExpectedRows = Cube.Size1D + Cube.Size3D * Cube.Size3D * Cube.Size3D;
	return true;
}

bool FCubeParser::ParseRow(const FWords& Words)
{
	if (!bInRows && !BeginRows())
	{
		return false;
	}
	float Row[3] = {};
	for (std::size_t Index = 0; Index < Words.size(); ++Index)
	{
		std::string Reason;
		if (!ParseNumber(Words[Index], Row[std::min<std::size_t>(Index, 2)], Reason))
		{
			return Fail(Reason);
		}
	}
	if (Words.size() != 3)
	{
		return Fail("a row of the table needs three numbers");
	}
	if (++Rows > ExpectedRows)
	{
		return Fail("the table has more than the " + std::to_string(ExpectedRows) + " rows that its size asks for");
	}
	Cube.Values.insert(Cube.Values.end(), Row, Row + 3);
	return true;
}

bool FCubeParser::Finish()
{
	if (!bInRows && !BeginRows())
	{
		return false;
	}
	if (Rows < ExpectedRows)
	{
		return Fail("the table ends after " + std::to_string(Rows) + " of " + std::to_string(ExpectedRows) + " rows");
	}
	return true;
}

bool FCubeParser::Has(const char* Keyword) const
{
	return Seen.count(Keyword) != 0;
}

bool FCubeParser::Fail(std::string Reason)
{
	return Refuse(Problem, LineNumber, std::move(Reason));
}
}
