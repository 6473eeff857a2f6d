// Copyright The Tintmill authors. All rights reserved.

#include "LookFileCheck.h"

#include "LookFileReader.h"
#include "LookFileTable.h"
#include "LookFileText.h"
#include "LookFileXml.h"

#include <algorithm>
#include <utility>

namespace LookFileCheckPrivate
{
static std::uint64_t Hash(const std::string& Text)
{
	std::uint64_t Value = 14695981039346656037ull;
	for (const char Character : Text)
	{
		Value = (Value ^ static_cast<unsigned char>(Character)) * 1099511628211ull;
	}
	return Value;
}

static std::string LowerExtension(const std::filesystem::path& Path)
{
	const std::u8string Extension = Path.extension().u8string();
	std::string Result;
	for (std::size_t Index = 1; Index < Extension.size(); ++Index)
	{
		const char Character = static_cast<char>(Extension[Index]);
		Result += Character >= 'A' && Character <= 'Z' ? static_cast<char>(Character - 'A' + 'a') : Character;
	}
	return Result;
}

static bool CheckCube(std::string& Text, LookFile::FCube& OutCube, LookFile::FProblem& OutProblem)
{
	if (!LookFile::CheckLineLengths(Text, OutProblem) || !LookFile::ParseCube(Text, OutCube, OutProblem))
	{
		return false;
	}
	Text = LookFile::WriteCube(OutCube);
	return true;
}

static bool CheckFormat(const std::string& Extension, std::string& Text, LookFile::FCube& OutCube, LookFile::FProblem& OutProblem)
{
	if (Extension == "cube")
	{
		return CheckCube(Text, OutCube, OutProblem);
	}
	if (Extension == "clf" || Extension == "ctf")
	{
		return LookFile::CheckXml(Text, OutProblem);
	}
	if (Extension == "spi1d" && !LookFile::CheckSpi1D(Text, OutProblem))
	{
		return false;
	}
	if (Extension == "spi3d" && !LookFile::CheckSpi3D(Text, OutProblem))
	{
		return false;
	}
	return LookFile::CheckTable(Text, OutProblem);
}
}

namespace LookFile
{
const std::vector<std::string>& KnownExtensions()
{
	static const std::vector<std::string> Extensions = {"cube", "clf", "ctf", "3dl", "spi3d", "spi1d", "csp"};
	return Extensions;
}

bool CheckText(std::string Text, const std::string& Extension, FCheckedFile& OutFile, FProblem& OutProblem)
{
	const std::vector<std::string>& Known = KnownExtensions();
	if (std::find(Known.begin(), Known.end(), Extension) == Known.end())
	{
		return Refuse(OutProblem, 0, "files that end in " + Quoted("." + Extension) + " are not looks");
	}
	FCheckedFile Checked;
	if (!NormalizeText(Text, OutProblem) || !LookFileCheckPrivate::CheckFormat(Extension, Text, Checked.Cube, OutProblem))
	{
		return false;
	}
	Checked.Extension = Extension;
	Checked.ContentHash = LookFileCheckPrivate::Hash(Text);
	Checked.Text = std::move(Text);
	OutFile = std::move(Checked);
	return true;
}

bool CheckFile(const std::filesystem::path& Path, FCheckedFile& OutFile, FProblem& OutProblem)
{
	std::string Bytes;
	return ReadWholeFile(Path, Bytes, OutProblem)
		&& CheckText(std::move(Bytes), LookFileCheckPrivate::LowerExtension(Path), OutFile, OutProblem);
}
}
