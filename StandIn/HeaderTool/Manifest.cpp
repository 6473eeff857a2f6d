// Copyright The Tintmill authors. All rights reserved.
#include "Manifest.h"

#include "TextTools.h"

#include <fstream>
#include <sstream>

namespace HeaderTool
{

namespace
{

std::string TakeWord(std::string& Rest)
{
	const std::size_t End = Rest.find(' ');
	const std::string Word = Rest.substr(0, End);
	Rest = End == std::string::npos ? "" : Rest.substr(End + 1);
	return Word;
}

bool StartsAbsolutePath(const std::string& Text, std::size_t At)
{
	const bool bDrive = At + 2 < Text.size() && Text[At + 1] == ':' && (Text[At + 2] == '/' || Text[At + 2] == '\\');
	return At < Text.size() && (Text[At] == '/' || bDrive);
}

EModuleType ParseType(const std::string& Word, const std::string& Place)
{
	if (Word == "Runtime")
	{
		return EModuleType::Runtime;
	}
	if (Word == "EngineRuntime")
	{
		return EModuleType::EngineRuntime;
	}
	if (Word == "Editor")
	{
		return EModuleType::Editor;
	}
	throw FManifestError(Place + "the module type '" + Word + "' is not one of Runtime, EngineRuntime, Editor.");
}

}

std::string FModule::GetApiMacro() const
{
	return ToUpper(Name) + "_API";
}

FManifest FManifest::Load(const std::filesystem::path& File)
{
	std::error_code Code;
	std::ifstream In(File, std::ios::binary);
	if (!In || std::filesystem::is_directory(File, Code))
	{
		throw FManifestError("The manifest '" + File.string() + "' cannot be read; name a file that lists modules and headers.");
	}
	FManifest Result;
	std::string Text;
	for (int Number = 1; std::getline(In, Text); ++Number)
	{
		if (!Text.empty() && Text.back() == '\r')
		{
			Text.pop_back();
		}
		if (Text.empty())
		{
			continue;
		}
		const std::string Place = "The manifest '" + File.string() + "' is malformed in line " + std::to_string(Number) + ": ";
		const std::string Key = TakeWord(Text);
		if (Key == "Module")
		{
			Result.AddModule(Text, Place);
		}
		else if (Key == "Header")
		{
			Result.AddHeader(Text, Place);
		}
		else
		{
			throw FManifestError(Place + "'" + Key + "' is not one of Module, Header.");
		}
	}
	if (In.bad())
	{
		throw FManifestError("The manifest '" + File.string() + "' cannot be read to its end.");
	}
	return Result;
}

void FManifest::AddModule(const std::string& Line, const std::string& Place)
{
	std::string Rest = Line;
	FModule Module;
	Module.Name = TakeWord(Rest);
	if (Module.Name.empty() || Module.Name != ToIdentifier(Module.Name))
	{
		throw FManifestError(Place + "'" + Module.Name + "' cannot be a module name.");
	}
	Module.Type = ParseType(TakeWord(Rest), Place);
	// Both folders are absolute, so the blank between them is the one before the second absolute path.
	std::size_t Split = std::string::npos;
	for (std::size_t At = 1; At < Rest.size(); ++At)
	{
		if (Rest[At - 1] == ' ' && StartsAbsolutePath(Rest, At))
		{
			Split = At;
		}
	}
	if (!StartsAbsolutePath(Rest, 0) || Split == std::string::npos)
	{
		throw FManifestError(Place + "a module needs a name, a type, its folder and its output folder, both as absolute paths.");
	}
	Module.Directory = std::filesystem::path(Rest.substr(0, Split - 1)).lexically_normal();
	Module.OutputDirectory = std::filesystem::path(Rest.substr(Split)).lexically_normal();
	for (const FModule& Known : Modules)
	{
		if (EqualsIgnoreCase(Known.Name, Module.Name))
		{
			throw FManifestError(Place + "the module '" + Module.Name + "' is listed twice.");
		}
	}
	Modules.push_back(Module);
}

void FManifest::AddHeader(const std::string& Rest, const std::string& Place)
{
	if (Modules.empty())
	{
		throw FManifestError(Place + "a header stands before the first module.");
	}
	if (!StartsAbsolutePath(Rest, 0))
	{
		throw FManifestError(Place + "'" + Rest + "' is not an absolute path.");
	}
	Modules.back().Headers.push_back(std::filesystem::path(Rest).lexically_normal());
}

}
