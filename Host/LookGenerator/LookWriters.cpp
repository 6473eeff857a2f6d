// Copyright The Tintmill authors. All rights reserved.

#include "Host/LookGenerator/LookWriters.h"

#include <cstdio>

namespace TintmillHost
{
namespace LookWritersPrivate
{
static std::string Text(const char* Format, const FLookColor& Color)
{
	char Buffer[96];
	std::snprintf(Buffer, sizeof(Buffer), Format, Color.Red + 0.0, Color.Green + 0.0, Color.Blue + 0.0);
	return Buffer;
}

static FLookColor Entry(FLookFormula Formula, int Size, int Red, int Green, int Blue, double Low, double High)
{
	const double Step = (High - Low) / (Size - 1);
	return Formula({Low + Red * Step, Low + Green * Step, Low + Blue * Step});
}

/** All entries with red fastest. */
static std::string RedFastest(FLookFormula Formula, int Size, double Low, double High)
{
	std::string Result;
	for (int Blue = 0; Blue < Size; ++Blue)
	{
		for (int Green = 0; Green < Size; ++Green)
		{
			for (int Red = 0; Red < Size; ++Red)
			{
				Result += Text("%.5f %.5f %.5f\n", Entry(Formula, Size, Red, Green, Blue, Low, High));
			}
		}
	}
	return Result;
}
}

std::string WriteCubeLook(const std::string& Title, FLookFormula Formula, int Size, double Low, double High)
{
	std::string Result = "TITLE \"" + Title + "\"\nLUT_3D_SIZE " + std::to_string(Size) + "\n";
	if (Low != 0.0 || High != 1.0)
	{
		Result += LookWritersPrivate::Text("DOMAIN_MIN %.5f %.5f %.5f\n", {Low, Low, Low});
		Result += LookWritersPrivate::Text("DOMAIN_MAX %.5f %.5f %.5f\n", {High, High, High});
	}
	return Result + LookWritersPrivate::RedFastest(Formula, Size, Low, High);
}

std::string WriteCurveAndCubeLook(double (*Curve)(double), int CurveSize, FLookFormula Formula, int Size)
{
	std::string Result = "LUT_1D_SIZE " + std::to_string(CurveSize) + "\nLUT_1D_INPUT_RANGE 0.0 1.0\n";
	Result += "LUT_3D_SIZE " + std::to_string(Size) + "\nLUT_3D_INPUT_RANGE 0.0 1.0\n";
	for (int Index = 0; Index < CurveSize; ++Index)
	{
		const double Value = Curve(static_cast<double>(Index) / (CurveSize - 1));
		Result += LookWritersPrivate::Text("%.5f %.5f %.5f\n", {Value, Value, Value});
	}
	return Result + LookWritersPrivate::RedFastest(Formula, Size, 0.0, 1.0);
}

std::string WriteClfLook(const std::string& Identifier, const std::string& Description, FLookFormula Formula, int Size)
{
	const std::string Dimension = std::to_string(Size);
	std::string Result = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ProcessList id=\"" + Identifier + "\" compCLFversion=\"3\">\n";
	Result += "<Description>" + Description + "</Description>\n";
	Result += "<LUT3D inBitDepth=\"32f\" outBitDepth=\"32f\" interpolation=\"tetrahedral\">\n";
	Result += "<Array dim=\"" + Dimension + " " + Dimension + " " + Dimension + " 3\">\n";
	for (int Red = 0; Red < Size; ++Red)
	{
		for (int Green = 0; Green < Size; ++Green)
		{
			for (int Blue = 0; Blue < Size; ++Blue)
			{
				Result +=
					LookWritersPrivate::Text("%.5f %.5f %.5f\n", LookWritersPrivate::Entry(Formula, Size, Red, Green, Blue, 0.0, 1.0));
			}
		}
	}
	return Result + "</Array>\n</LUT3D>\n</ProcessList>\n";
}

std::string WriteSpi3DLook(FLookFormula Formula, int Size)
{
	const std::string Dimension = std::to_string(Size);
	std::string Result = "SPILUT 1.0\n3 3\n" + Dimension + " " + Dimension + " " + Dimension + "\n";
	for (int Red = 0; Red < Size; ++Red)
	{
		for (int Green = 0; Green < Size; ++Green)
		{
			for (int Blue = 0; Blue < Size; ++Blue)
			{
				Result += std::to_string(Red) + " " + std::to_string(Green) + " " + std::to_string(Blue) + " ";
				Result +=
					LookWritersPrivate::Text("%.3f %.3f %.3f\n", LookWritersPrivate::Entry(Formula, Size, Red, Green, Blue, 0.0, 1.0));
			}
		}
	}
	return Result;
}
}
