// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "Model.h"
#include "TokenStream.h"

namespace HeaderTool
{

/** Reads what stands behind UENUM(...); throws FSyntaxError. */
class FEnumParser
{
public:
	/** Fills the given enum from the tokens. */
	FEnumParser(FReflectedType& InType, FTokenStream& InTokens);

	/** Reads from the keyword enum to the closing semicolon. */
	void Parse();

private:
	void ParseEnumerator();

	FReflectedType& Type;
	FTokenStream& Tokens;
};

}
