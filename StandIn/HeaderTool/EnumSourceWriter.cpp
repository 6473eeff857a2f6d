// Copyright The Tintmill authors. All rights reserved.
#include "CrossReferences.h"
#include "GeneratedText.h"
#include "SourceWriter.h"
#include "TextTools.h"

namespace HeaderTool
{

std::string WriteEnumSource(const FReflectedType& Type)
{
	const FModule& Module = *Type.Header->Module;
	const std::string Construct = Type.GetConstructFunction();
	std::string Enumerators;
	for (const FEnumerator& Enumerator : Type.Enumerators)
	{
		Enumerators += Fill("\t\t\t\t{ \"$0\", (int64)$0 },\n", {*Enumerator.MetaData.Find("Name")});
	}
	const std::string MetaData = GetMetaDataLines(Type.MetaData, 4);

	std::string Result = Fill("\tstatic UEnum* $0_StaticEnum()\n"
							  "\t{\n"
							  "\t\tstatic UEnum* Singleton = nullptr;\n"
							  "\t\tif (!Singleton)\n"
							  "\t\t{\n"
							  "\t\t\tSingleton = GetStaticEnum($1, $2(), TEXT(\"$0\"));\n"
							  "\t\t}\n"
							  "\t\treturn Singleton;\n"
							  "\t}\n",
		{Type.CppName, Construct, GetPackageFunction(Module)});
	if (Type.bEnumClass)
	{
		Result += Fill("\ttemplate<> $0 UEnum* StaticEnum<$1>()\n"
					   "\t{\n"
					   "\t\treturn $1_StaticEnum();\n"
					   "\t}\n",
			{Type.ModuleApi, Type.CppName});
	}
	Result += Fill("\tstatic FCompiledInDeferEnum Z_CompiledInDeferEnum_UEnum_$0($0_StaticEnum, TEXT(\"$1\"), TEXT(\"$0\"), false, "
				   "nullptr, nullptr);\n"
				   "\tuint32 Get_$2_Hash() { return $3U; }\n",
		{Type.CppName, Module.GetPackageName(), Construct, std::to_string(Crc32(Type.CppName + Enumerators + MetaData))});
	Result += Fill("\tUEnum* $0()\n"
				   "\t{\n"
				   "#if WITH_HOT_RELOAD\n"
				   "\t\tUPackage* Outer = $1();\n"
				   "\t\tstatic UEnum* ReturnEnum = FindExistingEnumIfHotReloadOrDynamic(Outer, TEXT(\"$2\"), 0, Get_$0_Hash(), false);\n"
				   "#else\n"
				   "\t\tstatic UEnum* ReturnEnum = nullptr;\n"
				   "#endif // WITH_HOT_RELOAD\n"
				   "\t\tif (!ReturnEnum)\n"
				   "\t\t{\n"
				   "\t\t\tstatic const UE4CodeGen_Private::FEnumeratorParam Enumerators[] = {\n"
				   "$3"
				   "\t\t\t};\n",
		{Construct, GetPackageFunction(Module), Type.CppName, Enumerators});
	Result += WithMetaData("\t\t\tconst UE4CodeGen_Private::FMetaDataPairParam Enum_MetaDataParams[] = {\n" + MetaData + "\t\t\t};\n");
	Result += Fill("\t\t\tstatic const UE4CodeGen_Private::FEnumParams EnumParams = {\n"
				   "\t\t\t\t(UObject*(*)())$0,\n"
				   "\t\t\t\tnullptr,\n"
				   "\t\t\t\t\"$1\",\n"
				   "\t\t\t\t\"$1\",\n"
				   "\t\t\t\tEnumerators,\n"
				   "\t\t\t\tUE_ARRAY_COUNT(Enumerators),\n"
				   "\t\t\t\tRF_Public|RF_Transient|RF_MarkAsNative,\n"
				   "\t\t\t\tEEnumFlags::None,\n"
				   "\t\t\t\tUE4CodeGen_Private::EDynamicType::NotDynamic,\n"
				   "\t\t\t\t(uint8)UEnum::ECppForm::$2,\n"
				   "\t\t\t\t$3\n"
				   "\t\t\t};\n"
				   "\t\t\tUE4CodeGen_Private::ConstructUEnum(ReturnEnum, EnumParams);\n"
				   "\t\t}\n"
				   "\t\treturn ReturnEnum;\n"
				   "\t}\n",
		{GetPackageFunction(Module), Type.CppName, Type.bEnumClass ? "EnumClass" : "Regular", GetMetaDataParams("Enum_MetaDataParams")});
	return Result;
}

}
