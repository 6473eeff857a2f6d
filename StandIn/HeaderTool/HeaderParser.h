// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "Diagnostics.h"
#include "Model.h"
#include "Preprocessor.h"
#include "TokenStream.h"

#include <string>
#include <vector>

namespace HeaderTool
{

/** Reads the text of one header and adds what it declares to the model; complains to the diagnostics. */
class FHeaderParser
{
public:
	/** Fills the given header. */
	FHeaderParser(FHeader& InHeader, FDiagnostics& InDiagnostics);

	/** Parses the whole text. */
	void Parse(const std::string& Text);

private:
	void CheckIncludes(const std::vector<FInclude>& Includes, int FirstMacroLine);
	int FindFirstMacroLine(const std::vector<FToken>& Tokens) const;
	void ParseTopLevel(FTokenStream& Tokens);
	void ParseMacro(FTokenStream& Tokens, int Depth);
	bool RefuseMisplaced(const FToken& Macro, int Depth);
	void Error(int Line, const std::string& Text);

	FHeader& Header;
	FDiagnostics& Diagnostics;
	std::string File;
};

}
