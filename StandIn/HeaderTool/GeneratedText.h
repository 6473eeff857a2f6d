// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "MetaData.h"

#include <string>

namespace HeaderTool
{

/** The lines with which every generated file opens. */
std::string GetFileOpening();

/** The #include of the object system and what silences warnings, for a generated source file; Include may be empty. */
std::string GetSourceOpening(const std::string& Include);

/** What ends a generated source file. */
std::string GetSourceClosing();

/** Wraps lines in #if WITH_METADATA. */
std::string WithMetaData(const std::string& Lines);

/** The lines "{ "Key", "Value" }," of a metadata array, each indented by that many tabs. */
std::string GetMetaDataLines(const FMetaData& MetaData, int Tabs);

/** "METADATA_PARAMS(Array, UE_ARRAY_COUNT(Array))". */
std::string GetMetaDataParams(const std::string& Array);

}
