// Copyright The Tintmill authors. All rights reserved.
#include "CrossReferences.h"
#include "GeneratedText.h"
#include "PropertyWriter.h"
#include "SourceWriter.h"
#include "TextTools.h"

namespace HeaderTool
{

namespace
{

std::string WriteRegistration(const FReflectedType& Type, const std::string& Construct)
{
	const FModule& Module = *Type.Header->Module;
	return Fill(
		"class UScriptStruct* $0::StaticStruct()\n"
		"{\n"
		"\tstatic class UScriptStruct* Singleton = nullptr;\n"
		"\tif (!Singleton)\n"
		"\t{\n"
		"\t\textern $1 uint32 Get_$2_Hash();\n"
		"\t\tSingleton = GetStaticStruct($2, $3(), TEXT(\"$4\"), sizeof($0), Get_$2_Hash());\n"
		"\t}\n"
		"\treturn Singleton;\n"
		"}\n"
		"template<> $1 UScriptStruct* StaticStruct<$0>()\n"
		"{\n"
		"\treturn $0::StaticStruct();\n"
		"}\n"
		"static FCompiledInDeferStruct Z_CompiledInDeferStruct_UScriptStruct_$0($0::StaticStruct, TEXT(\"$5\"), TEXT(\"$4\"), false, "
		"nullptr, nullptr);\n"
		"static struct FScriptStruct_$6_StaticRegisterNatives$0\n"
		"{\n"
		"\tFScriptStruct_$6_StaticRegisterNatives$0()\n"
		"\t{\n"
		"\t\tUScriptStruct::DeferCppStructOps<$0>(FName(TEXT(\"$4\")));\n"
		"\t}\n"
		"} ScriptStruct_$6_StaticRegisterNatives$0;\n",
		{Type.CppName, Type.ModuleApi, Construct, GetPackageFunction(Module), Type.GetEngineName(), Module.GetPackageName(), Module.Name});
}

std::string WriteParams(const FReflectedType& Type, const std::string& Statics, const FPropertyWriter& Properties)
{
	return Fill("\tconst UE4CodeGen_Private::FStructParams $0::ReturnStructParams = {\n"
				"\t\t(UObject* (*)())$1,\n"
				"\t\t$2,\n"
				"\t\t&NewStructOps,\n"
				"\t\t\"$3\",\n"
				"\t\tsizeof($4),\n"
				"\t\talignof($4),\n"
				"\t\t$5,\n"
				"\t\t$6,\n"
				"\t\tRF_Public|RF_Transient|RF_MarkAsNative,\n"
				"\t\tEStructFlags($7),\n"
				"\t\t$8\n"
				"\t};\n",
		{Statics, GetPackageFunction(*Type.Header->Module), Type.Base != nullptr ? Type.Base->GetConstructFunction() : "nullptr",
			Type.GetEngineName(), Type.CppName, Properties.GetPointersArgument(), Properties.GetCountArgument(), ToHex(Type.Flags, 8),
			GetMetaDataParams(Statics + "::Struct_MetaDataParams")});
}

std::string WriteConstruct(const FReflectedType& Type, const std::string& Construct, std::uint32_t Hash)
{
	return Fill("\tUScriptStruct* $0()\n"
				"\t{\n"
				"#if WITH_HOT_RELOAD\n"
				"\t\textern uint32 Get_$0_Hash();\n"
				"\t\tUPackage* Outer = $1();\n"
				"\t\tstatic UScriptStruct* ReturnStruct = FindExistingStructIfHotReloadOrDynamic(Outer, TEXT(\"$2\"), sizeof($3), "
				"Get_$0_Hash(), false);\n"
				"#else\n"
				"\t\tstatic UScriptStruct* ReturnStruct = nullptr;\n"
				"#endif\n"
				"\t\tif (!ReturnStruct)\n"
				"\t\t{\n"
				"\t\t\tUE4CodeGen_Private::ConstructUScriptStruct(ReturnStruct, $0_Statics::ReturnStructParams);\n"
				"\t\t}\n"
				"\t\treturn ReturnStruct;\n"
				"\t}\n"
				"\tuint32 Get_$0_Hash() { return $4U; }\n",
		{Construct, GetPackageFunction(*Type.Header->Module), Type.GetEngineName(), Type.CppName, std::to_string(Hash)});
}

}

std::string WriteStructSource(const FReflectedType& Type)
{
	const std::string Construct = Type.GetConstructFunction();
	const std::string Statics = Construct + "_Statics";
	const FPropertyWriter Properties(Type);
	std::string Data = Fill("\tstruct $0\n\t{\n", {Statics});
	Data += WithMetaData("\t\tstatic const UE4CodeGen_Private::FMetaDataPairParam Struct_MetaDataParams[];\n");
	Data += "\t\tstatic void* NewStructOps();\n" + Properties.WriteDeclarations();
	Data += "\t\tstatic const UE4CodeGen_Private::FStructParams ReturnStructParams;\n\t};\n";
	Data += WithMetaData(Fill("\tconst UE4CodeGen_Private::FMetaDataPairParam $0::Struct_MetaDataParams[] = {\n$1\t};\n",
		{Statics, GetMetaDataLines(Type.MetaData, 2)}));
	Data += Fill("\tvoid* $0::NewStructOps()\n"
				 "\t{\n"
				 "\t\treturn (UScriptStruct::ICppStructOps*)new UScriptStruct::TCppStructOps<$1>();\n"
				 "\t}\n",
		{Statics, Type.CppName});
	Data += Properties.WriteDefinitions() + WriteParams(Type, Statics, Properties);
	return WriteRegistration(Type, Construct) + Data + WriteConstruct(Type, Construct, Crc32(Data));
}

}
