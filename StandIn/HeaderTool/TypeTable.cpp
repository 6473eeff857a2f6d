// Copyright The Tintmill authors. All rights reserved.
#include "TypeTable.h"

#include "TextTools.h"

#include <cctype>

namespace HeaderTool
{

namespace
{

bool HasPrefix(const std::string& Name, const std::string& Letters)
{
	return Name.size() > 1 && Letters.find(Name[0]) != std::string::npos && std::islower(static_cast<unsigned char>(Name[1])) == 0;
}

std::string Describe(const FReflectedType& Type)
{
	return Type.GetKindName() + std::string(" '") + Type.CppName + "'";
}

std::string Capitalize(std::string Text)
{
	Text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(Text[0])));
	return Text;
}

}

FTypeTable::FTypeTable()
{
	AddIntrinsic("UObject", "");
	AddIntrinsic("UField", "UObject");
	AddIntrinsic("UStruct", "UField");
	AddIntrinsic("UScriptStruct", "UStruct");
	AddIntrinsic("UClass", "UStruct");
	AddIntrinsic("UFunction", "UStruct");
	AddIntrinsic("UEnum", "UField");
	AddIntrinsic("UPackage", "UObject");
}

void FTypeTable::AddIntrinsic(const std::string& CppName, const std::string& BaseName)
{
	auto Type = std::make_unique<FReflectedType>();
	Type->CppName = CppName;
	Type->BaseName = BaseName;
	Type->Base = Find(BaseName);
	Type->ModuleApi = "COREUOBJECT_API";
	Type->bDeclaresInitializerConstructor = true;
	ByCppName[CppName] = Type.get();
	ByEngineName[ToLower(Type->GetEngineName())] = Type.get();
	Intrinsics.push_back(std::move(Type));
}

const FReflectedType* FTypeTable::Find(const std::string& CppName) const
{
	const auto Found = ByCppName.find(CppName);
	return Found == ByCppName.end() ? nullptr : Found->second;
}

void FTypeTable::CheckPrefix(const FReflectedType& Type, FDiagnostics& Diagnostics) const
{
	const std::string& Name = Type.CppName;
	if (Type.Kind == ETypeKind::Enum)
	{
		return;
	}
	const bool bClass = Type.Kind == ETypeKind::Class;
	// Whatever derives from an actor is one.
	const bool bActor = bClass && (Name == "AActor" || HasPrefix(Type.BaseName, "A"));
	if (HasPrefix(Name, bActor ? "A" : bClass ? "U" : "FT"))
	{
		return;
	}
	const std::string Plain = HasPrefix(Name, "UAFTSIE") ? Name.substr(1) : Name;
	Diagnostics.Error(Type.Header->Path.generic_string(), Type.Line,
		Capitalize(Describe(Type)) + " has an invalid Unreal prefix, expecting '"
			+ (bActor        ? "A"
					: bClass ? "U"
							 : "F")
			+ Plain + "'");
}

bool FTypeTable::CheckName(const FReflectedType& Type, FDiagnostics& Diagnostics) const
{
	const std::string File = Type.Header->Path.generic_string();
	const auto Found = ByEngineName.find(ToLower(Type.GetEngineName()));
	if (Found == ByEngineName.end())
	{
		return true;
	}
	const FReflectedType& Other = *Found->second;
	if (Type.Kind == ETypeKind::Class && Other.Kind == ETypeKind::Class && Other.CppName == Type.CppName)
	{
		const std::string Package = Other.Header != nullptr ? Other.Header->Module->GetPackageName() : "/Script/CoreUObject";
		Diagnostics.Error(File, Type.Line, "Duplicate class name: " + Type.CppName + " also exists in file " + Package);
		return false;
	}
	const std::string Place = Other.Header != nullptr ? Other.Header->Path.generic_string() : "UObject/Object.h";
	Diagnostics.Error(File, Type.Line,
		Capitalize(Describe(Type)) + " shares engine name '" + Type.GetEngineName() + "' with " + Describe(Other) + " in " + Place + "("
			+ std::to_string(Other.Line) + ")");
	return false;
}

void FTypeTable::Add(FReflectedType& Type, FDiagnostics& Diagnostics)
{
	if (Type.CppName.empty())
	{
		return;
	}
	if (!Type.bBroken)
	{
		CheckPrefix(Type, Diagnostics);
	}
	if (CheckName(Type, Diagnostics))
	{
		ByEngineName[ToLower(Type.GetEngineName())] = &Type;
	}
	ByCppName.emplace(Type.CppName, &Type);
}

}
