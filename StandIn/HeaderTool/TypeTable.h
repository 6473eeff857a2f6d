// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "Diagnostics.h"
#include "Model.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace HeaderTool
{

/** Every reflected type of the run by name, the object system's own classes included. */
class FTypeTable
{
public:
	/** Starts with the classes that need no header: UObject, UField, UStruct, UScriptStruct, UClass, UEnum, UFunction, UPackage. */
	FTypeTable();

	/** Adds a type; complains where its prefix is wrong or its name is taken. */
	void Add(FReflectedType& Type, FDiagnostics& Diagnostics);

	/** The type of that C++ name or null. */
	const FReflectedType* Find(const std::string& CppName) const;

private:
	void AddIntrinsic(const std::string& CppName, const std::string& BaseName);
	void CheckPrefix(const FReflectedType& Type, FDiagnostics& Diagnostics) const;
	bool CheckName(const FReflectedType& Type, FDiagnostics& Diagnostics) const;

	std::vector<std::unique_ptr<FReflectedType>> Intrinsics;
	std::map<std::string, const FReflectedType*> ByCppName;
	/** The engine compares names without regard to case. */
	std::map<std::string, const FReflectedType*> ByEngineName;
};

}
