// Copyright The Tintmill authors. All rights reserved.
#include "PropertyWriter.h"

#include "GeneratedText.h"
#include "PropertyResolver.h"
#include "TextTools.h"

namespace HeaderTool
{

namespace
{

const char* const ObjectFlags = "RF_Public|RF_Transient|RF_MarkAsNative";

std::string InEditorOnly(const FProperty& Property, const std::string& Lines)
{
	return Property.bEditorOnly ? "#if WITH_EDITORONLY_DATA\n" + Lines + "#endif // WITH_EDITORONLY_DATA\n" : Lines;
}

/** The suffix of what describes the element of an array or the number below an enum. */
std::string GetInnerSuffix(const FProperty& Property)
{
	return Property.Type.Kind == EPropertyKind::Enum ? "_Underlying" : "_Inner";
}

/** An array of enums has both an element and the number below it. */
bool HasElementNumber(const FProperty& Property)
{
	return Property.Type.Kind == EPropertyKind::Array && Property.Type.Inner->Kind == EPropertyKind::Enum;
}

std::string WriteUnderlying(const std::string& Variable, const FPropertyType& Type)
{
	return Fill("\tconst UE4CodeGen_Private::$0 $1 = { \"UnderlyingType\", nullptr, (EPropertyFlags)0x0000000000000000, "
				"UE4CodeGen_Private::EPropertyGenFlags::$2, $3, 1, 0, $4METADATA_PARAMS(nullptr, 0) };\n",
		{Type.Params, Variable, Type.GenFlag, ObjectFlags, Type.Kind == EPropertyKind::Byte ? "nullptr, " : ""});
}

}

FPropertyWriter::FPropertyWriter(const FReflectedType& InOwner)
	: Owner(InOwner)
	, Statics(InOwner.GetConstructFunction() + "_Statics")
{}

std::string FPropertyWriter::GetPointersArgument() const
{
	return Owner.Properties.empty() ? "nullptr" : Statics + "::PropPointers";
}

std::string FPropertyWriter::GetCountArgument() const
{
	return Owner.Properties.empty() ? "0" : "UE_ARRAY_COUNT(" + Statics + "::PropPointers)";
}

std::string FPropertyWriter::WriteDeclarations() const
{
	std::string Result;
	for (const FProperty& Property : Owner.Properties)
	{
		Result += InEditorOnly(Property, WriteDeclaration(Property));
	}
	return Owner.Properties.empty() ? Result : Result + "\t\tstatic const UE4CodeGen_Private::FPropertyParamsBase* const PropPointers[];\n";
}

std::string FPropertyWriter::WriteDeclaration(const FProperty& Property) const
{
	std::string Result;
	const std::string Suffix = GetInnerSuffix(Property);
	if (HasElementNumber(Property))
	{
		Result += Fill(
			"\t\tstatic const UE4CodeGen_Private::$0 NewProp_$1_Inner_Underlying;\n", {Property.Type.Inner->Inner->Params, Property.Name});
	}
	if (Property.Type.Inner != nullptr)
	{
		Result += Fill("\t\tstatic const UE4CodeGen_Private::$0 NewProp_$1$2;\n", {Property.Type.Inner->Params, Property.Name, Suffix});
	}
	Result += WithMetaData(Fill("\t\tstatic const UE4CodeGen_Private::FMetaDataPairParam NewProp_$0_MetaData[];\n", {Property.Name}));
	if (Property.Type.Kind == EPropertyKind::Bool)
	{
		Result += Fill("\t\tstatic void NewProp_$0_SetBit(void* Obj);\n", {Property.Name});
	}
	return Result + Fill("\t\tstatic const UE4CodeGen_Private::$0 NewProp_$1;\n", {Property.Type.Params, Property.Name});
}

std::string FPropertyWriter::WriteDefinitions() const
{
	std::string Result;
	std::string Pointers;
	for (const FProperty& Property : Owner.Properties)
	{
		Result += InEditorOnly(Property, WriteDefinition(Property));
		std::string Lines = HasElementNumber(Property) ? WritePointer(Property, "_Inner_Underlying") : "";
		Lines += Property.Type.Inner != nullptr ? WritePointer(Property, GetInnerSuffix(Property)) : "";
		Pointers += InEditorOnly(Property, Lines + WritePointer(Property, ""));
	}
	if (!Owner.Properties.empty())
	{
		Result += Fill("\tconst UE4CodeGen_Private::FPropertyParamsBase* const $0::PropPointers[] = {\n$1\t};\n", {Statics, Pointers});
	}
	return Result;
}

std::string FPropertyWriter::WritePointer(const FProperty& Property, const std::string& Suffix) const
{
	return Fill("\t\t(const UE4CodeGen_Private::FPropertyParamsBase*)&$0::NewProp_$1$2,\n", {Statics, Property.Name, Suffix});
}

std::string FPropertyWriter::WriteDefinition(const FProperty& Property) const
{
	const std::string Array = Fill("$0::NewProp_$1_MetaData", {Statics, Property.Name});
	std::string Result = WriteInner(Property);
	Result += WithMetaData(
		Fill("\tconst UE4CodeGen_Private::FMetaDataPairParam $0[] = {\n$1\t};\n", {Array, GetMetaDataLines(Property.MetaData, 2)}));
	if (Property.Type.Kind == EPropertyKind::Bool)
	{
		Result += Fill("\tvoid $0::NewProp_$1_SetBit(void* Obj)\n"
					   "\t{\n"
					   "\t\t(($2*)Obj)->$1 = 1;\n"
					   "\t}\n",
			{Statics, Property.Name, Owner.CppName});
	}
	return Result + WriteParams(Property);
}

std::string FPropertyWriter::WriteInner(const FProperty& Property) const
{
	if (Property.Type.Inner == nullptr)
	{
		return "";
	}
	const FPropertyType& Inner = *Property.Type.Inner;
	const std::string Variable = Fill("$0::NewProp_$1", {Statics, Property.Name});
	if (Property.Type.Kind == EPropertyKind::Enum)
	{
		return WriteUnderlying(Variable + "_Underlying", Inner);
	}
	std::string Result = HasElementNumber(Property) ? WriteUnderlying(Variable + "_Inner_Underlying", *Inner.Inner) : "";
	const std::string Flags = ToHex(Property.Flags & CpfHandedToElement, 16);
	if (Inner.Kind == EPropertyKind::Bool)
	{
		return Result
			+ Fill(
				"\tconst UE4CodeGen_Private::FBoolPropertyParams $0_Inner = { \"$1\", nullptr, (EPropertyFlags)$2, "
				"UE4CodeGen_Private::EPropertyGenFlags::Bool | UE4CodeGen_Private::EPropertyGenFlags::NativeBool, $3, 1, sizeof(bool), 0, "
				"nullptr, METADATA_PARAMS(nullptr, 0) };\n",
				{Variable, Property.Name, Flags, ObjectFlags});
	}
	return Result
		+ Fill("\tconst UE4CodeGen_Private::$0 $1_Inner = { \"$2\", nullptr, (EPropertyFlags)$3, "
			   "UE4CodeGen_Private::EPropertyGenFlags::$4, $5, 1, 0, $6METADATA_PARAMS(nullptr, 0) };\n",
			{Inner.Params, Variable, Property.Name, Flags, Inner.GenFlag, ObjectFlags, GetReferenceArguments(Inner)});
}

std::string FPropertyWriter::WriteParams(const FProperty& Property) const
{
	const std::string Variable = Fill("$0::NewProp_$1", {Statics, Property.Name});
	const std::string Dimension = Property.bFixedArray ? Fill("CPP_ARRAY_DIM($0, $1)", {Property.Name, Owner.CppName}) : "1";
	std::string Result = Fill("\tconst UE4CodeGen_Private::$0 $1 = { \"$2\", nullptr, (EPropertyFlags)$3, "
							  "UE4CodeGen_Private::EPropertyGenFlags::$4",
		{Property.Type.Params, Variable, Property.Name, ToHex(Property.Flags, 16), Property.Type.GenFlag});
	if (Property.Type.Kind == EPropertyKind::Bool)
	{
		const std::string Native = Property.bBitField ? " " : " | UE4CodeGen_Private::EPropertyGenFlags::NativeBool";
		Result += Fill("$0, $1, $2, sizeof($3), sizeof($4), &$5_SetBit, ",
			{Native, ObjectFlags, Dimension, Property.Type.CppName, Owner.CppName, Variable});
	}
	else
	{
		Result += Fill(", $0, $1, STRUCT_OFFSET($2, $3), $4",
			{ObjectFlags, Dimension, Owner.CppName, Property.Name, GetReferenceArguments(Property.Type)});
	}
	return Result + GetMetaDataParams(Variable + "_MetaData") + " };\n";
}

std::string FPropertyWriter::GetReferenceArguments(const FPropertyType& Type) const
{
	switch (Type.Kind)
	{
	case EPropertyKind::Byte:
		return (Type.Reference != nullptr ? Type.Reference->GetConstructFunction() : "nullptr") + ", ";
	case EPropertyKind::Enum:
	case EPropertyKind::Struct:
		return Type.Reference->GetConstructFunction() + ", ";
	case EPropertyKind::Object:
	case EPropertyKind::WeakObject:
		return Type.Reference->GetConstructFunction() + "_NoRegister, ";
	case EPropertyKind::Class:
		return Type.Reference->GetConstructFunction() + "_NoRegister, Z_Construct_UClass_UClass, ";
	case EPropertyKind::Array:
		return "EArrayPropertyFlags::None, ";
	case EPropertyKind::Plain:
	case EPropertyKind::Bool:
		break;
	}
	return "";
}

}
