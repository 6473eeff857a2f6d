// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Tintmill/Private/LookFileCube.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <string>

// A second, slow and plain way to apply a .cube, to measure the real one by.

namespace TintmillTest
{
/** Red, green, blue. */
typedef std::array<double, 3> FReferenceColor;

/** The curves of a cube, linear between entries. */
inline FReferenceColor ReferenceCurve(const LookFile::FCube& Cube, const FReferenceColor& In)
{
	FReferenceColor Out = In;
	for (std::size_t Channel = 0; Channel < 3 && Cube.Size1D > 0; ++Channel)
	{
		const double Scaled = (In[Channel] - Cube.Min1D[Channel]) / (Cube.Max1D[Channel] - Cube.Min1D[Channel]);
		const double Position = std::clamp(Scaled, 0.0, 1.0) * static_cast<double>(Cube.Size1D - 1);
		const std::size_t Low = std::min(static_cast<std::size_t>(Position), static_cast<std::size_t>(Cube.Size1D - 2));
		const double Part = Position - static_cast<double>(Low);
		Out[Channel] = Cube.Values[Low * 3 + Channel] * (1.0 - Part) + Cube.Values[(Low + 1) * 3 + Channel] * Part;
	}
	return Out;
}

/** The table of a cube: along the edges of the tetrahedron that the color lies in, the largest step first. */
inline FReferenceColor ReferenceTable(const LookFile::FCube& Cube, const FReferenceColor& In)
{
	if (Cube.Size3D == 0)
	{
		return In;
	}
	std::array<std::size_t, 3> Corner = {};
	std::array<double, 3> Part = {};
	for (std::size_t Axis = 0; Axis < 3; ++Axis)
	{
		const double Scaled = (In[Axis] - Cube.Min3D[Axis]) / (Cube.Max3D[Axis] - Cube.Min3D[Axis]);
		const double Position = std::clamp(Scaled, 0.0, 1.0) * static_cast<double>(Cube.Size3D - 1);
		Corner[Axis] = std::min(static_cast<std::size_t>(Position), static_cast<std::size_t>(Cube.Size3D - 2));
		Part[Axis] = Position - static_cast<double>(Corner[Axis]);
	}
	std::array<std::size_t, 3> Order = {0, 1, 2};
	std::sort(Order.begin(), Order.end(), [&Part](std::size_t A, std::size_t B) { return Part[A] > Part[B]; });
	const std::size_t Size = static_cast<std::size_t>(Cube.Size3D);
	const auto Entry = [&Cube, Size](const std::array<std::size_t, 3>& At, std::size_t Channel) {
		const std::size_t Row = static_cast<std::size_t>(Cube.Size1D) + At[0] + Size * (At[1] + Size * At[2]);
		return static_cast<double>(Cube.Values[Row * 3 + Channel]);
	};
	FReferenceColor Out = {};
	for (std::size_t Channel = 0; Channel < 3; ++Channel)
	{
		std::array<std::size_t, 3> At = Corner;
		double Value = Entry(At, Channel);
		for (const std::size_t Axis : Order)
		{
			const double Before = Entry(At, Channel);
			++At[Axis];
			Value += Part[Axis] * (Entry(At, Channel) - Before);
		}
		Out[Channel] = Value;
	}
	return Out;
}

/** A whole cube applied to one color. */
inline FReferenceColor ReferenceLook(const LookFile::FCube& Cube, const FReferenceColor& In)
{
	return ReferenceTable(Cube, ReferenceCurve(Cube, In));
}

/** The nearest of 0..255. */
inline int ReferenceByte(double Value)
{
	return static_cast<int>(std::floor(std::clamp(Value, 0.0, 1.0) * 255.0 + 0.5));
}

/** A look whose three channels are all treated differently and bent. */
inline FReferenceColor AsymmetricColor(double Red, double Green, double Blue)
{
	return {0.75 * Red * Red + 0.20 * Green, 0.10 + 0.55 * std::sqrt(Green) + 0.25 * Blue * Red, 1.0 - 0.80 * Blue + 0.10 * Green};
}

/** The text of a .cube of that look. */
inline std::string AsymmetricCube(int Size, const std::string& Header = "", double Low = 0.0, double High = 1.0)
{
	std::string Text = Header + "LUT_3D_SIZE " + std::to_string(Size) + "\n";
	const auto At = [Size, Low, High](int Index) { return std::max(0.0, Low + (High - Low) * Index / (Size - 1)); };
	for (int Blue = 0; Blue < Size; ++Blue)
	{
		for (int Green = 0; Green < Size; ++Green)
		{
			for (int Red = 0; Red < Size; ++Red)
			{
				const FReferenceColor Color = AsymmetricColor(At(Red), At(Green), At(Blue));
				Text += std::to_string(Color[0]) + " " + std::to_string(Color[1]) + " " + std::to_string(Color[2]) + "\n";
			}
		}
	}
	return Text;
}
}
