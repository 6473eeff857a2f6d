// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace HeaderTool
{

/** What kind of module a header belongs to; decides the package flags. */
enum class EModuleType
{
	Runtime,
	EngineRuntime,
	Editor,
};

/** One module of the build: where its headers lie and where its generated code goes. */
struct FModule
{
	std::string Name;
	EModuleType Type = EModuleType::Runtime;
	std::filesystem::path Directory;
	std::filesystem::path OutputDirectory;
	std::vector<std::filesystem::path> Headers;

	/** The package of the module's types, "/Script/<Name>". */
	std::string GetPackageName() const { return "/Script/" + Name; }

	/** The export macro of the module, "<NAME>_API". */
	std::string GetApiMacro() const;
};

/** A manifest that cannot be used; the text is one sentence for a person. */
class FManifestError : public std::runtime_error
{
public:
	using std::runtime_error::runtime_error;
};

/** The list of modules and headers of one run. */
class FManifest
{
public:
	/** Reads a manifest file; throws FManifestError when it is missing, unreadable or malformed. */
	static FManifest Load(const std::filesystem::path& File);

	/** All modules in the file's order. */
	const std::vector<FModule>& GetModules() const { return Modules; }

private:
	void AddModule(const std::string& Rest, const std::string& Place);
	void AddHeader(const std::string& Rest, const std::string& Place);

	std::vector<FModule> Modules;
};

}
