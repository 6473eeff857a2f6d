// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "Model.h"
#include "TypeTable.h"

namespace HeaderTool
{

/** The values of EPropertyFlags that the tool writes. */
const std::uint64_t CpfEdit = 0x1;
const std::uint64_t CpfBlueprintVisible = 0x4;
const std::uint64_t CpfBlueprintReadOnly = 0x10;
const std::uint64_t CpfEditFixedSize = 0x40;
const std::uint64_t CpfDisableEditOnTemplate = 0x800;
const std::uint64_t CpfTransient = 0x2000;
const std::uint64_t CpfConfig = 0x4000;
const std::uint64_t CpfDisableEditOnInstance = 0x10000;
const std::uint64_t CpfEditConst = 0x20000;
const std::uint64_t CpfGlobalConfig = 0x40000;
const std::uint64_t CpfDuplicateTransient = 0x200000;
const std::uint64_t CpfSaveGame = 0x1000000;
const std::uint64_t CpfNoClear = 0x2000000;
const std::uint64_t CpfNonTransactional = 0x400000000;
const std::uint64_t CpfEditorOnly = 0x800000000;
const std::uint64_t CpfSimpleDisplay = 0x20000000000;
const std::uint64_t CpfAdvancedDisplay = 0x40000000000;
const std::uint64_t CpfProtected = 0x80000000000;
const std::uint64_t CpfTextExportTransient = 0x200000000000;
const std::uint64_t CpfObjectWrapper = 0x4000000000000;
const std::uint64_t CpfAccessPublic = 0x10000000000000;
const std::uint64_t CpfAccessProtected = 0x20000000000000;
const std::uint64_t CpfAccessPrivate = 0x40000000000000;

/** The flags that an array hands to its element. */
const std::uint64_t CpfHandedToElement = CpfConfig | CpfEditConst | CpfEditorOnly | CpfObjectWrapper;

/** Works out type, flags and metadata of the properties of one class or struct. */
class FPropertyResolver
{
public:
	/** Looks types up in the table. */
	FPropertyResolver(const FReflectedType& InOwner, const FTypeTable& InTable);

	/** Fills the resolved fields of the property; throws FSyntaxError for everything that cannot be a property. */
	void Resolve(FProperty& Property) const;

private:
	FPropertyType ResolveType(const FTypeExpression& Expression, bool bElement) const;
	FPropertyType ResolveContainer(const FTypeExpression& Expression, bool bElement) const;
	FPropertyType ResolveWrapper(const FTypeExpression& Expression) const;
	FPropertyType ResolveReference(const FTypeExpression& Expression) const;
	const FReflectedType& RequireClass(const FTypeExpression& Expression) const;
	void ApplySpecifiers(FProperty& Property) const;
	bool ApplySpecifier(FProperty& Property, const FSpecifier& Specifier) const;
	void ApplyMetaData(FProperty& Property) const;
	void CheckRules(const FProperty& Property) const;

	const FReflectedType& Owner;
	const FTypeTable& Table;
};

}
