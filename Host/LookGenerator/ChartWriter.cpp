// Copyright The Tintmill authors. All rights reserved.

#include "Host/LookGenerator/ChartWriter.h"

#include <cstdint>

namespace TintmillHost
{
namespace
{
constexpr int Size = 128;
constexpr int Patch = Size / 4;

/** sRGB of the patches from the top left. */
constexpr std::uint32_t Colors[16] = {0x735244, 0xC29682, 0x627A9D, 0x576C43, 0x8580B1, 0x67BDAA, 0xD67E2C, 0x505BA6, 0xC15A63, 0x46944A,
	0xAF363C, 0xE7C71F, 0xF3F3F2, 0xA0A0A0, 0x555555, 0x141414};

/** The gap between patches is drawn in the darkest gray. */
constexpr int Gap = 2;
constexpr int GapColor = 15;

void Append32(std::string& Bytes, std::uint32_t Value)
{
	for (int Shift = 24; Shift >= 0; Shift -= 8)
	{
		Bytes += static_cast<char>(Value >> Shift);
	}
}

std::uint32_t Checksum(const std::string& Bytes)
{
	std::uint32_t Sum = 0xFFFFFFFFu;
	for (const char Byte : Bytes)
	{
		Sum ^= static_cast<unsigned char>(Byte);
		for (int Bit = 0; Bit < 8; ++Bit)
		{
			Sum = Sum >> 1 ^ ((Sum & 1u) != 0 ? 0xEDB88320u : 0u);
		}
	}
	return ~Sum;
}

void AppendChunk(std::string& Png, const std::string& Type, const std::string& Data)
{
	Append32(Png, static_cast<std::uint32_t>(Data.size()));
	Png += Type + Data;
	Append32(Png, Checksum(Type + Data));
}

/** The bytes as a zlib stream of one block that is stored as it is. */
std::string Store(const std::string& Bytes)
{
	const auto Length = static_cast<std::uint16_t>(Bytes.size());
	std::string Stream("\x78\x01\x01", 3);
	for (const std::uint16_t Value : {Length, static_cast<std::uint16_t>(~Length)})
	{
		Stream += static_cast<char>(Value & 0xFF);
		Stream += static_cast<char>(Value >> 8);
	}
	Stream += Bytes;
	std::uint32_t A = 1;
	std::uint32_t B = 0;
	for (const char Byte : Bytes)
	{
		A = (A + static_cast<unsigned char>(Byte)) % 65521;
		B = (B + A) % 65521;
	}
	Append32(Stream, B << 16 | A);
	return Stream;
}

int ColorAt(int X, int Y)
{
	const bool bGap = X % Patch < Gap || Y % Patch < Gap || X >= Size - Gap || Y >= Size - Gap;
	return bGap ? GapColor : Y / Patch * 4 + X / Patch;
}
}

std::string WriteChart()
{
	std::string Header;
	Append32(Header, Size);
	Append32(Header, Size);
	// Four bits a pixel, each an entry of the palette.
	Header += std::string("\x04\x03\x00\x00\x00", 5);
	std::string Palette;
	for (const std::uint32_t Color : Colors)
	{
		Palette += {static_cast<char>(Color >> 16), static_cast<char>(Color >> 8), static_cast<char>(Color)};
	}
	std::string Rows;
	for (int Y = 0; Y < Size; ++Y)
	{
		Rows += '\0';
		for (int X = 0; X < Size; X += 2)
		{
			Rows += static_cast<char>(ColorAt(X, Y) << 4 | ColorAt(X + 1, Y));
		}
	}
	std::string Png("\x89PNG\r\n\x1A\n", 8);
	AppendChunk(Png, "IHDR", Header);
	AppendChunk(Png, "PLTE", Palette);
	AppendChunk(Png, "IDAT", Store(Rows));
	AppendChunk(Png, "IEND", std::string());
	return Png;
}
}
