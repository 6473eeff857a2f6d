// Copyright The Tintmill authors. All rights reserved.
#include "CrossReferences.h"

#include "TextTools.h"

#include <algorithm>

namespace HeaderTool
{

std::string GetPackageFunction(const FModule& Module)
{
	return "Z_Construct_UPackage__Script_" + Module.Name;
}

void FCrossReferences::Add(const std::string& Declaration)
{
	if (std::find(Declarations.begin(), Declarations.end(), Declaration) == Declarations.end())
	{
		Declarations.push_back(Declaration);
	}
}

void FCrossReferences::AddType(const FReflectedType& Type, bool bNoRegister)
{
	const char* Result = Type.Kind == ETypeKind::Class ? "UClass" : Type.Kind == ETypeKind::Struct ? "UScriptStruct" : "UEnum";
	Add(Fill("$0 $1* $2$3();", {Type.ModuleApi, Result, Type.GetConstructFunction(), bNoRegister ? "_NoRegister" : ""}));
}

void FCrossReferences::AddPackage(const FModule& Module)
{
	Add("UPackage* " + GetPackageFunction(Module) + "();");
}

void FCrossReferences::AddProperty(const FPropertyType& Type)
{
	if (Type.Inner != nullptr)
	{
		AddProperty(*Type.Inner);
	}
	if (Type.Reference != nullptr)
	{
		AddType(*Type.Reference, Type.Reference->Kind == ETypeKind::Class);
	}
	if (Type.Kind == EPropertyKind::Class)
	{
		Add("COREUOBJECT_API UClass* Z_Construct_UClass_UClass();");
	}
}

void FCrossReferences::AddUses(const FReflectedType& Type)
{
	if (Type.Kind == ETypeKind::Class)
	{
		AddType(Type, true);
	}
	AddType(Type);
	if (Type.Base != nullptr)
	{
		AddType(*Type.Base);
	}
	AddPackage(*Type.Header->Module);
	for (const FProperty& Property : Type.Properties)
	{
		AddProperty(Property.Type);
	}
}

std::string FCrossReferences::Write() const
{
	std::string Result = "// Cross Module References\n";
	for (const std::string& Declaration : Declarations)
	{
		Result += "\t" + Declaration + "\n";
	}
	return Result + "// End Cross Module References\n";
}

}
