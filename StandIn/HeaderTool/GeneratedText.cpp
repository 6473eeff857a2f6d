// Copyright The Tintmill authors. All rights reserved.
#include "GeneratedText.h"

#include "TextTools.h"

namespace HeaderTool
{

std::string GetFileOpening()
{
	return "// Copyright The Tintmill authors. All rights reserved.\n"
		   "/*===========================================================================\n"
		   "\tWritten by the header tool. Do not edit: change the header with the reflected\n"
		   "\ttypes instead.\n"
		   "===========================================================================*/\n";
}

std::string GetSourceOpening(const std::string& Include)
{
	return GetFileOpening() + "\n#include \"UObject/GeneratedCppIncludes.h\"\n" + (Include.empty() ? "" : "#include \"" + Include + "\"\n")
		+ "#ifdef _MSC_VER\n"
		  "#pragma warning (push)\n"
		  "#pragma warning (disable : 4883)\n"
		  "#endif\n"
		  "PRAGMA_DISABLE_DEPRECATION_WARNINGS\n";
}

std::string GetSourceClosing()
{
	return "PRAGMA_ENABLE_DEPRECATION_WARNINGS\n"
		   "#ifdef _MSC_VER\n"
		   "#pragma warning (pop)\n"
		   "#endif\n";
}

std::string WithMetaData(const std::string& Lines)
{
	return "#if WITH_METADATA\n" + Lines + "#endif\n";
}

std::string GetMetaDataLines(const FMetaData& MetaData, int Tabs)
{
	std::string Lines;
	for (const auto& [Key, Value] : MetaData.GetPairs())
	{
		Lines += std::string(static_cast<std::size_t>(Tabs), '\t') + "{ " + ToLiteral(Key) + ", " + ToLiteral(Value) + " },\n";
	}
	return Lines;
}

std::string GetMetaDataParams(const std::string& Array)
{
	return Fill("METADATA_PARAMS($0, UE_ARRAY_COUNT($0))", {Array});
}

}
