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

std::string WriteStatics(const FReflectedType& Type, const std::string& Statics, const FPropertyWriter& Properties)
{
	std::string Result = Fill("\tstruct $0\n\t{\n\t\tstatic UObject* (*const DependentSingletons[])();\n", {Statics});
	Result += WithMetaData("\t\tstatic const UE4CodeGen_Private::FMetaDataPairParam Class_MetaDataParams[];\n");
	Result += Properties.WriteDeclarations();
	Result += "\t\tstatic const FCppClassTypeInfoStatic StaticCppClassTypeInfo;\n"
			  "\t\tstatic const UE4CodeGen_Private::FClassParams ClassParams;\n"
			  "\t};\n";
	Result += Fill("\tUObject* (*const $0::DependentSingletons[])() = {\n"
				   "\t\t(UObject* (*)())$1,\n"
				   "\t\t(UObject* (*)())$2,\n"
				   "\t};\n",
		{Statics, Type.Base->GetConstructFunction(), GetPackageFunction(*Type.Header->Module)});
	Result += WithMetaData(Fill("\tconst UE4CodeGen_Private::FMetaDataPairParam $0::Class_MetaDataParams[] = {\n$1\t};\n",
		{Statics, GetMetaDataLines(Type.MetaData, 2)}));
	Result += Properties.WriteDefinitions();
	return Result
		+ Fill("\tconst FCppClassTypeInfoStatic $0::StaticCppClassTypeInfo = {\n"
			   "\t\tTCppClassTypeTraits<$1>::IsAbstract,\n"
			   "\t};\n",
			{Statics, Type.CppName});
}

std::string WriteParams(const FReflectedType& Type, const std::string& Statics, const FPropertyWriter& Properties)
{
	return Fill("\tconst UE4CodeGen_Private::FClassParams $0::ClassParams = {\n"
				"\t\t&$1::StaticClass,\n"
				"\t\t$2,\n"
				"\t\t&StaticCppClassTypeInfo,\n"
				"\t\tDependentSingletons,\n"
				"\t\tnullptr,\n"
				"\t\t$3,\n"
				"\t\tnullptr,\n"
				"\t\tUE_ARRAY_COUNT(DependentSingletons),\n"
				"\t\t0,\n"
				"\t\t$4,\n"
				"\t\t0,\n"
				"\t\t$5u,\n"
				"\t\t$6\n"
				"\t};\n",
		{Statics, Type.CppName, Type.ConfigName.empty() ? "nullptr" : ToLiteral(Type.ConfigName), Properties.GetPointersArgument(),
			Properties.GetCountArgument(), ToHex(Type.Flags, 8), GetMetaDataParams(Statics + "::Class_MetaDataParams")});
}

std::string WriteTail(const FReflectedType& Type, std::uint32_t Crc)
{
	const std::string Helper = Type.bDeclaresHelperConstructor ? "" : Fill("\tDEFINE_VTABLE_PTR_HELPER_CTOR($0);\n", {Type.CppName});
	return Fill(
		"\tUClass* Z_Construct_UClass_$0()\n"
		"\t{\n"
		"\t\tstatic UClass* OuterClass = nullptr;\n"
		"\t\tif (!OuterClass)\n"
		"\t\t{\n"
		"\t\t\tUE4CodeGen_Private::ConstructUClass(OuterClass, Z_Construct_UClass_$0_Statics::ClassParams);\n"
		"\t\t}\n"
		"\t\treturn OuterClass;\n"
		"\t}\n"
		"\tIMPLEMENT_CLASS($0, $1);\n"
		"\ttemplate<> $2 UClass* StaticClass<$0>()\n"
		"\t{\n"
		"\t\treturn $0::StaticClass();\n"
		"\t}\n"
		"\tstatic FCompiledInDefer Z_CompiledInDefer_UClass_$0(Z_Construct_UClass_$0, &$0::StaticClass, TEXT(\"$3\"), TEXT(\"$0\"), "
		"false, nullptr, nullptr, nullptr);\n"
		"$4",
		{Type.CppName, std::to_string(Crc), Type.ModuleApi, Type.Header->Module->GetPackageName(), Helper});
}

}

std::string WriteClassSource(const FReflectedType& Type)
{
	const std::string Statics = Type.GetConstructFunction() + "_Statics";
	const FPropertyWriter Properties(Type);
	const std::string Data = Fill("\tvoid $0::StaticRegisterNatives$0()\n"
								  "\t{\n"
								  "\t}\n"
								  "\tUClass* Z_Construct_UClass_$0_NoRegister()\n"
								  "\t{\n"
								  "\t\treturn $0::StaticClass();\n"
								  "\t}\n",
								 {Type.CppName})
		+ WriteStatics(Type, Statics, Properties) + WriteParams(Type, Statics, Properties);
	return Data + WriteTail(Type, Crc32(Data));
}

}
