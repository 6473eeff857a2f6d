// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "Model.h"

#include <string>
#include <vector>

namespace HeaderTool
{

/** Collects the declarations of construct functions that a generated source file uses. */
class FCrossReferences
{
public:
	/** Declares what constructs the type; bNoRegister takes a class's variant that only hands it out. */
	void AddType(const FReflectedType& Type, bool bNoRegister = false);

	/** Declares what constructs the module's package. */
	void AddPackage(const FModule& Module);

	/** Declares everything that the type and its properties refer to. */
	void AddUses(const FReflectedType& Type);

	/** The declarations in order of first use, one line each. */
	std::string Write() const;

private:
	void Add(const std::string& Declaration);
	void AddProperty(const FPropertyType& Type);

	std::vector<std::string> Declarations;
};

/** The name of the function that constructs a module's package. */
std::string GetPackageFunction(const FModule& Module);

}
