// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "Diagnostics.h"
#include "Model.h"
#include "TypeTable.h"

namespace HeaderTool
{

/** The values of EClassFlags that the tool writes. */
const std::uint32_t ClassAbstract = 0x1;
const std::uint32_t ClassDefaultConfig = 0x2;
const std::uint32_t ClassConfig = 0x4;
const std::uint32_t ClassTransient = 0x8;
const std::uint32_t ClassMatchedSerializers = 0x20;
const std::uint32_t ClassProjectUserConfig = 0x40;
const std::uint32_t ClassNative = 0x80;
const std::uint32_t ClassNotPlaceable = 0x200;
const std::uint32_t ClassPerObjectConfig = 0x400;
const std::uint32_t ClassEditInlineNew = 0x1000;
const std::uint32_t ClassMinimalApi = 0x80000;
const std::uint32_t ClassRequiredApi = 0x100000;

/** Turns the words in UCLASS(...) and what the base hands down into flags, config name and metadata. */
class FClassSpecifiers
{
public:
	/** Works on the given class, whose base is resolved. */
	FClassSpecifiers(FReflectedType& InType, const FTypeTable& InTable, FDiagnostics& InDiagnostics);

	/** Does the work. */
	void Apply();

private:
	void InheritFromBase();
	void ApplyOne(const FSpecifier& Specifier);
	bool ApplyFlag(const FSpecifier& Specifier);
	bool ApplyMetaData(const FSpecifier& Specifier);
	void ApplyConfig(const FSpecifier& Specifier);
	void ApplyWithin(const FSpecifier& Specifier);
	void JoinHiddenCategories();
	void Error(int Line, const std::string& Text);

	FReflectedType& Type;
	const FTypeTable& Table;
	FDiagnostics& Diagnostics;
};

}
