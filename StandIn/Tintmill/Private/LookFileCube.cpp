// Copyright The Tintmill authors. All rights reserved.

#include "LookFileCube.h"

#include "LookFileCubeParser.h"
#include "LookFileNumber.h"

namespace LookFileCubePrivate
{
static void AppendNumbers(std::string& Text, const float* Values, int Count)
{
	for (int Index = 0; Index < Count; ++Index)
	{
		Text += Index == 0 ? "" : " ";
		LookFile::AppendNumber(Text, Values[Index]);
	}
	Text += '\n';
}

static void AppendRange(std::string& Text, const char* Keyword, float Min, float Max)
{
	const float Range[2] = {Min, Max};
	Text += Keyword;
	Text += ' ';
	AppendNumbers(Text, Range, 2);
}

static void AppendDomain(std::string& Text, const float* Min, const float* Max)
{
	Text += "DOMAIN_MIN ";
	AppendNumbers(Text, Min, 3);
	Text += "DOMAIN_MAX ";
	AppendNumbers(Text, Max, 3);
}
}

namespace LookFile
{
bool ParseCube(std::string_view Text, FCube& OutCube, FProblem& OutProblem)
{
	return FCubeParser().Parse(Text, OutCube, OutProblem);
}

std::string WriteCube(const FCube& Cube)
{
	std::string Text;
	Text.reserve(Cube.Values.size() * 11 + 256);
	const bool bBoth = Cube.Size1D != 0 && Cube.Size3D != 0;
	if (Cube.Size1D != 0)
	{
		Text += "LUT_1D_SIZE " + std::to_string(Cube.Size1D) + "\n";
	}
	if (bBoth)
	{
		LookFileCubePrivate::AppendRange(Text, "LUT_1D_INPUT_RANGE", Cube.Min1D[0], Cube.Max1D[0]);
	}
	if (Cube.Size3D != 0)
	{
		Text += "LUT_3D_SIZE " + std::to_string(Cube.Size3D) + "\n";
	}
	if (bBoth)
	{
		LookFileCubePrivate::AppendRange(Text, "LUT_3D_INPUT_RANGE", Cube.Min3D[0], Cube.Max3D[0]);
	}
	else
	{
		const bool b3D = Cube.Size3D != 0;
		LookFileCubePrivate::AppendDomain(Text, b3D ? Cube.Min3D : Cube.Min1D, b3D ? Cube.Max3D : Cube.Max1D);
	}
	for (std::size_t Index = 0; Index + 3 <= Cube.Values.size(); Index += 3)
	{
		LookFileCubePrivate::AppendNumbers(Text, &Cube.Values[Index], 3);
	}
	return Text;
}
}
