// Copyright The Tintmill authors. All rights reserved.
#include "HeaderWriter.h"

#include "GeneratedText.h"
#include "TextTools.h"

namespace HeaderTool
{

FHeaderWriter::FHeaderWriter(const FHeader& InHeader)
	: Header(InHeader)
{}

std::string FHeaderWriter::GetMacroPrefix(const FReflectedType& Type) const
{
	return Header.FileId + "_" + std::to_string(Type.BodyLine);
}

std::string FHeaderWriter::Write()
{
	const std::string Guard = ToUpper(Header.Module->Name) + "_" + ToIdentifier(Header.Leaf) + "_generated_h";
	Result = GetFileOpening();
	Result += Fill("\n#include \"UObject/ObjectMacros.h\"\n"
				   "#include \"UObject/ScriptMacros.h\"\n"
				   "\n"
				   "PRAGMA_DISABLE_DEPRECATION_WARNINGS\n"
				   "#ifdef $0\n"
				   "#error \"$1.generated.h already included, missing '#pragma once' in $1.h\"\n"
				   "#endif\n"
				   "#define $0\n"
				   "\n",
		{Guard, Header.Leaf});
	for (const FReflectedType* Type : Header.GetTypes(ETypeKind::Struct))
	{
		WriteStruct(*Type);
	}
	for (const FReflectedType* Type : Header.GetTypes(ETypeKind::Class))
	{
		WriteClass(*Type);
	}
	Result += Fill("#undef CURRENT_FILE_ID\n"
				   "#define CURRENT_FILE_ID $0\n"
				   "\n\n",
		{Header.FileId});
	for (const FReflectedType* Type : Header.GetTypes(ETypeKind::Enum))
	{
		WriteEnum(*Type);
	}
	return Result + "PRAGMA_ENABLE_DEPRECATION_WARNINGS\n";
}

std::string GetPrivateOffsets(const FReflectedType& Type, bool bEditorOnly)
{
	std::string Lines;
	for (const FProperty& Property : Type.Properties)
	{
		if (Property.Access != EAccess::Public && Property.bEditorOnly == bEditorOnly && !Property.bBitField)
		{
			Lines += Fill(" \\\n\tFORCEINLINE static uint32 __PPO__$0() { return STRUCT_OFFSET($1, $0); }", {Property.Name, Type.CppName});
		}
	}
	return Lines;
}

void FHeaderWriter::WriteStruct(const FReflectedType& Type)
{
	Result += Fill("#define $0_GENERATED_BODY \\\n"
				   "\tfriend struct $1_Statics; \\\n"
				   "\t$2static class UScriptStruct* StaticStruct();",
		{GetMacroPrefix(Type), Type.GetConstructFunction(), Type.bExported ? "" : Type.ModuleApi + " "});
	Result += GetPrivateOffsets(Type, false);
	if (Type.Base != nullptr)
	{
		Result += Fill(" \\\n\ttypedef $0 Super;", {Type.Base->CppName});
	}
	Result += Fill("\n\n\ntemplate<> $0 UScriptStruct* StaticStruct<struct $1>();\n\n", {Type.ModuleApi, Type.CppName});
}

void FHeaderWriter::WriteEnum(const FReflectedType& Type)
{
	std::string List;
	for (const FEnumerator& Enumerator : Type.Enumerators)
	{
		List += Fill(" \\\n\top($0)", {*Enumerator.MetaData.Find("Name")});
	}
	Result += Fill("#define FOREACH_ENUM_$0(op)$1\n\n", {ToUpper(Type.CppName), List});
	if (Type.bEnumClass)
	{
		Result += Fill("enum class $0$1;\n", {Type.CppName, Type.UnderlyingType.empty() ? "" : " : " + Type.UnderlyingType});
		Result += Fill("template<> $0 UEnum* StaticEnum<$1>();\n\n", {Type.ModuleApi, Type.CppName});
	}
}

}
