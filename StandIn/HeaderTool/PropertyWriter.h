// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "Model.h"

#include <string>

namespace HeaderTool
{

/** Writes those members of a statics struct that describe the properties of one class or struct. */
class FPropertyWriter
{
public:
	/** Writes for the given class or struct. */
	explicit FPropertyWriter(const FReflectedType& InOwner);

	/** The declarations inside the statics struct, the list of pointers included. */
	std::string WriteDeclarations() const;

	/** The definitions behind the statics struct, the list of pointers included. */
	std::string WriteDefinitions() const;

	/** The two arguments of the params: the list of pointers, and its count. */
	std::string GetPointersArgument() const;

	/** The count of the list of pointers. */
	std::string GetCountArgument() const;

private:
	std::string WriteDeclaration(const FProperty& Property) const;
	std::string WriteDefinition(const FProperty& Property) const;
	std::string WriteInner(const FProperty& Property) const;
	std::string WriteParams(const FProperty& Property) const;
	std::string WritePointer(const FProperty& Property, const std::string& Suffix) const;
	std::string GetReferenceArguments(const FPropertyType& Type) const;

	const FReflectedType& Owner;
	std::string Statics;
};

}
