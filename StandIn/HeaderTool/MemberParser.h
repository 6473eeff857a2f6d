// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "Model.h"
#include "TokenStream.h"

namespace HeaderTool
{

/** Reads the member that stands behind UPROPERTY; throws FSyntaxError. */
class FMemberParser
{
public:
	/** Reads from the given tokens. */
	explicit FMemberParser(FTokenStream& InTokens);

	/** Reads "(...) Type Name;" behind the macro; the access is that of the section. */
	FProperty ParseProperty(const FToken& Macro, EAccess Access);

private:
	FTypeExpression ParseType(int Depth);
	void ParseInitializer();

	FTokenStream& Tokens;
};

}
