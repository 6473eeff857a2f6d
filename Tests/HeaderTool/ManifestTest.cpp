// Copyright The Tintmill authors. All rights reserved.
#include "Manifest.h"

#include "Scratch.h"
#include "Tool.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace
{

/** Loads a manifest with this text; returns the complaint, the manifest's own path replaced by M. */
std::string Load(const std::string& Text, HeaderTool::FManifest* OutManifest = nullptr)
{
	FScratch Scratch;
	const std::filesystem::path File = Scratch.GetRoot() / "M";
	std::ofstream(File, std::ios::binary) << Text;
	try
	{
		const HeaderTool::FManifest Manifest = HeaderTool::FManifest::Load(File);
		if (OutManifest != nullptr)
		{
			*OutManifest = Manifest;
		}
		return "";
	}
	catch (const HeaderTool::FManifestError& Problem)
	{
		std::string Result = Problem.what();
		return Result.replace(Result.find(File.string()), File.string().size(), "M");
	}
}

}

TEST(FManifest, ReadsModulesAndTheirHeaders)
{
	HeaderTool::FManifest Manifest;
	Load("Module A Editor /x/A /y/A\nHeader /x/A/One.h\nHeader /x/A/Two.h\nModule B Runtime /x/B /y/B\n", &Manifest);
	EXPECT_EQ(Manifest.GetModules()[0].Headers.size(), 2u);
}

TEST(FManifest, TakesBlanksInPaths)
{
	HeaderTool::FManifest Manifest;
	Load("Module A Editor /x y/A /z z/A\r\nHeader /x y/A/One.h\r\n", &Manifest);
	EXPECT_EQ(Manifest.GetModules()[0].OutputDirectory, "/z z/A");
}

TEST(FManifest, SkipsEmptyLines)
{
	EXPECT_EQ(Load("\n\nModule A Editor /x/A /y/A\n\n"), "");
}

TEST(FManifest, RefusesAnUnknownKeyword)
{
	EXPECT_EQ(Load("Modul A\n"), "The manifest 'M' is malformed in line 1: 'Modul' is not one of Module, Header.");
}

TEST(FManifest, RefusesAnUnknownModuleType)
{
	EXPECT_EQ(Load("Module A Game /x /y\n"),
		"The manifest 'M' is malformed in line 1: the module type 'Game' is not one of Runtime, EngineRuntime, Editor.");
}

TEST(FManifest, RefusesAHeaderBeforeTheFirstModule)
{
	EXPECT_EQ(Load("\nHeader /x/A.h\n"), "The manifest 'M' is malformed in line 2: a header stands before the first module.");
}

TEST(FManifest, RefusesARelativeHeader)
{
	EXPECT_EQ(Load("Module A Editor /x /y\nHeader A.h\n"), "The manifest 'M' is malformed in line 2: 'A.h' is not an absolute path.");
}

TEST(FManifest, RefusesAModuleWithoutItsFolders)
{
	EXPECT_EQ(Load("Module A Editor /x\n"),
		"The manifest 'M' is malformed in line 1: a module needs a name, a type, its folder and its output folder, both as absolute paths.");
}

TEST(FManifest, RefusesAModuleThatIsListedTwice)
{
	EXPECT_EQ(
		Load("Module A Editor /x /y\nModule a Editor /x /y\n"), "The manifest 'M' is malformed in line 2: the module 'a' is listed twice.");
}

TEST(FManifest, MakesTheRunEndWithTwoWhenItIsMissing)
{
	std::ostringstream Out;
	std::ostringstream Err;
	EXPECT_EQ(HeaderTool::Run("/nowhere/M", Out, Err), 2);
}

TEST(FManifest, NamesItselfWhenItIsMissing)
{
	std::ostringstream Out;
	std::ostringstream Err;
	HeaderTool::Run("/nowhere/M", Out, Err);
	EXPECT_EQ(Err.str(), "The manifest '/nowhere/M' cannot be read; name a file that lists modules and headers.\n");
}

TEST(FManifest, IsNotAFolder)
{
	FScratch Scratch;
	std::ostringstream Out;
	std::ostringstream Err;
	EXPECT_EQ(HeaderTool::Run(Scratch.GetRoot().string(), Out, Err), 2);
}
