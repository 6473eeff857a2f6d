// Copyright The Tintmill authors. All rights reserved.
#include "Model.h"

namespace HeaderTool
{

std::string FReflectedType::GetEngineName() const
{
	return Kind == ETypeKind::Enum || CppName.size() < 2 ? CppName : CppName.substr(1);
}

const char* FReflectedType::GetKindName() const
{
	return Kind == ETypeKind::Class ? "class" : Kind == ETypeKind::Struct ? "struct" : "enum";
}

std::string FReflectedType::GetConstructFunction() const
{
	if (Kind == ETypeKind::Enum)
	{
		return "Z_Construct_UEnum_" + Header->Module->Name + "_" + CppName;
	}
	return (Kind == ETypeKind::Class ? "Z_Construct_UClass_" : "Z_Construct_UScriptStruct_") + CppName;
}

std::string FHeader::GetIncludePath() const
{
	for (const std::string Folder : {"Public/", "Private/", "Classes/"})
	{
		if (ModuleRelativePath.compare(0, Folder.size(), Folder) == 0)
		{
			return ModuleRelativePath.substr(Folder.size());
		}
	}
	return ModuleRelativePath;
}

std::vector<const FReflectedType*> FHeader::GetTypes(ETypeKind Kind) const
{
	std::vector<const FReflectedType*> Result;
	for (const std::unique_ptr<FReflectedType>& Type : Types)
	{
		if (Type->Kind == Kind)
		{
			Result.push_back(Type.get());
		}
	}
	return Result;
}

}
