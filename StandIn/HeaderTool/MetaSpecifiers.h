// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "Diagnostics.h"
#include "Model.h"

#include <string>

namespace HeaderTool
{

/** Copies meta=(...) into the metadata; complains about a key with two values. */
void ApplyMeta(const FSpecifierSet& Specifiers, FMetaData& MetaData, const std::string& File, FDiagnostics& Diagnostics);

/** Handles the words in USTRUCT(...) and UENUM(...); What is "struct" or "enum". */
void ApplyMetaOnlySpecifiers(FReflectedType& Type, const std::string& What, FDiagnostics& Diagnostics);

}
