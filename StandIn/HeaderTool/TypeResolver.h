// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "Diagnostics.h"
#include "Model.h"
#include "TypeTable.h"

#include <set>

namespace HeaderTool
{

/** Finds bases, works out flags and metadata, and checks everything that needs more than one header. */
class FTypeResolver
{
public:
	/** Looks types up in the table. */
	FTypeResolver(const FTypeTable& InTable, FDiagnostics& InDiagnostics);

	/** Resolves one type, its bases first; a second call for the same type does nothing. */
	void Resolve(FReflectedType& Type);

private:
	bool ResolveBase(FReflectedType& Type);
	void ResolveClass(FReflectedType& Type);
	void ResolveStruct(FReflectedType& Type);
	void ResolveEnum(FReflectedType& Type);
	void ResolveProperties(FReflectedType& Type);
	void CheckPropertyName(const FReflectedType& Type, const FProperty& Property, std::size_t Index);
	void Error(const FReflectedType& Type, int Line, const std::string& Text);

	const FTypeTable& Table;
	FDiagnostics& Diagnostics;
	std::set<const FReflectedType*> Done;
	std::set<const FReflectedType*> Running;
};

}
