// Copyright The Tintmill authors. All rights reserved.

#include "LookTable/LookTableGrader.h"

#include <algorithm>

namespace LookTableGraderPrivate
{
/** Where a value lies on an axis with Size entries over Min..Max: a whole entry and the fraction towards the next one. */
static double Position(double Value, double Min, double Max, std::int64_t Size)
{
	return std::clamp((Value - Min) / (Max - Min), 0.0, 1.0) * static_cast<double>(Size - 1);
}

static std::size_t EntryBelow(double Place, std::int64_t Size)
{
	return std::min(static_cast<std::size_t>(Place), static_cast<std::size_t>(Size - 2));
}

/** The one-dimensional table of one channel; values pass unchanged when there is none. */
static double Curve(const LookFile::FCube& Cube, std::size_t Channel, double Value)
{
	if (Cube.Size1D == 0)
	{
		return Value;
	}
	const double Place = Position(Value, Cube.Min1D[Channel], Cube.Max1D[Channel], Cube.Size1D);
	const std::size_t Low = EntryBelow(Place, Cube.Size1D);
	const double Part = Place - static_cast<double>(Low);
	return Cube.Values[Low * 3 + Channel] * (1.0 - Part) + Cube.Values[(Low + 1) * 3 + Channel] * Part;
}

static std::uint8_t ToByte(float Scaled)
{
	return static_cast<std::uint8_t>(static_cast<std::int32_t>(std::min(std::max(Scaled + 0.5f, 0.0f), 255.0f)));
}
}

namespace LookTable
{
FLookCurveGrader::FLookCurveGrader(const LookFile::FCube& Cube)
{
	for (std::size_t Channel = 0; Channel < 3; ++Channel)
	{
		for (std::size_t Byte = 0; Byte < 256; ++Byte)
		{
			const double Value = LookTableGraderPrivate::Curve(Cube, Channel, static_cast<double>(Byte) / 255.0);
			Outputs[Channel][Byte] = LookTableGraderPrivate::ToByte(static_cast<float>(std::clamp(Value, 0.0, 1.0) * 255.0));
		}
	}
}

void FLookCurveGrader::Grade(const std::uint8_t* In, std::uint8_t* Out, std::size_t PixelCount, LookGrading::EByteOrder Order) const
{
	const std::size_t Red = Order == LookGrading::EByteOrder::RedFirst ? 0 : 2;
	for (std::size_t Pixel = 0; Pixel < PixelCount * 4; Pixel += 4)
	{
		Out[Pixel + Red] = Outputs[0][In[Pixel + Red]];
		Out[Pixel + 1] = Outputs[1][In[Pixel + 1]];
		Out[Pixel + 2 - Red] = Outputs[2][In[Pixel + 2 - Red]];
		Out[Pixel + 3] = In[Pixel + 3];
	}
}

FLookTableGrader::FLookTableGrader(const LookFile::FCube& Cube)
{
	const std::uint32_t Size = static_cast<std::uint32_t>(Cube.Size3D);
	const std::array<std::uint32_t, 3> Steps = {1, Size, Size * Size};
	for (std::size_t Channel = 0; Channel < 3; ++Channel)
	{
		for (std::size_t Byte = 0; Byte < 256; ++Byte)
		{
			const double Value = LookTableGraderPrivate::Curve(Cube, Channel, static_cast<double>(Byte) / 255.0);
			const double Place = LookTableGraderPrivate::Position(Value, Cube.Min3D[Channel], Cube.Max3D[Channel], Cube.Size3D);
			const std::size_t Low = LookTableGraderPrivate::EntryBelow(Place, Cube.Size3D);
			Places[Channel][Byte] = {
				static_cast<std::uint32_t>(Low) * Steps[Channel], static_cast<float>(Place - static_cast<double>(Low))};
		}
	}
	for (std::size_t Order = 0; Order < Corners.size(); ++Order)
	{
		const bool bRedGreen = (Order & 4) != 0;
		const bool bGreenBlue = (Order & 2) != 0;
		const bool bRedBlue = (Order & 1) != 0;
		const std::size_t Largest = bRedGreen && bRedBlue ? 0 : !bRedGreen && bGreenBlue ? 1 : 2;
		const std::size_t Smallest = bGreenBlue && bRedBlue ? 2 : bRedGreen && !bGreenBlue ? 1 : 0;
		Corners[Order] = {Steps[Largest], Steps[0] + Steps[1] + Steps[2] - Steps[Smallest]};
	}
	LastCorner = Steps[0] + Steps[1] + Steps[2];
	for (std::size_t Row = static_cast<std::size_t>(Cube.Size1D); Row * 3 < Cube.Values.size(); ++Row)
	{
		const float* const Values = &Cube.Values[Row * 3];
		Entries.push_back(FEntry{Values[0] * 255.0f, Values[1] * 255.0f, Values[2] * 255.0f, 0.0f});
	}
}

void FLookTableGrader::Grade(const std::uint8_t* In, std::uint8_t* Out, std::size_t PixelCount, LookGrading::EByteOrder Order) const
{
	const std::size_t Red = Order == LookGrading::EByteOrder::RedFirst ? 0 : 2;
	for (std::size_t Pixel = 0; Pixel < PixelCount * 4; Pixel += 4)
	{
		GradePixel(In + Pixel, Out + Pixel, Red);
	}
}

inline void FLookTableGrader::GradePixel(const std::uint8_t* In, std::uint8_t* Out, std::size_t Red) const
{
	const FPlace& R = Places[0][In[Red]];
	const FPlace& G = Places[1][In[1]];
	const FPlace& B = Places[2][In[2 - Red]];
	const std::size_t Order = (R.Part >= G.Part ? 4u : 0u) | (G.Part >= B.Part ? 2u : 0u) | (R.Part >= B.Part ? 1u : 0u);
	const float Largest = std::max(std::max(R.Part, G.Part), B.Part);
	const float Smallest = std::min(std::min(R.Part, G.Part), B.Part);
	const float Middle = std::max(std::min(R.Part, G.Part), std::min(std::max(R.Part, G.Part), B.Part));
	const FEntry* const First = Entries.data() + (R.Entry + G.Entry + B.Entry);
	const FEntry Value = First[0] * (1.0f - Largest) + First[Corners[Order].First] * (Largest - Middle)
		+ First[Corners[Order].Second] * (Middle - Smallest) + First[LastCorner] * Smallest;
	const std::uint8_t Alpha = In[3];
	Out[Red] = LookTableGraderPrivate::ToByte(Value[0]);
	Out[1] = LookTableGraderPrivate::ToByte(Value[1]);
	Out[2 - Red] = LookTableGraderPrivate::ToByte(Value[2]);
	Out[3] = Alpha;
}
}
