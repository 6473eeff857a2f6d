// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "Diagnostics.h"
#include "Token.h"

#include <array>
#include <string>
#include <vector>

namespace HeaderTool
{

/** One #include line that the tool sees. */
struct FInclude
{
	/** What stands between the quotes or angle brackets. */
	std::string Target;
	int Line = 1;
};

/** Takes the preprocessor lines out of a header's tokens and drops what lies in blocks that the tool does not read. */
class FPreprocessor
{
public:
	/** Complaints go to the given collection under the given file name. */
	FPreprocessor(const std::string& InFile, FDiagnostics& InDiagnostics);

	/** Returns the tokens to parse; the last one is End. */
	std::vector<FToken> Filter(const std::vector<FToken>& Tokens);

	/** The includes in the order of the file, valid after Filter. */
	const std::vector<FInclude>& GetIncludes() const { return Includes; }

private:
	enum class EBlock
	{
		/** #if WITH_EDITORONLY_DATA: read, reflection allowed. */
		EditorOnly,
		/** A condition the tool knows: read, reflection refused. */
		Read,
		/** #if 0: not looked at. */
		Zero,
		/** Anything else: skipped, reflection refused. */
		Skipped,
	};
	struct FFrame
	{
		EBlock Block;
		int Line;
	};

	void HandleDirective(const FToken& Token);
	static EBlock Classify(const std::string& Keyword, const std::string& Condition);
	void Enter(EBlock Block, int Line);
	EBlock Leave();
	bool IsInside(EBlock Block) const { return Counts[static_cast<std::size_t>(Block)] > 0; }
	bool IsRefused(const FToken& Token) const;

	std::string File;
	FDiagnostics& Diagnostics;
	std::vector<FFrame> Frames;
	/** How many of the frames are of each kind. */
	std::array<int, 4> Counts = {};
	std::vector<FInclude> Includes;
};

/** Tells whether a name is one of the macros that declare something reflected. */
bool IsReflectionMacro(const std::string& Name);

}
