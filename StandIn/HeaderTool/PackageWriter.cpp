// Copyright The Tintmill authors. All rights reserved.
#include "PackageWriter.h"

#include "CrossReferences.h"
#include "GeneratedText.h"
#include "TextTools.h"

namespace HeaderTool
{

std::string WritePackageSource(const FModule& Module, const std::string& Sources, const std::string& Headers)
{
	const std::uint32_t EditorOnly = 0x40;
	return GetSourceOpening("")
		+ Fill("void EmptyLinkFunctionForGeneratedCode$0_init() {}\n"
			   "\tUPackage* $1()\n"
			   "\t{\n"
			   "\t\tstatic UPackage* ReturnPackage = nullptr;\n"
			   "\t\tif (!ReturnPackage)\n"
			   "\t\t{\n"
			   "\t\t\tstatic const UE4CodeGen_Private::FPackageParams PackageParams = {\n"
			   "\t\t\t\t\"$2\",\n"
			   "\t\t\t\tnullptr,\n"
			   "\t\t\t\t0,\n"
			   "\t\t\t\tPKG_CompiledIn | $3,\n"
			   "\t\t\t\t$4,\n"
			   "\t\t\t\t$5,\n"
			   "\t\t\t\tMETADATA_PARAMS(nullptr, 0)\n"
			   "\t\t\t};\n"
			   "\t\t\tUE4CodeGen_Private::ConstructUPackage(ReturnPackage, PackageParams);\n"
			   "\t\t}\n"
			   "\t\treturn ReturnPackage;\n"
			   "\t}\n",
			{Module.Name, GetPackageFunction(Module), Module.GetPackageName(),
				ToHex(Module.Type == EModuleType::Editor ? EditorOnly : 0, 8), ToHex(Crc32(Sources), 8), ToHex(Crc32(Headers), 8)})
		+ GetSourceClosing();
}

}
