// Copyright The Tintmill authors. All rights reserved.

#include "HeaderParser.h"
#include "HeaderWriter.h"
#include "SourceWriter.h"
#include "TypeResolver.h"

#include <cstdint>
#include <cstdlib>
#include <string>

// Headers: anything may come; what the tool does not complain about it has to be able to write.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
	HeaderTool::FModule Module;
	Module.Name = "Fuzz";
	Module.Directory = "Fuzz";
	HeaderTool::FHeader Header;
	Header.Path = "Fuzz/Thing.h";
	Header.Module = &Module;
	Header.Leaf = "Thing";
	Header.ModuleRelativePath = "Thing.h";
	Header.FileId = "HostProject_Source_Fuzz_Thing_h";
	HeaderTool::FDiagnostics Diagnostics;
	HeaderTool::FHeaderParser(Header, Diagnostics).Parse(std::string(reinterpret_cast<const char*>(Data), Size));
	HeaderTool::FTypeTable Table;
	for (const auto& Type : Header.Types)
	{
		Table.Add(*Type, Diagnostics);
	}
	HeaderTool::FTypeResolver Resolver(Table, Diagnostics);
	for (const auto& Type : Header.Types)
	{
		Resolver.Resolve(*Type);
	}
	if (!Diagnostics.HasErrors() && (HeaderTool::FHeaderWriter(Header).Write().empty() || HeaderTool::WriteSource(Header).empty()))
	{
		std::abort();
	}
	return 0;
}
