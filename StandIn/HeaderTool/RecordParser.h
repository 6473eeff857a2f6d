// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "Diagnostics.h"
#include "Model.h"
#include "TokenStream.h"

#include <string>

namespace HeaderTool
{

/** Reads what stands behind UCLASS(...) or USTRUCT(...): head, bases, body. */
class FRecordParser
{
public:
	/** Fills the given type from the tokens; members that cannot be read are reported and skipped. */
	FRecordParser(FReflectedType& InType, FTokenStream& InTokens, const std::string& InFile, FDiagnostics& InDiagnostics);

	/** Reads from the keyword to the closing semicolon; throws FSyntaxError where the head cannot be read. */
	void Parse();

private:
	void ParseHead();
	void ParseBases();
	void ParseBodyMacro();
	void ParseBody();
	void ParseMember();
	bool MatchAccess();
	void ParseConstructor();
	void SkipDeclaration();
	void SkipBalanced();
	bool StartsMember() const;
	void Error(int Line, const std::string& Text);

	FReflectedType& Type;
	FTokenStream& Tokens;
	std::string File;
	FDiagnostics& Diagnostics;
	std::string Context;
	EAccess Access = EAccess::Private;
};

}
