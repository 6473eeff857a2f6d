// Copyright The Tintmill authors. All rights reserved.
#include "OutputFile.h"

#include <fstream>
#include <iterator>

namespace HeaderTool
{

bool ReadFile(const std::filesystem::path& File, std::string& OutText)
{
	std::error_code Code;
	std::ifstream In(File, std::ios::binary);
	if (!In || std::filesystem::is_directory(File, Code))
	{
		return false;
	}
	OutText.assign(std::istreambuf_iterator<char>(In), std::istreambuf_iterator<char>());
	return !In.bad();
}

bool WriteFileIfChanged(const std::filesystem::path& File, const std::string& Text)
{
	std::string Present;
	if (ReadFile(File, Present) && Present == Text)
	{
		return false;
	}
	std::error_code Code;
	std::filesystem::create_directories(File.parent_path(), Code);
	std::filesystem::path Temporary = File;
	Temporary += ".tmp";
	{
		std::ofstream Out(Temporary, std::ios::binary | std::ios::trunc);
		Out.write(Text.data(), static_cast<std::streamsize>(Text.size()));
		Out.close();
		if (!Out)
		{
			std::filesystem::remove(Temporary, Code);
			throw FOutputError("The file '" + Temporary.string() + "' cannot be written; check the folder's permissions and free space.");
		}
	}
	std::filesystem::rename(Temporary, File, Code);
	if (Code)
	{
		const std::string Reason = Code.message();
		std::filesystem::remove(Temporary, Code);
		throw FOutputError("The file '" + File.string() + "' cannot be replaced: " + Reason + ".");
	}
	return true;
}

}
