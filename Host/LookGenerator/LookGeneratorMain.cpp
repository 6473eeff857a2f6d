// Copyright The Tintmill authors. All rights reserved.

#include "Host/LookGenerator/ChartWriter.h"
#include "Host/LookGenerator/LookWriters.h"

#include <cstdio>
#include <filesystem>
#include <fstream>

// Writes the demo project's looks, and the chart in the folder Textures beside: LookGenerator Host/DemoProject/Content/Looks

namespace LookGeneratorPrivate
{
static bool Save(const std::filesystem::path& File, const std::string& Text)
{
	std::ofstream Stream(File, std::ios::binary);
	Stream << Text;
	Stream.close();
	if (!Stream)
	{
		std::fprintf(
			stderr, "LookGenerator: %s cannot be written; check that the folder exists and may be written to.\n", File.string().c_str());
		return false;
	}
	return true;
}
}

int main(int ArgumentCount, char** Arguments)
{
	using namespace TintmillHost;
	if (ArgumentCount != 2)
	{
		std::fprintf(stderr, "usage: LookGenerator FOLDER\n");
		return 2;
	}
	const std::filesystem::path Folder = Arguments[1];
	const bool bSaved = LookGeneratorPrivate::Save(Folder / "WarmPrint.cube", WriteCubeLook("Warm print", &WarmPrint, 33))
		&& LookGeneratorPrivate::Save(Folder / "CoolNight.cube", WriteCubeLook("Cool night", &CoolNight, 17, -0.0625, 1.0625))
		&& LookGeneratorPrivate::Save(Folder / "TealOrange.cube", WriteCubeLook("Teal and orange", &TealOrange, 25))
		&& LookGeneratorPrivate::Save(
			Folder / "BleachBypass.clf", WriteClfLook("tintmill-bleach-bypass", "Bleach bypass for display values", &BleachBypass, 21))
		&& LookGeneratorPrivate::Save(Folder / "Monochrome.cube", WriteCurveAndCubeLook(&MonochromeCurve, 64, &Monochrome, 9))
		&& LookGeneratorPrivate::Save(Folder / "FalseColor.spi3d", WriteSpi3DLook(&FalseColor, 32))
		&& LookGeneratorPrivate::Save(Folder.parent_path() / "Textures" / "GradingChart.png", WriteChart());
	return bSaved ? 0 : 2;
}
