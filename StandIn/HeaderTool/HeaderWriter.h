// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "Model.h"

#include <string>

namespace HeaderTool
{

/** Writes what a header's own generated include holds: the body macros and the declarations behind the types. */
class FHeaderWriter
{
public:
	/** Writes for the given header. */
	explicit FHeaderWriter(const FHeader& InHeader);

	/** Returns the text of "<Leaf>.generated.h". */
	std::string Write();

private:
	void WriteStruct(const FReflectedType& Type);
	void WriteClass(const FReflectedType& Type);
	void WriteInClass(const FReflectedType& Type, const std::string& Macro);
	void WriteStandardConstructors(const FReflectedType& Type);
	void WriteEnhancedConstructors(const FReflectedType& Type);
	void WritePrivateOffsets(const FReflectedType& Type);
	void WriteBody(const FReflectedType& Type, bool bLegacy);
	void WriteEnum(const FReflectedType& Type);
	std::string GetMacroPrefix(const FReflectedType& Type) const;

	const FHeader& Header;
	std::string Result;
};

/** The lines that declare __PPO__ accessors of members that are not public; bEditorOnly picks the ones that exist in the editor alone. */
std::string GetPrivateOffsets(const FReflectedType& Type, bool bEditorOnly);

}
