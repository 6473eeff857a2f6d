// Copyright The Tintmill authors. All rights reserved.
#include "HeaderWriter.h"

#include "ClassSpecifiers.h"
#include "TextTools.h"

namespace HeaderTool
{

namespace
{

/** Only of a class that exports nothing but its type functions are the generated members exported one by one. */
std::string GetMemberApi(const FReflectedType& Type)
{
	return (Type.Flags & ClassMinimalApi) != 0 ? Type.ModuleApi : "NO_API";
}

std::string GetStaticFlags(const FReflectedType& Type)
{
	std::string Text = (Type.Flags & ClassAbstract) != 0 ? "CLASS_Abstract" : "0";
	Text += (Type.Flags & ClassTransient) != 0 ? " | CLASS_Transient" : "";
	Text += (Type.Flags & ClassDefaultConfig) != 0 ? " | CLASS_DefaultConfig" : "";
	Text += (Type.Flags & ClassProjectUserConfig) != 0 ? " | CLASS_ProjectUserConfig" : "";
	return Text + ((Type.Flags & ClassConfig) != 0 ? " | CLASS_Config" : "");
}

std::string GetConstructorCall(const FReflectedType& Type, bool bInitializer)
{
	return Fill("DEFINE_$0DEFAULT_$1CONSTRUCTOR_CALL($2)",
		{(Type.Flags & ClassAbstract) != 0 ? "ABSTRACT_" : "", bInitializer ? "OBJECT_INITIALIZER_" : "", Type.CppName});
}

std::string GetHelperConstructors(const FReflectedType& Type)
{
	const std::string Declaration =
		Type.bDeclaresHelperConstructor ? "" : Fill("\tDECLARE_VTABLE_PTR_HELPER_CTOR($0, $1); \\\n", {GetMemberApi(Type), Type.CppName});
	return Declaration + Fill("\tDEFINE_VTABLE_PTR_HELPER_CTOR_CALLER($0); \\\n", {Type.CppName});
}

std::string GetPrivateCopies(const FReflectedType& Type)
{
	return Fill("private: \\\n"
				"\t/** Private move- and copy-constructors, should never be used */ \\\n"
				"\t$0 $1($1&&); \\\n"
				"\t$0 $1(const $1&); \\\n"
				"public:",
		{GetMemberApi(Type), Type.CppName});
}

/** A base that has nothing but a plain default constructor cannot be handed the initializer. */
bool BaseTakesInitializer(const FReflectedType& Type)
{
	const FReflectedType* Base = Type.Base;
	return Base == nullptr || Base->bLegacyBody || Base->bDeclaresInitializerConstructor || !Base->bDeclaresDefaultConstructor;
}

const char* const ConstructorComment = "\t/** Standard constructor, called after all reflected properties have been initialized */ \\\n";

}

void FHeaderWriter::WriteClass(const FReflectedType& Type)
{
	const std::string Prefix = GetMacroPrefix(Type);
	for (const char* Name : {"SPARSE_DATA", "RPC_WRAPPERS", "RPC_WRAPPERS_NO_PURE_DECLS"})
	{
		Result += Fill("#define $0_$1\n", {Prefix, Name});
	}
	WriteInClass(Type, "INCLASS_NO_PURE_DECLS");
	WriteInClass(Type, "INCLASS");
	WriteStandardConstructors(Type);
	WriteEnhancedConstructors(Type);
	WritePrivateOffsets(Type);
	Result += Fill("#define $0_$1_PROLOG\n", {Header.FileId, std::to_string(Type.MacroLine)});
	if (Type.MacroLastLine != Type.MacroLine)
	{
		// Compilers disagree about the line of a macro call that spans several.
		Result += Fill("#define $0_$1_PROLOG\n", {Header.FileId, std::to_string(Type.MacroLastLine)});
	}
	WriteBody(Type, true);
	WriteBody(Type, false);
	Result += Fill("template<> $0 UClass* StaticClass<class $1>();\n\n", {Type.ModuleApi, Type.CppName});
}

void FHeaderWriter::WriteInClass(const FReflectedType& Type, const std::string& Macro)
{
	Result += Fill("#define $0_$1 \\\n"
				   "private: \\\n"
				   "\tstatic void StaticRegisterNatives$2(); \\\n"
				   "\tfriend struct Z_Construct_UClass_$2_Statics; \\\n"
				   "public: \\\n"
				   "\tDECLARE_CLASS($2, $3, COMPILED_IN_FLAGS($4), CASTCLASS_None, TEXT(\"$5\"), $6) \\\n"
				   "\tDECLARE_SERIALIZER($2)",
		{GetMacroPrefix(Type), Macro, Type.CppName, Type.BaseName, GetStaticFlags(Type), Header.Module->GetPackageName(),
			GetMemberApi(Type)});
	if (!Type.WithinName.empty())
	{
		Result += Fill(" \\\n\tDECLARE_WITHIN($0)", {Type.WithinName});
	}
	if (!Type.ConfigName.empty() && (Type.Base == nullptr || Type.Base->ConfigName != Type.ConfigName))
	{
		Result += Fill(" \\\n\tstatic const TCHAR* StaticConfigName() {return TEXT(\"$0\");}", {Type.ConfigName});
	}
	Result += "\n\n\n";
}

void FHeaderWriter::WriteStandardConstructors(const FReflectedType& Type)
{
	Result += Fill("#define $0_STANDARD_CONSTRUCTORS \\\n", {GetMacroPrefix(Type)});
	Result += ConstructorComment;
	Result += Fill("\t$0 $1(const FObjectInitializer& ObjectInitializer); \\\n"
				   "\t$2 \\\n"
				   "$3$4\n\n\n",
		{GetMemberApi(Type), Type.CppName, GetConstructorCall(Type, true), GetHelperConstructors(Type), GetPrivateCopies(Type)});
}

void FHeaderWriter::WriteEnhancedConstructors(const FReflectedType& Type)
{
	const bool bOwn = Type.bDeclaresInitializerConstructor || Type.bDeclaresDefaultConstructor;
	Result += Fill("#define $0_ENHANCED_CONSTRUCTORS \\\n", {GetMacroPrefix(Type)});
	if (!bOwn)
	{
		Result += ConstructorComment;
		const bool bHandOn = BaseTakesInitializer(Type);
		Result += Fill("\t$0 $1(const FObjectInitializer&$2 = FObjectInitializer::Get())$3 { }; \\\n",
			{GetMemberApi(Type), Type.CppName, bHandOn ? " ObjectInitializer" : "", bHandOn ? " : Super(ObjectInitializer)" : ""});
	}
	Result += Fill("$0 \\\n$1\t$2\n\n\n",
		{GetPrivateCopies(Type), GetHelperConstructors(Type), GetConstructorCall(Type, !bOwn || Type.bDeclaresInitializerConstructor)});
}

void FHeaderWriter::WritePrivateOffsets(const FReflectedType& Type)
{
	const std::string Define = Fill("#define $0_PRIVATE_PROPERTY_OFFSET", {GetMacroPrefix(Type)});
	const std::string Always = GetPrivateOffsets(Type, false);
	const std::string Editor = GetPrivateOffsets(Type, true);
	if (Editor.empty())
	{
		Result += Define + Always + "\n\n\n";
	}
	else
	{
		Result += "#if WITH_EDITORONLY_DATA\n" + Define + Always + Editor + "\n#else\n" + Define + Always
			+ "\n#endif // WITH_EDITORONLY_DATA\n\n\n";
	}
}

void FHeaderWriter::WriteBody(const FReflectedType& Type, bool bLegacy)
{
	Result += Fill("#define $0_GENERATED_BODY$1 \\\n"
				   "PRAGMA_DISABLE_DEPRECATION_WARNINGS \\\n"
				   "public: \\\n"
				   "\t$0_PRIVATE_PROPERTY_OFFSET \\\n"
				   "\t$0_SPARSE_DATA \\\n"
				   "\t$0_RPC_WRAPPERS$2 \\\n"
				   "\t$0_INCLASS$2 \\\n"
				   "\t$0_$3_CONSTRUCTORS \\\n"
				   "$4: \\\n"
				   "PRAGMA_ENABLE_DEPRECATION_WARNINGS\n\n\n",
		{GetMacroPrefix(Type), bLegacy ? "_LEGACY" : "", bLegacy ? "" : "_NO_PURE_DECLS", bLegacy ? "STANDARD" : "ENHANCED",
			bLegacy ? "public" : "private"});
}

}
